// Analog transfers with a radio that runs at line speed.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "bench/PacedRadio.h"
#include "bench/TransferFloors.h"
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

constexpr PageCase RadioPage{"ANFM", Krv214, 0};
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
            MeasureTransfer(state, radio, conditions, read ? 0 : AnalogFloor::Rows,
                            [&](TransferClock& clock) {
                                return Transfer(radio, clock, read ? ReadChannelsMode : WriteChannelsMode);
                            });
    }
    DropPage();
}

} // namespace

void RegisterAnalogTransfer() {
    RegisterTransfer("analog-write", AnalogFloor::Write,
                     [](benchmark::State& state, Conditions conditions) { Run(state, conditions, false); });
    RegisterTransfer("analog-read", AnalogFloor::Read,
                     [](benchmark::State& state, Conditions conditions) { Run(state, conditions, true); });
}
