// speed.exe ZELK BARE_FRAME PORT1 PORT2: the speed of the Windows edition, as ratios from one run. Starts the
// program and the bare toolkit's frame, then transfers full pages both ways with the radios at the ports,
// which run at line speed.
#include "bench/FullPage.h"
#include "bench/TransferFloors.h"
#include "catalogue/PageModel.h"
#include "editing/PageReset.h"
#include "frame/ZelkApp.h"
#include "frame/ZelkMain.h"
#include "robot/Pump.h"
#include "transfer/AnalogDriver.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TRecordDriver.h"
#include "transfer/TransferClock.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"

#include <wx/app.h>
#include <wx/grid.h>
#include <wx/init.h>

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr double StartAim = 1.5, TransferAim = 1.05;
constexpr int Starts = 15, Transfers = 2;
constexpr double Never = std::numeric_limits<double>::max();

std::string zelk, bareFrame, analogPort, digitalPort;
bool aimsMet = true;

void Need(bool condition, const std::string& what) {
    if (!condition)
        throw std::runtime_error(what);
}

void Print(const char* name, double program, double floor, double aim) {
    const double ratio = program / floor;
    aimsMet = aimsMet && ratio <= aim;
    std::printf("%-24s %12.2f %12.2f %7.3f %6.2f%s\n", name, program, floor, ratio, aim,
                ratio <= aim ? "" : "  above");
    std::fflush(stdout);
}

/// Returns the milliseconds until the program waits for its user: its window is drawn.
double StartOf(std::string program) {
    constexpr DWORD limit = 60000;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    const auto begin = Clock::now();
    Need(CreateProcessA(nullptr, program.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process) != 0,
         "can't start " + program);
    const bool usable = WaitForInputIdle(process.hProcess, limit) == 0;
    const Milliseconds taken = Clock::now() - begin;
    TerminateProcess(process.hProcess, 0);
    WaitForSingleObject(process.hProcess, limit);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    Need(usable, program + " opens no window");
    return taken.count();
}

void CompareStarts() {
    double program = Never, floor = Never;
    // The first ones bring the files into memory.
    StartOf(bareFrame);
    StartOf(zelk);
    for (int k = 0; k < Starts; ++k) {
        floor = std::min(floor, StartOf(bareFrame));
        program = std::min(program, StartOf(zelk));
    }
    Print("start/window", program, floor, StartAim);
}

/// Returns the milliseconds of a transfer, which must succeed.
double TimeOf(const std::function<int()>& transfer) {
    constexpr int complete = 1;
    // A new page would be drawn within the transfer.
    testbench::PumpUntilIdle();
    const auto begin = Clock::now();
    const int status = transfer();
    const Milliseconds taken = Clock::now() - begin;
    Need(status == complete, "a transfer ended with " + std::to_string(status));
    return taken.count();
}

int TransferAnalog(int mode) {
    TransferContext context;
    context.Clock = &SystemClock();
    return AnalogProtocol::TransferData(context, CurrentGrid(), mode, analogPort, "Speed");
}

int TransferDigital(int mode) {
    TRecordContext context;
    context.Clock = &SystemClock();
    RadioStamp = DigitalFloor::Stamp;
    return TRecordProtocol::TransferData(context, CurrentGrid(), mode, digitalPort, "Speed");
}

/// Writes full pages and reads them back.
void CompareTransfers(const std::string& name, const PageCase& page, int (*transfer)(int mode), int lastRow,
                      double writeFloor, double readFloor) {
    MakePage(page);
    double write = Never, read = Never;
    for (int k = 0; k < Transfers; ++k) {
        FillPage();
        CurrentGrid()->SelectAll();
        write = std::min(write, TimeOf([transfer] { return transfer(WriteChannelsMode); }));
        ResetPage(CurrentPage);
        read = std::min(read, TimeOf([transfer] { return transfer(ReadChannelsMode); }));
        Need(!CurrentGrid()->GetCellValue(lastRow, RFRQ).empty(), "the last memory was not read");
    }
    DropPage();
    Print(("transfer/" + name + "-write").c_str(), write, 1000 * writeFloor, TransferAim);
    Print(("transfer/" + name + "-read").c_str(), read, 1000 * readFloor, TransferAim);
}

void Compare() {
    std::printf("%-24s %12s %12s %7s %6s\n", "", "program ms", "floor ms", "ratio", "aim");
    std::fflush(stdout);
    CompareStarts();
    CompareTransfers("analog", {"ANFM", Krv214, 0}, TransferAnalog, AnalogFloor::Rows, AnalogFloor::Write,
                     AnalogFloor::Read);
    CompareTransfers("digital", {"NP25", Kdrv716B, 0}, TransferDigital, DigitalFloor::Records - 1,
                     DigitalFloor::Write, DigitalFloor::Read);
}

class SpeedApp : public ZelkApp {
public:
    bool OnInit() override {
        argc = 1; // the arguments name no channel file
        if (!ZelkApp::OnInit())
            return false;
        CallAfter([] {
            try {
                Compare();
            } catch (const std::exception& failure) {
                std::printf("FAILED: %s\n", failure.what());
                aimsMet = false;
            }
            MainFrame->Destroy();
        });
        return true;
    }
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fprintf(stderr, "usage: %s ZELK BARE_FRAME PORT1 PORT2\n", argv[0]);
        return 2;
    }
    zelk = argv[1];
    bareFrame = argv[2];
    analogPort = argv[3];
    digitalPort = argv[4];
    wxDISABLE_DEBUG_SUPPORT();
    wxApp::SetInstance(new SpeedApp);
    wxEntry(GetModuleHandleW(nullptr), nullptr, nullptr, SW_SHOWNORMAL);
    return aimsMet ? 0 : 1;
}
