// Tab, Return, Escape, Delete and F2 on the cells of a page.
#include "tests/editing/GridHabits.h"

#include <algorithm>

using namespace testbench;

namespace {

class GridKeys : public GridHabits {
protected:
    struct Page {
        const char* name;
        int radio, slot;
        Columns shown;
    };

    /// A page of each type, with its visible columns.
    static const std::vector<Page>& Pages() {
        static const std::vector<Page> pages = {
            {"ANFM", Krv47, 0, {MNUM, SCAN, DESC, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD}},
            {"RP25",
             Kdrv716,
             0,
             {MNUM, SHAD, SCAN, ZONE, DESC, MODE, RFRQ, RSQL, RTON, RCOD, RTGP, RNAC, TFRQ, TSQL, TTON, TCOD,
              TTGP, TNAC, TIDC}},
            {"NP25", Kdrv716B, 0, {MNUM, SHAD, SCAN, ZONE, DESC, MODE, RFRQ, RSQL, RNSV, RTON,
                                   RCOD, RTGP, RNAC, TFRQ, TSQL, TTON, TCOD, TTGP, TNAC, TIDC}},
            {"MDLX",
             Kdrv4xxx,
             ModuleSlot,
             {MNUM, BAND, SCAN, DESC, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD}},
            {"O12", Orv12, 0, {MNUM, RFRQ, RONL}},
            {"KDAR", Kdar2000, 0, {MNUM, SCAN, DESC, RFRQ, TFRQ, RONL}},
        };
        return pages;
    }

    static int Neighbour(const Columns& shown, int col, int way) {
        return *(std::find(shown.begin(), shown.end(), col) + way);
    }

    /// An edit of one cell and the text that it leaves there.
    struct Edit {
        const char* name;
        int col;
        const char* keys;
        const char* text;
    };

    /// One edit of each kind of editor on a page of the second generation; "<Down>" as in a choice.
    static const std::vector<Edit>& Edits() {
        static const std::vector<Edit> edits = {
            {"memory number", MNUM, "99", "099"},
            {"yes or no", SCAN, "<Down>", "N"},
            {"zone", ZONE, "<Down>", "2"},
            {"description", DESC, "abC", "abC"},
            {"mode", MODE, "<Down>", "D"},
            {"frequency", RFRQ, "155.2", "155.20000"},
            {"squelch", RSQL, "<Down>", "m"},
            {"number", RNSV, "7", "7"},
            {"tone", RTON, "<Down>", "69.3"},
            {"code", RCOD, "<Down>", "025"},
            {"talk group", RTGP, "ab", "00AB"},
            {"NAC", RNAC, "1a", "01A"},
            {"transmit", TFRQ, "156.2", "156.20000"},
            {"unit id", TIDC, "42", "42"},
        };
        return edits;
    }

    /// Opens the cell's editor and enters the edit's keys; the editor stays open.
    static void Begin(int row, const Edit& edit) {
        if (edit.keys[0] == '<') {
            OpenChoice(row, edit.col);
            PressKey("Down");
        } else {
            GoTo(row, edit.col);
            TypeText(edit.keys);
        }
        EXPECT_TRUE(IsOpen()) << edit.name;
    }
};

} // namespace

TEST_F(GridKeys, TabGoesRightAndShiftTabLeftOverShownColumnsOnly) {
    for (const Page& page : Pages()) {
        SCOPED_TRACE(page.name);
        Retarget(page.radio, page.slot);
        GoTo(5, MNUM);
        Columns right = {MNUM}, left;
        for (size_t i = 1; i < page.shown.size(); ++i) {
            PressKey("Tab");
            right.push_back(Cursor().second);
        }
        EXPECT_EQ(right, page.shown);
        left.push_back(Cursor().second);
        for (size_t i = 1; i < page.shown.size(); ++i) {
            PressKey("Shift+Tab");
            left.push_back(Cursor().second);
        }
        std::reverse(left.begin(), left.end());
        EXPECT_EQ(left, page.shown);
        EXPECT_EQ(Cursor().first, 5);
    }
}

TEST_F(GridKeys, TypingWorksInTheColumnThatTabReachesBehindHiddenOnes) {
    Fill({5});
    GoTo(5, RCOD);
    PressKey("Tab");
    ASSERT_EQ(Cursor(), Place(5, TFRQ));
    TypeText("77.5\t");
    EXPECT_EQ(Text(5, TFRQ), "77.5000");
    PressKey("Shift+Tab");
    PressKey("Shift+Tab");
    PressKey("Shift+Tab");
    PressKey("Shift+Tab");
    ASSERT_EQ(Cursor(), Place(5, RFRQ));
    TypeText("78.5\t");
    EXPECT_EQ(Text(5, RFRQ), "78.5000");
}

TEST_F(GridKeys, NoKeyBringsTheCursorToAHiddenColumn) {
    for (const Page& page : Pages()) {
        SCOPED_TRACE(page.name);
        Retarget(page.radio, page.slot);
        for (int col : {page.shown.front(), page.shown[page.shown.size() / 2], page.shown.back()})
            for (const char* key : {"Tab", "Shift+Tab", "Left", "Right", "Home", "End", "Ctrl+Left",
                                    "Ctrl+Right", "Ctrl+Home", "Ctrl+End", "Up", "Down"}) {
                GoTo(5, col);
                PressKey(key);
                EXPECT_GT(Grid()->GetColSize(Cursor().second), 0)
                    << key << " from " << ColumnTag[col] << " to " << ColumnTag[Cursor().second];
            }
    }
}

TEST_F(GridKeys, TheCursorOfAFreshPageStandsInAShownColumn) {
    Grid()->SetFocus();
    PumpUntilIdle();
    EXPECT_GT(Grid()->GetColSize(Cursor().second), 0) << Cursor().first << ", " << Cursor().second;
    AddPage(Kdrv716B);
    Grid()->SetFocus();
    PumpUntilIdle();
    EXPECT_GT(Grid()->GetColSize(Cursor().second), 0) << Cursor().first << ", " << Cursor().second;
    const PageState before = StateOfPage();
    TypeText("7");
    PressKey("Return");
    EXPECT_EQ(ChangesSince(before), "") << "the number of the default row is fixed";
}

TEST_F(GridKeys, TheCursorLeavesAColumnThatANewTargetHides) {
    Retarget(Kdrv716B, 0);
    GoTo(5, RTGP);
    ChangeTarget(Krv47);
    GoTo(Cursor().first, Cursor().second);
    EXPECT_EQ(Cursor(), Place(5, MNUM));
    GoTo(5, RFRQ);
    ChangeTarget(Krv214);
    EXPECT_EQ(Cursor(), Place(5, RFRQ)) << "a column that both show";
}

TEST_F(GridKeys, TabWithAnOpenEditorTakesTheTextAndGoesRight) {
    Retarget(Kdrv716B, 0);
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        if (edit.col == TIDC)
            continue; // the last column
        Fill({5});
        SetCell(5, SCAN, "Y");
        Begin(5, edit);
        PressKey("Tab");
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(Text(5, edit.col), edit.text);
        EXPECT_EQ(Cursor(), Place(5, Neighbour(Pages()[2].shown, edit.col, 1)));
    }
}

TEST_F(GridKeys, ShiftTabWithAnOpenEditorTakesTheTextAndGoesLeft) {
    Retarget(Kdrv716B, 0);
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        if (edit.col == MNUM)
            continue; // the first column
        Fill({5});
        SetCell(5, SCAN, "Y");
        Begin(5, edit);
        PressKey("Shift+Tab");
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(Text(5, edit.col), edit.text);
        EXPECT_EQ(Cursor(), Place(5, Neighbour(Pages()[2].shown, edit.col, -1)));
    }
}

TEST_F(GridKeys, ReturnWithAnOpenEditorTakesTheTextAndGoesDown) {
    Retarget(Kdrv716B, 0);
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        Fill({5});
        SetCell(5, SCAN, "Y");
        Begin(5, edit);
        PressKey("Return");
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(Text(5, edit.col), edit.text);
        EXPECT_EQ(Cursor(), Place(6, edit.col));
    }
}

TEST_F(GridKeys, ReturnWithoutAnEditorGoesDown) {
    Fill({5});
    const PageState before = StateOfPage();
    GoTo(5, DESC);
    PressKey("Return");
    EXPECT_EQ(Cursor(), Place(6, DESC));
    EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(GridKeys, TabAtTheEndsOfARowGoesToTheNextRowAndShiftTabBack) {
    for (const Page& page : Pages()) {
        SCOPED_TRACE(page.name);
        Retarget(page.radio, page.slot);
        const PageState before = StateOfPage();
        GoTo(5, page.shown.back());
        PressKey("Tab");
        EXPECT_EQ(Cursor(), Place(6, page.shown.front()));
        PressKey("Shift+Tab");
        EXPECT_EQ(Cursor(), Place(5, page.shown.back()));
        EXPECT_EQ(ChangesSince(before), "");
    }
}

TEST_F(GridKeys, TabAtTheEndsOfARowTakesTheTextOfAnOpenEditor) {
    Fill({5});
    GoTo(5, MNUM);
    PressKey("F2");
    EXPECT_TRUE(IsOpen());
    PressKey("Ctrl+A");
    TypeText("99");
    PressKey("Shift+Tab");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Cursor(), Place(4, TCOD));
    EXPECT_EQ(Text(5, MNUM), "099");
    OpenChoice(5, TCOD);
    PressKey("Down");
    const std::string former = Text(5, TCOD);
    PressKey("Tab");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Cursor(), Place(6, MNUM));
    EXPECT_NE(Text(5, TCOD), former);
}

TEST_F(GridKeys, TabAtTheEndsOfThePageStaysAndKeepsTheEditorOpen) {
    const int last = Grid()->GetNumberRows() - 1;
    Fill({last});
    for (const auto& [row, col, key] : {std::tuple(0, MNUM, "Shift+Tab"), std::tuple(last, TFRQ, "Tab")}) {
        SCOPED_TRACE(key);
        for (int other = col + 1; row == last && other < ColumnTotal; ++other)
            Grid()->HideCol(other);
        PressKey("Escape");
        GoTo(row, col);
        PressKey(key);
        EXPECT_EQ(Cursor(), Place(row, col));
        if (IsLocked(row, col))
            continue;
        PressKey("F2");
        PressKey(key);
        EXPECT_EQ(Cursor(), Place(row, col));
        EXPECT_TRUE(IsOpen());
    }
    PressKey("Escape");
}

TEST_F(GridKeys, ANumberInUseIsRefusedOnceWhicheverKeyEndsTheEdit) {
    Fill({5, 17});
    const PageState before = StateOfPage();
    for (const char* key : {"Tab", "Return"}) {
        SCOPED_TRACE(key);
        DialogScript dialogs;
        dialogs.ExpectMessage("Error", "Number already used at row: 017");
        GoTo(5, MNUM);
        TypeText("17");
        PressKey(key);
        EXPECT_EQ(dialogs.Shown().size(), 1u);
        EXPECT_FALSE(IsOpen());
    }
    EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(GridKeys, EscapeLeavesThePageAsItWasInEveryKindOfCell) {
    MakeShadow();
    SetCell(5, SCAN, "Y");
    Grid()->SetReadOnly(5, MNUM, false);
    Grid()->SetReadOnly(5, SCAN, false);
    for (const Edit& edit : Edits())
        Grid()->SetCellBackgroundColour(5, edit.col, FailColour);
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        const auto slots = ZoneSlots;
        const PageState before = StateOfPage();
        Begin(5, edit);
        PressKey("Escape");
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(ChangesSince(before), "");
        EXPECT_EQ(Cursor(), Place(5, edit.col));
        EXPECT_EQ(ZoneSlots, slots);
    }
}

TEST_F(GridKeys, EscapeLeavesABlankRowBlankInEveryKindOfCell) {
    Retarget(Kdrv716B, 0);
    const PageState before = StateOfPage();
    const auto slots = ZoneSlots;
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        Begin(20, edit);
        PressKey("Escape");
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(ChangesSince(before), "");
        EXPECT_EQ(ZoneSlots, slots);
    }
}

TEST_F(GridKeys, EscapeLeavesAnAnalogPageAsItWas) {
    Fill({5});
    SetCell(5, RTON, "67.0");
    SetCell(5, SCAN, "5");
    const PageState before = StateOfPage();
    for (const Edit& edit : {Edit{"code", RCOD, "<Down>", ""}, Edit{"tone", RTON, "<Down>", ""},
                             Edit{"mode", MODE, "<Down>", ""}, Edit{"frequency", RFRQ, "77.5", ""},
                             Edit{"description", DESC, "abc", ""}, Edit{"number", MNUM, "77", ""}}) {
        Begin(5, edit);
        PressKey("Escape");
        EXPECT_EQ(ChangesSince(before), "") << edit.name;
    }
    GoTo(5, SCAN);
    PressKey("Escape");
    EXPECT_EQ(ChangesSince(before), "") << "scan boxes";
    Retarget(Kdrv4xxx, ModuleSlot);
    Fill({5});
    const PageState module = StateOfPage();
    Begin(5, {"band", BAND, "<Down>", ""});
    PressKey("Escape");
    EXPECT_EQ(ChangesSince(module), "") << "band";
}

TEST_F(GridKeys, FixedCellsAreHarmedByNoKey) {
    const auto press = [](std::initializer_list<Place> cells, const char* page) {
        const PageState before = StateOfPage();
        const auto slots = ZoneSlots;
        for (const auto& [row, col] : cells) {
            ASSERT_TRUE(IsLocked(row, col)) << page << ", row " << row << " " << ColumnTag[col];
            for (const char* key : {"Delete", "BackSpace", "F2", "1", "x", "space", "Ctrl+V", "Ctrl+X"}) {
                GoTo(row, col);
                PressKey(key);
                EXPECT_FALSE(IsOpen()) << page << ", row " << row << " " << ColumnTag[col] << ", " << key;
            }
        }
        EXPECT_EQ(ChangesSince(before), "") << page;
        EXPECT_EQ(ZoneSlots, slots) << page;
    };
    Fill({121, 122});
    press({{0, MNUM}, {121, MNUM}, {121, SCAN}, {121, RTON}, {121, RCOD}, {122, MNUM}, {122, SCAN}},
          "KRV-47");
    MakeShadow();
    press({{0, MNUM},
           {0, SHAD},
           {5, SHAD},
           {5, SCAN},
           {6, SHAD},
           {8, MNUM},
           {8, SHAD},
           {8, SCAN},
           {8, ZONE},
           {8, RFRQ},
           {8, TFRQ},
           {501, MNUM},
           {501, SCAN},
           {501, ZONE},
           {502, MNUM},
           {502, SCAN},
           {502, ZONE}},
          "KDRV-716B");
    RetargetModule();
    Fill({5, 6});
    Choose(5, BAND, "AM 225-400");
    Choose(6, BAND, "AM 108-138");
    press({{5, MODE}, {5, RCOD}, {5, TCOD}, {6, RTON}, {6, RCOD}, {6, TTON}, {6, TCOD}}, "module");
}

TEST_F(GridKeys, DeleteAndBackspaceOpenAnEditorThatLeavesTheCellUsable) {
    Retarget(Kdrv716B, 0);
    // Return follows at once. Delete leaves the whole text, Backspace removes the last character.
    struct Line {
        const char* name;
        int col;
        const char *before, *afterDelete, *afterBackspace;
    };
    for (const Line& line :
         std::initializer_list<Line>{{"frequency", RFRQ, "136.00000", "136.00000", "136.00000"},
                                     {"description", DESC, "QUAY", "QUAY", "QUA"},
                                     {"talk group", RTGP, "1234", "1234", "0123"},
                                     {"NAC", RNAC, "293", "293", "029"},
                                     {"mode", MODE, "n", "n", "n"},
                                     {"zone", ZONE, "1", "1", "1"},
                                     {"tone", RTON, "67.0", "67.0", "67.0"},
                                     {"yes or no", SCAN, "N", "N", "N"}})
        for (const auto& [key, after] :
             {std::pair("Delete", line.afterDelete), std::pair("BackSpace", line.afterBackspace)}) {
            SCOPED_TRACE(std::string(line.name) + ", " + key);
            Fill({5});
            SetCell(5, line.col, line.before);
            GoTo(5, line.col);
            PressKey(key);
            PressKey("Return");
            EXPECT_FALSE(IsOpen());
            EXPECT_EQ(Text(5, line.col), after);
        }
    for (const char* key : {"Delete", "BackSpace"}) {
        Fill({5});
        GoTo(5, MNUM);
        PressKey(key);
        PressKey("Escape");
        EXPECT_EQ(Text(5, MNUM), "005") << key;
    }
}

TEST_F(GridKeys, DeleteAndBackspaceLeaveScanBoxesAlone) {
    Fill({5});
    SetCell(5, SCAN, "21");
    const PageState before = StateOfPage();
    for (const char* key : {"Delete", "BackSpace", "F2", "Return", "space"}) {
        GoTo(5, SCAN);
        PressKey(key);
        EXPECT_FALSE(IsOpen()) << key;
        EXPECT_EQ(ChangesSince(before), "") << key;
    }
}

TEST_F(GridKeys, F2OpensTheEditorOfEveryCellThatHasOne) {
    for (const Page& page : Pages()) {
        SCOPED_TRACE(page.name);
        Retarget(page.radio, page.slot);
        Fill({5});
        const PageState before = StateOfPage();
        for (int col : page.shown) {
            GoTo(5, col);
            PressKey("F2");
            const bool boxes = EditorClass(5, col) == "ScanlistEditor";
            EXPECT_EQ(IsOpen(), !boxes && !IsLocked(5, col)) << ColumnTag[col];
            if (IsOpen())
                PressKey("Escape");
        }
        EXPECT_EQ(ChangesSince(before), "");
    }
}

TEST_F(GridKeys, TheNumberPadTypesFrequenciesNumbersAndScanLists) {
    // Keys of the pad are named as without Num Lock.
    struct NumberLock {
        NumberLock() { PressKey("Num_Lock"); }
        ~NumberLock() { PressKey("Num_Lock"); }
    } lock;
    constexpr const char *one = "KP_End", *two = "KP_Down", *five = "KP_Begin", *seven = "KP_Home",
                         *nine = "KP_Prior", *point = "KP_Delete", *enter = "KP_Enter";
    const auto type = [](int col, std::initializer_list<const char*> keys) {
        GoTo(5, col);
        for (const char* key : keys)
            PressKey(key);
        return Text(5, col);
    };
    Fill({5});
    EXPECT_EQ(type(RFRQ, {seven, seven, point, five, enter}), "77.5000");
    EXPECT_EQ(Cursor(), Place(6, RFRQ));
    EXPECT_EQ(type(MNUM, {nine, nine, enter}), "099");
    EXPECT_EQ(type(DESC, {five, "KP_Subtract", two, enter}), "5-2");
    EXPECT_EQ(type(SCAN, {one, five}), "17");
    Retarget(Kdrv716B, 0);
    Fill({5});
    EXPECT_EQ(type(RTGP, {one, two, enter}), "0012");
}

TEST_F(GridKeys, ADoubleClickOpensTheEditorAndTypingReplacesTheText) {
    Fill({5, 6});
    for (const auto& [col, typed, text] : {std::tuple(DESC, "quay", "QUAY"), std::tuple(MNUM, "99", "099")}) {
        GoTo(6, RFRQ);
        DoubleClickAt(CellSpot(*Grid(), 5, col));
        EXPECT_TRUE(IsOpen()) << ColumnTag[col];
        PressKey("Ctrl+A");
        TypeText(typed);
        PressKey("Return");
        EXPECT_EQ(Text(5, col), text);
    }
}

TEST_F(GridKeys, ARefusedKeyOpensNothing) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    const PageState before = StateOfPage();
    const std::pair<int, const char*> lines[] = {
        {RFRQ, "a"},         {RFRQ, "period"},     {RFRQ, "space"},  {RFRQ, "minus"},
        {TFRQ, "x"},         {RTGP, "g"},          {RTGP, "period"}, {RNAC, "space"},
        {DESC, "braceleft"}, {DESC, "asciitilde"}, {MNUM, "a"},      {TIDC, "x"},
    };
    for (const auto& [col, key] : lines) {
        GoTo(5, col);
        PressKey(key);
        EXPECT_FALSE(IsOpen()) << ColumnTag[col] << ", " << key;
        PressKey("Escape");
    }
    EXPECT_EQ(ChangesSince(before), "");
}
