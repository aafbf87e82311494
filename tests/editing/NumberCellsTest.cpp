// Memory numbers and unit ids: their display, and the effects of a new number.
#include "catalogue/RadioCatalogue.h"
#include "editing/MemoryNumberCell.h"
#include "editing/MemoryNumbers.h"
#include "tests/editing/CellTools.h"

#include <wx/dcmemory.h>

using namespace testbench;

namespace {

class NumberCells : public CellTest {
protected:
    /// Compares the output of the cell's renderer with the same cell and text drawn by hand.
    static bool IsDrawnAs(int row, int col, const wxString& text) {
        const wxRect rect(0, 0, 120, 23);
        wxBitmap drawn(120, 23), expected(120, 23);
        const wxGridCellAttrPtr attr = Grid()->GetOrCreateCellAttrPtr(row, col);
        {
            wxMemoryDC dc(drawn);
            RendererAt(row, col)->Draw(*Grid(), *attr, dc, rect, row, col, false);
        }
        {
            wxMemoryDC dc(expected);
            dc.SetPen(*wxTRANSPARENT_PEN);
            dc.SetBrush(Grid()->GetCellBackgroundColour(row, col));
            dc.DrawRectangle(rect);
            dc.SetFont(Grid()->GetCellFont(row, col));
            dc.SetTextForeground(Grid()->GetCellTextColour(row, col));
            dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
            int horizontal, vertical;
            Grid()->GetCellAlignment(row, col, &horizontal, &vertical);
            Grid()->DrawTextRectangle(dc, text, rect, horizontal, vertical);
        }
        const wxImage left = drawn.ConvertToImage(), right = expected.ConvertToImage();
        return memcmp(left.GetData(), right.GetData(), 120 * 23 * 3) == 0;
    }

    static void MakePrimaryOfTwo() {
        Retarget(Kdrv716B, 0);
        Fill({4, 5, 8, 9});
        SetCell(5, MFLG, "10");
        SetCell(5, SHAD, "P-3");
        SetCell(5, SHD0, "008");
        SetCell(5, SHD2, "009");
        for (int row : {8, 9}) {
            SetCell(row, MFLG, row == 8 ? "01" : "03");
            SetCell(row, SHAD, "S-005");
            SetCell(row, PRIM, "005");
        }
    }
};

} // namespace

TEST_F(NumberCells, AreShownByNumberAndRow) {
    struct Line {
        const char* text;
        int row;
        const char* shown;
    };
    Retarget(Kdrv716B, 0);
    for (const Line& line : std::initializer_list<Line>{{"", 0, ""},
                                                        {"", 5, ""},
                                                        {"0", 0, "DEF"},
                                                        {"000", 0, "DEF"},
                                                        {"0", 1, ""},
                                                        {"000", 502, ""},
                                                        {"x", 0, "DEF"},
                                                        {"5", 5, "005"},
                                                        {"5", 0, "005"},
                                                        {"042", 5, "042"},
                                                        {"500", 500, "500"},
                                                        {"501", 501, "GD1"},
                                                        {"502", 502, "GD2"},
                                                        {"501", 7, "GD1"},
                                                        {"502", 0, "GD2"},
                                                        {"503", 3, "503"},
                                                        {"1234", 3, "1234"}})
        EXPECT_EQ(MemoryNumberText(line.text, line.row).utf8_string(), line.shown)
            << line.text << " in row " << line.row;
    Retarget(Kdar2000, 0);
    EXPECT_EQ(MemoryNumberText("99", 99), "099") << "a page without guard rows";
    EXPECT_EQ(MemoryNumberText("100", 100), "100");
    Retarget(Krv47, 0);
    EXPECT_EQ(MemoryNumberText("121", 121), "GD1");
    EXPECT_EQ(MemoryNumberText("122", 122), "GD2");
    EXPECT_EQ(MemoryNumberText("502", 2), "502");
}

TEST_F(NumberCells, OfUnitIdsAreShownWithSevenDigits) {
    const std::pair<const char*, const char*> lines[] = {
        {"", ""}, {"42", "0000042"}, {"00000001", "0000001"}, {"9999999", "9999999"}, {"x", "0000000"}};
    for (const auto& [text, shown] : lines)
        EXPECT_EQ(IdcNumberText(text).utf8_string(), shown) << text;
}

TEST_F(NumberCells, AreDrawnAsTheyAreShown) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    EXPECT_TRUE(IsDrawnAs(0, MNUM, "DEF"));
    EXPECT_TRUE(IsDrawnAs(5, MNUM, "005"));
    EXPECT_FALSE(IsDrawnAs(5, MNUM, "006"));
    EXPECT_TRUE(IsDrawnAs(501, MNUM, "GD1"));
    EXPECT_TRUE(IsDrawnAs(6, MNUM, ""));
    SetCell(5, TIDC, "42");
    EXPECT_TRUE(IsDrawnAs(5, TIDC, "0000042"));
    EXPECT_FALSE(IsDrawnAs(5, TIDC, "42"));
    Grid()->SetCellBackgroundColour(5, TIDC, FailColour);
    EXPECT_TRUE(IsDrawnAs(5, TIDC, "0000042"));
}

TEST_F(NumberCells, AreAsWideAsTheirText) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    SetCell(5, TIDC, "42");
    wxBitmap bitmap(10, 10);
    wxMemoryDC dc(bitmap);
    const std::tuple<int, int, const char*> lines[] = {
        {0, MNUM, "DEF"}, {5, MNUM, "005"}, {5, TIDC, "0000042"}};
    for (const auto& [row, col, text] : lines) {
        const wxGridCellAttrPtr attr = Grid()->GetOrCreateCellAttrPtr(row, col);
        const wxSize best = RendererAt(row, col)->GetBestSize(*Grid(), *attr, dc, row, col);
        dc.SetFont(Grid()->GetCellFont(row, col));
        EXPECT_EQ(best, dc.GetTextExtent(text)) << text;
    }
}

TEST_F(NumberCells, OfDefaultRowsAreReadOnlyAndShowDEFOnEveryPage) {
    for (int radio = 0; radio < RadioCatalogue::RadioTotal; ++radio)
        for (int slot = 0; slot < RadioCatalogue::BandSlotTotal; ++slot) {
            if (RadioCatalogue::RadioBands[radio][slot] < 0)
                continue;
            Retarget(radio, slot);
            EXPECT_TRUE(IsLocked(0, MNUM)) << radio << ", " << slot;
            EXPECT_FALSE(IsLocked(1, MNUM)) << radio << ", " << slot;
            EXPECT_EQ(MemoryNumberText(Cell(0, MNUM), 0), "DEF") << radio << ", " << slot;
        }
}

TEST_F(NumberCells, TakeTypedNumbersWithThreeDigits) {
    Fill({5});
    TypeIntoCell(*Grid(), 5, MNUM, "9");
    EXPECT_EQ(Text(5, MNUM), "009");
    TypeIntoCell(*Grid(), 5, MNUM, "110");
    EXPECT_EQ(Text(5, MNUM), "110");
    TypeIntoCell(*Grid(), 5, MNUM, "0");
    EXPECT_EQ(Text(5, MNUM), "000") << "0 is a number like any other";
    EXPECT_EQ(Text(5, PRIM), "");
}

// A departure: the toolkit's editor would use the highest number, which is a guard memory.
TEST_F(NumberCells, AboveThePagesRowsAreRefusedWithABoxSoThatNoGuardMemoryIsTaken_Departure) {
    for (const auto& [radio, rows] : {std::pair(Krv47, 122), std::pair(Kdrv716B, 502)}) {
        Retarget(radio, 0);
        Fill({5});
        for (const std::string& typed :
             {std::to_string(rows + 1), std::string("999"), std::string("99999999999")}) {
            SCOPED_TRACE(typed);
            DialogScript dialogs;
            dialogs.ExpectMessage("Error", "Memory number must be from 0 to " + std::to_string(rows) + ".")
                .Style(wxOK | wxCENTRE | wxICON_INFORMATION);
            TypeIntoCell(*Grid(), 5, MNUM, typed);
            EXPECT_EQ(Text(5, MNUM), "005");
            EXPECT_FALSE(Grid()->IsCellEditControlShown());
        }
        TypeIntoCell(*Grid(), 5, MNUM, std::to_string(rows - 2));
        EXPECT_EQ(Text(5, MNUM), std::to_string(rows - 2));
    }
}

TEST_F(NumberCells, Below0AreRefusedAlike) {
    Fill({5});
    DialogScript dialogs;
    dialogs.ExpectMessage("Error", "Memory number must be from 0 to 122.");
    GoTo(5, MNUM);
    PressKey("F2");
    PressKey("Ctrl+A");
    TypeText("-5\n");
    EXPECT_EQ(Text(5, MNUM), "005");
}

TEST_F(NumberCells, AboveThePagesRowsLeaveABlankRowBlank) {
    DialogScript dialogs;
    dialogs.ExpectMessage("Error", "Memory number must be from 0 to 122.");
    TypeIntoCell(*Grid(), 5, MNUM, "123");
    EXPECT_FALSE(RowHasData(5));
}

TEST_F(NumberCells, AboveThePagesRowsAreRefusedOnceWhateverEndsTheEdit) {
    Fill({5});
    for (const char* key : {"Return", "KP_Enter", "Tab"}) {
        SCOPED_TRACE(key);
        DialogScript dialogs;
        dialogs.ExpectMessage("Error", "Memory number must be from 0 to 122.");
        GoTo(5, MNUM);
        TypeText("200");
        PressKey(key);
        PumpUntilIdle();
        EXPECT_EQ(Text(5, MNUM), "005");
        EXPECT_EQ(dialogs.Shown().size(), 1u);
    }
    {
        DialogScript dialogs;
        dialogs.ExpectMessage("Error", "Memory number must be from 0 to 122.");
        GoTo(5, MNUM);
        TypeText("200");
        ClickAt(CellSpot(*Grid(), 9, DESC));
        PumpUntilIdle();
        EXPECT_EQ(Text(5, MNUM), "005");
        EXPECT_FALSE(Grid()->IsCellEditControlShown());
    }
    GoTo(5, MNUM);
    TypeText("200");
    PressKey("Escape");
    EXPECT_EQ(Text(5, MNUM), "005") << "no box for what is given up";
    GoTo(5, MNUM);
    TypeText("77");
    PressKey("Return");
    EXPECT_EQ(Text(5, MNUM), "077");
}

TEST_F(NumberCells, OfAnotherRowAreRefusedWithABoxThatNamesIt) {
    for (int radio : {Krv47, Kdrv716B}) {
        Retarget(radio, 0);
        Fill({5, 17});
        SetCell(17, MNUM, "21");
        DialogScript dialogs;
        dialogs.ExpectMessage("Error", "Number already used at row: 017");
        TypeIntoCell(*Grid(), 5, MNUM, "21");
        EXPECT_EQ(dialogs.Missing(), 0u);
        EXPECT_EQ(Text(5, MNUM), "005");
        EXPECT_EQ(Text(17, MNUM), "21");
    }
}

TEST_F(NumberCells, OfP25RowsAreTheirPrimaryNumberToo) {
    Retarget(Kdrv716, 0);
    Fill({5});
    TypeIntoCell(*Grid(), 5, MNUM, "99");
    EXPECT_EQ(TextsOf(5, {MNUM, PRIM}), (Texts{"099", "099"}));
}

TEST_F(NumberCells, OfAPrimaryAreToldToItsShadows) {
    MakePrimaryOfTwo();
    for (const char* number : {"099", "123"}) {
        TypeIntoCell(*Grid(), 5, MNUM, number);
        EXPECT_EQ(TextsOf(5, {MNUM, PRIM, SHAD}), (Texts{number, number, "P-3"}));
        for (int row : {8, 9}) {
            EXPECT_EQ(TextsOf(row, {PRIM, SHAD}), (Texts{number, std::string("S-") + number})) << row;
            EXPECT_TRUE(IsLocked(row, SHAD)) << row;
        }
        EXPECT_EQ(Text(8, MNUM), "008");
    }
}

TEST_F(NumberCells, OfAPrimaryReachNoRowThatIsNoShadow) {
    MakePrimaryOfTwo();
    SetCell(5, SHD3, "004");
    SetCell(5, SHD4, "503");
    SetCell(5, SHD5, "-3");
    TypeIntoCell(*Grid(), 5, MNUM, "099");
    EXPECT_EQ(TextsOf(4, {PRIM, SHAD}), (Texts{"004", "N"}));
    EXPECT_EQ(Text(9, SHAD), "S-099");
}

TEST_F(NumberCells, OfARowWithoutShadowsTouchNoOther) {
    MakePrimaryOfTwo();
    SetCell(5, MFLG, "00");
    TypeIntoCell(*Grid(), 5, MNUM, "099");
    EXPECT_EQ(TextsOf(8, {PRIM, SHAD}), (Texts{"005", "S-005"}));
}

TEST_F(NumberCells, AreSearchedByValueFromRowToRow) {
    Fill({3, 5, 8});
    SetCell(3, MNUM, "7");
    SetCell(5, MNUM, "007");
    SetCell(8, MNUM, "012");
    SetCell(9, MNUM, "");
    struct Line {
        int start, row, last, number, found;
    };
    for (const Line& line : std::initializer_list<Line>{{1, 0, 122, 7, 3},
                                                        {1, 3, 122, 7, 5},
                                                        {4, 0, 122, 7, 5},
                                                        {1, 8, 122, 12, 123},
                                                        {1, 0, 7, 12, 8},
                                                        {1, 0, 8, 12, 8},
                                                        {1, 0, 122, 0, 123},
                                                        {0, 9, 122, 0, 0},
                                                        {1, 0, 122, 99, 123}})
        EXPECT_EQ(FindDuplicateMNum(line.start, line.row, line.last, line.number), line.found)
            << line.start << " " << line.row << " " << line.last << " " << line.number;
}
