// Digital transfers of a full page, with a radio that runs at line speed.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "bench/PacedRadio.h"
#include "bench/TransferFloors.h"
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

using DigitalFloor::Records;

constexpr PageCase RadioPage{"NP25", Kdrv716B, 0};

int Transfer(const PacedRadio& radio, TransferClock& clock, int mode) {
    TRecordContext context;
    context.Clock = &clock;
    RadioStamp = DigitalFloor::Stamp;
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
    std::ofstream(hardware) << DigitalFloor::HardwareText << '\n';
    if (!read)
        std::filesystem::remove(memories);
    const bool filled = std::filesystem::exists(memories);
    {
        const PacedRadio radio("KDRV-716B", memories,
                               {"--stamp", DigitalFloor::Stamp, "--serial", DigitalFloor::Serial,
                                "--hardware", hardware.string()});
        if (read && !filled)
            Transfer(radio, SystemClock(), WriteChannelsMode);
        for ([[maybe_unused]] auto _ : state)
            read ? Read(state, radio, conditions) : Write(state, radio, memories, conditions);
    }
    DropPage();
}

} // namespace

void RegisterDigitalTransfer() {
    RegisterTransfer("digital-write", DigitalFloor::Write,
                     [](benchmark::State& state, Conditions conditions) { Run(state, conditions, false); });
    RegisterTransfer("digital-read", DigitalFloor::Read,
                     [](benchmark::State& state, Conditions conditions) { Run(state, conditions, true); });
}
