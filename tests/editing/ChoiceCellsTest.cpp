// Choices from a list, and what they carry to the cells beside them.
#include "tests/editing/CellTools.h"

using testbench::TypeIntoCell;

namespace {

class ChoiceCells : public CellTest {
protected:
    static void SetTonesAndCodes(int row) {
        SetCell(row, RTON, "67.0");
        SetCell(row, TTON, "74.4");
        SetCell(row, RCOD, "025");
        SetCell(row, TCOD, "031");
    }

    static Texts TonesAndCodes(int row) { return TextsOf(row, {RTON, RCOD, TTON, TCOD}); }
};

class BandCells : public CellTest {
protected:
    void SetUp() override {
        CellTest::SetUp();
        RetargetModule();
        Fill({5});
    }

    static Texts LocksOf(int row) {
        Texts locked;
        for (int col = 0; col < ColumnTotal; ++col)
            if (IsLocked(row, col))
                locked.push_back(ColumnTag[col]);
        return locked;
    }

    static Texts BandTexts(int row) { return TextsOf(row, {MODE, RTON, RCOD, TTON, TCOD}); }
};

} // namespace

TEST_F(ChoiceCells, AReceiveToneIsCarriedAndTurnsTheCodesOff) {
    for (int type : {RadioCatalogue::ANFM, RadioCatalogue::ANAM, RadioCatalogue::FXAM}) {
        SCOPED_TRACE(type);
        CurrentParameters().Type = type;
        Fill({5});
        SetTonesAndCodes(5);
        Choose(5, RTON, "71.9");
        EXPECT_EQ((Texts{"71.9", "OFF", "71.9", "OFF"}), TonesAndCodes(5));
        // There is no way back to the code that was there before.
        Choose(5, RTON, "OFF");
        EXPECT_EQ((Texts{"OFF", "OFF", "OFF", "OFF"}), TonesAndCodes(5));
    }
}

TEST_F(ChoiceCells, AReceiveCodeIsCarriedAndTurnsTheTonesOff) {
    for (int type : {RadioCatalogue::ANFM, RadioCatalogue::ANAM, RadioCatalogue::FXAM}) {
        SCOPED_TRACE(type);
        CurrentParameters().Type = type;
        Fill({5});
        SetTonesAndCodes(5);
        Choose(5, RCOD, "026");
        EXPECT_EQ((Texts{"OFF", "026", "OFF", "026"}), TonesAndCodes(5));
    }
}

TEST_F(ChoiceCells, ATransmitToneTurnsTheTransmitCodeOffAndLeavesTheReceiver) {
    for (int type : {RadioCatalogue::ANFM, RadioCatalogue::ANAM, RadioCatalogue::FXAM}) {
        SCOPED_TRACE(type);
        CurrentParameters().Type = type;
        Fill({5});
        SetTonesAndCodes(5);
        Choose(5, TTON, "77.0");
        EXPECT_EQ((Texts{"67.0", "025", "77.0", "OFF"}), TonesAndCodes(5));
    }
}

TEST_F(ChoiceCells, ATransmitCodeTurnsTheTransmitToneOffAndLeavesTheReceiver) {
    for (int type : {RadioCatalogue::ANFM, RadioCatalogue::ANAM, RadioCatalogue::FXAM}) {
        SCOPED_TRACE(type);
        CurrentParameters().Type = type;
        Fill({5});
        SetTonesAndCodes(5);
        Choose(5, TCOD, "032");
        EXPECT_EQ((Texts{"67.0", "025", "OFF", "032"}), TonesAndCodes(5));
    }
}

TEST_F(ChoiceCells, ToneAndCodeStandSideBySideOnTheModule) {
    RetargetModule();
    Fill({5});
    SetTonesAndCodes(5);
    Choose(5, RTON, "71.9");
    EXPECT_EQ((Texts{"71.9", "025", "71.9", "031"}), TonesAndCodes(5));
    Choose(5, RCOD, "026");
    EXPECT_EQ((Texts{"71.9", "026", "71.9", "026"}), TonesAndCodes(5));
    Choose(5, TTON, "74.4");
    Choose(5, TCOD, "025");
    EXPECT_EQ((Texts{"71.9", "026", "74.4", "025"}), TonesAndCodes(5));
}

TEST_F(ChoiceCells, ToneAndCodeStandSideBySideOnP25Pages) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        Retarget(radio, 0);
        Fill({5});
        SetTonesAndCodes(5);
        Choose(5, RTON, "69.3");
        EXPECT_EQ((Texts{"69.3", "025", "69.3", "031"}), TonesAndCodes(5)) << radio;
        Choose(5, RCOD, "023");
        EXPECT_EQ((Texts{"69.3", "023", "69.3", "023"}), TonesAndCodes(5)) << radio;
    }
}

TEST_F(ChoiceCells, AChoiceClearsThePaintOfTheCellsThatItIsCarriedTo) {
    Fill({5});
    Grid()->SetCellBackgroundColour(0, 0, *wxYELLOW);
    for (int col : {RTON, RCOD, TTON, TCOD})
        Grid()->SetCellBackgroundColour(5, col, FailColour);
    Choose(5, RTON, "71.9");
    EXPECT_EQ(*wxYELLOW, Grid()->GetCellBackgroundColour(5, RTON));
    EXPECT_EQ(*wxYELLOW, Grid()->GetCellBackgroundColour(5, TTON));
    EXPECT_EQ(FailColour, Grid()->GetCellBackgroundColour(5, RCOD));
    Choose(5, TCOD, "023");
    EXPECT_EQ(*wxYELLOW, Grid()->GetCellBackgroundColour(5, TCOD));
}

TEST_F(ChoiceCells, TheModeOfAP25RowBringsItsSquelches) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        SCOPED_TRACE(radio);
        Retarget(radio, 0);
        Fill({5});
        EXPECT_EQ((Texts{"w", "n", "D"}), OfferedIn(5, MODE));
        EXPECT_EQ((Texts{"x", "t", "c"}), OfferedIn(5, RSQL));
        EXPECT_EQ((Texts{"x", "t", "c"}), OfferedIn(5, TSQL));
        Choose(5, MODE, "D");
        EXPECT_EQ((Texts{"D", "m", "g"}), TextsOf(5, {MODE, RSQL, TSQL}));
        EXPECT_EQ((Texts{"m", "n", "g"}), OfferedIn(5, RSQL));
        EXPECT_EQ((Texts{"g", "i", "-"}), OfferedIn(5, TSQL));
        Choose(5, MODE, "n");
        EXPECT_EQ((Texts{"n", "x", "x"}), TextsOf(5, {MODE, RSQL, TSQL}));
        EXPECT_EQ((Texts{"x", "t", "c"}), OfferedIn(5, RSQL));
        EXPECT_EQ((Texts{"x", "t", "c"}), OfferedIn(5, TSQL));
    }
}

TEST_F(ChoiceCells, AShadowInModeDIsNotOfferedIndividualCalls) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    for (const char* flags : {"01", "07", "14"}) {
        SetCell(5, MFLG, flags);
        Choose(5, MODE, "n");
        Choose(5, MODE, "D");
        EXPECT_EQ((Texts{"g", "-"}), OfferedIn(5, TSQL)) << flags;
        EXPECT_EQ((Texts{"m", "n", "g"}), OfferedIn(5, RSQL)) << flags;
    }
    SetCell(5, MFLG, "10");
    SetPageEditors(CurrentPage);
    EXPECT_EQ((Texts{"g", "i", "-"}), OfferedIn(5, TSQL));
}

TEST_F(ChoiceCells, AnAnalogReceiveSquelchIsCarriedAndADigitalOneIsNot) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    for (const char* letter : {"t", "c", "x"}) {
        Choose(5, RSQL, letter);
        EXPECT_EQ((Texts{letter, letter}), TextsOf(5, {RSQL, TSQL}));
    }
    Choose(5, TSQL, "c");
    EXPECT_EQ((Texts{"x", "c"}), TextsOf(5, {RSQL, TSQL})) << "there is no way back";
    Choose(5, MODE, "D");
    for (const char* letter : {"n", "g"}) {
        Choose(5, RSQL, letter);
        EXPECT_EQ((Texts{letter, "g"}), TextsOf(5, {RSQL, TSQL}));
    }
}

TEST_F(ChoiceCells, SquelchChoicesLeaveTheTextsUnlessDefaultsAreWanted) {
    Retarget(Kdrv716B, 0);
    SetCell(5, RSQL, "t");
    SetCell(5, TSQL, "-");
    SetSquelchChoices(Grid(), 5, "n", false);
    SetSquelchChoices(Grid(), 5, "D", false);
    EXPECT_EQ((Texts{"t", "-"}), TextsOf(5, {RSQL, TSQL}));
    SetSquelchChoices(Grid(), 5, "w", true);
    EXPECT_EQ((Texts{"x", "x"}), TextsOf(5, {RSQL, TSQL}));
    SetSquelchChoices(Grid(), 5, "D", true);
    EXPECT_EQ((Texts{"m", "g"}), TextsOf(5, {RSQL, TSQL}));
}

TEST_F(BandCells, OfferTheBandsOfTheModule) {
    EXPECT_EQ((Texts{"FM 30-50", "AM 108-138", "AM 225-400"}), OfferedIn(5, BAND));
    CurrentParameters().Band = RadioCatalogue::K7Module;
    SetPageEditors(CurrentPage);
    EXPECT_EQ(
        (Texts{"FM 30-50", "FM 66-88", "AM 108-138", "FM 136-174", "AM 225-400", "FM_403-512", "FM 7xx-8xx"}),
        OfferedIn(5, BAND));
}

TEST_F(BandCells, ChangedToAM225EmptyTheFrequenciesAndLockModeAndCodes) {
    SetCell(5, RTON, "100.0");
    SetCell(5, TTON, "71.9");
    Choose(5, BAND, "AM 225-400");
    EXPECT_EQ((Texts{"AM 225-400", "", ""}), TextsOf(5, {BAND, RFRQ, TFRQ}));
    EXPECT_EQ((Texts{"n/a", "OFF", "n/a", "OFF", "n/a"}), BandTexts(5));
    EXPECT_EQ((Texts{"MODE", "RCOD", "TCOD"}), LocksOf(5));
    TypeIntoCell(*Grid(), 5, RFRQ, "230.5");
    EXPECT_EQ((Texts{"230.5000", "230.5000"}), TextsOf(5, {RFRQ, TFRQ}));
    Choose(5, RTON, "67.0");
    EXPECT_EQ((Texts{"n/a", "67.0", "n/a", "67.0", "n/a"}), BandTexts(5));
}

TEST_F(BandCells, ChangedToAM108LockTonesAndCodes) {
    Choose(5, BAND, "AM 108-138");
    EXPECT_EQ((Texts{"AM 108-138", "", ""}), TextsOf(5, {BAND, RFRQ, TFRQ}));
    EXPECT_EQ((Texts{"N", "n/a", "n/a", "n/a", "n/a"}), BandTexts(5));
    EXPECT_EQ((Texts{"RTON", "RCOD", "TTON", "TCOD"}), LocksOf(5));
    TypeIntoCell(*Grid(), 5, RFRQ, "121.5");
    EXPECT_EQ("121.5", Text(5, RFRQ).substr(0, 5));
}

TEST_F(BandCells, ChangedBackToFMKeepTheTransmitCodeLockedUntilThePageIsSetUpAgain) {
    Choose(5, BAND, "AM 225-400");
    Choose(5, BAND, "FM 30-50");
    EXPECT_EQ((Texts{"TCOD"}), LocksOf(5));
    SetPageEditors(CurrentPage);
    EXPECT_EQ(Texts{}, LocksOf(5));
}

TEST_F(BandCells, KeepFrequenciesThatLieInTheChosenBand) {
    SetCell(5, BAND, "FM 30-50");
    SetCell(5, RFRQ, "230.0000");
    SetCell(5, TFRQ, "231.0000");
    Choose(5, BAND, "AM 225-400");
    EXPECT_EQ((Texts{"AM 225-400", "230.0000", "231.0000"}), TextsOf(5, {BAND, RFRQ, TFRQ}));
    EXPECT_EQ("n/a", Text(5, MODE)) << "the row shows the band, and has no mode there";
    EXPECT_EQ((Texts{"MODE", "RCOD", "TCOD"}), LocksOf(5));
}

TEST_F(BandCells, OfABlankRowFillItFirst) {
    Choose(7, BAND, "AM 225-400");
    EXPECT_EQ((Texts{"007", "AM 225-400", "", "n/a", "OFF"}), TextsOf(7, {MNUM, BAND, RFRQ, MODE, RTON}));
}

TEST_F(BandCells, KeepTonesOfTheListWhenThePageIsSetUpAgain) {
    Choose(5, BAND, "AM 225-400");
    SetCell(5, RTON, "100.0");
    SetCell(5, TTON, "n/a");
    SetPageEditors(CurrentPage);
    EXPECT_EQ((Texts{"n/a", "100.0", "n/a", "OFF", "n/a"}), BandTexts(5));
    EXPECT_EQ((Texts{"MODE", "RCOD", "TCOD"}), LocksOf(5));
}

TEST_F(BandCells, LockAgainWhenThePageIsSetUpAgain) {
    SetCell(5, BAND, "AM 108-138");
    SetPageEditors(CurrentPage);
    EXPECT_EQ((Texts{"RTON", "RCOD", "TTON", "TCOD"}), LocksOf(5));
    EXPECT_EQ((Texts{"N", "n/a", "n/a", "n/a", "n/a"}), BandTexts(5));
    SetCell(5, BAND, "FM 30-50");
    SetPageEditors(CurrentPage);
    EXPECT_EQ(Texts{}, LocksOf(5));
    SetCell(5, BAND, "no band");
    EXPECT_EQ(0, GetRowBand(Grid(), 5));
    SetPageEditors(CurrentPage);
    EXPECT_EQ(Texts{}, LocksOf(5));
}

TEST_F(BandCells, OfTheAirBandAreLeftAlone) {
    for (int col : {MODE, RTON, RCOD, TTON, TCOD})
        Grid()->SetReadOnly(5, col, true);
    const Texts before = BandTexts(5);
    SetBandEditors(Grid(), 5, 3);
    EXPECT_EQ(before, BandTexts(5));
    EXPECT_EQ((Texts{"MODE", "RTON", "RCOD", "TTON", "TCOD"}), LocksOf(5));
}

TEST_F(BandCells, OfOtherRadiosAreNotLockedByAMBands) {
    for (int radio : {Krv47, Kdar2000, Kdrv716B}) {
        Retarget(radio, 0);
        Fill({5});
        const Texts before = BandTexts(5), locks = LocksOf(5);
        for (int band : {2, 3, 6}) {
            SetBandEditors(Grid(), 5, band);
            EXPECT_EQ(before, BandTexts(5)) << radio << ", band " << band;
            EXPECT_EQ(locks, LocksOf(5)) << radio << ", band " << band;
        }
    }
}

TEST_F(BandCells, OfP25RowsSetTheReceiveToneAloneAndLockTheScanOfZoneX) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    for (int col : {RTON, TTON})
        Grid()->SetCellEditor(5, col, new wxGridCellTextEditor);
    SetCell(5, ZONE, "X");
    SetBandEditors(Grid(), 5, 4);
    EXPECT_EQ("ZelkChoiceEditor", EditorClass(5, RTON));
    EXPECT_EQ("wxGridCellTextEditor", EditorClass(5, TTON));
    EXPECT_EQ((Texts{"SHAD", "SCAN"}), LocksOf(5));
    EXPECT_EQ(42u, OfferedIn(5, RTON).size());
    SetCell(5, ZONE, "W");
    SetBandEditors(Grid(), 5, 4);
    EXPECT_EQ((Texts{"SHAD"}), LocksOf(5));
}
