// Analog transfers with a radio that keeps the line's pace.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "catalogue/PageModel.h"
#include "files/ZelkFile_OpenSave.h"
#include "frame/ZelkMain.h"
#include "transfer/AnalogDriver.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"

#include <benchmark/benchmark.h>

#include <wx/grid.h>
#include <wx/process.h>
#include <wx/utils.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <signal.h>
#include <thread>

namespace {

namespace fs = std::filesystem;
using Seconds = std::chrono::duration<double>;

/// KRV-214: 100 channels and two guards.
constexpr PageCase RadioPage{"ANFM", 3, 0};
constexpr int Rows = 102;

// What the dialogue prescribes, in seconds.
constexpr double SlowCharacter = 0.350;
constexpr double FastCharacter = 0.002;
constexpr double WireByte = 10.0 / 9600;
constexpr double OpeningWait = 0.050;
constexpr double ClosingDelay = 1.0;
constexpr int LineLength = 76;

/// "rt", the radio's number and the command; each character is followed by its pause.
constexpr int WriteCommands = 5 + 3;
constexpr int ReadCommands = 5 + 4;

/// A line of n characters and its end, each with its pause; then the radio's byte comes back. The
/// pauses are longer than a byte's time on the wire, so only that of the last one and of the answer
/// could show, and the last pause covers the first of these two.
constexpr double WriteFloor = WriteCommands * SlowCharacter + OpeningWait +
                              Rows * ((LineLength + 1) * FastCharacter + WireByte) +
                              (3 + 74 + 1) * FastCharacter + ClosingDelay;

/// The simulated radio on a port of its own.
class PacedRadio {
public:
    explicit PacedRadio(const std::string& options) {
        m_folder = fs::temp_directory_path() / ("zelk-bench-" + std::to_string(getpid()));
        fs::create_directories(m_folder);
        m_pid = wxExecute(
            wxString(ZELK_RADIO) + " --model KRV-214 --name radio --pace --banner= --ports-dir " +
                m_folder.string() + " --memories " + (m_folder / "memories").string() + " " + options,
            wxEXEC_ASYNC);
        for (int tries = 0; tries < 200 && !fs::exists(Port()); ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }

    ~PacedRadio() {
        if (m_pid > 0)
            wxProcess::Kill(static_cast<int>(m_pid), wxSIGTERM);
        for (int tries = 0; tries < 100 && fs::is_symlink(Port()); ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }

    fs::path Port() const { return m_folder / "radio"; }

private:
    fs::path m_folder;
    long m_pid = 0;
};

double Transfer(benchmark::State& state, const PacedRadio& radio, int mode) {
    TransferContext context;
    const auto begin = std::chrono::steady_clock::now();
    const int status = TransferData(context, CurrentGrid(), mode, radio.Port().string(), "Bench");
    if (status != 1)
        state.SkipWithError(("the transfer ended with " + std::to_string(status)).c_str());
    return Seconds(std::chrono::steady_clock::now() - begin).count();
}

/// Fills the radio and reads it back. The radio's time for a read is that of its bytes on the wire.
void Run(benchmark::State& state, bool read) {
    MakePage(RadioPage);
    FillPage();
    CurrentGrid()->SelectAll();
    {
        const PacedRadio radio("");
        for ([[maybe_unused]] auto _ : state) {
            double seconds = Transfer(state, radio, WriteChannelsMode);
            if (read)
                seconds = Transfer(state, radio, ReadChannelsMode);
            state.SetIterationTime(seconds);
        }
    }
    DropPage();
}

/// The prescribed time itself: the pair's floor is computed, not measured.
void Prescribed(benchmark::State& state, double seconds) {
    for ([[maybe_unused]] auto _ : state)
        state.SetIterationTime(seconds);
}

} // namespace

void RegisterAnalogTransfer() {
    // A read: every line with its end, and the short end line, arrive at the speed of the wire. The
    // radio begins when it has the last character of the command, within that character's pause.
    constexpr int ReadBytes = Rows * (LineLength + 1) + (3 + 1);
    constexpr double ReadFloor =
        (ReadCommands - 1) * SlowCharacter + (1 + ReadBytes) * WireByte + ClosingDelay;
    struct Side {
        const char* name;
        void (*run)(benchmark::State&);
    };
    constexpr Side Sides[] = {
        {"transfer/write/program", [](benchmark::State& state) { Run(state, false); }},
        {"transfer/write/floor", [](benchmark::State& state) { Prescribed(state, WriteFloor); }},
        {"transfer/read/program", [](benchmark::State& state) { Run(state, true); }},
        {"transfer/read/floor", [](benchmark::State& state) { Prescribed(state, ReadFloor); }},
    };
    for (const Side& side : Sides)
        benchmark::RegisterBenchmark(side.name, side.run)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->UseManualTime();
}
