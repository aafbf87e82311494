// Dialogs answered by script.
#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/support/AssertsOff.h"
#include "tests/support/Modals.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/choicdlg.h>
#include <wx/filedlg.h>
#include <wx/msgdlg.h>
#include <wx/textdlg.h>

using namespace testbench;

TEST(DialogScript, AnswersMessageBoxesInTheirOrder) {
    DialogScript dialogs;
    dialogs.ExpectMessage("First", "one");
    dialogs.Expect(DialogKind::Message, Matching("Sec.*"))
        .Style(wxYES_NO | wxCENTRE | wxICON_QUESTION)
        .Answer(wxID_NO);
    EXPECT_EQ(wxMessageBox("one", "First"), wxOK);
    EXPECT_EQ(dialogs.Missing(), 1u);
    EXPECT_EQ(wxMessageBox("two", "Second", wxYES_NO | wxCENTRE), wxNO);
    ASSERT_EQ(dialogs.Shown().size(), 2u);
    EXPECT_EQ(dialogs.Shown()[1].caption, "Second");
    EXPECT_EQ(dialogs.Shown()[1].message, "two");
    EXPECT_EQ(dialogs.Shown()[1].kind, DialogKind::Message);
}

TEST(DialogScript, AnswersMessageDialogs) {
    DialogScript dialogs;
    dialogs.ExpectMessage("Really?", "All goes", wxID_CANCEL);
    wxMessageDialog question(nullptr, "All goes", "Really?", wxOK | wxCANCEL);
    EXPECT_EQ(question.ShowModal(), wxID_CANCEL);
}

TEST(DialogScript, CountsAWrongMessageAsUnexpectedAndCancels) {
    DialogScript dialogs;
    dialogs.ExpectMessage("Caption", "right");
    EXPECT_NONFATAL_FAILURE(
        {
            wxMessageDialog wrong(nullptr, "wrong", "Caption", wxOK | wxCANCEL);
            EXPECT_EQ(wrong.ShowModal(), wxID_CANCEL);
        },
        "unexpected message box \"Caption\" saying \"wrong\"; next expected: message box \"Caption\" saying "
        "\"right\"");
    EXPECT_EQ(wxMessageBox("right", "Caption"), wxOK);
}

TEST(DialogScript, CountsAWrongStyleOrKindAsUnexpected) {
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Message, "Caption").Style(wxOK | wxCENTRE | wxICON_ERROR);
    EXPECT_NONFATAL_FAILURE(wxMessageBox("text", "Caption", wxOK | wxCENTRE), "unexpected message box");
    EXPECT_NONFATAL_FAILURE(wxFileDialog(nullptr, "Caption").ShowModal(),
                            "unexpected file dialog \"Caption\"");
    EXPECT_EQ(wxMessageBox("text", "Caption", wxOK | wxCENTRE | wxICON_ERROR), wxOK);
}

TEST(DialogScript, FailsForADialogThatNeverCame) {
    EXPECT_NONFATAL_FAILURE(
        {
            DialogScript dialogs;
            dialogs.ExpectMessage("Absent", "nothing");
        },
        "expected but never came: message box \"Absent\" saying \"nothing\"");
}

TEST(DialogScript, DecidesInTheInnermostScopeOnly) {
    DialogScript outer;
    outer.ExpectMessage("Outer", "text");
    {
        DialogScript inner;
        EXPECT_NONFATAL_FAILURE(wxMessageBox("text", "Outer"), "no more were expected");
    }
    EXPECT_EQ(wxMessageBox("text", "Outer"), wxOK);
}

TEST(DialogWithoutAScript, IsAFailureAndAnsweredWithCancel) {
    EXPECT_NONFATAL_FAILURE(
        {
            wxDialog dialog(nullptr, wxID_ANY, "Surprise");
            EXPECT_EQ(dialog.ShowModal(), wxID_CANCEL);
        },
        "unexpected dialog \"Surprise\"; none was expected");
}

TEST(DialogScript, ChoosesAFileThatExists) {
    const TempFolder folder;
    WriteFile(folder / "channels.zelk", "text");
    DialogScript dialogs;
    dialogs.ExpectFile("Open it", folder / "channels.zelk");
    wxFileDialog dialog(nullptr, "Open it", "", "", "*.zelk", wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    EXPECT_EQ(dialog.ShowModal(), wxID_OK);
    EXPECT_EQ(dialog.GetPath().utf8_string(), (folder / "channels.zelk").string());
}

TEST(DialogScript, ChoosesAFileToBeMade) {
    const TempFolder folder;
    DialogScript dialogs;
    dialogs.ExpectFile("Save it", folder / "new.zelk");
    wxFileDialog dialog(nullptr, "Save it", "", "", "*.zelk", wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    EXPECT_EQ(dialog.ShowModal(), wxID_OK);
    EXPECT_EQ(dialog.GetPath().utf8_string(), (folder / "new.zelk").string());
}

TEST(DialogScript, CancelsAFileDialog) {
    DialogScript dialogs;
    dialogs.Expect(DialogKind::File, AnyText()).Answer(wxID_CANCEL);
    EXPECT_EQ(wxFileDialog(nullptr, "Open it").ShowModal(), wxID_CANCEL);
}

TEST(DialogScript, SetsAChoiceUnseen) {
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Other, "Pick").Set([](wxDialog* dialog) {
        dynamic_cast<wxSingleChoiceDialog&>(*dialog).SetSelection(1);
    });
    const wxString choices[] = {"a", "b", "c"};
    wxSingleChoiceDialog dialog(nullptr, "Which?", "Pick", 3, choices);
    EXPECT_EQ(dialog.ShowModal(), wxID_OK);
    EXPECT_EQ(dialog.GetSelection(), 1);
}

TEST(DialogScript, WorksOnADialogThatIsReallyShown) {
    DialogScript dialogs;
    bool onScreen = false;
    dialogs.Expect(DialogKind::Other, "Name").Do([&](wxDialog* dialog) {
        onScreen = dialog->IsShownOnScreen() && dialog->IsModal();
        dynamic_cast<wxTextEntryDialog&>(*dialog).SetValue("Zelk");
        wxCommandEvent click(wxEVT_BUTTON, wxID_OK);
        dialog->ProcessWindowEvent(click);
    });
    wxTextEntryDialog dialog(nullptr, "Who?", "Name");
    EXPECT_EQ(dialog.ShowModal(), wxID_OK);
    EXPECT_EQ(dialog.GetValue(), "Zelk");
    EXPECT_TRUE(onScreen);
}

TEST(DialogScript, CancelsAShownDialogThatNobodyEnds) {
    EXPECT_NONFATAL_FAILURE(
        {
            DialogScript dialogs;
            dialogs.Expect(DialogKind::Other, "Endless").Do([](wxDialog*) {});
            EXPECT_EQ(wxDialog(nullptr, wxID_ANY, "Endless").ShowModal(), wxID_CANCEL);
        },
        "not ended by the work on it: dialog \"Endless\"");
}

TEST(ToolkitAssertion, IsAFailureUnlessTurnedOff) {
    EXPECT_NONFATAL_FAILURE(wxFAIL_MSG("misuse"), "misuse");
    const AssertsOff off;
    wxFAIL_MSG("required misuse");
}

TEST(Hanging, DISABLED_InADialog) {
    const ShowDialogs shown;
    wxDialog(nullptr, wxID_ANY, "No one answers").ShowModal();
}
