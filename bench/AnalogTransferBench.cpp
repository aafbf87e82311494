// Analog transfers with a radio that runs at line speed.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "bench/PacedRadio.h"
#include "bench/TransferRun.h"
#include "catalogue/PageModel.h"
#include "frame/ZelkMain.h"
#include "transfer/AnalogDriver.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"

#include <benchmark/benchmark.h>
#include <wx/grid.h>

#include <filesystem>

namespace {

/// KRV-214: 100 channels and two guards.
constexpr PageCase RadioPage{"ANFM", Krv214, 0};
constexpr int Rows = 102;

// Times that the dialogue prescribes, in seconds.
constexpr double SlowCharacter = 0.350;
constexpr double FastCharacter = 0.002;
constexpr double WireByte = 10.0 / 9600;
constexpr double OpeningWait = 0.050;
constexpr double ClosingDelay = 1.0;
constexpr int LineLength = 76;

/// "rt", the radio's number and the command; each character is followed by its pause.
constexpr int WriteCommands = 5 + 3;
constexpr int ReadCommands = 5 + 4;

/// Each line and its end are sent with a pause per character; then the radio's answer byte arrives. A pause
/// is longer than a byte's time on the wire and covers it, so only the wire time of the answer is added.
constexpr double WriteFloor = WriteCommands * SlowCharacter + OpeningWait +
                              Rows * ((LineLength + 1) * FastCharacter + WireByte) +
                              (3 + 74 + 1) * FastCharacter + ClosingDelay;

int Transfer(const PacedRadio& radio, TransferClock& clock, int mode) {
    TransferContext context;
    context.Clock = &clock;
    return AnalogProtocol::TransferData(context, CurrentGrid(), mode, radio.Port().string(), "Bench");
}

/// Writes a full page, or reads it back.
void Run(benchmark::State& state, Conditions conditions, bool read) {
    MakePage(RadioPage);
    FillPage();
    CurrentGrid()->SelectAll();
    const std::filesystem::path memories = PacedRadio::Folder() / "analog-memories";
    if (!read)
        std::filesystem::remove(memories);
    const bool filled = std::filesystem::exists(memories);
    {
        const PacedRadio radio("KRV-214", memories, {"--banner="});
        if (read && !filled)
            Transfer(radio, SystemClock(), WriteChannelsMode);
        // A radio that is read sends everything without being asked line by line.
        for ([[maybe_unused]] auto _ : state)
            MeasureTransfer(state, radio, conditions, read ? 0 : Rows, [&](TransferClock& clock) {
                return Transfer(radio, clock, read ? ReadChannelsMode : WriteChannelsMode);
            });
    }
    DropPage();
}

} // namespace

void RegisterAnalogTransfer() {
    // In a read, every line with its end, and the short end line, arrive at wire speed. The radio starts when
    // it has the last character of the command, during that character's pause.
    constexpr int ReadBytes = Rows * (LineLength + 1) + (3 + 1);
    constexpr double ReadFloor =
        (ReadCommands - 1) * SlowCharacter + (1 + ReadBytes) * WireByte + ClosingDelay;
    RegisterTransfer("analog-write", WriteFloor,
                     [](benchmark::State& state, Conditions conditions) { Run(state, conditions, false); });
    RegisterTransfer("analog-read", ReadFloor,
                     [](benchmark::State& state, Conditions conditions) { Run(state, conditions, true); });
}
