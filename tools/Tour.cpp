// Plays a day's first jobs by real keys and clicks, for an analog and a digital radio: sends a channel file
// to the radio, then reads the radio back into an empty page.
#include "catalogue/MemoryRow.h"
#include "catalogue/PageModel.h"
#include "frame/ZelkMain.h"
#include "robot/DesktopLook.h"
#include "robot/Robot.h"
#include "robot/TempFolder.h"
#include "tools/ChannelList.h"
#include "tools/P25Channels.h"
#include "tools/ScriptedProgram.h"
#include "tools/TourHand.h"
#include "tools/TourJob.h"

#include <wx/grid.h>

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

using namespace testbench;
namespace fs = std::filesystem;

namespace {

struct TourOptions {
    fs::path radio, examples, pictures;
};

TourOptions options;

constexpr Tour::Job AnalogJob{
    .model = "KRV-214",
    .choice = "KRV-214",
    .example = "krv-214-vhf.zelk",
    .sendTitle = "Send to ANFM Radio Progress",
    .readTitle = "Read ANFM Memory Data Progress",
    .asksForModes = false,
    .readBack = [](Tour::ChannelList channels) { return channels; },
    .radioRule = "",
    .pageRule = "",
};

/// Uses the latest protocol and the new layout.
constexpr Tour::Job DigitalJob{
    .model = "KDRV-716B",
    .choice = "KDRV-716B-V2",
    .example = "kdrv-716b-p25.zelk",
    .sendTitle = "Send to RP25 Radio Progress",
    .readTitle = "Read NP25 Memory Data Progress",
    .asksForModes = true,
    .readBack = [](Tour::ChannelList channels) { return AsReadBack(std::move(channels), "023"); },
    .radioRule = "; the shadow lists of primaries are made from their shadows",
    .pageRule =
        "; codes one place further down the list, the last one as the default row's; numbers\n"
        "                             and frequencies by value, since they come back with other zeros",
};

std::string ColourOfPage() {
    return "cells are " +
           CurrentGrid()->GetDefaultCellBackgroundColour().GetAsString(wxC2S_HTML_SYNTAX).utf8_string();
}

std::string SizesOfPage() {
    return "rows are " + std::to_string(CurrentGrid()->GetRowSize(1)) + " pixels high, frequencies " +
           std::to_string(CurrentGrid()->GetColSize(RFRQ)) + " wide";
}

void PlayTour(Robot& robot) {
    Tour::TourHand hand(robot, options.pictures);
    std::printf("Two simulated radios: %s, analog, and %s, digital.\n", AnalogJob.model, DigitalJob.model);
    hand.Need(robot.WaitFor([] { return MainFrame && MainFrame->IsShownOnScreen(); }), "no window");
    hand.Need(robot.WaitForWindow("Orv Zelk: Page 1 of 1\\."), "the window has no focus");
    hand.Done("start", robot.Ask([] { return MainFrame->GetTitle().utf8_string(); }));

    std::printf("    %s\n", AnalogJob.model);
    Tour::TourJob(hand, AnalogJob, options.radio, options.examples).Play();

    std::printf("    %s\n", DigitalJob.model);
    Tour::TourJob digital(hand, DigitalJob, options.radio, options.examples);
    digital.AddPage();
    digital.Play();

    std::printf("    a dark theme and larger texts\n");
    std::optional<DesktopLook> look;
    robot.Ask([&look] { look.emplace().SetTheme("Adwaita", true); });
    hand.Done("dark theme", robot.Ask([] { return ColourOfPage(); }));
    robot.Ask([&look] { look->ScaleTexts(1.5); });
    digital.AddPage();
    hand.Done("larger texts", robot.Ask([] { return SizesOfPage(); }));
    robot.Ask([&look] { look.reset(); });
}

bool ReadOptions(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string name = argv[i];
        if (name == "--radio")
            options.radio = argv[i + 1];
        else if (name == "--examples")
            options.examples = argv[i + 1];
        else if (name == "--pictures")
            options.pictures = argv[i + 1];
    }
    return !options.radio.empty() && !options.examples.empty() && !options.pictures.empty();
}

} // namespace

int main(int argc, char** argv) {
    if (!ReadOptions(argc, argv)) {
        std::fprintf(stderr, "usage: %s --radio PROGRAM --examples FOLDER --pictures FOLDER\n", argv[0]);
        return 2;
    }
    const TempFolder home("zelk-tour-home");
    const int exitCode = Tour::RunScripted(argv[0], home.Path(), PlayTour);
    std::printf("%s\n", exitCode == 0 ? "Both radios hold the channels of their files."
                                      : "The tour did not come to its end.");
    return exitCode;
}
