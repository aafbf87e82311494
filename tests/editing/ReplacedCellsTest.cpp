// Cells that count as replaced when a row is checked: losses do, another form of the same value doesn't.
#include "editing/ReplacedCells.h"

#include "commands/CommandIds.h"
#include "editing/ZelkEdit.h"
#include "tests/editing/CommandTest.h"

#include <wx/statusbr.h>

namespace {

class ReplacedCellsOfAPage : public CommandTest {
protected:
    struct Case {
        int col;
        const char* text;
        bool counts;
    };

    /// Makes a complete row in which nothing needs replacing.
    static void MakeRow() {
        CurrentGrid()->ClearGrid();
        ClearZoneSlots(CurrentPage);
        SetPageDefaults(MainFrame, CurrentPage);
        Fill({5});
        SetCell(5, DESC, "FIVE");
        CheckPage();
    }

    static void Expect(std::initializer_list<Case> cases) {
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(ColumnTag[c.col]) + " \"" + c.text + "\"");
            MakeRow();
            SetCell(5, c.col, c.text);
            const ReplacedCells replaced;
            CheckPage();
            EXPECT_EQ(replaced.Count(), c.counts ? 1 : 0) << replaced.Story() << "; now " << Cell(5, c.col);
            if (replaced.Count() == 1) {
                EXPECT_EQ(replaced.FirstRow(), 5);
            }
        }
    }
};

constexpr bool Loss = true, SameValue = false;

} // namespace

TEST_F(ReplacedCellsOfAPage, AreLossesOnAnalogPages) {
    Expect({{DESC, "TOO LONG TO STAND", Loss},
            {DESC, "A~B", Loss},
            {DESC, "ABC~", Loss},
            {DESC, "lower 1", SameValue},
            {DESC, "SHORT       ", SameValue},
            {MODE, "x", Loss},
            {MODE, "w", SameValue},
            {MNUM, "7", SameValue},
            {MNUM, "abc", Loss},
            {MNUM, "500", Loss},
            {SCAN, "99", Loss},
            {SCAN, "1_3__", SameValue},
            {RTON, "12.3", Loss},
            {RCOD, "000", SameValue},
            {RFRQ, "20.0", Loss},
            {ZONE, "3", SameValue},
            {RNSV, "9", SameValue},
            {RTGP, "1234", SameValue},
            {RONL, "Y", SameValue}});
}

TEST_F(ReplacedCellsOfAPage, AreLossesOnP25Pages) {
    Retarget(Kdrv716, 0);
    Expect(
        {{SHAD, "P-x", SameValue}, {SHAD, "whatever", Loss}, {SHAD, "", SameValue},  {SCAN, "Yes", SameValue},
         {SCAN, "1", SameValue},   {SCAN, "0", SameValue},   {SCAN, "", SameValue},  {SCAN, "no", SameValue},
         {SCAN, "y", Loss},        {SCAN, "12", Loss},       {ZONE, "2", SameValue}, {ZONE, "", SameValue},
         {ZONE, "X", Loss},        {ZONE, "99", Loss},       {DESC, "~", Loss},      {MODE, "W", SameValue},
         {RSQL, "m", Loss},        {RTGP, "12", SameValue},  {RTGP, "xyz", Loss},    {RNAC, "G00", Loss},
         {TIDC, "", SameValue},    {TIDC, "99999999", Loss}});
}

TEST_F(ReplacedCellsOfAPage, AreTheZonesThatHaveNoRoom) {
    Retarget(Kdrv716, 0);
    CurrentGrid()->SelectBlock(1, 0, 17, 31);
    CopyValuesToSelection(0, GetRowValues(0, 0), true, true);
    for (int row = 1; row <= 17; ++row)
        SetCell(row, ZONE, "1");
    const ReplacedCells replaced;
    CheckPage();
    EXPECT_EQ(replaced.Text().utf8_string(), "1 cell replaced, row 17");
}

TEST_F(ReplacedCellsOfAPage, AreTonesThatTheTypeShowsButCannotKeep) {
    Retarget(Krv620, 1);
    CurrentParameters().Type = RadioCatalogue::FXAM;
    Fill({5});
    SetCell(5, RTON, "67.0");
    {
        const ReplacedCells replaced;
        CheckPage();
        EXPECT_EQ(replaced.Story().utf8_string(), "1 cell was replaced: row 5 RxTn");
    }
    const ReplacedCells again;
    CheckPage();
    EXPECT_EQ(again.Count(), 0);
}

TEST_F(ReplacedCellsOfAPage, AreTonesAndCodesThatABandOfTheModuleHasNot) {
    Retarget(Kdrv4xxx, ModuleSlot);
    Fill({5});
    SetCell(5, BAND, "AM 108-138");
    for (int col : {RFRQ, TFRQ})
        SetCell(5, col, "121.500");
    SetCell(5, RTON, "67.0");
    SetCell(5, TCOD, "023");
    const ReplacedCells replaced;
    CheckPage();
    EXPECT_EQ(replaced.Story().utf8_string(), "2 cells were replaced: row 5 RxTn, TxCd");
}

TEST_F(ReplacedCellsOfAPage, AreToldByValidate) {
    Fill({5, 9});
    SetCell(5, DESC, "A~B");
    SetCell(9, RFRQ, "20.0000");
    testbench::DialogScript dialogs;
    dialogs.ExpectMessage("Validate Page", "Validate row data");
    testbench::RunCommand(IdValidatePage);
    EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(0).utf8_string(), "2 cells replaced from row 5");
    EXPECT_EQ(MainFrame->m_statusBar->GetToolTipText().utf8_string(),
              "2 cells were replaced: row 5 Desc; row 9 RxFreq");
}
