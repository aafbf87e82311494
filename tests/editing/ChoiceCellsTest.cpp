// Choices from a list, and the values that they copy to the neighbouring cells.
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
        EXPECT_EQ(TonesAndCodes(5), (Texts{"71.9", "OFF", "71.9", "OFF"}));
        // The previous code is not restored.
        Choose(5, RTON, "OFF");
        EXPECT_EQ(TonesAndCodes(5), (Texts{"OFF", "OFF", "OFF", "OFF"}));
    }
}

TEST_F(ChoiceCells, AReceiveCodeIsCarriedAndTurnsTheTonesOff) {
    for (int type : {RadioCatalogue::ANFM, RadioCatalogue::ANAM, RadioCatalogue::FXAM}) {
        SCOPED_TRACE(type);
        CurrentParameters().Type = type;
        Fill({5});
        SetTonesAndCodes(5);
        Choose(5, RCOD, "026");
        EXPECT_EQ(TonesAndCodes(5), (Texts{"OFF", "026", "OFF", "026"}));
    }
}

TEST_F(ChoiceCells, ATransmitToneTurnsTheTransmitCodeOffAndLeavesTheReceiver) {
    for (int type : {RadioCatalogue::ANFM, RadioCatalogue::ANAM, RadioCatalogue::FXAM}) {
        SCOPED_TRACE(type);
        CurrentParameters().Type = type;
        Fill({5});
        SetTonesAndCodes(5);
        Choose(5, TTON, "77.0");
        EXPECT_EQ(TonesAndCodes(5), (Texts{"67.0", "025", "77.0", "OFF"}));
    }
}

TEST_F(ChoiceCells, ATransmitCodeTurnsTheTransmitToneOffAndLeavesTheReceiver) {
    for (int type : {RadioCatalogue::ANFM, RadioCatalogue::ANAM, RadioCatalogue::FXAM}) {
        SCOPED_TRACE(type);
        CurrentParameters().Type = type;
        Fill({5});
        SetTonesAndCodes(5);
        Choose(5, TCOD, "032");
        EXPECT_EQ(TonesAndCodes(5), (Texts{"67.0", "025", "OFF", "032"}));
    }
}

TEST_F(ChoiceCells, ToneAndCodeStandSideBySideOnTheModule) {
    RetargetModule();
    Fill({5});
    SetTonesAndCodes(5);
    Choose(5, RTON, "71.9");
    EXPECT_EQ(TonesAndCodes(5), (Texts{"71.9", "025", "71.9", "031"}));
    Choose(5, RCOD, "026");
    EXPECT_EQ(TonesAndCodes(5), (Texts{"71.9", "026", "71.9", "026"}));
    Choose(5, TTON, "74.4");
    Choose(5, TCOD, "025");
    EXPECT_EQ(TonesAndCodes(5), (Texts{"71.9", "026", "74.4", "025"}));
}

TEST_F(ChoiceCells, ToneAndCodeStandSideBySideOnP25Pages) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        Retarget(radio, 0);
        Fill({5});
        SetTonesAndCodes(5);
        Choose(5, RTON, "69.3");
        EXPECT_EQ(TonesAndCodes(5), (Texts{"69.3", "025", "69.3", "031"})) << radio;
        Choose(5, RCOD, "023");
        EXPECT_EQ(TonesAndCodes(5), (Texts{"69.3", "023", "69.3", "023"})) << radio;
    }
}

TEST_F(ChoiceCells, AChoiceClearsThePaintOfTheCellsThatItIsCarriedTo) {
    Fill({5});
    Grid()->SetCellBackgroundColour(0, 0, *wxYELLOW);
    for (int col : {RTON, RCOD, TTON, TCOD})
        Grid()->SetCellBackgroundColour(5, col, FailColour);
    Choose(5, RTON, "71.9");
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, RTON), *wxYELLOW);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, TTON), *wxYELLOW);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, RCOD), FailColour);
    Choose(5, TCOD, "023");
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, TCOD), *wxYELLOW);
}

TEST_F(ChoiceCells, TheModeOfAP25RowBringsItsSquelches) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        SCOPED_TRACE(radio);
        Retarget(radio, 0);
        Fill({5});
        EXPECT_EQ(OfferedIn(5, MODE), (Texts{"w", "n", "D"}));
        EXPECT_EQ(OfferedIn(5, RSQL), (Texts{"x", "t", "c"}));
        EXPECT_EQ(OfferedIn(5, TSQL), (Texts{"x", "t", "c"}));
        Choose(5, MODE, "D");
        EXPECT_EQ(TextsOf(5, {MODE, RSQL, TSQL}), (Texts{"D", "m", "g"}));
        EXPECT_EQ(OfferedIn(5, RSQL), (Texts{"m", "n", "g"}));
        EXPECT_EQ(OfferedIn(5, TSQL), (Texts{"g", "i", "-"}));
        Choose(5, MODE, "n");
        EXPECT_EQ(TextsOf(5, {MODE, RSQL, TSQL}), (Texts{"n", "x", "x"}));
        EXPECT_EQ(OfferedIn(5, RSQL), (Texts{"x", "t", "c"}));
        EXPECT_EQ(OfferedIn(5, TSQL), (Texts{"x", "t", "c"}));
    }
}

TEST_F(ChoiceCells, AShadowInModeDIsNotOfferedIndividualCalls) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    for (const char* flags : {"01", "07", "14"}) {
        SetCell(5, MFLG, flags);
        Choose(5, MODE, "n");
        Choose(5, MODE, "D");
        EXPECT_EQ(OfferedIn(5, TSQL), (Texts{"g", "-"})) << flags;
        EXPECT_EQ(OfferedIn(5, RSQL), (Texts{"m", "n", "g"})) << flags;
    }
    SetCell(5, MFLG, "10");
    SetPageEditors(CurrentPage);
    EXPECT_EQ(OfferedIn(5, TSQL), (Texts{"g", "i", "-"}));
}

TEST_F(ChoiceCells, AnAnalogReceiveSquelchIsCarriedAndADigitalOneIsNot) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    for (const char* letter : {"t", "c", "x"}) {
        Choose(5, RSQL, letter);
        EXPECT_EQ(TextsOf(5, {RSQL, TSQL}), (Texts{letter, letter}));
    }
    Choose(5, TSQL, "c");
    EXPECT_EQ(TextsOf(5, {RSQL, TSQL}), (Texts{"x", "c"})) << "there is no way back";
    Choose(5, MODE, "D");
    for (const char* letter : {"n", "g"}) {
        Choose(5, RSQL, letter);
        EXPECT_EQ(TextsOf(5, {RSQL, TSQL}), (Texts{letter, "g"}));
    }
}

TEST_F(ChoiceCells, SquelchChoicesLeaveTheTextsUnlessDefaultsAreWanted) {
    Retarget(Kdrv716B, 0);
    SetCell(5, RSQL, "t");
    SetCell(5, TSQL, "-");
    SetSquelchChoices(Grid(), 5, "n", false);
    SetSquelchChoices(Grid(), 5, "D", false);
    EXPECT_EQ(TextsOf(5, {RSQL, TSQL}), (Texts{"t", "-"}));
    SetSquelchChoices(Grid(), 5, "w", true);
    EXPECT_EQ(TextsOf(5, {RSQL, TSQL}), (Texts{"x", "x"}));
    SetSquelchChoices(Grid(), 5, "D", true);
    EXPECT_EQ(TextsOf(5, {RSQL, TSQL}), (Texts{"m", "g"}));
}

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

TEST_F(BandCells, OfTheAirBandAreLeftAlone) {
    for (int col : {MODE, RTON, RCOD, TTON, TCOD})
        Grid()->SetReadOnly(5, col, true);
    const Texts before = BandTexts(5);
    SetBandEditors(Grid(), 5, 3);
    EXPECT_EQ(BandTexts(5), before);
    EXPECT_EQ(LocksOf(5), (Texts{"MODE", "RTON", "RCOD", "TTON", "TCOD"}));
}

TEST_F(BandCells, OfOtherRadiosAreNotLockedByAMBands) {
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

TEST_F(BandCells, OfP25RowsSetTheReceiveToneAloneAndLockTheScanOfZoneX) {
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
