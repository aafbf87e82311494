// The dialogs for radio, band and port.
#include "frame/SelectionDialogs.h"

#include "commands/CommandIds.h"
#include "frame/SerialPorts.h"
#include "frame/TargetSelection.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/PseudoTerminal.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"
#include "transfer/ChosenPort.h"

#include <wx/button.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>
#include <wx/stdpaths.h>
#include <wx/tooltip.h>

#include <sys/file.h>

#include <filesystem>

using namespace testbench;

namespace {

constexpr const char* RadioTitle = "<-- Select Target Radio -->";
constexpr const char* BandTitle = "<-- Select Frequency Band -->";
constexpr const char* PortTitle = "<-- Select Serial Port -->";

using Texts = std::vector<std::string>;

Texts ChoicesOf(const wxChoice* choice) {
    Texts texts;
    for (const wxString& text : choice->GetStrings())
        texts.push_back(text.utf8_string());
    return texts;
}

bool OkCanBePressed(wxDialog* dialog) {
    return dialog->FindWindow(wxID_OK)->IsEnabled();
}

/// Checks the form that the three dialogs share.
void ExpectForm(wxDialog* dialog, const wxString& label, const wxChoice* choice) {
    EXPECT_EQ(dialog->GetParent(), MainFrame);
    EXPECT_TRUE(dialog->HasFlag(wxCAPTION));
    EXPECT_FALSE(dialog->HasFlag(wxCLOSE_BOX));
    EXPECT_FALSE(dialog->HasFlag(wxSYSTEM_MENU));
    EXPECT_FALSE(dialog->HasFlag(wxRESIZE_BORDER));
    EXPECT_EQ(dialog->GetMinSize(), wxSize(190, 110));
    EXPECT_GE(dialog->GetSize().x, 190);
    EXPECT_NEAR(dialog->GetSize().y, 110, 5) << "the window manager's borders count in";
    wxStaticText* text = nullptr;
    for (wxWindow* child : dialog->GetChildren())
        if (auto* found = dynamic_cast<wxStaticText*>(child))
            text = found;
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->GetLabel(), label);
    EXPECT_EQ(text->GetSize().x, 50);
    EXPECT_LT(text->GetPosition().x, choice->GetPosition().x);
    wxWindow* ok = dialog->FindWindow(wxID_OK);
    wxWindow* cancel = dialog->FindWindow(wxID_CANCEL);
    ASSERT_NE(ok, nullptr);
    ASSERT_NE(cancel, nullptr);
    EXPECT_GT(ok->GetPosition().y, choice->GetPosition().y);
    // Nothing is clipped.
    const wxSize room = dialog->GetClientSize();
    for (const wxWindow* child : {ok, cancel, static_cast<wxWindow*>(const_cast<wxChoice*>(choice))}) {
        EXPECT_GE(child->GetRect().GetLeft(), 5);
        EXPECT_LE(child->GetRect().GetRight(), room.x - 5);
        EXPECT_LE(child->GetRect().GetBottom(), room.y - 5);
        EXPECT_GE(child->GetSize().x, child->GetBestSize().x);
    }
}

class Selecting : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
    }

    /// The target of the current page as texts.
    static Texts Target() {
        const PageStringRecord& texts = PageStrings[CurrentPage];
        return {texts.RadioName.utf8_string(), texts.BandName.utf8_string(), texts.FileName.utf8_string()};
    }

    /// Makes the page look like one for the radio to the dialogs.
    static void PretendRadio(int radio) {
        SetPageParameters(MainFrame, CurrentPage, radio, 0);
        PageStrings[CurrentPage].FileName = "kept";
    }
};

} // namespace

TEST_F(Selecting, ARadioOffersTheLabelsInTheirOrder) {
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Other, RadioTitle).Do([](wxDialog* dialog) {
        ExpectForm(dialog, "Radio", RadioChoice);
        EXPECT_EQ(ChoicesOf(RadioChoice),
                  (Texts{"KRV-21", "KRV-47", "ORV-12", "KRV-214", "KRV-214B", "KRV-305", "KDRV-716[A|B]",
                         "KDRV-716B-V2", "KDAR-2000", "KRV-610", "KRV-620", "KRV-630", "KRV-630QNT",
                         "KRV-650", "KRV-656", "KRV-666", "KDRV-8400", "KDRV-4xxx"}));
        ClickButton(dialog, wxID_CANCEL);
    });
    EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -10);
}

TEST_F(Selecting, ARadioBeginsWithThePagesOwnWhereItsLabelIsItsName) {
    for (int radio = 0; radio < 18; ++radio) {
        PretendRadio(radio);
        DialogScript dialogs;
        dialogs.Expect(DialogKind::Other, RadioTitle).Do([radio](wxDialog* dialog) {
            const bool found = radio != 6 && radio != 7 && radio != 12;
            EXPECT_EQ(RadioChoice->GetSelection(), found ? radio : -1) << "radio " << radio;
            PumpFor(100);
            EXPECT_EQ(OkCanBePressed(dialog), found) << "radio " << radio;
            ClickButton(dialog, wxID_CANCEL);
        });
        EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -10);
    }
}

TEST_F(Selecting, ARadioForANewPageBeginsWithNone) {
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Other, RadioTitle).Do([](wxDialog* dialog) {
        EXPECT_EQ(RadioChoice->GetSelection(), -1);
        PumpFor(100);
        EXPECT_FALSE(OkCanBePressed(dialog));
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdPageAdd);
}

TEST_F(Selecting, WithNothingChosenOkCannotBePressed) {
    PretendRadio(6);
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Other, RadioTitle).Do([](wxDialog* dialog) {
        ClickButton(dialog, wxID_OK);
        // The first key opens the list, and the second one closes it.
        PressKey("Return");
        PressKey("Escape");
        EXPECT_TRUE(dialog->IsModal()) << "the dialog is still open";
        RadioChoice->SetSelection(1);
        EXPECT_TRUE(PumpUntil([dialog] { return OkCanBePressed(dialog); }));
        RadioChoice->SetSelection(-1);
        EXPECT_TRUE(PumpUntil([dialog] { return !OkCanBePressed(dialog); }));
        ClickButton(dialog, wxID_CANCEL);
    });
    EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -10);
}

TEST_F(Selecting, ARadioOfOneBandShowsNoBandDialog) {
    for (int radio = 0; radio <= 8; ++radio) {
        DialogScript dialogs;
        ExpectRadio(dialogs, radio);
        EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), 0) << "radio " << radio;
        EXPECT_EQ(PageParameters[0].Radio, radio);
        EXPECT_EQ(PageParameters[0].BandIndex, 0);
        EXPECT_EQ(dialogs.Shown().size(), 1u) << "radio " << radio;
    }
}

TEST_F(Selecting, ABandOffersThoseOfTheChosenRadio) {
    const struct {
        int radio;
        Texts bands;
    } cases[] = {
        {9, {"FM: 138-174 MHz", "FM: 403-512 MHz"}},
        {10, {"FM: 138-174 MHz", "AM: 225-400 MHz"}},
        {11, {"FM: 30-50 MHz", "FM: 138-174 MHz"}},
        {12, {"FM: 30-50 MHz", "FM: 138-174 MHz"}},
        {13, {"FM: 30-50 MHz", "FM: 138-174 MHz", "FM: 403-512 MHz"}},
        {14, {"FM: 66-88 MHz", "FM: 138-174 MHz", "FM: 403-512 MHz"}},
        {15, {"FM: 66-88 MHz", "FM: 138-174 MHz"}},
        {16, {"FM: 30-50 MHz", "AM: 118-138 MHz", "FM: 138-174 MHz", "AM: 225-400 MHz", "FM: 403-512 MHz"}},
        {17,
         {"FM: 30-50 MHz", "AM: 118-138 MHz", "FM: 138-174 MHz", "AM: 225-400 MHz", "FM: 403-512 MHz",
          "K6: 3-BAND"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE("radio " + std::to_string(c.radio));
        const int last = static_cast<int>(c.bands.size()) - 1;
        DialogScript dialogs;
        ExpectRadio(dialogs, c.radio);
        dialogs.Expect(DialogKind::Other, BandTitle).Do([&c, last](wxDialog* dialog) {
            ExpectForm(dialog, "Band", BandChoice);
            EXPECT_EQ(ChoicesOf(BandChoice), c.bands);
            EXPECT_EQ(BandList.size(), c.bands.size());
            ChooseAndAccept(dialog, BandChoice, last);
        });
        EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), 0);
        EXPECT_EQ(PageParameters[0].Radio, c.radio);
        EXPECT_EQ(PageParameters[0].BandIndex, last);
        EXPECT_TRUE(BandList.empty());
    }
}

TEST_F(Selecting, ABandBeginsAtThePositionOfThePagesFormerRadio) {
    const struct {
        int former, chosen, preselected;
    } cases[] = {
        {0, 9, 0},   {1, 9, 1},  {2, 9, -1},  {1, 13, 1},  {2, 13, 2},
        {3, 13, -1}, {5, 17, 5}, {4, 17, 4},  {8, 17, -1}, {17, 17, -1},
        {6, 17, -1}, {4, 16, 4}, {5, 16, -1}, {12, 9, -1}, {11, 11, -1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE("radio " + std::to_string(c.former) + " to " + std::to_string(c.chosen));
        PretendRadio(c.former);
        DialogScript dialogs;
        ExpectRadio(dialogs, c.chosen);
        dialogs.Expect(DialogKind::Other, BandTitle).Do([&c](wxDialog* dialog) {
            EXPECT_EQ(BandChoice->GetSelection(), c.preselected);
            PumpFor(100);
            EXPECT_EQ(OkCanBePressed(dialog), c.preselected >= 0);
            ClickButton(dialog, wxID_CANCEL);
        });
        EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -10);
    }
}

TEST_F(Selecting, CancelledInEitherDialogLeavesThePageUntouched) {
    PageStrings[0].FileName = "kept";
    CurrentParameters().Flags = 0x02;
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Other, RadioTitle).Do([](wxDialog* dialog) {
        ClickButton(dialog, wxID_CANCEL);
    });
    EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -10);
    EXPECT_EQ(Target(), (Texts{"KRV-47", "FM 66-88", "kept"}));

    ExpectRadio(dialogs, 13);
    dialogs.Expect(DialogKind::Other, BandTitle).Do([](wxDialog* dialog) { CancelWithKey(dialog); });
    EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -10);
    EXPECT_EQ(Target(), (Texts{"KRV-47", "FM 66-88", "kept"}));
    EXPECT_EQ(CurrentParameters().Flags, 0x02);
    EXPECT_TRUE(BandList.empty());
}

TEST_F(Selecting, AnInvalidChoiceIsRefusedAndLeavesThePageUntouched) {
    PageStrings[0].FileName = "kept";
    DialogScript dialogs;
    // No user can give these answers, because they come without a choice.
    dialogs.Expect(DialogKind::Other, RadioTitle).Answer(wxID_OK);
    EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -12);

    dialogs.Expect(DialogKind::Other, RadioTitle).Set([](wxDialog*) { RadioChoice->SetSelection(17); });
    dialogs.Expect(DialogKind::Other, BandTitle).Set([](wxDialog*) {
        BandChoice->SetSelection(BandChoice->Append("seventh"));
    });
    EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -13);
    EXPECT_TRUE(BandList.empty());

    dialogs.Expect(DialogKind::Other, RadioTitle).Set([](wxDialog*) { RadioChoice->SetSelection(9); });
    dialogs.Expect(DialogKind::Other, BandTitle).Answer(wxID_OK);
    EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -13);
    EXPECT_EQ(Target(), (Texts{"KRV-47", "FM 66-88", "kept"}));
}

namespace {

/// Moves from the choice to OK, which may be before or after Cancel, and presses it.
void PressOk(Robot& robot, const wxChoice* choice) {
    robot.Settle();
    for (int tabs = 0; tabs < 3; ++tabs) {
        robot.Press("Tab");
        robot.Settle();
        if (robot.Ask([choice] { return choice->GetParent()->FindWindow(wxID_OK)->HasFocus(); }))
            break;
    }
    robot.Press("Return");
}

} // namespace

TEST_F(Selecting, WithTheKeyboardReachesRadioAndBand) {
    int result = -1;
    RunWithRobot(
        [](Robot& robot) {
            ASSERT_NE(robot.WaitForDialog(RadioTitle), nullptr);
            robot.Ask([] { RadioChoice->SetFocus(); });
            robot.Settle();
            // From the KRV-47 on.
            robot.Press("Down", 8);
            EXPECT_TRUE(robot.WaitFor([] { return RadioChoice->GetStringSelection() == "KRV-610"; }));
            PressOk(robot, RadioChoice);
            ASSERT_NE(robot.WaitForDialog(BandTitle), nullptr);
            robot.Ask([] { BandChoice->SetFocus(); });
            robot.Settle();
            robot.Press("Up");
            EXPECT_TRUE(robot.WaitFor([] { return BandChoice->GetSelection() == 0; }));
            PressOk(robot, BandChoice);
            robot.WaitForNoDialog();
        },
        [&result] { result = UserSelectRadioAndBand(MainFrame, 0); });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Target(), (Texts{"KRV-610", "FM 138-174", ""}));
}

TEST_F(Selecting, HasNoWindowManagersWayOut) {
    RunWithRobot(
        [](Robot& robot) {
            ASSERT_NE(robot.WaitForDialog(RadioTitle), nullptr);
            EXPECT_EQ(robot.Ask([] { return RadioChoice->GetParent()->GetWindowStyleFlag() & wxCLOSE_BOX; }),
                      0);
            robot.Press("Escape");
            EXPECT_TRUE(robot.WaitForNoDialog());
        },
        [] { EXPECT_EQ(UserSelectRadioAndBand(MainFrame, 0), -10); });
}

namespace {

/// A port list under the test's sole control.
class SelectingAPort : public Selecting {
protected:
    void SetUp() override {
        Selecting::SetUp();
        // Locks this machine's own ports, so that they don't count as free.
        for (const wxString& port : ListSerialPorts()) {
            const int descriptor = ::open(port.utf8_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
            if (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
                m_held.push_back(descriptor);
        }
        ASSERT_TRUE(ListSerialPorts().empty());
    }

    void TearDown() override {
        for (int descriptor : m_held)
            ::close(descriptor);
        std::filesystem::remove_all(Folder());
        Selecting::TearDown();
    }

    static std::filesystem::path Folder() {
        return std::filesystem::path(wxStandardPaths::Get().GetUserDataDir().utf8_string()) / "ports";
    }

    /// Creates a link to the pseudo-terminal in the folder of simulated radios. Returns its full name.
    static wxString Offer(PseudoTerminal& port, const std::string& name) {
        port.HoldSlave();
        std::filesystem::create_directories(Folder());
        std::filesystem::create_symlink(port.SlaveName(), Folder() / name);
        return wxString((Folder() / name).string());
    }

    static ExpectedDialog& ExpectPort(DialogScript& dialogs) {
        return dialogs.Expect(DialogKind::Other, PortTitle);
    }

    static wxString StatusField() { return MainFrame->m_statusBar->GetStatusText(4); }

private:
    std::vector<int> m_held;
};

} // namespace

TEST_F(SelectingAPort, WithNonePresentOffersNothing) {
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        ExpectForm(dialog, "Port", PortChoice);
        EXPECT_EQ(PortChoice->GetCount(), 0u);
        EXPECT_TRUE(PortList.empty());
        PumpFor(100);
        EXPECT_FALSE(OkCanBePressed(dialog));
        ClickButton(dialog, wxID_OK);
        PressKey("Return");
        EXPECT_TRUE(dialog->IsModal()) << "the dialog is still open";
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, "none");
    EXPECT_EQ(StatusField(), "");
}

TEST_F(SelectingAPort, WithNonePresentIsLeftWithEscape) {
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        PumpFor(100);
        CancelWithKey(dialog);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, "none");
}

TEST_F(SelectingAPort, BeginsInItsList) {
    PseudoTerminal first, second;
    Offer(first, "radio1");
    const wxString name = Offer(second, "radio2");
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        PumpFor(100);
        EXPECT_TRUE(PortChoice->HasFocus());
        PressKey("Alt+O");
        EXPECT_TRUE(dialog->IsModal()) << "nothing is chosen";
        for (int tries = 0; tries < 3 && PortChoice->GetSelection() != 1; ++tries)
            PressKey("Down");
        EXPECT_EQ(PortChoice->GetSelection(), 1);
        PumpUntil([dialog] { return OkCanBePressed(dialog); });
        PressKey("Alt+O");
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, name);
}

TEST_F(SelectingAPort, StoresItAndShowsItInTheStatusBar) {
    PseudoTerminal first, second;
    const wxString names[] = {Offer(first, "radio1"), Offer(second, "radio2")};
    DialogScript dialogs;
    ExpectPort(dialogs).Do([&names](wxDialog* dialog) {
        ExpectForm(dialog, "Port", PortChoice);
        EXPECT_EQ(ChoicesOf(PortChoice), (Texts{names[0].utf8_string(), names[1].utf8_string()}));
        EXPECT_EQ(PortList.size(), 2u);
        EXPECT_EQ(PortChoice->GetSelection(), -1);
        ChooseAndAccept(dialog, PortChoice, 1);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, names[1]);
    EXPECT_EQ(StatusField(), names[1]);
    EXPECT_TRUE(PortList.empty());

    // The next time, this port is preselected.
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        EXPECT_EQ(PortChoice->GetSelection(), 1);
        ChooseAndAccept(dialog, PortChoice, 0);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, names[0]);
    EXPECT_EQ(StatusField(), names[0]);
}

TEST_F(SelectingAPort, CancelledKeepsTheFormerOne) {
    PseudoTerminal port;
    Offer(port, "radio1");
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        PortChoice->SetSelection(0);
        PumpUntil([dialog] { return OkCanBePressed(dialog); });
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, "none");
    EXPECT_EQ(StatusField(), "");
    EXPECT_TRUE(PortList.empty());
}

TEST_F(SelectingAPort, ChosenEarlierButNotListedNowIsNotSelectedAndStaysAfterCancel) {
    PseudoTerminal port;
    Offer(port, "radio1");
    PortName = "/dev/ttyUSB7";
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        EXPECT_EQ(PortChoice->GetSelection(), -1);
        PumpFor(100);
        EXPECT_FALSE(OkCanBePressed(dialog));
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, "/dev/ttyUSB7");
}

TEST_F(SelectingAPort, LeavesOutOneThatAnotherProgramHolds) {
    PseudoTerminal first, second;
    Offer(first, "radio1");
    const wxString free = Offer(second, "radio2");
    const int holder = ::open(first.SlaveName().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_EQ(::flock(holder, LOCK_EX | LOCK_NB), 0);
    DialogScript dialogs;
    ExpectPort(dialogs).Do([&free](wxDialog* dialog) {
        EXPECT_EQ(ChoicesOf(PortChoice), Texts{free.utf8_string()});
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
    ::close(holder);
}

TEST_F(SelectingAPort, TellsInATipWhoMayOpenPorts) {
    ASSERT_FALSE(SerialPortGroupHint().empty());
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        EXPECT_EQ(dialog->GetToolTipText(), SerialPortGroupHint());
        EXPECT_EQ(PortChoice->GetToolTipText(), SerialPortGroupHint());
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
}
