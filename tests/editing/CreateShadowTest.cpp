// The command that creates a shadow of a memory.
#include "editing/ZelkEdit.h"
#include "tests/editing/CommandTest.h"

#include <wx/combobox.h>
#include <wx/dialog.h>
#include <wx/textctrl.h>

namespace {

constexpr const char* Caption = "Create Shadow - Error";

class CreateShadowCommand : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        Retarget(Kdrv716, 0);
        Complete(10);
    }

    static void Complete(int row) {
        Fill({row});
        SetCell(row, RNSV, "10");
    }

    static void Enter(wxDialog* dialog, const wxString& text) {
        for (wxWindow* child : dialog->GetChildren())
            if (auto* control = dynamic_cast<wxTextCtrl*>(child))
                control->SetValue(text);
        dialog->TransferDataFromWindow();
    }

    static std::string TitleFor(int primary, int shadow) {
        return wxString::Format("For Primary: %03d create Shadow: %d", primary, shadow).utf8_string();
    }

    /// Expects the dialog and answers it with the text.
    static void ExpectEntry(testbench::DialogScript& dialogs, int primary, int shadow, const wxString& text,
                            int answer = wxID_OK) {
        dialogs.Expect(testbench::DialogKind::Other, TitleFor(primary, shadow))
            .Set([text](wxDialog* dialog) { Enter(dialog, text); })
            .Answer(answer);
    }

    static void RunOn(int row) {
        CurrentGrid()->SelectRow(row);
        ContextRow = row;
        MainFrame->m_contextMenu->SendEvent(CreateShadow);
    }

    static void Create(int primary, int slot, int shadow) {
        testbench::DialogScript dialogs;
        ExpectEntry(dialogs, primary, slot + 1, wxString::Format("%d", shadow));
        RunOn(primary);
    }

    /// The texts that a choice cell offers.
    static Texts Offered(int row, int col) {
        CurrentGrid()->GoToCell(row, col);
        CurrentGrid()->EnableCellEditControl();
        testbench::PumpUntilIdle();
        Texts offered;
        const wxGridCellEditorPtr editor(CurrentGrid()->GetCellEditor(row, col));
        if (const auto* combo = dynamic_cast<wxComboBox*>(editor->GetControl()))
            for (const wxString& text : combo->GetStrings())
                offered.push_back(text.utf8_string());
        testbench::PressKey("Escape");
        return offered;
    }

    /// Enters each of the numbers for a shadow of row 10, and expects a report that it is in use.
    static void TryNumbersInUse(std::initializer_list<const char*> numbers) {
        for (const char* number : numbers) {
            SCOPED_TRACE(number);
            testbench::DialogScript dialogs;
            ExpectEntry(dialogs, 10, 1, number);
            ExpectRefusal(dialogs, "Selected memory is already in use.");
            RunOn(10);
        }
    }

    static void ExpectRefusal(testbench::DialogScript& dialogs, const char* message) {
        dialogs.ExpectMessage(Caption, message).Style(testbench::PlainBox);
    }
};

} // namespace

TEST_F(CreateShadowCommand, LinksBothRows) {
    SetCell(10, RFRQ, "150.0000");
    SetCell(10, TFRQ, "151.0000");
    SetCell(10, RTGP, "00AB");
    SetCell(10, SCAN, "Y");
    SetCell(10, MFLG, "68");
    const auto slots = ZoneSlots;
    Create(10, 0, 17);
    EXPECT_EQ(Cell(10, SHAD), "P-1");
    EXPECT_EQ(Cell(10, SHD0), "017");
    EXPECT_EQ(Cell(10, MFLG), "78");
    EXPECT_EQ(Cell(10, SCAN), "N");
    EXPECT_EQ(Cell(10, PRIM), "010");
    EXPECT_EQ(Cell(17, MFLG), "01");
    EXPECT_EQ(Cell(17, MNUM), "017");
    EXPECT_EQ(Cell(17, PRIM), "010");
    EXPECT_EQ(Cell(17, SHAD), "S-010");
    EXPECT_EQ(Cell(17, SCAN), "N");
    EXPECT_EQ(Cell(17, BAND), "");
    for (int col = 6; col <= 22; ++col)
        EXPECT_EQ(Cell(17, col), Cell(10, col)) << "column " << col;
    for (int col = 23; col <= 29; ++col)
        EXPECT_EQ(Cell(17, col), "0") << "column " << col;
    EXPECT_EQ(Cell(17, TFLG), "A0");
    EXPECT_EQ(ZoneSlots, slots) << "a shadow takes no zone slot";
    for (int col : {MNUM, SHAD, SCAN}) {
        EXPECT_TRUE(IsReadOnly(10, col)) << col;
        EXPECT_TRUE(IsReadOnly(17, col)) << col;
    }
    for (int col : {ZONE, RFRQ, TFRQ}) {
        EXPECT_FALSE(IsReadOnly(10, col)) << col;
        EXPECT_TRUE(IsReadOnly(17, col)) << col;
    }
    EXPECT_FALSE(IsReadOnly(17, DESC));
    EXPECT_FALSE(CurrentGrid()->IsInSelection(10, 0));
}

TEST_F(CreateShadowCommand, TakesTheRowsNumberForThePrimarysRow) {
    Complete(12);
    SetCell(10, MNUM, "12");
    SetCell(12, RTGP, "00AB");
    SetCell(12, SHD0, "020");
    testbench::DialogScript dialogs;
    ExpectEntry(dialogs, 12, 2, "17");
    RunOn(10);
    EXPECT_EQ(Column(SHAD, {10, 12, 17}), (Texts{"N", "P-2", "S-012"}));
    EXPECT_EQ(Cell(12, SHD1), "017");
    EXPECT_EQ(Cell(17, MFLG), "02");
    EXPECT_EQ(Cell(17, RTGP), "00AB");
    EXPECT_EQ(Locked(10), std::vector<int>{SHAD});
    EXPECT_EQ(Locked(12), (std::vector<int>{MNUM, SHAD, SCAN}));
}

TEST_F(CreateShadowCommand, LeavesAShadowTheTransmitSquelchesOfShadows) {
    testbench::ShowAndFocus(*MainFrame);
    SetCell(10, MODE, "D");
    SetCell(10, RSQL, "m");
    SetCell(10, TSQL, "g");
    SetRowEditorsP25(CurrentGrid(), 10);
    Create(10, 0, 17);
    EXPECT_EQ(Offered(10, TSQL).size(), 3u);
    EXPECT_EQ(Offered(17, TSQL).size(), 2u);
    EXPECT_EQ(Offered(17, RSQL), (Texts{"m", "n", "g"}));
}

TEST_F(CreateShadowCommand, RefusesARowWithAnEmptyShownCell) {
    SetCell(10, DESC, "");
    const Texts before = RowTexts(10);
    testbench::DialogScript dialogs;
    ExpectRefusal(dialogs, "Cannot Create Shadow!\nMemory record is empty or incomplete.");
    RunOn(10);
    EXPECT_EQ(RowTexts(10), before);
}

TEST_F(CreateShadowCommand, RefusesAPrimaryWithSevenShadowsWithoutADialog) {
    for (int slot = 0; slot < 7; ++slot)
        Create(10, slot, 20 + slot);
    EXPECT_EQ(Cell(10, SHAD), "P-7");
    EXPECT_EQ(Cell(26, MFLG), "07");
    const Texts before = RowTexts(10);
    testbench::DialogScript dialogs;
    ExpectRefusal(dialogs, "Cannot Create Shadow!\nShadow List is full for selected primary.");
    RunOn(10);
    EXPECT_EQ(RowTexts(10), before);
}

TEST_F(CreateShadowCommand, AfterTheSecondShadowHasGoneTakesItsSlot) {
    for (int slot = 0; slot < 7; ++slot)
        Create(10, slot, 20 + slot);
    RunOnRow(ClearRow, 21);
    Create(10, 1, 40);
    EXPECT_EQ(Cell(10, SHD1), "040");
    EXPECT_EQ(Cell(10, SHAD), "P-2");
    EXPECT_EQ(Cell(40, MFLG), "02");
}

TEST_F(CreateShadowCommand, TakesASlotOf000ForFree) {
    SetCell(10, SHD0, "000");
    Create(10, 0, 17);
    EXPECT_EQ(Cell(10, SHD0), "017");
}

TEST_F(CreateShadowCommand, RefusesANumberInUse) {
    Complete(30);
    SetCell(0, MNUM, "044");
    const Texts before = RowTexts(10), used = RowTexts(30);
    TryNumbersInUse({"30", "030", "10", "1", "231", "232", "44"});
    EXPECT_EQ(RowTexts(10), before);
    EXPECT_EQ(RowTexts(30), used);
}

// A departure: with a comparison of texts, numbers that differ in leading zeros would let a memory
// be overwritten without a warning.
TEST_F(CreateShadowCommand, ComparesNumbersAndNotTheirTextsSoThatNoMemoryIsOverwritten_Departure) {
    Complete(30);
    Complete(31);
    SetCell(30, MNUM, "13");
    SetCell(31, MNUM, "0014");
    const Texts first = RowTexts(30), second = RowTexts(31);
    TryNumbersInUse({"13", "013", "14"});
    EXPECT_EQ(RowTexts(30), first);
    EXPECT_EQ(RowTexts(31), second);
    EXPECT_EQ(RowTexts(13), Blank());
    EXPECT_EQ(RowTexts(14), Blank());
}

// A departure: the shadow is written into the row of its number, whatever number that row has now.
TEST_F(CreateShadowCommand, RefusesARowWithDataWhateverItsNumberSoThatNoMemoryIsOverwritten_Departure) {
    testbench::ShowAndFocus(*MainFrame);
    const std::pair<int, const char*> contents[] = {{MNUM, "099"}, {MNUM, ""}, {DESC, "KEPT"}, {MFLG, "68"}};
    for (const auto& [col, text] : contents) {
        SCOPED_TRACE(std::string(ColumnTag[col]) + " " + text);
        RunOnRow(ClearRow, 30);
        testbench::ShowAndFocus(*MainFrame);
        if (col == MNUM)
            Complete(30);
        SetCell(30, col, text);
        const Texts before = RowTexts(10), used = RowTexts(30);
        testbench::DialogScript dialogs;
        dialogs.Expect(testbench::DialogKind::Other, TitleFor(10, 1)).Do([](wxDialog* dialog) {
            testbench::TypeText("30");
            testbench::ClickButton(dialog, wxID_OK);
        });
        ExpectRefusal(dialogs, "Selected memory is already in use.");
        ClickRowCommand(10, CreateShadow);
        EXPECT_EQ(RowTexts(10), before);
        EXPECT_EQ(RowTexts(30), used);
    }
}

TEST_F(CreateShadowCommand, RefusesANumberOutsideThePage) {
    const Texts before = RowTexts(10);
    for (const char* number : {"0", "233", "99999999999", "abc", "1a", "-5", " 5"}) {
        SCOPED_TRACE(number);
        testbench::DialogScript dialogs;
        ExpectEntry(dialogs, 10, 1, number);
        ExpectRefusal(dialogs, "Cannot Create Shadow!\nMemory number must be from 1 to 232.");
        RunOn(10);
    }
    EXPECT_EQ(RowTexts(10), before);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 10, 231, 232}));
}

TEST_F(CreateShadowCommand, RefusesARowWhoseOwnNumberIsOutsideThePage) {
    for (const char* number : {"0", "233", "none"}) {
        SCOPED_TRACE(number);
        SetCell(10, MNUM, number);
        testbench::DialogScript dialogs;
        ExpectRefusal(dialogs, "Cannot Create Shadow!\nMemory number must be from 1 to 232.");
        RunOn(10);
    }
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 10, 231, 232}));
}

TEST_F(CreateShadowCommand, WhenCancelledChangesNothing) {
    const Texts before = RowTexts(10);
    testbench::DialogScript dialogs;
    ExpectEntry(dialogs, 10, 1, "17", wxID_CANCEL);
    RunOn(10);
    EXPECT_EQ(RowTexts(10), before);
    EXPECT_EQ(RowTexts(17), Blank());
    EXPECT_FALSE(CurrentGrid()->IsInSelection(10, 0));
}

TEST_F(CreateShadowCommand, FromTheMenuTakesTheNumberThatWasTyped) {
    testbench::ShowAndFocus(*MainFrame);
    testbench::DialogScript dialogs;
    dialogs.Expect(testbench::DialogKind::Other, TitleFor(10, 1)).Do([](wxDialog* dialog) {
        testbench::TypeText("17");
        testbench::ClickButton(dialog, wxID_OK);
    });
    ClickRowCommand(10, CreateShadow);
    EXPECT_EQ(Cell(17, SHAD), "S-010");
}

TEST_F(CreateShadowCommand, FromTheMenuMakesSevenShadowsAndRefusesTheEighth) {
    testbench::ShowAndFocus(*MainFrame);
    for (int slot = 0; slot < 7; ++slot) {
        SCOPED_TRACE(slot + 1);
        testbench::DialogScript dialogs;
        dialogs.Expect(testbench::DialogKind::Other, TitleFor(10, slot + 1)).Do([slot](wxDialog* dialog) {
            testbench::TypeText(std::to_string(20 + slot));
            testbench::ClickButton(dialog, wxID_OK);
        });
        ClickRowCommand(10, CreateShadow);
        EXPECT_EQ(Cell(10, SHAD), wxString::Format("P-%d", slot + 1));
        EXPECT_EQ(Cell(10, SHD0 + slot), wxString::Format("%03d", 20 + slot));
        EXPECT_EQ(Cell(20 + slot, SHAD), "S-010");
        EXPECT_EQ(Cell(20 + slot, MFLG), wxString::Format("%02X", slot + 1));
    }
    const Texts before = RowTexts(10);
    testbench::DialogScript dialogs;
    ExpectRefusal(dialogs, "Cannot Create Shadow!\nShadow List is full for selected primary.");
    ClickRowCommand(10, CreateShadow);
    EXPECT_EQ(RowTexts(10), before);
    EXPECT_EQ(RowTexts(27), Blank());
}

TEST_F(CreateShadowCommand, LetsAFrequencyEditOfThePrimaryReachItsShadows) {
    testbench::ShowAndFocus(*MainFrame);
    Create(10, 0, 17);
    Create(10, 1, 18);
    Complete(20);
    testbench::TypeIntoCell(*CurrentGrid(), 10, RFRQ, "150.0");
    EXPECT_EQ(Cell(10, RFRQ), "150.0000");
    EXPECT_EQ(Column(RFRQ, {17, 18, 20}), (Texts{"150.0000", "150.0000", "136.0000"}));
    EXPECT_EQ(Column(TFRQ, {17, 18, 20}), (Texts{"150.0000", "150.0000", "174.0000"}));
    testbench::TypeIntoCell(*CurrentGrid(), 10, TFRQ, "155.5");
    EXPECT_EQ(Column(RFRQ, {10, 17, 18}), (Texts{"150.0000", "150.0000", "150.0000"}));
    EXPECT_EQ(Column(TFRQ, {10, 17, 18}), (Texts{"155.5000", "155.5000", "155.5000"}));
    CheckRow(CurrentGrid(), 17);
    EXPECT_EQ(Cell(17, RFRQ), "150.0000");
    EXPECT_EQ(Cell(17, TFRQ), "155.5000");
    EXPECT_EQ(Cell(17, ZONE), "");
}

TEST_F(CreateShadowCommand, LeavesAShadowsFrequenciesToItsPrimary) {
    testbench::ShowAndFocus(*MainFrame);
    Create(10, 0, 17);
    testbench::TypeIntoCell(*CurrentGrid(), 17, RFRQ, "150.0");
    EXPECT_EQ(Cell(17, RFRQ), "136.0000");
}

TEST_F(CreateShadowCommand, RefusesARowThatOnlyALongerPageHas) {
    for (int row : {-1, 233, 502}) {
        SCOPED_TRACE(row);
        testbench::DialogScript dialogs;
        ExpectRefusal(dialogs, "Cannot Create Shadow!\nMemory record is empty or incomplete.");
        ContextRow = row;
        MainFrame->m_contextMenu->SendEvent(CreateShadow);
    }
}
