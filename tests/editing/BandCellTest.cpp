// The band chosen for a row of the module page, and what the choice does to the row's other cells.
#include "editing/FrequencyCell.h"
#include "tests/editing/CellTools.h"

using testbench::TypeIntoCell;

namespace {

class BandCells : public CellTest {
protected:
    void SetUp() override {
        CellTest::SetUp();
        RetargetModule();
        Fill({5});
    }

    static Texts BandTexts(int row) { return TextsOf(row, {MODE, RTON, RCOD, TTON, TCOD}); }
};

} // namespace

TEST_F(BandCells, OfferTheBandsOfTheModule) {
    EXPECT_EQ(OfferedIn(5, BAND), (Texts{"FM 30-50", "AM 108-138", "AM 225-400"}));
    CurrentParameters().Band = RadioCatalogue::K7Module;
    SetPageEditors(CurrentPage);
    EXPECT_EQ(OfferedIn(5, BAND), (Texts{"FM 30-50", "FM 66-88", "AM 108-138", "FM 136-174", "AM 225-400",
                                         "FM_403-512", "FM 7xx-8xx"}));
}

TEST_F(BandCells, ChangedToAM225EmptyTheFrequenciesAndLockModeAndCodes) {
    SetCell(5, RTON, "100.0");
    SetCell(5, TTON, "71.9");
    Choose(5, BAND, "AM 225-400");
    EXPECT_EQ(TextsOf(5, {BAND, RFRQ, TFRQ}), (Texts{"AM 225-400", "", ""}));
    EXPECT_EQ(BandTexts(5), (Texts{"n/a", "OFF", "n/a", "OFF", "n/a"}));
    EXPECT_EQ(LocksOf(5), (Texts{"MODE", "RCOD", "TCOD"}));
    TypeIntoCell(*Grid(), 5, RFRQ, "230.5");
    EXPECT_EQ(TextsOf(5, {RFRQ, TFRQ}), (Texts{"230.5000", "230.5000"}));
    Choose(5, RTON, "67.0");
    EXPECT_EQ(BandTexts(5), (Texts{"n/a", "67.0", "n/a", "67.0", "n/a"}));
}

TEST_F(BandCells, ChangedToAM108LockTonesAndCodes) {
    Choose(5, BAND, "AM 108-138");
    EXPECT_EQ(TextsOf(5, {BAND, RFRQ, TFRQ}), (Texts{"AM 108-138", "", ""}));
    EXPECT_EQ(BandTexts(5), (Texts{"N", "n/a", "n/a", "n/a", "n/a"}));
    EXPECT_EQ(LocksOf(5), (Texts{"RTON", "RCOD", "TTON", "TCOD"}));
    TypeIntoCell(*Grid(), 5, RFRQ, "121.5");
    EXPECT_EQ(Text(5, RFRQ).substr(0, 5), "121.5");
}

TEST_F(BandCells, ChangedBackToFMKeepTheTransmitCodeLockedUntilThePageIsSetUpAgain) {
    Choose(5, BAND, "AM 225-400");
    Choose(5, BAND, "FM 30-50");
    EXPECT_EQ(LocksOf(5), (Texts{"TCOD"}));
    SetPageEditors(CurrentPage);
    EXPECT_EQ(LocksOf(5), Texts{});
}

TEST_F(BandCells, KeepFrequenciesThatLieInTheChosenBand) {
    SetCell(5, BAND, "FM 30-50");
    SetCell(5, RFRQ, "230.0000");
    SetCell(5, TFRQ, "231.0000");
    Choose(5, BAND, "AM 225-400");
    EXPECT_EQ(TextsOf(5, {BAND, RFRQ, TFRQ}), (Texts{"AM 225-400", "230.0000", "231.0000"}));
    EXPECT_EQ(Text(5, MODE), "n/a") << "the row shows the band, and has no mode there";
    EXPECT_EQ(LocksOf(5), (Texts{"MODE", "RCOD", "TCOD"}));
}

TEST_F(BandCells, OfABlankRowFillItFirst) {
    Choose(7, BAND, "AM 225-400");
    EXPECT_EQ(TextsOf(7, {MNUM, BAND, RFRQ, MODE, RTON}), (Texts{"007", "AM 225-400", "", "n/a", "OFF"}));
}

TEST_F(BandCells, KeepTonesOfTheListWhenThePageIsSetUpAgain) {
    Choose(5, BAND, "AM 225-400");
    SetCell(5, RTON, "100.0");
    SetCell(5, TTON, "n/a");
    SetPageEditors(CurrentPage);
    EXPECT_EQ(BandTexts(5), (Texts{"n/a", "100.0", "n/a", "OFF", "n/a"}));
    EXPECT_EQ(LocksOf(5), (Texts{"MODE", "RCOD", "TCOD"}));
}

TEST_F(BandCells, LockAgainWhenThePageIsSetUpAgain) {
    SetCell(5, BAND, "AM 108-138");
    SetPageEditors(CurrentPage);
    EXPECT_EQ(LocksOf(5), (Texts{"RTON", "RCOD", "TTON", "TCOD"}));
    EXPECT_EQ(BandTexts(5), (Texts{"N", "n/a", "n/a", "n/a", "n/a"}));
    SetCell(5, BAND, "FM 30-50");
    SetPageEditors(CurrentPage);
    EXPECT_EQ(LocksOf(5), Texts{});
    SetCell(5, BAND, "no band");
    EXPECT_EQ(GetRowBand(Grid(), 5), 0);
    SetPageEditors(CurrentPage);
    EXPECT_EQ(LocksOf(5), Texts{});
}
