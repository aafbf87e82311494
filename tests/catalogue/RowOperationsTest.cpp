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

    /// The description that row gets from a copy onto it alone.
    static std::string Numbered(const wxString& description, int row) {
        SelectRows({row});
        CopyValuesToSelection(CurrentPage, Image(description), false, true);
        return Cell(row, DESC).utf8_string();
    }

    static bool IsShown(int type, int col) {
        return printed::Columns[static_cast<size_t>(col)].looks[static_cast<size_t>(type)].width > 0;
    }

    /// Row 1 gets text in the columns that a type shows, and in no other.
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
    ASSERT_EQ(32u, values.size());
    for (size_t col = 0; col < 32; ++col)
        EXPECT_EQ("c" + std::to_string(col), values[col].utf8_string());
    for (const wxString& text : GetRowValues(1, 5))
        EXPECT_EQ("", text);
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
    EXPECT_EQ(1, CountRowsWithData(0)) << "the default row alone";
    SetCell(1, DESC, "A");
    SetCell(121, DESC, "B");
    EXPECT_EQ(3, CountRowsWithData(0));
    SetCell(122, DESC, "C");
    EXPECT_EQ(3, CountRowsWithData(0));
    for (int col = 0; col < 32; ++col)
        SetCell(0, col, "");
    EXPECT_EQ(2, CountRowsWithData(0));
}

TEST_F(CopyValues, WritesColumns0To31WithAllColumns) {
    SelectRows({3, 5});
    CopyValuesToSelection(0, Image("LETTERS"), false, true);
    for (int row : {3, 5})
        for (int col = 0; col < 32; ++col)
            EXPECT_EQ(col == DESC ? "LETTERS" : "v" + std::to_string(col), Cell(row, col).utf8_string())
                << "row " << row << " column " << col;
    EXPECT_EQ((std::vector<int>{3, 5}), FilledRows());
}

TEST_F(CopyValues, WritesColumns0To29WithoutAllColumns) {
    SetCell(3, RONL, "old");
    SetCell(3, TFLG, "C0");
    SelectRows({3});
    CopyValuesToSelection(0, Image("LETTERS"), false, false);
    EXPECT_EQ("v29", Cell(3, SHD6));
    EXPECT_EQ("old", Cell(3, RONL));
    EXPECT_EQ("C0", Cell(3, TFLG));
}

TEST_F(CopyValues, NeverWritesTheDefaultRow) {
    const auto before = RowTexts(0);
    SelectRows({0, 1});
    CopyValuesToSelection(0, Image("LETTERS"), true, true);
    EXPECT_EQ(before, RowTexts(0));
    EXPECT_EQ((std::vector<int>{1}), FilledRows());
}

TEST_F(CopyValues, ReachesTheLastRow) {
    CurrentGrid()->SelectAll();
    CopyValuesToSelection(0, Image("LETTERS"), true, true);
    EXPECT_EQ(122u, FilledRows().size());
    EXPECT_EQ("122", Cell(122, MNUM));
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
    EXPECT_EQ((std::vector<int>{3, 4}), FilledRows());
}

TEST_F(CopyValues, NumbersRowsOnlyWhenAskedTo) {
    SelectRows({7});
    CopyValuesToSelection(0, Image("LETTERS"), true, true);
    EXPECT_EQ("007", Cell(7, MNUM));
    EXPECT_EQ("v2", Cell(7, PRIM)) << "an analog row has no primary";
    SelectRows({8});
    CopyValuesToSelection(0, Image("LETTERS"), false, true);
    EXPECT_EQ("v1", Cell(8, MNUM));
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
        EXPECT_EQ(line.expected, Numbered(line.text, line.row)) << '"' << line.text << "\" row " << line.row;
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
        EXPECT_EQ(line.expected, Numbered(line.text, line.row)) << line.text;
    }
}

TEST_F(CopyValues, NumbersDescriptionsWithin9CharactersOnTheKdar) {
    Retarget(Kdar2000, 0);
    EXPECT_EQ("ABCDEF020", Numbered("ABCDEFGH1", 20));
}

TEST_F(CopyValues, NumbersEachRowOfTheSelectionByItself) {
    SelectRows({1, 2, 100});
    CopyValuesToSelection(0, Image("MEM001"), true, true);
    EXPECT_EQ("MEM001", Cell(1, DESC));
    EXPECT_EQ("MEM002", Cell(2, DESC));
    EXPECT_EQ("MEM100", Cell(100, DESC));
    EXPECT_EQ("100", Cell(100, MNUM));
}

TEST_F(CopyValues, GivesP25RowsTheirPrimaryAndAZoneWithRoom) {
    AddPage(Kdrv716, 0);
    ClearZoneSlots(1);
    wxArrayString values = GetRowValues(1, 0);
    values[ZONE] = "9";
    SelectRows({2, 3, 231});
    CopyValuesToSelection(1, values, true, true);
    EXPECT_EQ("002", Cell(2, PRIM));
    EXPECT_EQ("002", Cell(2, MNUM));
    EXPECT_EQ("1", Cell(2, ZONE)) << "the image's zone doesn't count";
    EXPECT_EQ("1", Cell(3, ZONE));
    EXPECT_EQ("16", Cell(231, ZONE));
    EXPECT_EQ("A8", Cell(2, TFLG));
    EXPECT_EQ(2, SlotsTaken(1, 0));
    EXPECT_EQ(1, SlotsTaken(1, 15));
}

TEST_F(CopyValues, KeepsThePrimaryOfP25RowsThatAreNotRenumbered) {
    AddPage(Kdrv716, 0);
    wxArrayString values = GetRowValues(1, 0);
    values[PRIM] = "017";
    SelectRows({2});
    CopyValuesToSelection(1, values, false, true);
    EXPECT_EQ("017", Cell(2, PRIM));
    EXPECT_EQ("0", Cell(2, MNUM));
    EXPECT_EQ("1", Cell(2, ZONE));
}

TEST_F(CopyValues, LeavesAP25RowTheZoneSlotThatItHoldsWhenTflgStays) {
    AddPage(Kdrv716, 0);
    const int before = SlotsTaken(1, 0);
    SetCell(2, TFLG, "C8");
    SelectRows({2});
    CopyValuesToSelection(1, GetRowValues(1, 0), true, false);
    EXPECT_EQ("C8", Cell(2, TFLG));
    EXPECT_EQ(before, SlotsTaken(1, 0));
}

TEST_F(CopyValues, FillsZonesOneAfterTheOther) {
    AddPage(Kdrv716B, 0);
    ClearZoneSlots(1);
    CurrentGrid()->SelectBlock(1, 0, 40, 31);
    CopyValuesToSelection(1, GetRowValues(1, 0), true, true);
    EXPECT_EQ("1", Cell(16, ZONE));
    EXPECT_EQ("2", Cell(17, ZONE));
    EXPECT_EQ("2", Cell(32, ZONE));
    EXPECT_EQ("3", Cell(33, ZONE));
    EXPECT_EQ(16, SlotsTaken(1, 0));
    EXPECT_EQ(16, SlotsTaken(1, 1));
    EXPECT_EQ(8, SlotsTaken(1, 2));
}

TEST_F(ClearRow, EmptiesAllCells) {
    for (int col = 0; col < 32; ++col) {
        SetCell(5, col, "x");
        SetCell(6, col, "y");
    }
    ClearRowData(5, false);
    EXPECT_FALSE(RowHasData(5));
    EXPECT_EQ(std::vector<std::string>(32, "y"), RowTexts(6));
}

TEST_F(ClearRow, MakesReadOnlyCellsWritableButNotThatOfShad) {
    for (int col = 0; col < 32; ++col) {
        CurrentGrid()->SetReadOnly(5, col, true);
        CurrentGrid()->SetReadOnly(6, col, true);
    }
    ClearRowData(5, false);
    for (int col = 0; col < 32; ++col) {
        EXPECT_EQ(col == SHAD, CurrentGrid()->IsReadOnly(5, col)) << "column " << col;
        EXPECT_TRUE(CurrentGrid()->IsReadOnly(6, col)) << "column " << col;
    }
}

TEST_F(ClearRow, GivesTheZoneOfTheNumberedRowBack) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(4);
    // Row 5 is memory 9: the zone of row 9 is the one that goes.
    SetCell(5, MNUM, "009");
    SetCell(5, ZONE, "2");
    SetCell(9, ZONE, "3");
    ClearRowData(5, true);
    EXPECT_EQ(3, SlotsTaken(1, 2));
    EXPECT_EQ(4, SlotsTaken(1, 1));
    EXPECT_EQ("3", Cell(9, ZONE));
}

TEST_F(ClearRow, KeepsTheZoneSlotWhenNotAskedToReleaseIt) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(4);
    ClearRowData(1, false);
    for (int32_t taken : ZoneSlots)
        ASSERT_EQ(4, taken);
}

TEST_F(ClearRow, WithoutANumberGivesNoZoneSlotBack) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(4);
    for (const char* number : {"", "0", "000", "abc", "233", "9999", "-1", "99999999999"}) {
        SetCell(5, MNUM, number);
        SetCell(5, ZONE, "1");
        ClearRowData(5, true);
        for (int32_t taken : ZoneSlots)
            ASSERT_EQ(4, taken) << '"' << number << '"';
        EXPECT_FALSE(RowHasData(5));
    }
    EXPECT_EQ("1", Cell(0, ZONE)) << "the default row's zone is no slot";
}

TEST_F(ClearRow, OfAShadowRowGivesNoZoneSlotBack) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(4);
    SetCell(5, MNUM, "005");
    SetCell(5, ZONE, "");
    ClearRowData(5, true);
    for (int32_t taken : ZoneSlots)
        ASSERT_EQ(4, taken);
}

TEST_F(ClearRow, OfAnEmptyZoneLeavesItsCounterAtZero) {
    AddPage(Kdrv716, 0);
    ZoneSlots.fill(0);
    ClearRowData(1, true);
    EXPECT_EQ(0, SlotsTaken(1, 0));
}

TEST_F(RowCompleteness, NeedsTextInEveryColumnThatTheTypeShows) {
    for (const printed::TypeLine& line : printed::Types) {
        CurrentParameters().Type = line.type;
        FillShownCells(line.type);
        EXPECT_TRUE(RowIsComplete(1)) << line.tag;
        for (int col = 0; col < 32; ++col) {
            // The tones of FXAM and the filler of O12 are told of below.
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
    EXPECT_EQ("", Cell(1, MODE));
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
    EXPECT_EQ(1, GetCodeIndex("023"));
    EXPECT_EQ(0, GetCodeIndex("OFF"));
    EXPECT_EQ("OFF", GetCodeText(0));
    AddPage(Kdrv716, 0);
    EXPECT_EQ(0, GetCodeIndex("023"));
    EXPECT_EQ(-1, GetCodeIndex("OFF"));
    EXPECT_EQ("023", GetCodeText(0));
}

TEST_F(RowOperations, ColoursAreThoseOfRepairedCellsAndMarkedRows) {
    EXPECT_EQ(wxColour(235, 125, 50), FailColour);
    EXPECT_EQ(wxColour(105, 160, 170), MarkColour);
}

TEST_F(RowOperations, SixPagesCanStand) {
    EXPECT_EQ(6, PageLimit);
    for (int page = 1; page < 6; ++page)
        AddPage(page % 2 ? 7 : 6, 0);
    EXPECT_EQ(6, PageCount);
    EXPECT_EQ(5, CurrentPage);
    EXPECT_EQ("1", Cell(1, ZONE)) << "the sixth page has zone counters of its own";
    EXPECT_EQ(1, SlotsTaken(5, 0));
}
