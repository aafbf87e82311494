// Memory that full pages add to the window.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "catalogue/PageCreation.h"
#include "catalogue/PageModel.h"
#include "catalogue/RowFilling.h"
#include "frame/TargetSelection.h"
#include "frame/ZelkApp.h"
#include "frame/ZelkMain.h"

#include <benchmark/benchmark.h>
#include <wx/init.h>
#include <wx/utils.h>

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>

namespace {

/// Its pages have 502 rows.
constexpr int Radio = RadioCatalogue::Kdrv716B;

/// Returns this process's memory that isn't backed by a file, in KiB; -1 if the system doesn't report it.
long AnonymousMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "RssAnon:") {
            long size = -1;
            status >> size;
            return size;
        }
    return -1;
}

/// Lets the window finish its drawing.
void Settle() {
    for (int i = 0; i < 20; ++i) {
        wxTheApp->Yield();
        wxMilliSleep(10);
    }
}

/// Makes the window's first page one of 502 rows and adds pages of that size up to the page limit.
void MakeSixPages() {
    const PageParameterRecord former = PageParameters[0];
    SetPageParameters(MainFrame, 0, Radio, 0);
    AdjustEditGrid(MainFrame, former.Radio, former.BandIndex);
    SetPageDefaults(MainFrame, 0);
    FillPage();
    Settle();
    while (PageCount < PageLimit) {
        SetPageParameters(MainFrame, PageCount, Radio, 0);
        CreateNewPage(MainFrame, PageCount);
        FillPage();
        Settle();
    }
}

class MemoryChild : public ZelkApp {
public:
    bool OnInit() override {
        if (!ZelkApp::OnInit())
            return false;
        CallAfter([] {
            Settle();
            const long before = AnonymousMemory();
            MakeSixPages();
            std::printf("%ld\n", AnonymousMemory() - before);
            std::fflush(stdout);
            _exit(before > 0 ? 0 : 1);
        });
        return true;
    }
};

void RunMemory(benchmark::State& state, const std::string& command) {
    for ([[maybe_unused]] auto _ : state) {
        FILE* child = popen(command.c_str(), "r");
        long added = -1;
        if (!child || std::fscanf(child, "%ld", &added) != 1 || added <= 0)
            state.SkipWithError("the memory can't be read");
        if (child)
            pclose(child);
        state.counters["megabytes"] = static_cast<double>(added) / 1024;
    }
}

} // namespace

int RunMemoryChild(int argc, char** argv) {
    wxDISABLE_DEBUG_SUPPORT();
    wxApp::SetInstance(new MemoryChild);
    return wxEntry(argc, argv);
}

void RegisterMemory(const std::string& self) {
    const std::string command = self + " --six-pages 2>/dev/null";
    benchmark::RegisterBenchmark("memory/six pages of 502 rows/size",
                                 [command](benchmark::State& state) { RunMemory(state, command); })
        ->Iterations(1)
        ->Repetitions(3);
}
