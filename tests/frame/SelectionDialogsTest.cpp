// The dialogs for radio and band.
#include "commands/CommandIds.h"
#include "frame/TargetSelection.h"
#include "tests/frame/FrameTools.h"
#include "tests/frame/SelectingTest.h"
#include "tests/support/RunWithRobot.h"

using namespace testbench;

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
        ClickDeadButton(dialog, wxID_OK);
        PressKey("Return");
        if (ReturnOpensLists)
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
