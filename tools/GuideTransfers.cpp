// Scenes of transfers with simulated radios.
#include "catalogue/PageModel.h"
#include "commands/CommandIds.h"
#include "frame/SelectionDialogs.h"
#include "frame/ZelkMain.h"
#include "robot/OpenDialogs.h"
#include "robot/RadioProcess.h"
#include "robot/ScreenSpots.h"
#include "tools/GuideScenes.h"

#include <wx/dialog.h>
#include <wx/grid.h>

#include <memory>

using namespace testbench;

namespace Guide {

namespace {

constexpr const char* RadioQuestion = "<-- Select Target Radio -->";
constexpr const char* BandQuestion = "<-- Select Frequency Band -->";
constexpr const char* PortQuestion = "<-- Select Serial Port -->";

/// Starts a simulated radio, which runs for the lifetime of the object.
std::unique_ptr<RadioProcess> StartRadio(const Places& places, const std::string& model,
                                         const std::string& name, const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments{
        "--model", model, "--name", name, "--memories", places.scratch / (name + ".txt"), "--pace"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    auto radio = std::make_unique<RadioProcess>(places.radio, arguments);
    radio->RequireReady();
    return radio;
}

void AnswerBox(Tour::TourHand& hand, Camera& camera, const std::string& caption, const std::string& picture,
               int ms = 60000) {
    Robot& robot = hand.TheRobot();
    const wxDialog* box = robot.WaitForDialog(caption, ms);
    hand.Need(box != nullptr, "no box " + caption);
    if (!picture.empty())
        camera.FocusedWindow(picture);
    robot.Press("Return");
    const auto gone = [box] { return OpenDialogs().empty() || OpenDialogs().back().dialog != box; };
    hand.Need(robot.WaitFor(gone), caption + " stays open");
}

/// Waits for the progress window and pictures it during the transfer.
void TakeProgress(Tour::TourHand& hand, Camera& camera, const std::string& title,
                  const std::string& picture) {
    hand.Need(hand.TheRobot().WaitForWindow(title, 20000), "no window " + title);
    // Long enough for the gauge to move.
    wxMilliSleep(4500);
    camera.Part(picture, Desk().FocusedArea());
}

void TypeIntoCell(Robot& robot, int row, int column, const std::string& text, bool end = true) {
    robot.Click(robot.Ask([=] { return CellSpot(*CurrentGrid(), row, column); }));
    robot.Settle();
    robot.Type(text);
    robot.Settle();
    if (end) {
        robot.Press("Return");
        robot.Settle();
    }
}

/// Sets a cell with a list to one of its entries.
void ChooseInCell(Robot& robot, int row, int column, const wxString& text) {
    robot.Ask([&] { CurrentGrid()->SetCellValue(row, column, text); });
}

void ChooseTarget(Tour::TourHand& hand, Camera& camera) {
    Robot& robot = hand.TheRobot();
    RunCommand(IdSetTarget);
    hand.Need(robot.WaitForDialog("Change Target\\?") != nullptr, "no question");
    camera.FocusedWindow("change-target");
    robot.Press("Return");
    wxDialog* dialog = hand.Pick(RadioQuestion, RadioChoice, "KRV-650");
    camera.FocusedWindow("radio-dialog");
    robot.Click(robot.Ask([&] { return MiddleOf(*dialog->FindWindow(wxID_OK)); }));
    dialog = hand.Pick(BandQuestion, BandChoice, "FM: 138-174 MHz");
    camera.FocusedWindow("band-dialog");
    hand.ClickOk(dialog, BandQuestion);
}

void TypeChannels(Tour::TourHand& hand, Camera& camera) {
    Robot& robot = hand.TheRobot();
    TypeIntoCell(robot, 1, RFRQ, "155.75", false);
    robot.Move({700, 420});
    camera.Window("typing", 320);
    robot.Type("25\n");
    robot.Settle();
    TypeIntoCell(robot, 1, DESC, "CALL");
    ChooseInCell(robot, 1, TTON, "156.7");
    TypeIntoCell(robot, 2, RFRQ, "151.1375");
    TypeIntoCell(robot, 2, DESC, "TAC 1");
    TypeIntoCell(robot, 3, RFRQ, "154.4525");
    TypeIntoCell(robot, 3, DESC, "TAC 2");
    camera.Window("channels", 320);
}

void SelectRows(Robot& robot, int first, int last) {
    robot.Ask([=] {
        CurrentGrid()->ClearSelection();
        for (int row = first; row <= last; ++row)
            CurrentGrid()->SelectRow(row, true);
    });
}

} // namespace

void ChoosePort(Tour::TourHand& hand, Camera& camera, const std::string& radio, const std::string& picture) {
    Robot& robot = hand.TheRobot();
    RunCommand(IdSetPort);
    hand.Need(robot.WaitForDialog(PortQuestion) != nullptr, "no port dialog");
    const std::string text = robot.Ask([&] {
        for (const wxString& entry : PortChoice->GetStrings())
            if (entry.EndsWith("/" + radio))
                return entry.utf8_string();
        return std::string();
    });
    hand.Need(!text.empty(), "the port dialog does not offer " + radio);
    wxDialog* dialog = hand.Pick(PortQuestion, PortChoice, text);
    if (!picture.empty())
        camera.FocusedWindow(picture);
    hand.ClickOk(dialog, PortQuestion);
}

void TakeFirstTransfer(Tour::TourHand& hand, Camera& camera, const Places& places) {
    Robot& robot = hand.TheRobot();
    ResizeWindow(robot, 800, 640);
    camera.Window("start");
    const auto radio = StartRadio(places, "KRV-650:FM 138-174", "KRV-650");
    ChooseTarget(hand, camera);
    ChoosePort(hand, camera, "KRV-650", "port-dialog");
    TypeChannels(hand, camera);
    RunCommand(IdValidatePage);
    AnswerBox(hand, camera, "Validate Page", "validate-box");

    OpenOnPage(robot, places.examples / "krv-650-vhf.zelk");
    SelectRows(robot, 1, 60);
    RunCommand(IdUpload);
    TakeProgress(hand, camera, "Send to ANFM Radio Progress", "progress-send");
    AnswerBox(hand, camera, "Write to Radio Status", "status-complete", 180000);

    SelectRows(robot, 1, 0); // none
    RunCommand(IdDownload);
    AnswerBox(hand, camera, "Read Channel Data from Radio\\?", "read-question");
    AnswerBox(hand, camera, "Read channel data from radio", "press-enter", 20000);
    AnswerBox(hand, camera, "Read from Radio Status", "", 180000);
    camera.Window("read-back", 380);
}

void TakeTransferBoxes(Tour::TourHand& hand, Camera& camera, const Places& places) {
    Robot& robot = hand.TheRobot();
    {
        const auto radio = StartRadio(places, "KRV-650:FM 138-174", "silent", {"--fault", "silence@2"});
        OpenOnPage(robot, places.examples / "krv-650-vhf.zelk");
        ChoosePort(hand, camera, "silent", "");
        SelectRows(robot, 1, 5);
        RunCommand(IdUpload);
        AnswerBox(hand, camera, "Error", "timeout-error");
        AnswerBox(hand, camera, "Write to Radio Status", "timeout-status");
    }
    const auto radio = StartRadio(places, "KDRV-716B", "KDRV-716B");
    OpenOnPage(robot, places.examples / "kdrv-716b-p25.zelk");
    ChoosePort(hand, camera, "KDRV-716B", "");
    SelectRows(robot, 20, 30);
    RunCommand(IdUpload);
    AnswerBox(hand, camera, "Radio Operating Modes", "operating-modes");
    AnswerBox(hand, camera, "Purge radio\\?", "");
    AnswerBox(hand, camera, "Write to Radio Status", "");
}

} // namespace Guide
