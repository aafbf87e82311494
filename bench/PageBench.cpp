// Creation of a page, for each radio type.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "bench/ToolkitFloor.h"
#include "frame/ZelkMain.h"

#include <benchmark/benchmark.h>
#include <wx/notebook.h>

namespace {

void MakePages(benchmark::State& state, const PageCase& page) {
    for ([[maybe_unused]] auto _ : state) {
        MakePage(page);
        state.PauseTiming();
        DropPage();
        state.ResumeTiming();
    }
}

/// Returns the content of such a page, taken from one that the program has made.
GridContent ContentOf(const PageCase& page) {
    MakePage(page);
    GridContent content = ContentOfCurrentPage();
    DropPage();
    return content;
}

void MakeBarePages(benchmark::State& state, const PageCase& page) {
    const GridContent content = ContentOf(page);
    for ([[maybe_unused]] auto _ : state) {
        AddBarePage(MainFrame->m_notebook, content);
        state.PauseTiming();
        DropPage();
        state.ResumeTiming();
    }
}

} // namespace

void RegisterPages() {
    for (const PageCase& page : PageCases) {
        for (const bool floor : {false, true})
            benchmark::RegisterBenchmark(
                (std::string("page/") + page.type + (floor ? "/floor" : "/program")).c_str(),
                [floor, &page](benchmark::State& state) {
                    floor ? MakeBarePages(state, page) : MakePages(state, page);
                })
                ->Unit(benchmark::kMillisecond)
                ->Iterations(5)
                ->Repetitions(8)
                ->UseRealTime();
    }
}
