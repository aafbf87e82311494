// Choices from a list, and the values that they copy to the neighbouring cells.
#include "editing/ChoiceCells.h"

#include "tests/editing/CellTools.h"

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
