// Digital transfers of a full page, with a radio that runs at line speed.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "bench/PacedRadio.h"
#include "bench/TransferRun.h"
#include "catalogue/PageModel.h"
#include "editing/PageReset.h"
#include "frame/ZelkMain.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TRecordDriver.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"

#include <benchmark/benchmark.h>
#include <wx/grid.h>

#include <filesystem>
#include <fstream>

namespace {

/// KDRV-716B: 500 memories and two guards; the default row is transferred with them.
constexpr PageCase RadioPage{"NP25", Kdrv716B, 0};
constexpr int Records = 503;

/// Set in the radio, so that the floor knows the traffic on the line: its stamp, which the program knows, so
/// that nothing is purged; its serial number; and one hardware text.
constexpr const char* Stamp = "20260102030405";
constexpr const char* Serial = "SIM00716";
constexpr const char* HardwareText = "KDRV-716B";

// Characters of a line, including its end.
constexpr int DataLine(size_t dataBytes) {
    return static_cast<int>(2 + 2 + 4 + 2 * dataBytes + 2 + 1);
}
constexpr int Message = DataLine(1); // Ack, Nak and all messages of only a number
constexpr int HelloLine = DataLine(4);
constexpr int SpeedLine = DataLine(3);
constexpr int ModesLine = DataLine(2);
constexpr int VersionLine = DataLine(4);
constexpr int StampLine = DataLine(8);
constexpr int MemoryLine = DataLine(64);
constexpr int EndLine = DataLine(0);

/// Three hellos, of which the third is accepted, and the change of speed, each with its answer.
constexpr int SlowCharacters = 3 * (HelloLine + Message) + SpeedLine + Message;
/// Modes; serial number, hardware text and their end; firmware version.
constexpr int QuestionCharacters = Message + ModesLine + Message + DataLine(8) + Message + DataLine(9) +
                                   Message + EndLine + Message + VersionLine;
/// The stamp, requested or set, and the announcement.
constexpr int OpeningCharacters = Message + StampLine + 2 * Message;
constexpr int WriteCharacters = Records * (MemoryLine + Message);
/// The acknowledgement of the last memory requests the end line.
constexpr int ReadCharacters = Records * (Message + MemoryLine) + Message + EndLine;

// Times that the dialogue prescribes, in seconds.
constexpr double SlowCharacter = 10.0 / 9600, FastCharacter = 10.0 / 115200;
constexpr double SpeedDelay = 0.050, ClosingDelay = 1.0;
constexpr double HelloDelay = 0.020;  // behind each of the two hellos that are refused
constexpr double LateAnswers = 0.060; // a write listens for them

/// Each side waits for the other's line, so the wire carries one character at a time. The end line of a write
/// is sent within the closing delay.
constexpr double FloorOf(int memoryCharacters) {
    return SlowCharacters * SlowCharacter + 2 * HelloDelay + SpeedDelay +
           (QuestionCharacters + OpeningCharacters + memoryCharacters) * FastCharacter + ClosingDelay;
}

int Transfer(const PacedRadio& radio, TransferClock& clock, int mode) {
    TRecordContext context;
    context.Clock = &clock;
    RadioStamp = Stamp;
    return TRecordProtocol::TransferData(context, CurrentGrid(), mode, radio.Port().string(), "Bench");
}

int MemoriesIn(const std::filesystem::path& memories) {
    std::ifstream file(memories);
    int count = 0;
    for (std::string line; std::getline(file, line);)
        count += line.starts_with("2 T1");
    return count;
}

void Write(benchmark::State& state, const PacedRadio& radio, const std::filesystem::path& memories,
           Conditions conditions) {
    // Each memory's answer but the last one has a reply.
    MeasureTransfer(state, radio, conditions, Records - 1,
                    [&](TransferClock& clock) { return Transfer(radio, clock, WriteChannelsMode); });
    if (MemoriesIn(memories) != Records)
        state.SkipWithError("the radio does not hold all memories");
}

void Read(benchmark::State& state, const PacedRadio& radio, Conditions conditions) {
    ResetPage(CurrentPage);
    MeasureTransfer(state, radio, conditions, Records,
                    [&](TransferClock& clock) { return Transfer(radio, clock, ReadChannelsMode); });
    if (CurrentGrid()->GetCellValue(Records - 1, MNUM) != std::to_string(Records - 1))
        state.SkipWithError("the last memory was not read");
}

/// Writes a full page, or reads it back.
void Run(benchmark::State& state, Conditions conditions, bool read) {
    MakePage(RadioPage);
    FillPage();
    CurrentGrid()->SelectAll();
    const std::filesystem::path memories = PacedRadio::Folder() / "digital-memories";
    const std::filesystem::path hardware = PacedRadio::Folder() / "hardware";
    std::ofstream(hardware) << HardwareText << '\n';
    if (!read)
        std::filesystem::remove(memories);
    const bool filled = std::filesystem::exists(memories);
    {
        const PacedRadio radio("KDRV-716B", memories,
                               {"--stamp", Stamp, "--serial", Serial, "--hardware", hardware.string()});
        if (read && !filled)
            Transfer(radio, SystemClock(), WriteChannelsMode);
        for ([[maybe_unused]] auto _ : state)
            read ? Read(state, radio, conditions) : Write(state, radio, memories, conditions);
    }
    DropPage();
}

} // namespace

void RegisterDigitalTransfer() {
    RegisterTransfer("digital-write", FloorOf(WriteCharacters) + LateAnswers,
                     [](benchmark::State& state, Conditions conditions) { Run(state, conditions, false); });
    RegisterTransfer("digital-read", FloorOf(ReadCharacters),
                     [](benchmark::State& state, Conditions conditions) { Run(state, conditions, true); });
}
