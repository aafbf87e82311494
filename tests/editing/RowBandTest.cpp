// What a row's band requires of its cells, apart from commands and choices.
#include "editing/RowBand.h"

#include "tests/editing/CellTools.h"

namespace {

class RowBand : public CellTest {
protected:
    static Texts BandTexts(int row) { return TextsOf(row, {MODE, RTON, RCOD, TTON, TCOD}); }
};

} // namespace

TEST_F(RowBand, OfTheAirBandLeavesTheCellsAlone) {
    RetargetModule();
    Fill({5});
    for (int col : {MODE, RTON, RCOD, TTON, TCOD})
        Grid()->SetReadOnly(5, col, true);
    const Texts before = BandTexts(5);
    SetBandEditors(Grid(), 5, 3);
    EXPECT_EQ(BandTexts(5), before);
    EXPECT_EQ(LocksOf(5), (Texts{"MODE", "RTON", "RCOD", "TTON", "TCOD"}));
}

TEST_F(RowBand, OfAnotherRadioLocksNoCellsForAM) {
    for (int radio : {Krv47, Kdar2000, Kdrv716B}) {
        Retarget(radio, 0);
        Fill({5});
        const Texts before = BandTexts(5), locks = LocksOf(5);
        for (int band : {2, 3, 6}) {
            SetBandEditors(Grid(), 5, band);
            EXPECT_EQ(BandTexts(5), before) << radio << ", band " << band;
            EXPECT_EQ(LocksOf(5), locks) << radio << ", band " << band;
        }
    }
}

TEST_F(RowBand, OfAP25RowSetsTheReceiveToneAloneAndLocksTheScanOfZoneX) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    for (int col : {RTON, TTON})
        Grid()->SetCellEditor(5, col, new wxGridCellTextEditor);
    SetCell(5, ZONE, "X");
    SetBandEditors(Grid(), 5, 4);
    EXPECT_EQ(EditorClass(5, RTON), "ZelkChoiceEditor");
    EXPECT_EQ(EditorClass(5, TTON), "wxGridCellTextEditor");
    EXPECT_EQ(LocksOf(5), (Texts{"SHAD", "SCAN"}));
    EXPECT_EQ(OfferedIn(5, RTON).size(), 42u);
    SetCell(5, ZONE, "W");
    SetBandEditors(Grid(), 5, 4);
    EXPECT_EQ(LocksOf(5), (Texts{"SHAD"}));
}
