#include "tests/catalogue/PageTest.h"
#include "tests/catalogue/PrintedColumns.h"
#include "tests/catalogue/PrintedRadios.h"

namespace {

class RowOperations : public PageTest {
protected:
    /// A row image of 32 different texts, with the description given.
    static wxArrayString Image(const wxString& description) {
        wxArrayString values;
        for (int col = 0; col < 32; ++col)
            values.push_back(wxString::Format("v%d", col));
        values[DESC] = description;
        return values;
    }

    /// The description of the row after a copy onto this row alone.
    static std::string Numbered(const wxString& description, int row) {
        SelectRows({row});
        CopyValuesToSelection(CurrentPage, Image(description), false, true);
        return Cell(row, DESC).utf8_string();
    }

    static bool IsShown(int type, int col) {
        return printed::Columns[static_cast<size_t>(col)].looks[static_cast<size_t>(type)].width > 0;
    }

    /// Fills row 1 in exactly the columns that a type shows.
    static void FillShownCells(int type) {
        for (int col = 0; col < 32; ++col)
            SetCell(1, col, IsShown(type, col) ? "1" : "");
    }
};

class CopyValues : public RowOperations {};
class ClearRow : public RowOperations {};
class RowCompleteness : public RowOperations {};

} // namespace

TEST_F(RowOperations, ReadAllCellsOfARowOfThePageNamed) {
    for (int col = 0; col < 32; ++col)
        SetCell(5, col, wxString::Format("c%d", col));
    AddPage(Krv214, 0);
    const wxArrayString values = GetRowValues(0, 5);
    ASSERT_EQ(values.size(), 32u);
    for (size_t col = 0; col < 32; ++col)
        EXPECT_EQ(values[col].utf8_string(), "c" + std::to_string(col));
    for (const wxString& text : GetRowValues(1, 5))
        EXPECT_EQ(text, "");
}

TEST_F(RowOperations, ARowHasDataAsSoonAsOneOfItsCellsHasText) {
    EXPECT_FALSE(RowHasData(3));
    for (int col = 0; col < 32; ++col) {
        SetCell(3, col, " ");
        EXPECT_TRUE(RowHasData(3)) << "column " << col;
        SetCell(3, col, "");
        EXPECT_FALSE(RowHasData(3)) << "column " << col;
    }
}

TEST_F(RowOperations, ARowWhoseOnlyTextIsInTflgHasData) {
    SetCell(4, TFLG, "A0");
    EXPECT_TRUE(RowHasData(4));
    EXPECT_FALSE(RowHasData(5));
}

TEST_F(RowOperations, TheDefaultRowHasData) {
    EXPECT_TRUE(RowHasData(0));
}

TEST_F(RowOperations, CountingTakesRow0AndLeavesTheLastRowOut) {
    EXPECT_EQ(CountRowsWithData(0), 1) << "the default row alone";
    SetCell(1, DESC, "A");
    SetCell(121, DESC, "B");
    EXPECT_EQ(CountRowsWithData(0), 3);
    SetCell(122, DESC, "C");
    EXPECT_EQ(CountRowsWithData(0), 3);
    for (int col = 0; col < 32; ++col)
        SetCell(0, col, "");
    EXPECT_EQ(CountRowsWithData(0), 2);
}

TEST_F(CopyValues, WritesColumns0To31WithAllColumns) {
    SelectRows({3, 5});
    CopyValuesToSelection(0, Image("LETTERS"), false, true);
    for (int row : {3, 5})
        for (int col = 0; col < 32; ++col)
            EXPECT_EQ(Cell(row, col).utf8_string(), col == DESC ? "LETTERS" : "v" + std::to_string(col))
                << "row " << row << " column " << col;
    EXPECT_EQ(FilledRows(), (std::vector<int>{3, 5}));
}

TEST_F(CopyValues, WritesColumns0To29WithoutAllColumns) {
    SetCell(3, RONL, "old");
    SetCell(3, TFLG, "C0");
    SelectRows({3});
    CopyValuesToSelection(0, Image("LETTERS"), false, false);
    EXPECT_EQ(Cell(3, SHD6), "v29");
    EXPECT_EQ(Cell(3, RONL), "old");
    EXPECT_EQ(Cell(3, TFLG), "C0");
}

TEST_F(CopyValues, NeverWritesTheDefaultRow) {
    const auto before = RowTexts(0);
    SelectRows({0, 1});
    CopyValuesToSelection(0, Image("LETTERS"), true, true);
    EXPECT_EQ(RowTexts(0), before);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1}));
}

TEST_F(CopyValues, ReachesTheLastRow) {
    CurrentGrid()->SelectAll();
    CopyValuesToSelection(0, Image("LETTERS"), true, true);
    EXPECT_EQ(FilledRows().size(), 122u);
    EXPECT_EQ(Cell(122, MNUM), "122");
}

TEST_F(CopyValues, LeavesNothingSelected) {
    SelectRows({3, 5});
    CopyValuesToSelection(0, Image("LETTERS"), false, true);
    EXPECT_FALSE(CurrentGrid()->IsSelection());
}

TEST_F(CopyValues, WritesNothingWithoutASelection) {
    CurrentGrid()->ClearSelection();
    CopyValuesToSelection(0, Image("LETTERS"), true, true);
    EXPECT_TRUE(FilledRows().empty());
}

TEST_F(CopyValues, TakesARowAsSelectedWhenItsFirstCellIs) {
    CurrentGrid()->SelectBlock(3, 0, 4, 2);
    CurrentGrid()->SelectBlock(8, 1, 9, 31, true);
    CopyValuesToSelection(0, Image("LETTERS"), false, true);
    EXPECT_EQ(FilledRows(), (std::vector<int>{3, 4}));
}

TEST_F(CopyValues, NumbersRowsOnlyWhenAskedTo) {
    SelectRows({7});
    CopyValuesToSelection(0, Image("LETTERS"), true, true);
    EXPECT_EQ(Cell(7, MNUM), "007");
    EXPECT_EQ(Cell(7, PRIM), "v2") << "an analog row has no primary";
    SelectRows({8});
    CopyValuesToSelection(0, Image("LETTERS"), false, true);
    EXPECT_EQ(Cell(8, MNUM), "v1");
}

TEST_F(CopyValues, NumbersDescriptionsThatEndInADigit) {
    struct Line {
        const char* text;
        int row;
        const char* expected;
    };
    const Line lines[] = {
        {"MEM001", 1, "MEM001"},
        {"MEM001", 2, "MEM002"},
        {"MEM001", 122, "MEM122"},
        {"MEM9", 12, "MEM012"},
        {"LOW    66", 3, "LOW   003"},
        {"ABCDEFGH1", 4, "ABCDEF004"},
        {"ABCDEF123", 4, "ABCDEF004"},
        {"12345", 4, "004"},
        {"9", 4, "004"},
        {"A1B2C3", 4, "A1B2C004"},
        {"REPEATER", 4, "REPEATER"},
        {"CH 1 ", 4, "CH 1 "},
        {"CH1A", 4, "CH1A"},
        {"", 4, ""},
        {"LONGERTHAN9X", 4, "LONGERTHAN9X"},
        {"LONGERTHAN99", 4, "LONGER004"},
    };
    for (const Line& line : lines)
        EXPECT_EQ(Numbered(line.text, line.row), line.expected) << '"' << line.text << "\" row " << line.row;
}

TEST_F(CopyValues, NumbersDescriptionsWithin8CharactersOnP25Pages) {
    struct Line {
        int radio;
        const char* text;
        int row;
        const char* expected;
    };
    const Line lines[] = {
        {Kdrv716, "VHF  136", 1, "VHF  001"},    {Kdrv716, "ABCDEFG1", 230, "ABCDE230"},
        {Kdrv716B, "ABCDEF12", 500, "ABCDE500"}, {Kdrv716B, "MEM001", 20, "MEM020"},
        {Kdrv716, "LETTERS", 20, "LETTERS"},
    };
    for (const Line& line : lines) {
        if (CurrentParameters().Radio != line.radio)
            AddPage(line.radio, 0);
        EXPECT_EQ(Numbered(line.text, line.row), line.expected) << line.text;
    }
}

TEST_F(CopyValues, NumbersDescriptionsWithin9CharactersOnTheKdar) {
    Retarget(Kdar2000, 0);
    EXPECT_EQ(Numbered("ABCDEFGH1", 20), "ABCDEF020");
}

TEST_F(CopyValues, NumbersEachRowOfTheSelectionByItself) {
    SelectRows({1, 2, 100});
    CopyValuesToSelection(0, Image("MEM001"), true, true);
    EXPECT_EQ(Cell(1, DESC), "MEM001");
    EXPECT_EQ(Cell(2, DESC), "MEM002");
    EXPECT_EQ(Cell(100, DESC), "MEM100");
    EXPECT_EQ(Cell(100, MNUM), "100");
}

TEST_F(CopyValues, GivesP25RowsTheirPrimaryAndAZoneWithRoom) {
    AddPage(Kdrv716, 0);
    ClearZoneSlots(1);
    wxArrayString values = GetRowValues(1, 0);
    values[ZONE] = "9";
    SelectRows({2, 3, 231});
    CopyValuesToSelection(1, values, true, true);
    EXPECT_EQ(Cell(2, PRIM), "002");
    EXPECT_EQ(Cell(2, MNUM), "002");
    EXPECT_EQ(Cell(2, ZONE), "1") << "the image's zone doesn't count";
    EXPECT_EQ(Cell(3, ZONE), "1");
    EXPECT_EQ(Cell(231, ZONE), "16");
    EXPECT_EQ(Cell(2, TFLG), "A8");
    EXPECT_EQ(SlotsTaken(1, 0), 2);
    EXPECT_EQ(SlotsTaken(1, 15), 1);
}

TEST_F(CopyValues, KeepsThePrimaryOfP25RowsThatAreNotRenumbered) {
    AddPage(Kdrv716, 0);
    wxArrayString values = GetRowValues(1, 0);
    values[PRIM] = "017";
    SelectRows({2});
    CopyValuesToSelection(1, values, false, true);
    EXPECT_EQ(Cell(2, PRIM), "017");
    EXPECT_EQ(Cell(2, MNUM), "0");
    EXPECT_EQ(Cell(2, ZONE), "1");
}

TEST_F(CopyValues, LeavesAP25RowTheZoneSlotThatItHoldsWhenTflgStays) {
    AddPage(Kdrv716, 0);
    const int before = SlotsTaken(1, 0);
    SetCell(2, TFLG, "C8");
    SelectRows({2});
    CopyValuesToSelection(1, GetRowValues(1, 0), true, false);
    EXPECT_EQ(Cell(2, TFLG), "C8");
    EXPECT_EQ(SlotsTaken(1, 0), before);
}

TEST_F(CopyValues, FillsZonesOneAfterTheOther) {
    AddPage(Kdrv716B, 0);
    ClearZoneSlots(1);
    CurrentGrid()->SelectBlock(1, 0, 40, 31);
    CopyValuesToSelection(1, GetRowValues(1, 0), true, true);
    EXPECT_EQ(Cell(16, ZONE), "1");
    EXPECT_EQ(Cell(17, ZONE), "2");
    EXPECT_EQ(Cell(32, ZONE), "2");
    EXPECT_EQ(Cell(33, ZONE), "3");
    EXPECT_EQ(SlotsTaken(1, 0), 16);
    EXPECT_EQ(SlotsTaken(1, 1), 16);
    EXPECT_EQ(SlotsTaken(1, 2), 8);
}

TEST_F(ClearRow, EmptiesAllCells) {
    for (int col = 0; col < 32; ++col) {
        SetCell(5, col, "x");
        SetCell(6, col, "y");
    }
    ClearRowData(5, false);
    EXPECT_FALSE(RowHasData(5));
    EXPECT_EQ(RowTexts(6), std::vector<std::string>(32, "y"));
}

TEST_F(ClearRow, MakesReadOnlyCellsWritableButNotThatOfShad) {
    for (int col = 0; col < 32; ++col) {
        CurrentGrid()->SetReadOnly(5, col, true);
        CurrentGrid()->SetReadOnly(6, col, true);
    }
    ClearRowData(5, false);
    for (int col = 0; col < 32; ++col) {
        EXPECT_EQ(CurrentGrid()->IsReadOnly(5, col), col == SHAD) << "column " << col;
        EXPECT_TRUE(CurrentGrid()->IsReadOnly(6, col)) << "column " << col;
    }
}

TEST_F(ClearRow, GivesTheZoneOfTheNumberedRowBack) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(4);
    // Row 5 is memory 9: the zone of row 9 is released.
    SetCell(5, MNUM, "009");
    SetCell(5, ZONE, "2");
    SetCell(9, ZONE, "3");
    ClearRowData(5, true);
    EXPECT_EQ(SlotsTaken(1, 2), 3);
    EXPECT_EQ(SlotsTaken(1, 1), 4);
    EXPECT_EQ(Cell(9, ZONE), "3");
}

TEST_F(ClearRow, KeepsTheZoneSlotWhenNotAskedToReleaseIt) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(4);
    ClearRowData(1, false);
    for (int32_t taken : ZoneSlots)
        ASSERT_EQ(taken, 4);
}

TEST_F(ClearRow, WithoutANumberGivesNoZoneSlotBack) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(4);
    for (const char* number : {"", "0", "000", "abc", "233", "9999", "-1", "99999999999"}) {
        SetCell(5, MNUM, number);
        SetCell(5, ZONE, "1");
        ClearRowData(5, true);
        for (int32_t taken : ZoneSlots)
            ASSERT_EQ(taken, 4) << '"' << number << '"';
        EXPECT_FALSE(RowHasData(5));
    }
    EXPECT_EQ(Cell(0, ZONE), "1") << "the default row's zone is no slot";
}

TEST_F(ClearRow, OfAShadowRowGivesNoZoneSlotBack) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(4);
    SetCell(5, MNUM, "005");
    SetCell(5, ZONE, "");
    ClearRowData(5, true);
    for (int32_t taken : ZoneSlots)
        ASSERT_EQ(taken, 4);
}

TEST_F(ClearRow, OfAnEmptyZoneLeavesItsCounterAtZero) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(0);
    ClearRowData(1, true);
    EXPECT_EQ(SlotsTaken(1, 0), 0);
}

TEST_F(RowCompleteness, NeedsTextInEveryColumnThatTheTypeShows) {
    for (const printed::TypeLine& line : printed::Types) {
        CurrentParameters().Type = line.type;
        FillShownCells(line.type);
        EXPECT_TRUE(RowIsComplete(1)) << line.tag;
        for (int col = 0; col < 32; ++col) {
            // Tests below cover the tones of FXAM and the filler of O12.
            const bool excepted = (line.type == printed::FXAM && (col == RTON || col == TTON)) ||
                                  (line.type == printed::O12 && col == RONL);
            if (!IsShown(line.type, col) || excepted)
                continue;
            SetCell(1, col, "");
            EXPECT_FALSE(RowIsComplete(1))
                << line.tag << " without " << printed::Columns[static_cast<size_t>(col)].tag;
            SetCell(1, col, "1");
        }
        EXPECT_TRUE(RowIsComplete(1)) << line.tag;
    }
}

TEST_F(RowCompleteness, IsFalseForABlankRow) {
    for (const printed::TypeLine& line : printed::Types) {
        CurrentParameters().Type = line.type;
        EXPECT_FALSE(RowIsComplete(2)) << line.tag;
    }
}

TEST_F(RowCompleteness, OfAKdarRowLooksAtRonlAndNotAtMode) {
    Retarget(Kdar2000, 0);
    FillShownCells(printed::KDAR);
    EXPECT_EQ(Cell(1, MODE), "");
    EXPECT_TRUE(RowIsComplete(1));
    SetCell(1, RONL, "");
    EXPECT_FALSE(RowIsComplete(1));
}

TEST_F(RowCompleteness, OfAnO12RowDoesNotCountTheFillerColumn) {
    Retarget(Orv12, 0);
    for (int col = 0; col < 32; ++col)
        SetCell(1, col, "");
    SetCell(1, MNUM, "001");
    SetCell(1, RFRQ, "121.500");
    EXPECT_TRUE(RowIsComplete(1));
}

TEST_F(RowCompleteness, OfAnFxamRowDoesNotCountTheTonesThatChecksEmptyADeparture) {
    CurrentParameters().Type = printed::FXAM;
    FillShownCells(printed::FXAM);
    SetCell(1, RTON, "");
    SetCell(1, TTON, "");
    EXPECT_TRUE(RowIsComplete(1));
}

TEST_F(RowCompleteness, OfAShadowRowDoesNotCountItsEmptyZoneADeparture) {
    for (const printed::Type type : {printed::RP25, printed::NP25}) {
        CurrentParameters().Type = type;
        FillShownCells(type);
        SetCell(1, ZONE, "");
        for (const char* flags : {"01", "07", "12", "61"}) {
            SetCell(1, MFLG, flags);
            EXPECT_TRUE(RowIsComplete(1)) << flags;
        }
        for (const char* flags : {"", "00", "10", "68"}) {
            SetCell(1, MFLG, flags);
            EXPECT_FALSE(RowIsComplete(1)) << '"' << flags << "\" is no shadow";
        }
        SetCell(1, MFLG, "01");
        SetCell(1, DESC, "");
        EXPECT_FALSE(RowIsComplete(1)) << "everything else counts";
    }
}

TEST_F(RowOperations, CodesAreCountedByTheTypeOfTheCurrentPage) {
    EXPECT_EQ(GetCodeIndex("023"), 1);
    EXPECT_EQ(GetCodeIndex("OFF"), 0);
    EXPECT_EQ(GetCodeText(0), "OFF");
    AddPage(Kdrv716, 0);
    EXPECT_EQ(GetCodeIndex("023"), 0);
    EXPECT_EQ(GetCodeIndex("OFF"), -1);
    EXPECT_EQ(GetCodeText(0), "023");
}

TEST_F(RowOperations, ColoursAreThoseOfRepairedCellsAndMarkedRows) {
    EXPECT_EQ(FailColour, wxColour(235, 125, 50));
    EXPECT_EQ(MarkColour, wxColour(105, 160, 170));
}

TEST_F(RowOperations, SixPagesCanStand) {
    EXPECT_EQ(PageLimit, 6);
    for (int page = 1; page < 6; ++page)
        AddPage(page % 2 ? 7 : 6, 0);
    EXPECT_EQ(PageCount, 6);
    EXPECT_EQ(CurrentPage, 5);
    EXPECT_EQ(Cell(1, ZONE), "1") << "the sixth page has zone counters of its own";
    EXPECT_EQ(SlotsTaken(5, 0), 1);
}
