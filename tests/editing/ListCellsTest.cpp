// Cells with a list under real keys and clicks: typing ahead, the open list, and leaving.
#include "tests/editing/CellTools.h"
#include "tests/frame/FrameTools.h"

#include <wx/notebook.h>

#include <functional>
#include <span>

using namespace testbench;

namespace {

/// A cell with a list on a page of some radio.
struct ListCell {
    const char* name;
    int radio, slot, col;
    const char* mode = ""; ///< written to MODE first unless it is empty
};

const std::vector<ListCell>& AllLists() {
    static const std::vector<ListCell> lists = {
        {"analog mode", Krv47, 0, MODE},
        {"analog tone", Krv47, 0, RTON},
        {"analog code", Krv47, 0, RCOD},
        {"band", Kdrv4xxx, ModuleSlot, BAND},
        {"scan of the KDAR", Kdar2000, 0, SCAN},
        {"receive only", Kdar2000, 0, RONL},
        {"P25 scan", Kdrv716B, 0, SCAN},
        {"zone", Kdrv716B, 0, ZONE},
        {"P25 mode", Kdrv716B, 0, MODE},
        {"P25 receive squelch", Kdrv716B, 0, RSQL},
        {"P25 transmit squelch", Kdrv716B, 0, TSQL},
        {"P25 tone", Kdrv716, 0, RTON},
        {"P25 code", Kdrv716, 0, TCOD},
    };
    return lists;
}

class ListCells : public CellTest {
protected:
    static bool IsOpen() { return Grid()->IsCellEditControlShown(); }

    static void Become(const ListCell& cell) {
        if (CurrentParameters().Radio != cell.radio || CurrentParameters().BandIndex != cell.slot)
            Retarget(cell.radio, cell.slot);
    }

    /// The cell's text after the keys, typed with the cursor on the cell and no edit open.
    static std::string After(int row, int col, const std::string& typed) {
        GoTo(row, col);
        TypeText(typed);
        PumpUntilIdle();
        EXPECT_FALSE(IsOpen()) << typed;
        return Text(row, col);
    }

    /// Opens the list of the cell under the cursor, as a user does without the mouse.
    static void PopUp(int row, int col) {
        OpenChoice(row, col);
        m_poppedUp = false;
        EditorAt(row, col)->GetControl()->Bind(wxEVT_COMBOBOX_DROPDOWN, [](wxCommandEvent& event) {
            m_poppedUp = true;
            event.Skip();
        });
        EditorAt(row, col)->GetControl()->Bind(wxEVT_COMBOBOX_CLOSEUP, [](wxCommandEvent& event) {
            m_poppedUp = false;
            event.Skip();
        });
        PressKey("Alt+Down");
        EXPECT_TRUE(PumpUntil([] { return m_poppedUp; })) << "no list";
        PumpFor(50);
    }

    /// Clicks beside a list that has popped up.
    static void ClickBesideTheList() {
        // The toolkit takes a click in the first half second for the one that opened the list.
        PumpFor(600);
        ClickAt(CellSpot(*Grid(), 1, MNUM));
    }

    static int AllSlots() {
        int sum = 0;
        for (int zone = 0; zone < ZonesPerPage; ++zone)
            sum += ZoneSlotsOf(CurrentPage)[zone];
        return sum;
    }

    static bool IsBlank(int row) { return !RowHasData(row); }

    static inline bool m_poppedUp = false;
};

} // namespace

TEST_F(ListCells, TakeTheChoiceWhoseBeginningWasTyped) {
    struct Line {
        ListCell cell;
        const char *typed, *chosen;
    };
    const ListCell digital = {"digital squelch", Kdrv716B, 0, RSQL, "D"};
    for (const Line& line : std::initializer_list<Line>{
             {{"analog mode", Krv47, 0, MODE}, "n", "N"},
             {{"analog mode", Krv47, 0, MODE}, "N", "N"},
             {{"analog tone", Krv47, 0, RTON}, "156.7", "156.7"},
             {{"analog tone", Krv47, 0, RTON}, "210", "210.7"},
             {{"analog tone", Krv47, 0, TTON}, "88", "88.5"},
             {{"analog code", Krv47, 0, RCOD}, "754", "754"},
             {{"analog code", Krv47, 0, TCOD}, "03", "031"},
             {{"off", Krv47, 0, RCOD}, "off", "OFF"},
             {{"band", Kdrv4xxx, ModuleSlot, BAND}, "AM 2", "AM 225-400"},
             {{"band", Kdrv4xxx, ModuleSlot, BAND}, "am", "AM 108-138"},
             {{"scan of the KDAR", Kdar2000, 0, SCAN}, "y", "Y"},
             {{"receive only", Kdar2000, 0, RONL}, "Y", "Y"},
             {{"P25 scan", Kdrv716, 0, SCAN}, "y", "Y"},
             {{"zone", Kdrv716, 0, ZONE}, "12", "12"},
             {{"zone", Kdrv716B, 0, ZONE}, "x", "X"},
             {{"zone", Kdrv716B, 0, ZONE}, "16", "16"},
             {{"P25 mode", Kdrv716B, 0, MODE}, "D", "D"},
             {{"P25 mode", Kdrv716B, 0, MODE}, "W", "w"},
             {{"P25 receive squelch", Kdrv716B, 0, RSQL}, "t", "t"},
             {digital, "g", "g"},
             {{"digital squelch", Kdrv716B, 0, TSQL, "D"}, "-", "-"},
             {{"digital squelch", Kdrv716B, 0, TSQL, "D"}, "i", "i"},
             {{"P25 tone", Kdrv716B, 0, RTON}, "156.7", "156.7"},
             {{"P25 code", Kdrv716B, 0, RCOD}, "754", "754"},
         }) {
        SCOPED_TRACE(std::string(line.cell.name) + ", " + line.typed);
        Become(line.cell);
        Fill({5});
        if (*line.cell.mode)
            Choose(5, MODE, line.cell.mode);
        EXPECT_EQ(After(5, line.cell.col, std::string(line.typed) + "\n"), line.chosen);
        EXPECT_EQ(Grid()->GetGridCursorRow(), 5 + 1) << "Return went on to the next row";
        if (!*line.cell.mode) {
            CurrentGrid()->GetTable()->Clear();
            SetPageDefaults(MainFrame, CurrentPage);
            EXPECT_EQ(After(5, line.cell.col, std::string(line.typed) + "\n"), line.chosen) << "blank row";
            EXPECT_EQ(Text(5, MNUM), "005");
        }
    }
}

TEST_F(ListCells, TakeWhatWasTypedInAnOpenEditToo) {
    Fill({5});
    OpenChoice(5, RTON);
    TypeText("156.7\n");
    EXPECT_EQ(Text(5, RTON), "156.7");
    OpenChoice(5, RTON);
    TypeText("2033");
    PressKey("BackSpace");
    PressKey("Tab");
    EXPECT_EQ(Text(5, RTON), "203.5") << "Backspace took the last key back";
    OpenChoice(5, RCOD);
    TypeText("411");
    ClickAt(CellSpot(*Grid(), 9, DESC));
    EXPECT_EQ(Text(5, RCOD), "411");
}

TEST_F(ListCells, LeaveTheCellWhenWhatWasTypedBeginsNoChoice) {
    Fill({5});
    SetCell(5, RTON, "67.0");
    SetCell(5, TTON, "67.0");
    // "1567" isn't 156.7, and the 7 doesn't count on its own.
    EXPECT_EQ(After(5, RTON, "1567\n"), "67.0");
    EXPECT_EQ(After(5, RTON, "x\n"), "67.0");
    EXPECT_EQ(After(5, RTON, "156.77\n"), "67.0");
    GoTo(5, RTON);
    TypeText("1567");
    PressKey("BackSpace");
    TypeText(".");
    PressKey("Return");
    EXPECT_EQ(Text(5, RTON), "156.7");
    // The list has three digits.
    SetCell(5, RCOD, "411");
    EXPECT_EQ(After(5, RCOD, "23\n"), "411");
    // A blank row stays blank.
    EXPECT_EQ(After(9, RTON, "1567\n"), "");
    EXPECT_TRUE(IsBlank(9));
}

TEST_F(ListCells, OfSingleCharactersChooseAnewWithEachKey) {
    EXPECT_EQ(After(9, MODE, "nw\n"), "W");
    EXPECT_EQ(After(9, MODE, "wwn\n"), "N");
    Retarget(Kdar2000, 0);
    EXPECT_EQ(After(9, SCAN, "yn\n"), "N");
    EXPECT_TRUE(IsBlank(10));
    EXPECT_EQ(After(10, SCAN, "yx\n"), "") << "the last key fits nothing";
    EXPECT_TRUE(IsBlank(10));
}

TEST_F(ListCells, TakeLettersOfEitherCase) {
    Retarget(Kdrv716B, 0);
    EXPECT_EQ(After(9, ZONE, "N\n"), "N");
    EXPECT_EQ(After(9, ZONE, "e\n"), "E");
    EXPECT_EQ(After(9, MODE, "N\n"), "n");
}

TEST_F(ListCells, AnArrowKeyIsAChoiceAndForgetsWhatWasTyped) {
    Fill({5});
    GoTo(5, RTON);
    TypeText("156.7");
    PressKey("Down");
    PressKey("Return");
    EXPECT_EQ(Text(5, RTON), "162.2");
    OpenChoice(9, MODE);
    PressKey("Down");
    PressKey("Return");
    EXPECT_EQ(Text(9, MODE), "W") << "the first, as none was shown";
}

TEST_F(ListCells, OfABlankRowShowNoChoice) {
    for (const ListCell& cell : AllLists()) {
        SCOPED_TRACE(cell.name);
        Become(cell);
        const wxComboBox* combo = OpenChoice(9, cell.col);
        EXPECT_EQ(combo->GetSelection(), wxNOT_FOUND);
        EXPECT_EQ(combo->GetValue(), "");
        PressKey("Down");
        PressKey("Escape");
        EXPECT_EQ(OpenChoice(9, cell.col)->GetValue(), "") << "once more";
        PressKey("Escape");
    }
}

// A departure: otherwise a channel at the band's edges would be sent that no one has made.
TEST_F(ListCells, LookedIntoLeaveABlankRowBlankSoThatNoChannelIsMade_Departure) {
    for (const ListCell& cell : AllLists()) {
        SCOPED_TRACE(cell.name);
        Become(cell);
        const int slots = AllSlots();
        // One cell is opened in every possible way.
        static constexpr const char* openers[] = {"F2", "space", "BackSpace", "Delete", "double click"};
        for (const char* opener : std::span(openers, cell.col == RTON ? std::size(openers) : 1))
            for (const char* key : {"Escape", "Return", "Tab", "click"}) {
                // Tab at the end of a row does nothing.
                if (cell.col == RONL && std::string(key) == "Tab")
                    continue;
                SCOPED_TRACE(std::string(opener) + ", " + key);
                GoTo(9, cell.col);
                if (std::string(opener) == "double click")
                    DoubleClickAt(CellSpot(*Grid(), 9, cell.col));
                else
                    PressKey(opener);
                if (std::string(key) == "click")
                    ClickAt(CellSpot(*Grid(), 3, cell.col));
                else
                    PressKey(key);
                PumpUntilIdle();
                EXPECT_FALSE(IsOpen());
                EXPECT_TRUE(IsBlank(9));
                EXPECT_EQ(AllSlots(), slots);
            }
    }
}

TEST_F(ListCells, PoppedUpAndLeftLeaveABlankRowBlank) {
    for (const ListCell& cell : AllLists()) {
        SCOPED_TRACE(cell.name);
        Become(cell);
        const int slots = AllSlots();
        // Some are left in every possible way.
        static constexpr const char* keys[] = {"Escape", "Tab", "Return", "space", "click"};
        for (const char* key : std::span(keys, cell.col == RTON || cell.col == ZONE ? std::size(keys) : 1)) {
            SCOPED_TRACE(key);
            PopUp(9, cell.col);
            if (std::string(key) == "click")
                ClickBesideTheList();
            else
                PressKey(key);
            EXPECT_TRUE(PumpUntil([] { return !IsOpen(); }));
            EXPECT_TRUE(IsBlank(9));
            EXPECT_EQ(AllSlots(), slots);
        }
    }
}

TEST_F(ListCells, PoppedUpTakeTheChoiceWhoseBeginningIsTyped) {
    struct Line {
        ListCell cell;
        const char *typed, *chosen;
    };
    for (const Line& line :
         std::initializer_list<Line>{{{"tone", Krv47, 0, RTON}, "156.7", "156.7"},
                                     {{"code", Krv47, 0, RCOD}, "03", "031"},
                                     {{"mode", Krv47, 0, MODE}, "n", "N"},
                                     {{"band", Kdrv4xxx, ModuleSlot, BAND}, "AM 2", "AM 225-400"},
                                     {{"scan", Kdar2000, 0, SCAN}, "y", "Y"},
                                     {{"zone", Kdrv716B, 0, ZONE}, "x", "X"},
                                     {{"squelch", Kdrv716B, 0, RSQL}, "T", "t"},
                                     {{"P25 tone", Kdrv716B, 0, RTON}, "156.7", "156.7"}})
        for (const char* key : {"Return", "KP_Enter", "Tab"}) {
            SCOPED_TRACE(std::string(line.cell.name) + ", " + key);
            if (line.cell.col != RCOD && std::string(key) != "Return")
                continue;
            Become(line.cell);
            CurrentGrid()->GetTable()->Clear();
            SetPageDefaults(MainFrame, CurrentPage);
            PopUp(9, line.cell.col);
            TypeText(line.typed);
            PressKey(key);
            EXPECT_TRUE(PumpUntil([] { return !IsOpen(); }));
            EXPECT_EQ(Text(9, line.cell.col), line.chosen);
            EXPECT_EQ(Text(9, MNUM), "009");
        }
}

TEST_F(ListCells, PoppedUpTakeKeysBackAndLeaveTheCellWhenNothingFits) {
    Fill({5});
    SetCell(5, RTON, "67.0");
    PopUp(5, RTON);
    TypeText("1567");
    PressKey("Return");
    EXPECT_TRUE(PumpUntil([] { return !IsOpen(); }));
    EXPECT_EQ(Text(5, RTON), "67.0");
    PopUp(5, RTON);
    TypeText("1567");
    PressKey("BackSpace");
    PressKey("Return");
    EXPECT_TRUE(PumpUntil([] { return !IsOpen(); }));
    EXPECT_EQ(Text(5, RTON), "156.7");
    for (const char* key : {"Escape", "click"}) {
        SCOPED_TRACE(key);
        PopUp(5, RTON);
        TypeText("203.5");
        if (std::string(key) == "click")
            ClickBesideTheList();
        else
            PressKey(key);
        EXPECT_TRUE(PumpUntil([] { return !IsOpen(); }));
        EXPECT_EQ(Text(5, RTON), "156.7");
    }
}

TEST_F(ListCells, PoppedUpTakeArrowKeysAndClicks) {
    Fill({5});
    SetCell(5, RTON, "67.0");
    PopUp(5, RTON);
    TypeText("156.7");
    PressKey("Down");
    PressKey("Return");
    EXPECT_TRUE(PumpUntil([] { return !IsOpen(); }));
    EXPECT_EQ(Text(5, RTON), "162.2");
    PopUp(9, MODE);
    PressKey("Down");
    PressKey("Down");
    PressKey("Return");
    EXPECT_TRUE(PumpUntil([] { return !IsOpen(); }));
    EXPECT_EQ(Text(9, MODE), "N");
    // The list is below its cell; the first entry is near its upper edge.
    PopUp(10, MODE);
    const wxWindow& control = *EditorAt(10, MODE)->GetControl();
    ClickAt(control.ClientToScreen(wxPoint(20, control.GetClientSize().y + 8)));
    EXPECT_TRUE(PumpUntil([] { return !IsOpen(); }));
    EXPECT_EQ(Text(10, MODE), "W");
}

TEST_F(ListCells, AnsweredWithTheirOwnTextChangeNoTextAndTakeThePaintOff) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    Choose(5, MODE, "D");
    Choose(5, RSQL, "n");
    SetCell(5, TTON, "100.0");
    const Texts before = RowTexts(5);
    for (const auto& [col, typed] : {std::pair(MODE, "D"), std::pair(RSQL, "n"), std::pair(RTON, "67.0")}) {
        SCOPED_TRACE(ColumnTag[col]);
        int changes = 0;
        const auto count = [&changes](wxGridEvent& event) {
            ++changes;
            event.Skip();
        };
        Grid()->SetCellBackgroundColour(5, col, FailColour);
        Grid()->Bind(wxEVT_GRID_CELL_CHANGED, count);
        After(5, col, std::string(typed) + "\n");
        Grid()->Unbind(wxEVT_GRID_CELL_CHANGED, count);
        EXPECT_EQ(RowTexts(5), before);
        EXPECT_NE(Grid()->GetCellBackgroundColour(5, col), FailColour);
        EXPECT_EQ(changes, 1);
    }
}

TEST_F(ListCells, TheWheelOverAnOpenEditChoosesNothing) {
    Fill({5});
    const Texts before = RowTexts(5);
    OpenChoice(5, RTON);
    const wxWindow& control = *EditorAt(5, RTON)->GetControl();
    const wxSize size = control.GetClientSize();
    for (int x : {10, size.x - 6}) {
        ClickAt(control.ClientToScreen(wxPoint(x, size.y / 2)), 5);
        PumpUntilIdle();
    }
    PressKey("Return");
    EXPECT_EQ(RowTexts(5), before);
}

TEST_F(ListCells, OfAZoneKeepTheirSlotHoweverTheEditIsLeft_Departure) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    const auto slots = ZoneSlots;
    for (const char* key : {"Escape", "Return", "Tab", "click"}) {
        SCOPED_TRACE(key);
        OpenChoice(5, ZONE);
        if (std::string(key) == "click")
            ClickAt(CellSpot(*Grid(), 3, DESC));
        else
            PressKey(key);
        PumpUntilIdle();
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(Text(5, ZONE), "1");
        EXPECT_EQ(ZoneSlots, slots);
    }
    OpenChoice(5, ZONE);
    PressKey("Down");
    PressKey("Escape");
    EXPECT_EQ(ZoneSlots, slots);
    PopUp(5, ZONE);
    PressKey("Escape");
    EXPECT_TRUE(PumpUntil([] { return !IsOpen(); }));
    EXPECT_EQ(ZoneSlots, slots);
    EXPECT_EQ(After(5, ZONE, "1\n"), "1");
    EXPECT_EQ(ZoneSlots, slots) << "chosen again";
}

TEST_F(ListCells, OfAnotherPageAreLeftAsTheyAreWhenThePageChanges) {
    Retarget(Kdrv716B, 0);
    AddPage(Krv214);
    MainFrame->m_notebook->SetSelection(0);
    PumpUntilIdle();
    OpenChoice(9, ZONE);
    const auto slots = ZoneSlots;
    MainFrame->m_notebook->SetSelection(1);
    PumpUntilIdle();
    EXPECT_EQ(PageGrid[0]->GetCellValue(9, TFLG), "");
    EXPECT_EQ(ZoneSlots, slots);
}
