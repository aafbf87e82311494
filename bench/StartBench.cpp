// Time from the start of a process to a responsive window.
#include "bench/BareFrame.h"
#include "bench/Benches.h"
#include "catalogue/PageModel.h"
#include "frame/ZelkApp.h"
#include "frame/ZelkMain.h"

#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/grid.h>
#include <wx/init.h>

#include <unistd.h>

#include <cstdio>

namespace {

/// Ends the process at the first idle moment after the grid has been painted.
void EndWhenUsable(wxGrid* grid) {
    static bool painted = false;
    grid->GetGridWindow()->Bind(wxEVT_PAINT, [](wxPaintEvent& event) {
        painted = true;
        event.Skip();
    });
    wxTheApp->Bind(wxEVT_IDLE, [](wxIdleEvent& event) {
        event.Skip();
        if (!painted) {
            event.RequestMore();
            return;
        }
        std::puts("usable");
        std::fflush(stdout);
        _exit(0);
    });
}

class ProgramChild : public ZelkApp {
public:
    bool OnInit() override {
        if (!ZelkApp::OnInit())
            return false;
        EndWhenUsable(CurrentGrid());
        return true;
    }
};

class BareChild : public wxApp {
public:
    bool OnInit() override {
        EndWhenUsable(ShowBareFrame());
        return true;
    }
};

} // namespace

int RunStartChild(bool bare, int argc, char** argv) {
    wxDISABLE_DEBUG_SUPPORT();
    if (bare)
        wxApp::SetInstance(new BareChild);
    else
        wxApp::SetInstance(new ProgramChild);
    return wxEntry(argc, argv);
}

void RegisterStart(const std::string& self) {
    for (const bool bare : {false, true}) {
        const std::string command = self + (bare ? " --start-bare" : " --start-program") + " 2>/dev/null";
        benchmark::RegisterBenchmark(bare ? "start/window/floor" : "start/window/program",
                                     [command](benchmark::State& state) {
                                         for ([[maybe_unused]] auto _ : state) {
                                             FILE* child = popen(command.c_str(), "r");
                                             char line[32] = "";
                                             if (!child || !std::fgets(line, sizeof line, child))
                                                 state.SkipWithError("the window does not come up");
                                             if (child)
                                                 pclose(child);
                                         }
                                     })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->Repetitions(15)
            ->UseRealTime();
    }
}
