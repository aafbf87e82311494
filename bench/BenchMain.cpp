// Speed as ratios in one run: the program against the bare toolkit and the wire.
#include "bench/Benches.h"
#include "bench/RatioReport.h"
#include "bench/TransferRun.h"
#include "frame/ZelkApp.h"
#include "frame/ZelkMain.h"

#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/window.h>

#include <cstring>
#include <filesystem>

namespace {

RatioReport report;
bool aimsMet = false;

class BenchApp : public ZelkApp {
public:
    bool OnInit() override {
        if (!ZelkApp::OnInit())
            return false;
        CallAfter([] {
            benchmark::RunSpecifiedBenchmarks(&report);
            aimsMet = report.Print();
            MainFrame->Destroy();
        });
        return true;
    }
};

} // namespace

int main(int argc, char** argv) {
    if (argc > 1 && (!std::strcmp(argv[1], "--start-bare") || !std::strcmp(argv[1], "--start-program"))) {
        int noArguments = 1;
        return RunStartChild(!std::strcmp(argv[1], "--start-bare"), noArguments, argv);
    }
    if (argc > 1 && !std::strcmp(argv[1], "--six-pages")) {
        int noArguments = 1;
        return RunMemoryChild(noArguments, argv);
    }
    if (argc > 1 && !std::strcmp(argv[1], "--keep-busy"))
        KeepBusy();
    benchmark::Initialize(&argc, argv);
    const std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
    RegisterStart(self);
    RegisterMemory(self);
    RegisterPages();
    RegisterChannelFiles();
    RegisterCsv();
    RegisterImports();
    RegisterEditing();
    RegisterAnalogTransfer();
    RegisterDigitalTransfer();
    RegisterRecordCodec();
    RegisterPrint();
    report.SetAim("start", 1.2);
    report.SetAim("page", 1.5);
    report.SetAim("file", 1.5);
    // Their floors are a few columns and texts and take tenths of a millisecond. Attributes per cell would
    // take 50 times that.
    report.SetAim("SetPageEditors", 6);
    report.SetAim("OnInsertRow", 7);
    report.SetAim("OnDeleteRow", 10);
    for (const char* group : {"OnDefaultFile", "OnDefaultCol"})
        report.SetAim(group, 1.5);
    report.SetAim("CheckPage", 3);
    for (const char* group : {"CsvImport", "CsvExport", "Import716Binary", "Import716Text", "ImportMultiZEL"})
        report.SetAim(group, 3);
    report.SetGrowthAim(102, 502, 6);
    for (const char* group : {"SetPageEditors", "OnInsertRow", "OnDeleteRow"})
        report.SetGrowthAim(group, 5.5);
    report.SetSizeAim("memory", 18);
    report.SetAim("transfer", 1.03);
    report.SetAim("busy", 1.10);
    report.AddCounterTable("processor_percent", "processor time, % of a core", "transfer", 5, false);
    report.AddCounterTable("reply_median", "median reply, microseconds", "transfer", 1, true);
    report.AddCounterTable("reply_99", "99th percentile of replies", "transfer", 1, true);
    report.SetAim("print", 1.2);
    wxDISABLE_DEBUG_SUPPORT();
    wxApp::SetInstance(new BenchApp);
    int noArguments = 1;
    wxEntry(noArguments, argv);
    return aimsMet ? 0 : 1;
}
