// Editor, renderer, alignment and read-only mark of each cell of each kind of page.
#include "tests/editing/CellTools.h"

#include <map>
#include <set>

namespace {

/// The expected state of a cell. Columns that a table doesn't name have the grid's defaults.
struct Look {
    int col;
    const char* editor;
    const char* renderer;
    bool centred;
};

const char* const Plain = "wxGridCellStringRenderer";
const char* const TextEditor = "wxGridCellTextEditor";

/// Pages that aren't P25, without their tones and the extras of some pages; see below.
const std::vector<Look> AnalogLooks = {
    {1, "ZelkMemoryNumberEditor", "MemoryNumberRenderer", false},
    {5, "ScanlistEditor", "ScanlistRenderer", false},
    {7, "ZelkDescriptionEditor", Plain, false},
    {8, "ListChoiceEditor", Plain, true},
    {9, "FrequencyEditor", Plain, true},
    {13, "ZelkChoiceEditor", Plain, true},
    {16, "FrequencyEditor", Plain, true},
    {19, "ZelkChoiceEditor", Plain, true},
};

/// Tones of pages whose band has them.
const std::vector<Look> Tones = {{12, "ZelkChoiceEditor", Plain, true},
                                 {18, "ZelkChoiceEditor", Plain, true}};
/// Tones of AM pages.
const std::vector<Look> NoTones = {{12, TextEditor, Plain, true}, {18, TextEditor, Plain, true}};
const std::vector<Look> BandChoice = {{4, "MDLXBandChoiceEditor", Plain, true}};
const std::vector<Look> YesNo = {{5, "ListChoiceEditor", Plain, true}, {30, "ListChoiceEditor", Plain, true}};

const std::vector<Look> P25Looks = {
    {1, "ZelkMemoryNumberEditor", "MemoryNumberRenderer", false},
    {3, TextEditor, Plain, true},
    {5, "ListChoiceEditor", Plain, true},
    {6, "P25ZoneEditor", Plain, true},
    {7, "ZelkDescriptionEditor", Plain, false},
    {8, "ZelkChoiceEditor", Plain, true},
    {9, "FrequencyEditor", Plain, true},
    {10, "ZelkChoiceEditor", Plain, true},
    {11, TextEditor, Plain, true},
    {12, "ZelkChoiceEditor", Plain, true},
    {13, "ZelkChoiceEditor", Plain, true},
    {14, "DigitalSquelchEditor", Plain, true},
    {15, "DigitalSquelchEditor", Plain, true},
    {16, "FrequencyEditor", Plain, true},
    {17, "ZelkChoiceEditor", Plain, true},
    {18, "ZelkChoiceEditor", Plain, true},
    {19, "ZelkChoiceEditor", Plain, true},
    {20, "DigitalSquelchEditor", Plain, true},
    {21, "DigitalSquelchEditor", Plain, true},
    {22, "wxGridCellNumberEditor", "IDCNumberRenderer", false},
};
const std::vector<Look> SquelchValue = {{11, "wxGridCellNumberEditor", Plain, true}};

struct Page {
    const char* name;
    int radio, slot;
    std::vector<std::vector<Look>> looks;
    int type = -1; ///< where it isn't the radio's own
};

const std::vector<Page>& Pages() {
    static const std::vector<Page> pages = {
        {"KRV-47, ANFM", Krv47, 0, {AnalogLooks, Tones}},
        {"KRV-620 UHF, ANAM", Krv620, 1, {AnalogLooks, NoTones}},
        {"KDRV-8400 VHF, ANAM", Kdrv8400, 1, {AnalogLooks, NoTones}},
        {"ORV-12, O12", Orv12, 0, {AnalogLooks, NoTones}},
        {"KDRV-4xxx, MDLX", Kdrv4xxx, ModuleSlot, {AnalogLooks, Tones, BandChoice}},
        {"KDAR-2000, KDAR", Kdar2000, 0, {AnalogLooks, NoTones, YesNo}},
        {"KDRV-716, RP25", Kdrv716, 0, {P25Looks}},
        {"KDRV-716B, NP25", Kdrv716B, 0, {P25Looks, SquelchValue}},
        // No radio has this type, but files may.
        {"KRV-47, FXAM", Krv47, 0, {AnalogLooks, Tones}, RadioCatalogue::FXAM},
        {"KRV-620 UHF, FXAM", Krv620, 1, {AnalogLooks, NoTones}, RadioCatalogue::FXAM},
    };
    return pages;
}

class PageEditors : public CellTest {
protected:
    static void CheckCell(int row, int col, const Look& look) {
        EXPECT_EQ(EditorClass(row, col), look.editor) << row << ", " << col;
        EXPECT_EQ(RendererClass(row, col), look.renderer) << row << ", " << col;
        int horizontal, vertical;
        Grid()->GetCellAlignment(row, col, &horizontal, &vertical);
        EXPECT_EQ(horizontal, look.centred ? wxALIGN_CENTRE : wxALIGN_LEFT) << row << ", " << col;
        EXPECT_EQ(vertical, look.centred ? wxALIGN_CENTRE : wxALIGN_TOP) << row << ", " << col;
    }

    static void CheckPage(const Page& page) {
        SCOPED_TRACE(page.name);
        std::map<int, Look> looks;
        for (int col = 0; col < 32; ++col)
            looks[col] = {col, TextEditor, Plain, false};
        for (const std::vector<Look>& table : page.looks)
            for (const Look& look : table)
                looks[look.col] = look;
        const int rows = CurrentParameters().Rows;
        for (int row : {0, 1, rows / 2, rows - 2, rows - 1, rows})
            for (const auto& [col, look] : looks)
                CheckCell(row, col, look);
    }

    /// Row and column of all read-only cells.
    static std::set<std::pair<int, int>> Locks() {
        std::set<std::pair<int, int>> locks;
        for (int row = 0; row < Grid()->GetNumberRows(); ++row)
            for (int col = 0; col < 32; ++col)
                if (IsLocked(row, col))
                    locks.insert({row, col});
        return locks;
    }
};

} // namespace

TEST_F(PageEditors, GiveEachCellItsEditorRendererAndAlignment) {
    for (const Page& page : Pages()) {
        TearDown();
        SetUp();
        AddFreshPage(page.radio, page.slot, page.type);
        CheckPage(page);
    }
}

TEST_F(PageEditors, OfTheFirstPageAreWholeAtTheStart) {
    CheckPage(Pages()[0]);
    EXPECT_EQ(OfferedIn(1, RTON).size(), 65u);
    EXPECT_EQ(OfferedIn(1, RCOD).size(), 84u);
}

TEST_F(PageEditors, LockTheDefaultNumberAndWhatTheRadioFixes) {
    for (const Page& page : Pages()) {
        SCOPED_TRACE(page.name);
        TearDown();
        SetUp();
        AddFreshPage(page.radio, page.slot, page.type);
        std::set<std::pair<int, int>> expected = {{0, 1}};
        const int rows = CurrentParameters().Rows;
        const bool p25 = page.radio == Kdrv716 || page.radio == Kdrv716B;
        if (p25)
            for (int row = 0; row <= rows; ++row)
                expected.insert({row, 3});
        if (rows % 10 == 2)
            for (int row : {rows - 1, rows})
                for (int col : p25 ? std::vector<int>{1, 5, 6} : std::vector<int>{1, 5, 12, 13})
                    expected.insert({row, col});
        EXPECT_EQ(Locks(), expected);
    }
}

TEST_F(PageEditors, KeepLocksOfP25MemoriesAndLiftThoseOfOthers) {
    Retarget(Kdrv716B, 0);
    for (int col : {1, 5, 6, 9, 16})
        Grid()->SetReadOnly(9, col, true);
    SetPageEditors(CurrentPage);
    for (int col : {1, 3, 6, 9, 16})
        EXPECT_TRUE(IsLocked(9, col)) << col;
    EXPECT_FALSE(IsLocked(9, SCAN)) << "neither linked nor in zone X";
    Retarget(Krv47, 0);
    for (int col : {1, 5, 6, 9, 16, 12, 13, 8, 18, 19}) {
        Grid()->SetReadOnly(9, col, true);
        SetPageEditors(CurrentPage);
        EXPECT_FALSE(IsLocked(9, col)) << col;
    }
}

TEST_F(PageEditors, AreSharedByTheRowsOfAColumn) {
    for (int radio : {Krv47, Kdrv716B}) {
        Retarget(radio, 0);
        std::map<wxGridCellEditor*, int> columns;
        for (int col : {1, 5, 7, 8, 9, 12, 13, 18, 19}) {
            const auto [place, isNew] = columns.insert({EditorAt(0, col), col});
            EXPECT_TRUE(isNew) << "columns " << col << " and " << place->second;
            for (int row = 1; row < Grid()->GetNumberRows(); ++row)
                EXPECT_EQ(EditorAt(0, col), EditorAt(row, col)) << row << ", " << col;
        }
    }
}

TEST_F(PageEditors, OfRowsThatDifferAlikeAreShared) {
    Retarget(Kdrv716B, 0);
    for (int row : {4, 5, 6, 7})
        SetCell(row, MODE, "D");
    for (int row : {6, 7})
        SetCell(row, MFLG, "02");
    SetPageEditors(CurrentPage);
    for (int col : {RSQL, TSQL}) {
        EXPECT_EQ(EditorAt(4, col), EditorAt(5, col)) << col;
        EXPECT_EQ(EditorAt(6, col), EditorAt(7, col)) << col;
        EXPECT_NE(EditorAt(3, col), EditorAt(4, col)) << col;
    }
    EXPECT_NE(EditorAt(5, TSQL), EditorAt(6, TSQL)) << "a shadow has fewer choices";
    RetargetModule();
    for (int row : {4, 5}) {
        SetCell(row, TFLG, "A0");
        SetCell(row, BAND, "AM 225-400");
    }
    SetPageEditors(CurrentPage);
    EXPECT_EQ(EditorAt(4, RFRQ), EditorAt(5, TFRQ));
    EXPECT_NE(EditorAt(3, RFRQ), EditorAt(4, RFRQ));
}

TEST_F(PageEditors, OfferTheChoicesOfTheRadio) {
    struct Line {
        int radio, col;
        size_t count;
        const char *first, *last;
    };
    int radio = -1;
    for (const Line& line : std::initializer_list<Line>{{Krv47, 8, 2, "W", "N"},
                                                        {Krv47, 12, 65, "OFF", "OFF"},
                                                        {Krv47, 18, 65, "OFF", "OFF"},
                                                        {Krv47, 13, 84, "OFF", "754"},
                                                        {Krv47, 19, 84, "OFF", "754"},
                                                        {Kdar2000, 5, 2, "Y", "N"},
                                                        {Kdar2000, 30, 2, "Y", "N"},
                                                        {Kdrv716, 5, 2, "Y", "N"},
                                                        {Kdrv716, 6, 15, "1", "15"},
                                                        {Kdrv716, 8, 3, "w", "D"},
                                                        {Kdrv716, 10, 3, "x", "c"},
                                                        {Kdrv716, 17, 3, "x", "c"},
                                                        {Kdrv716, 12, 42, "67.0", "254.8"},
                                                        {Kdrv716, 18, 42, "67.0", "254.8"},
                                                        {Kdrv716, 13, 83, "023", "754"},
                                                        {Kdrv716, 19, 83, "023", "754"},
                                                        {Kdrv716B, 13, 83, "023", "754"},
                                                        {Kdrv716B, 6, 32, "1", "X"}}) {
        if (radio != line.radio)
            Retarget(radio = line.radio, 0);
        // A user can't open hidden cells.
        Grid()->SetColMinimalWidth(line.col, 60);
        Grid()->SetColSize(line.col, 60);
        const Texts offered = OfferedIn(3, line.col);
        ASSERT_EQ(offered.size(), line.count) << line.radio << ", " << line.col;
        EXPECT_EQ(offered.front(), line.first) << line.radio << ", " << line.col;
        EXPECT_EQ(offered.back(), line.last) << line.radio << ", " << line.col;
    }
}

TEST_F(PageEditors, OfDigitalRowsOfferDigitalSquelches) {
    Retarget(Kdrv716B, 0);
    Fill({4});
    SetCell(4, MODE, "D");
    SetPageEditors(CurrentPage);
    EXPECT_EQ(OfferedIn(4, RSQL), (Texts{"m", "n", "g"}));
    EXPECT_EQ(OfferedIn(4, TSQL), (Texts{"g", "i", "-"}));
    SetCell(4, MFLG, "02");
    SetRowEditorsP25(Grid(), 4);
    EXPECT_EQ(OfferedIn(4, TSQL), (Texts{"g", "-"}));
}

TEST_F(PageEditors, KeepTheTextsOfTheCells) {
    for (const Page& page : Pages()) {
        SCOPED_TRACE(page.name);
        Retarget(page.radio, page.slot);
        Fill({1, 3});
        if (page.radio != Kdar2000 && !CurrentPageIsP25())
            SetCell(3, SCAN, "21");
        const wxArrayString before[] = {GetRowValues(0, 0), GetRowValues(0, 1), GetRowValues(0, 3)};
        SetPageEditors(CurrentPage);
        EXPECT_EQ(GetRowValues(0, 0), before[0]);
        EXPECT_EQ(GetRowValues(0, 1), before[1]);
        EXPECT_EQ(GetRowValues(0, 3), before[2]);
    }
}

TEST_F(PageEditors, LimitNumbersToWhatTheRadioKnows) {
    Retarget(Kdrv716B, 0);
    Fill({4});
    testbench::TypeIntoCell(*Grid(), 4, RNSV, "99");
    EXPECT_EQ(Text(4, RNSV), "15");
    testbench::TypeIntoCell(*Grid(), 4, TIDC, "42");
    EXPECT_EQ(Text(4, TIDC), "42");
    testbench::TypeIntoCell(*Grid(), 4, TIDC, "99999999");
    EXPECT_EQ(Text(4, TIDC), "9999999");
}

TEST_F(PageEditors, ShowTheScanOfYesAndNoAsTextInTheDefaultFont) {
    for (int radio : {Kdar2000, Kdrv716, Kdrv716B}) {
        Retarget(Krv47, 0);
        EXPECT_EQ(RendererClass(3, SCAN), "ScanlistRenderer") << radio;
        Grid()->SetCellFont(3, SCAN, Grid()->GetDefaultCellFont().Larger());
        Retarget(radio, 0);
        EXPECT_EQ(RendererClass(3, SCAN), Plain) << radio;
        if (radio != Kdar2000) {
            EXPECT_EQ(Grid()->GetCellFont(3, SCAN), Grid()->GetDefaultCellFont()) << radio;
        }
    }
}

TEST_F(PageEditors, MakeTheCellsOfAnAnalogPageWritableInEveryRowButTheDefault) {
    Retarget(Krv47, 0);
    for (int row : {0, 1, 60, 120, 121, 122})
        for (int col : {MNUM, SCAN, ZONE, RFRQ, TFRQ})
            Grid()->SetReadOnly(row, col, true);
    SetPageEditors(CurrentPage);
    for (int row : {0, 1, 60, 120, 121, 122})
        for (int col : {MNUM, SCAN, ZONE, RFRQ, TFRQ}) {
            const bool guard = row > 120 && (col == MNUM || col == SCAN);
            EXPECT_EQ(IsLocked(row, col), guard || (row == 0 && col == MNUM)) << row << ", " << col;
        }
}
