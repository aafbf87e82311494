#include "editing/ShadowDialog.h"
#include "editing/Shadows.h"
#include "tests/editing/CommandTest.h"

#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace {

class ShadowNumber : public ::testing::Test {};
class ShadowSlots : public ::testing::Test {
protected:
    static wxArrayString RowWith(std::initializer_list<const char*> slots) {
        wxArrayString texts;
        texts.resize(32);
        size_t col = SHD0;
        for (const char* slot : slots)
            texts[col++] = slot;
        return texts;
    }
};

class ShadowRows : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        Retarget(Kdrv716, 0);
    }
};

} // namespace

TEST_F(ShadowNumber, IsDigitsWithinThePage) {
    const struct {
        const char* text;
        int number; // 0: refused
    } cases[] = {
        {"1", 1},    {"001", 1}, {"12", 12}, {"230", 230}, {"232", 232}, {"0000000000017", 17},
        {"", 0},     {"0", 0},   {"000", 0}, {"233", 0},   {"-1", 0},    {"+5", 0},
        {" 5", 0},   {"5 ", 0},  {"5a", 0},  {"abc", 0},   {"1.5", 0},   {"99999999999999", 0},
        {"0x10", 0}, {"４", 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ReadShadowNumber(wxString::FromUTF8(c.text), 232).value_or(0), c.number)
            << '"' << c.text << '"';
}

TEST_F(ShadowSlots, AreFreeWhenTheyReadAsZero) {
    EXPECT_EQ(FirstFreeShadowSlot(RowWith({"0", "0", "0", "0", "0", "0", "0"})), 0);
    EXPECT_EQ(FirstFreeShadowSlot(RowWith({"011", "012", "0", "014", "0", "0", "0"})), 2);
    EXPECT_EQ(FirstFreeShadowSlot(RowWith({"11", "000", "13", "14", "15", "16", "17"})), 1);
    EXPECT_EQ(FirstFreeShadowSlot(RowWith({"11", "12", "13", "14", "15", "16", "00"})), 6);
    EXPECT_EQ(FirstFreeShadowSlot(RowWith({"11", "12", "13", "14", "15", "16", "17"})), 7);
    EXPECT_EQ(FirstFreeShadowSlot(RowWith({})), 0) << "an empty slot is free";
}

TEST_F(ShadowSlots, GiveTheNumbersOfTheShadowsInTheirOrder) {
    EXPECT_EQ(ShadowNumbers(RowWith({"0", "000", "", "0", "0", "0", "0"})), std::vector<int>{});
    EXPECT_EQ(ShadowNumbers(RowWith({"017", "0", "3", "000", "0", "0", "230"})),
              (std::vector<int>{17, 3, 230}));
}

TEST_F(ShadowRows, AreFoundByTheirNumber) {
    Fill({10, 20});
    EXPECT_EQ(GetMnumRow(10), 10);
    SetCell(10, MNUM, "20");
    EXPECT_EQ(GetMnumRow(20), 10) << "the first one";
    EXPECT_EQ(GetMnumRow(10), 233);
    EXPECT_EQ(GetMnumRow(0), 233) << "neither blank rows nor row 0 are memory 0";
    SetCell(20, MNUM, "0");
    EXPECT_EQ(GetMnumRow(0), 20);
    EXPECT_EQ(GetMnumRow(232), 232);
}

TEST_F(ShadowRows, OfAPrimaryAreLockedInPart) {
    Fill({10, 11});
    SetCell(10, SCAN, "Y");
    SetCell(11, SCAN, "Y");
    LockLinkedRow(10, 1);
    LockLinkedRow(11, 2);
    for (int col = 0; col < 32; ++col) {
        EXPECT_EQ(IsReadOnly(10, col), col == MNUM || col == SHAD || col == SCAN) << "column " << col;
        EXPECT_EQ(IsReadOnly(11, col),
                  col == MNUM || col == SHAD || col == SCAN || col == ZONE || col == RFRQ || col == TFRQ)
            << "column " << col;
    }
    EXPECT_EQ(Column(SCAN, {10, 11}), (Texts{"N", "N"}));
}

TEST_F(ShadowRows, GetBothFrequenciesOfTheirPrimary) {
    Fill({10, 20});
    Link(10, {11, 12});
    SetCell(10, RFRQ, "150.0000");
    SetCell(10, TFRQ, "151.0000");
    HandleP25Shadows(nullptr, 10, "not used", CurrentGrid());
    EXPECT_EQ(Column(RFRQ, {11, 12, 20}), (Texts{"150.0000", "150.0000", "136.0000"}));
    EXPECT_EQ(Column(TFRQ, {11, 12, 20}), (Texts{"151.0000", "151.0000", "174.0000"}));
    EXPECT_EQ(Cell(0, RFRQ), "136.0000") << "a free slot names no row";
}

TEST_F(ShadowRows, AreNotTakenForOthersAfterRowsHaveMoved) {
    Fill({10, 20});
    Link(10, {11});
    SetCell(10, SHD1, "020");
    SetCell(10, SHD2, "999");
    SetCell(10, SHD3, "-4");
    SetCell(10, RFRQ, "150.0000");
    HandleP25Shadows(nullptr, 10, "", CurrentGrid());
    EXPECT_EQ(Column(RFRQ, {11, 20}), (Texts{"150.0000", "136.0000"}));
    for (int number : {0, -1, 233, 99999})
        HandleP25Shadows(nullptr, number, "", CurrentGrid());
    RemovePrimary(10);
    EXPECT_EQ(RowTexts(11), Blank());
    EXPECT_EQ(Cell(20, DESC), "row20");
}

TEST_F(ShadowRows, AreNoneOfTheDefaultRow) {
    Fill({10});
    Link(10, {11});
    SetCell(0, SHD0, "011");
    SetCell(0, RFRQ, "150.0000");
    HandleP25Shadows(nullptr, 0, "", CurrentGrid());
    EXPECT_EQ(ShadowRowsOf(CurrentGrid(), 0), std::vector<int>{});
    EXPECT_EQ(Cell(11, RFRQ), "136.0000") << "0 numbers no memory";
    EXPECT_EQ(ShadowRowsOf(CurrentGrid(), 10), std::vector<int>{11});
}

TEST_F(ShadowRows, OfARemovedPrimaryAreEmptiedButKeepTheirLockOnShad) {
    Fill({10, 20});
    Link(10, {11, 12});
    const auto slots = ZoneSlots;
    const Texts primary = RowTexts(10);
    RemovePrimary(10);
    for (int row : {11, 12}) {
        EXPECT_EQ(RowTexts(row), Blank());
        for (int col = 0; col < 32; ++col)
            EXPECT_EQ(IsReadOnly(row, col), col == SHAD) << "row " << row << " column " << col;
    }
    EXPECT_EQ(RowTexts(10), primary) << "the primary is left to the caller";
    EXPECT_EQ(ZoneSlots, slots);
    EXPECT_EQ(Cell(20, DESC), "row20");
}

TEST_F(ShadowRows, OfAListThatNamesAVanishedNumberArePassedOver) {
    Fill({10});
    Link(10, {11, 12, 13});
    SetCell(12, MNUM, "");
    RemovePrimary(10);
    EXPECT_EQ(RowTexts(11), Blank());
    EXPECT_NE(RowTexts(12), Blank());
    EXPECT_EQ(RowTexts(13), Blank());
}

TEST_F(ShadowRows, AreFoundByNumberWhereverTheyStand) {
    Fill({10, 30});
    Link(10, {11});
    // The shadow has moved to row 30.
    for (int col = 0; col < 32; ++col)
        SetCell(30, col, Cell(11, col));
    ClearRowData(11, false);
    RemovePrimary(10);
    EXPECT_EQ(RowTexts(30), Blank());
}

TEST_F(ShadowRows, WhenRemovedFreeTheirSlotAndLeaveThePrimaryAsItIs) {
    Fill({10});
    Link(10, {11, 12, 13});
    SetCell(10, SHD6, "012");
    RemoveShadow(12);
    EXPECT_EQ(RowTexts(12), Blank());
    EXPECT_EQ(RowTexts(10)[SHD0], "011");
    EXPECT_EQ(RowTexts(10)[SHD1], "0");
    EXPECT_EQ(RowTexts(10)[SHD2], "013");
    EXPECT_EQ(RowTexts(10)[SHD6], "0") << "every slot is looked at";
    RemoveShadow(11);
    RemoveShadow(13);
    EXPECT_EQ(Cell(10, MFLG), "10");
    EXPECT_EQ(Cell(10, SHAD), "P-3");
    EXPECT_TRUE(IsReadOnly(10, MNUM));
}

TEST_F(ShadowRows, ThatNameThemselvesAfterACheckStayInTheirPrimarysList) {
    Fill({10});
    Link(10, {11});
    SetCell(11, PRIM, "011");
    SetCell(11, SHD3, "011");
    RemoveShadow(11);
    EXPECT_EQ(RowTexts(11), Blank());
    EXPECT_EQ(Cell(10, SHD0), "011");
}

TEST_F(ShadowRows, OfNoPrimaryAreStillEmptied) {
    Fill({10});
    Link(10, {11, 12, 13});
    SetCell(11, PRIM, "222");
    SetCell(12, PRIM, "");
    SetCell(13, PRIM, "999");
    for (int row : {11, 12, 13}) {
        RemoveShadow(row);
        EXPECT_EQ(RowTexts(row), Blank());
    }
    EXPECT_EQ(Cell(10, SHD0), "011");
}

TEST_F(ShadowRows, AreUndoneByTheFlagsOfTheRow) {
    Fill({10, 20});
    Link(10, {11});
    Link(20, {21});
    SetCell(10, MFLG, "08");
    UndoShadowLinks(10);
    EXPECT_NE(RowTexts(11), Blank()) << "no flag, no links";
    SetCell(10, MFLG, "11");
    SetCell(10, PRIM, "020");
    UndoShadowLinks(10);
    EXPECT_EQ(RowTexts(11), Blank()) << "a primary first of all";
    EXPECT_NE(RowTexts(10), Blank());
    UndoShadowLinks(21);
    EXPECT_EQ(Cell(20, SHD0), "0");
    CurrentParameters().Type = 0;
    SetCell(20, SHD0, "021");
    UndoShadowLinks(20);
    EXPECT_EQ(Cell(20, SHD0), "021") << "analog pages know no links";
}

TEST_F(ShadowRows, DialogHasOkOnlyWithAText) {
    testbench::ShowAndFocus(*MainFrame);
    testbench::DialogScript dialogs;
    ShadowDialog dialog(MainFrame, "For Primary: 010 create Shadow: 1");
    EXPECT_GE(dialog.GetSize().x, 320);
    EXPECT_GE(dialog.GetSize().y, 130);
    EXPECT_EQ(dialog.GetMinSize(), wxSize(320, 130));
    const auto* label =
        dynamic_cast<wxStaticText*>(wxWindow::FindWindowByLabel("Shadow Memory Num:", &dialog));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetMinSize().x, 170);
    EXPECT_NE(dialog.FindWindow(wxID_CANCEL), nullptr);
    dialogs.Expect(testbench::DialogKind::Other, "For Primary: 010 create Shadow: 1").Do([](wxDialog* shown) {
        wxWindow* ok = shown->FindWindow(wxID_OK);
        EXPECT_TRUE(testbench::PumpUntil([ok] { return !ok->IsEnabled(); })) << "an empty text";
        auto* text = dynamic_cast<wxTextCtrl*>(wxWindow::FindFocus());
        EXPECT_NE(text, nullptr) << "the text has the keyboard";
        if (!text) {
            shown->EndModal(wxID_CANCEL);
            return;
        }
        testbench::TypeText("17");
        EXPECT_TRUE(testbench::PumpUntil([=] { return text->GetValue() == "17" && ok->IsEnabled(); }));
        testbench::PressKey("BackSpace");
        testbench::PressKey("BackSpace");
        EXPECT_TRUE(testbench::PumpUntil([=] { return text->IsEmpty() && !ok->IsEnabled(); }));
        testbench::TypeText("18");
        EXPECT_TRUE(testbench::PumpUntil([=] { return text->GetValue() == "18" && ok->IsEnabled(); }));
        testbench::ClickButton(shown, wxID_OK);
    });
    EXPECT_EQ(dialog.ShowModal(), wxID_OK);
    EXPECT_EQ(dialog.EnteredText(), "18");
}
