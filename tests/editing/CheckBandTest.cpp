#include "editing/ZelkEdit.h"
#include "tests/catalogue/PageTest.h"

namespace {

class CheckBandTest : public PageTest {
protected:
    static bool IsPainted(int row) {
        return CurrentGrid()->GetCellBackgroundColour(row, BAND) == wxColour(235, 125, 50);
    }

    static void Check(int row, const char* text) { CheckBand(CurrentGrid(), row, text); }
};

} // namespace

TEST_F(CheckBandTest, EmptiesTheBandWithoutPaintOnPagesWithoutABandColumn) {
    for (const auto& [radio, slot] : std::initializer_list<std::pair<int, int>>{
             {Krv21, 0}, {Orv12, 0}, {Kdrv716, 0}, {Kdrv716B, 0}, {Kdar2000, 0}, {Kdrv4xxx, 1}}) {
        Retarget(radio, slot);
        SetCell(3, BAND, "FM 30-50");
        Check(3, "FM 30-50");
        EXPECT_EQ(Cell(3, BAND), "") << "radio " << radio;
        EXPECT_FALSE(IsPainted(3)) << "radio " << radio;
    }
}

TEST_F(CheckBandTest, LeavesTheBandsOfTheFirstModuleAsTheyAre) {
    Retarget(Kdrv4xxx, ModuleSlot);
    for (const char* text : {"FM 30-50", "AM 108-138", "AM 225-400"}) {
        SetCell(3, BAND, text);
        Check(3, text);
        EXPECT_EQ(Cell(3, BAND).utf8_string(), text);
        EXPECT_FALSE(IsPainted(3)) << text;
    }
}

TEST_F(CheckBandTest, DoesNotWriteABandThatCanStand) {
    Retarget(Kdrv4xxx, ModuleSlot);
    SetCell(3, BAND, "before");
    Check(3, "AM 225-400");
    EXPECT_EQ(Cell(3, BAND), "before");
    EXPECT_FALSE(IsPainted(3));
}

TEST_F(CheckBandTest, PutsTheDefaultRowsBandInPlaceOfAnyOther) {
    Retarget(Kdrv4xxx, ModuleSlot);
    int row = 1;
    for (const char* text : {"FM 66-88", "AM 118-138", "FM 136-174", "FM 138-174", "FM 403-512", "K6 3-BAND",
                             "FM_403-512", "FM 7xx-8xx", "FM 896-960", "", "fm 30-50", "FM 30-50 "}) {
        SetCell(row, BAND, text);
        Check(row, text);
        EXPECT_EQ(Cell(row, BAND), "FM 30-50") << '"' << text << '"';
        EXPECT_TRUE(IsPainted(row)) << '"' << text << '"';
        ++row;
    }
}

TEST_F(CheckBandTest, RepairsByWhatTheDefaultRowHoldsNow) {
    Retarget(Kdrv4xxx, ModuleSlot);
    SetCell(0, BAND, "AM 225-400");
    Check(3, "nonsense");
    EXPECT_EQ(Cell(3, BAND), "AM 225-400");
}

TEST_F(CheckBandTest, LeavesEveryKnownBandOnAPageOfTheSecondModule) {
    Retarget(Kdrv4xxx, ModuleSlot);
    CurrentParameters().Band = RadioCatalogue::K7Module;
    for (const char* text : {"FM 30-50", "FM 66-88", "AM 108-138", "AM 118-138", "FM 136-174", "FM 138-174",
                             "AM 225-400", "FM 403-512", "K6 3-BAND"}) {
        SetCell(3, BAND, text);
        Check(3, text);
        EXPECT_EQ(Cell(3, BAND).utf8_string(), text);
        EXPECT_FALSE(IsPainted(3)) << text;
    }
    for (const char* text : {"FM_403-512", "FM 7xx-8xx", "FM 896-960", ""}) {
        SetCell(4, BAND, text);
        Check(4, text);
        EXPECT_EQ(Cell(4, BAND), "FM 30-50") << '"' << text << '"';
        EXPECT_TRUE(IsPainted(4)) << '"' << text << '"';
    }
}

TEST_F(CheckBandTest, LeavesTheDefaultRowItsFormerBandPaintedWhenAnotherCanNotStand) {
    Retarget(Kdrv4xxx, ModuleSlot);
    for (const char* text : {"FM 99-100", "fm 30-50", "FM 138-174", ""}) {
        SetCell(0, BAND, "AM 225-400");
        Check(0, text);
        EXPECT_EQ(Cell(0, BAND), "AM 225-400") << '"' << text << '"';
        EXPECT_TRUE(IsPainted(0)) << '"' << text << '"';
        CurrentGrid()->SetCellBackgroundColour(0, BAND, *wxWHITE);
    }
}

TEST_F(CheckBandTest, AnswersWhetherTheBandCanStand) {
    wxGrid* grid = CurrentGrid();
    EXPECT_EQ(CheckBand(grid, 3, "FM 30-50"), CheckNotApplicable);
    Retarget(Kdrv4xxx, ModuleSlot);
    for (int row : {0, 3}) {
        EXPECT_EQ(CheckBand(grid, row, "AM 225-400"), CheckGood);
        EXPECT_EQ(CheckBand(grid, row, "am 225-400"), CheckBadValue);
    }
}
