// Every command of the context menu, chosen by right click and answered, on every kind of page.
#include "tests/editing/CommandTest.h"

#include <wx/dialog.h>

#include <algorithm>

namespace {

/// A page to work on. Rows 2, 3, 4 and 6, the last two movable ones and the guards are filled; on a
/// P25 page also row 1.
struct Page {
    const char* name;
    int radio, slot, rows;
    bool guards, p25;
    const char* base; ///< of the numbered descriptions of its default row
};

constexpr Page Pages[] = {
    {"AnalogWithGuards", Krv47, 0, 122, true, false, "LOW   "},
    {"AnalogWithoutGuards", Krv610, 1, 200, false, false, "UHF   "},
    {"KdarWithoutGuards", Kdar2000, 0, 100, false, false, "VHFAM"},
    {"FirstP25Generation", Kdrv716, 0, 232, true, true, "VHF  "},
    {"SecondP25Generation", Kdrv716B, 0, 502, true, true, "VHF  "},
};

void PrintTo(const Page& page, std::ostream* out) {
    *out << page.name;
}

std::string ThreeDigits(int number) {
    return wxString::Format("%03d", number).utf8_string();
}

class ContextCommands : public CommandTest, public ::testing::WithParamInterface<Page> {
protected:
    using Cells = std::vector<Texts>;

    void SetUp() override {
        CommandTest::SetUp();
        testbench::ShowAndFocus(*MainFrame);
        MakePage();
    }

    /// Makes a fresh page without leftovers from an earlier case.
    static void MakePage() {
        const Page& page = GetParam();
        Retarget(page.radio, page.slot);
        if (page.p25) {
            ClearZoneSlots(0);
            for (int row = 1; row <= page.rows; ++row)
                ClearRowData(row, false);
            Fill({1});
        }
        Fill({2, 3, 4, 6, LastMoving() - 1, LastMoving()});
        if (page.guards)
            Fill({page.rows - 1, page.rows});
        SetPageEditors(0);
        for (int row = 1; row <= page.rows; ++row) {
            if (!Cell(row, MNUM).empty())
                SetCell(row, DESC, wxString::Format("ROW%d", row));
            for (int col = 0; col < 32; ++col)
                CurrentGrid()->SetCellBackgroundColour(row, col, wxNullColour);
        }
        CurrentParameters().Flags = 0;
        CurrentGrid()->ClearSelection();
        CurrentGrid()->MakeCellVisible(0, 0);
        ASSERT_EQ(CurrentParameters().Rows, page.rows);
    }

    static int LastMoving() { return GetParam().rows - (GetParam().guards ? 2 : 0); }

    static Cells AllCells() {
        Cells cells;
        for (int row = 0; row <= GetParam().rows; ++row)
            cells.push_back(RowTexts(row));
        return cells;
    }

    /// The texts of a row after it has been set to its defaults.
    static Texts DefaultsOf(int row) {
        const Page& page = GetParam();
        Texts texts = RowTexts(0);
        texts[MNUM] = ThreeDigits(row);
        texts[DESC] = page.base + ThreeDigits(row);
        if (page.p25) {
            texts[PRIM] = ThreeDigits(row);
            texts[ZONE] = "1";
            texts[TFLG] = "A8";
        }
        return texts;
    }

    static void ExpectCells(const Cells& expected) {
        for (size_t row = 0; row < expected.size(); ++row)
            EXPECT_EQ(RowTexts(static_cast<int>(row)), expected[row]) << "row " << row;
    }

    /// Rows in which all cells have the paint of marked rows. Fails if any other row has paint.
    static std::vector<int> PaintedRows() {
        std::vector<int> painted;
        for (int row = 0; row <= GetParam().rows; ++row) {
            const wxColour colour = Paint(row, 0);
            for (int col = 0; col < 32; ++col)
                EXPECT_EQ(Paint(row, col), colour) << "row " << row << " column " << col;
            if (colour == Teal())
                painted.push_back(row);
            else
                EXPECT_EQ(colour, Plain()) << "row " << row;
        }
        return painted;
    }

    static std::vector<int> SelectedRowNumbers() {
        std::vector<int> selected;
        for (int row = 0; row <= GetParam().rows; ++row)
            if (CurrentGrid()->IsInSelection(row, 0))
                selected.push_back(row);
        return selected;
    }

    static bool Asks(int command) {
        return std::any_of(Questions().begin(), Questions().end(),
                           [command](const Question& question) { return question.command == command; });
    }

    /// Chooses a command of row 3, with rows 2 and 6 or nothing selected before, and answers its
    /// question.
    static void ChooseForRow3(int command, bool many, int answer) {
        if (many)
            SelectRows({2, 6});
        testbench::DialogScript dialogs;
        ExpectQuestion(dialogs, command, answer);
        ClickRowCommand(3, command);
        EXPECT_EQ(dialogs.Shown().size(), Asks(command) ? 1u : 0u);
    }

    static void ChooseForColumn(int col, int command, int answer) {
        testbench::DialogScript dialogs;
        ExpectQuestion(dialogs, command, answer);
        ClickColumnCommand(col, command);
        EXPECT_EQ(dialogs.Shown().size(), 1u);
    }
};

class GuardRowCommands : public ContextCommands {};
class P25Commands : public ContextCommands {};

std::string NameOf(const ::testing::TestParamInfo<Page>& page) {
    return page.param.name;
}

std::vector<Page> PagesWith(bool Page::*feature) {
    std::vector<Page> pages;
    for (const Page& page : Pages)
        if (page.*feature)
            pages.push_back(page);
    return pages;
}

INSTANTIATE_TEST_SUITE_P(On, ContextCommands, ::testing::ValuesIn(Pages), NameOf);
INSTANTIATE_TEST_SUITE_P(On, GuardRowCommands, ::testing::ValuesIn(PagesWith(&Page::guards)), NameOf);
INSTANTIATE_TEST_SUITE_P(On, P25Commands, ::testing::ValuesIn(PagesWith(&Page::p25)), NameOf);

// Row 3 alone, or rows 2, 3 and 6 of a page.
constexpr bool One = false, Many = true;

std::vector<int> RowsOf(bool many) {
    return many ? std::vector<int>{2, 3, 6} : std::vector<int>{3};
}

} // namespace

TEST_P(ContextCommands, DefaultRowOverwritesTheSelectedRows) {
    for (const bool many : {One, Many}) {
        SCOPED_TRACE(many ? "three rows" : "one row");
        MakePage();
        Cells expected = AllCells();
        for (int row : RowsOf(many))
            expected[static_cast<size_t>(row)] = DefaultsOf(row);
        ChooseForRow3(DefaultRow, many, wxID_OK);
        ExpectCells(expected);
        EXPECT_EQ(SelectedRowNumbers(), std::vector<int>{});
        if (GetParam().p25) {
            EXPECT_EQ(SlotsTaken(0), many ? 9 : 7) << "only the row that was clicked gives its slot back";
        }
    }
}

TEST_P(ContextCommands, CopyRowKeepsTheRowThatWasClicked) {
    for (const bool many : {One, Many}) {
        SCOPED_TRACE(many ? "three rows" : "one row");
        MakePage();
        RowCopyBuffer.clear();
        const Cells before = AllCells();
        ChooseForRow3(CopyRow, many, wxID_OK);
        ExpectCells(before);
        EXPECT_EQ(SelectedRowNumbers(), std::vector<int>{3});
        ASSERT_EQ(RowCopyBuffer.size(), 32u);
        for (size_t col = 0; col < 32; ++col)
            EXPECT_EQ(RowCopyBuffer[col].utf8_string(), before[3][col]) << "column " << col;
    }
}

TEST_P(ContextCommands, PasteRowWritesTheRowThatWasClickedAlone) {
    for (const bool many : {One, Many}) {
        SCOPED_TRACE(many ? "three rows" : "one row");
        MakePage();
        RunOnRow(CopyRow, 4);
        RowCopyBuffer[MNUM] = "3";
        RowCopyBuffer[RONL] = RowCopyBuffer[TFLG] = "not pasted";
        CurrentGrid()->ClearSelection();
        Cells expected = AllCells();
        expected[3] = expected[4];
        expected[3][MNUM] = "003";
        expected[3][BAND] = "";
        if (GetParam().p25)
            expected[3][PRIM] = "003";
        if (GetParam().radio == Kdar2000)
            expected[3][RCOD] = expected[3][TCOD] = "n/a";
        ChooseForRow3(PasteRow, many, wxID_OK);
        ExpectCells(expected);
        EXPECT_EQ(SelectedRowNumbers(), RowsOf(many));
    }
}

TEST_P(ContextCommands, PasteRowWithoutACopyTellsSoAfterItsQuestion) {
    const Cells before = AllCells();
    RowCopyBuffer.clear();
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, PasteRow);
    dialogs.ExpectMessage("Error - Empty paste buffer!", "Cannot paste empty row.")
        .Style(testbench::PlainBox);
    ClickRowCommand(3, PasteRow);
    ExpectCells(before);
}

TEST_P(ContextCommands, ClearRowEmptiesTheSelectedRows) {
    for (const bool many : {One, Many}) {
        SCOPED_TRACE(many ? "three rows" : "one row");
        MakePage();
        Cells expected = AllCells();
        for (int row : RowsOf(many))
            expected[static_cast<size_t>(row)] = Blank();
        ChooseForRow3(ClearRow, many, wxID_OK);
        ExpectCells(expected);
        EXPECT_EQ(SelectedRowNumbers(), std::vector<int>{});
        if (GetParam().p25) {
            EXPECT_EQ(SlotsTaken(0), many ? 4 : 6);
        }
    }
}

TEST_P(ContextCommands, InsertRowMovesTheRowsDownAndTheGuardsStay) {
    const int last = LastMoving();
    for (const bool many : {One, Many}) {
        SCOPED_TRACE(many ? "three rows" : "one row");
        MakePage();
        Cells expected = AllCells();
        expected.erase(expected.begin() + last);
        expected.insert(expected.begin() + 3, Blank());
        for (int row : {4, 5, 7, last})
            expected[static_cast<size_t>(row)][MNUM] = std::to_string(row);
        ChooseForRow3(InsertRow, many, wxID_OK);
        ExpectCells(expected);
        EXPECT_EQ(Cell(last, DESC), wxString::Format("ROW%d", last - 1)) << "the last one is lost";
        if (GetParam().p25) {
            EXPECT_EQ(SlotsTaken(0), 7) << "also the slot of the row that was lost";
        }
    }
}

TEST_P(ContextCommands, DeleteRowMovesTheRowsUpAndTheGuardsStay) {
    for (const bool many : {One, Many}) {
        SCOPED_TRACE(many ? "three rows" : "one row");
        MakePage();
        Cells expected = AllCells();
        for (int row : many ? std::vector<int>{6, 3, 2} : std::vector<int>{3}) {
            expected.erase(expected.begin() + row);
            expected.insert(expected.begin() + LastMoving(), Blank());
        }
        ChooseForRow3(DeleteRow, many, wxID_OK);
        ExpectCells(expected);
        EXPECT_EQ(Cell(many ? 2 : 3, MNUM), "004") << "no row is renumbered";
        EXPECT_EQ(SelectedRowNumbers(), std::vector<int>{});
        if (GetParam().p25) {
            EXPECT_EQ(SlotsTaken(0), many ? 4 : 6);
        }
    }
}

TEST_P(ContextCommands, MarkRowPaintsTheSelectedRows) {
    for (const bool many : {One, Many}) {
        SCOPED_TRACE(many ? "three rows" : "one row");
        MakePage();
        const Cells before = AllCells();
        ChooseForRow3(MarkRow, many, wxID_OK);
        ExpectCells(before);
        EXPECT_EQ(PaintedRows(), RowsOf(many));
        EXPECT_EQ(CurrentParameters().Flags, 0x10);
        EXPECT_EQ(SelectedRowNumbers(), std::vector<int>{});
    }
}

TEST_P(ContextCommands, OfRowsDoNothingWhenTheirQuestionIsCancelled) {
    RunOnRow(CopyRow, 4);
    const Cells before = AllCells();
    const auto slots = ZoneSlots;
    for (const bool many : {One, Many})
        for (int command : {DefaultRow, PasteRow, ClearRow, InsertRow, DeleteRow}) {
            SCOPED_TRACE(std::to_string(command) + (many ? ", three rows" : ", one row"));
            CurrentGrid()->ClearSelection();
            ChooseForRow3(command, many, wxID_CANCEL);
            ExpectCells(before);
            EXPECT_EQ(ZoneSlots, slots);
            EXPECT_EQ(SelectedRowNumbers(), RowsOf(many));
        }
    EXPECT_EQ(PaintedRows(), std::vector<int>{});
}

TEST_P(ContextCommands, OfRow000TellThatTheyAreMissing) {
    const Cells before = AllCells();
    testbench::DialogScript dialogs;
    dialogs.ExpectMessage("Save Radio Default Data?", " ! Currently UnImplemented !")
        .Style(testbench::PlainBox);
    dialogs.ExpectMessage("Load Radio Default Data", " ! Currently UnImplemented !")
        .Style(testbench::PlainBox);
    ClickRowCommand(0, SaveDefault);
    ClickRowCommand(0, LoadDefault);
    ExpectCells(before);
    EXPECT_EQ(SelectedRowNumbers(), std::vector<int>{0});
}

TEST_P(GuardRowCommands, WorkOnTheGuardRow) {
    const int guard = GetParam().rows;
    Cells expected = AllCells();
    CurrentGrid()->MakeCellVisible(guard, 0);
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, ClearRow);
    ExpectQuestion(dialogs, DefaultRow);
    ClickRowCommand(guard, ClearRow);
    expected[static_cast<size_t>(guard)] = Blank();
    ExpectCells(expected);
    ClickRowCommand(guard, DefaultRow);
    Texts& texts = expected[static_cast<size_t>(guard)] = DefaultsOf(guard);
    if (GetParam().p25)
        texts[ZONE] = GetParam().radio == Kdrv716 ? "16" : "X";
    ExpectCells(expected);
    EXPECT_TRUE(IsReadOnly(guard, MNUM));
    EXPECT_TRUE(IsReadOnly(guard, SCAN));
}

TEST_P(ContextCommands, DefaultColReachesEveryRowWithData) {
    SetCell(0, DESC, "NEW");
    Cells expected = AllCells();
    for (size_t row = 1; row < expected.size(); ++row)
        if (expected[row] != Blank())
            expected[row][DESC] = "NEW";
    ChooseForColumn(DESC, DefaultCol, wxID_OK);
    ExpectCells(expected);
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, DESC));
}

TEST_P(ContextCommands, DefaultMarkedReachesMarkedRowsAlone) {
    SelectRows({3, 6});
    Run(MarkRow);
    SetCell(0, DESC, "NEW");
    Cells expected = AllCells();
    expected[3][DESC] = expected[6][DESC] = "NEW";
    ChooseForColumn(DESC, DefaultMarked, wxID_OK);
    ExpectCells(expected);
    EXPECT_EQ(PaintedRows(), (std::vector<int>{3, 6})) << "marks stay";
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, DESC));
}

TEST_P(ContextCommands, DefaultColOfTheReceiveFrequencyReachesBoth) {
    SetCell(0, RFRQ, "71.0000");
    Cells expected = AllCells();
    for (size_t row = 1; row < expected.size(); ++row)
        if (expected[row] != Blank())
            expected[row][RFRQ] = expected[row][TFRQ] = "71.0000";
    ChooseForColumn(RFRQ, DefaultCol, wxID_OK);
    ExpectCells(expected);
}

TEST_P(ContextCommands, RenumberingCountsTheRowsWithDataGuardsIncluded) {
    for (int row : {2, 3, 4})
        SetCell(row, MNUM, "77");
    Cells expected = AllCells();
    Cells counted = expected;
    int number = 0;
    for (size_t row = 1; row < expected.size(); ++row) {
        if (expected[row] == Blank())
            continue;
        expected[row][MNUM] = std::to_string(row);
        counted[row][MNUM] = std::to_string(++number);
        if (GetParam().p25) {
            expected[row][PRIM] = expected[row][MNUM];
            counted[row][PRIM] = counted[row][MNUM];
        }
    }
    ChooseForColumn(MNUM, ToRowNum, wxID_OK);
    ExpectCells(expected);
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, MNUM));
    ChooseForColumn(MNUM, InSequence, wxID_OK);
    ExpectCells(counted);
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, MNUM));
}

TEST_P(ContextCommands, OfColumnsAndTheCornerDoNothingWhenTheirQuestionIsCancelled) {
    SelectRows({3, 6});
    Run(MarkRow);
    const Cells before = AllCells();
    const auto slots = ZoneSlots;
    const auto expectNothing = [&] {
        ExpectCells(before);
        EXPECT_EQ(ZoneSlots, slots);
        EXPECT_EQ(PaintedRows(), (std::vector<int>{3, 6}));
        EXPECT_EQ(CurrentParameters().Flags, 0x10);
    };
    const struct {
        int col, command;
    } cases[] = {{DESC, DefaultCol}, {DESC, DefaultMarked}, {MNUM, ToRowNum}, {MNUM, InSequence}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.command);
        ChooseForColumn(c.col, c.command, wxID_CANCEL);
        expectNothing();
        EXPECT_TRUE(CurrentGrid()->IsInSelection(1, c.col)) << "the selection stays";
    }
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, DefaultFile, wxID_CANCEL);
    ClickCommand([] { return testbench::CornerSpot(*CurrentGrid()); }, DefaultFile);
    expectNothing();
    EXPECT_TRUE(CurrentGrid()->IsInSelection(0, 0)) << "the whole grid stays selected";
    EXPECT_TRUE(CurrentGrid()->IsInSelection(GetParam().rows, 31));
}

TEST_P(ContextCommands, DefaultFileFillsTheWholePage) {
    const Page& page = GetParam();
    SelectRows({3});
    Run(MarkRow);
    SetCell(0, RFRQ, "71.0000");
    Cells expected{RowTexts(0)};
    for (int row = 1; row <= page.rows; ++row) {
        expected.push_back(DefaultsOf(row));
        // A zone holds sixteen rows; the last zone is reserved for the guard rows.
        if (page.p25)
            expected.back()[ZONE] = RadioCatalogue::ZoneNames32[(row - 1) / 16];
    }
    if (page.p25)
        for (int guard : {page.rows - 1, page.rows})
            expected[static_cast<size_t>(guard)][ZONE] = page.radio == Kdrv716 ? "16" : "X";
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, DefaultFile);
    ClickCommand([] { return testbench::CornerSpot(*CurrentGrid()); }, DefaultFile);
    ExpectCells(expected);
    EXPECT_EQ(PaintedRows(), std::vector<int>{});
    EXPECT_EQ(CurrentParameters().Flags, 0);
    EXPECT_EQ(SelectedRowNumbers(), std::vector<int>{});
}

TEST_P(P25Commands, DefaultColOfTheZoneDealsZonesAfresh) {
    const std::string last = GetParam().radio == Kdrv716 ? "16" : "X";
    const Cells expected = AllCells();
    for (int row : {2, 3, 4, 6})
        SetCell(row, ZONE, "9");
    ZoneSlots[8] = 4;
    ChooseForColumn(ZONE, DefaultCol, wxID_OK);
    ExpectCells(expected);
    EXPECT_EQ(Column(ZONE, {1, 6, GD1, GD2}), (Texts{"1", "1", last, last}));
    EXPECT_EQ(SlotsTaken(0), 7);
    EXPECT_EQ(SlotsTaken(8), 0);
    EXPECT_EQ(SlotsTaken(last == "X" ? 31 : 15), 2);
    SelectRows({3, 6});
    Run(MarkRow);
    ChooseForColumn(ZONE, DefaultMarked, wxID_OK);
    ExpectCells(expected);
    EXPECT_EQ(SlotsTaken(0), 2);
    EXPECT_EQ(SlotsTaken(last == "X" ? 31 : 15), 0) << "counters begin at 0, also of rows without marks";
}

TEST_P(P25Commands, CreateShadowLinksTheRowThatWasClickedUnlessCancelled) {
    SetCell(3, RNSV, "10");
    const Cells before = AllCells();
    testbench::DialogScript dialogs;
    for (const int button : {wxID_CANCEL, wxID_OK})
        dialogs.Expect(testbench::DialogKind::Other, "For Primary: 003 create Shadow: 1")
            .Do([button](wxDialog* dialog) {
                testbench::TypeText("17");
                testbench::ClickButton(dialog, button);
            });
    SelectRows({2, 6});
    ClickRowCommand(3, CreateShadow);
    ExpectCells(before);
    EXPECT_EQ(SelectedRowNumbers(), std::vector<int>{});
    SelectRows({2, 6});
    ClickRowCommand(3, CreateShadow);
    Cells expected = before;
    Texts& primary = expected[3];
    primary[MFLG] = "10";
    primary[SHAD] = "P-1";
    primary[SHD0] = "017";
    Texts& shadow = expected[17] = primary;
    shadow[MFLG] = "01";
    shadow[MNUM] = "017";
    shadow[PRIM] = "003";
    shadow[SHAD] = "S-003";
    shadow[BAND] = "";
    shadow[SHD0] = "0";
    shadow[TFLG] = "A0";
    ExpectCells(expected);
    EXPECT_EQ(SelectedRowNumbers(), std::vector<int>{});
}
