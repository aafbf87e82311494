#include "editing/ZelkEdit.h"
#include "tests/catalogue/PageTest.h"

namespace {

class CheckZoneTest : public PageTest {
protected:
    /// Makes a P25 page (radio 6 or 7) whose zones are all free.
    static void AddP25Page(int radio) {
        AddPage(radio, 0);
        ClearZoneSlots(CurrentPage);
    }

    static void FillZone(int zone) { ZoneSlots[CurrentPage * 32 + zone] = 16; }

    static int Taken(int zone) { return SlotsTaken(CurrentPage, zone); }

    static int TakenInAll() {
        int sum = 0;
        for (int32_t taken : ZoneSlots)
            sum += taken;
        return sum;
    }

    static void Check(int row, const char* text) { CheckZone(CurrentGrid(), row, text); }
};

} // namespace

TEST_F(CheckZoneTest, EmptiesTheZoneOnPagesThatAreNotP25) {
    for (const auto& [radio, slot] : std::initializer_list<std::pair<int, int>>{
             {Krv21, 0}, {Orv12, 0}, {Kdar2000, 0}, {Krv620, 1}, {Kdrv4xxx, ModuleSlot}}) {
        Retarget(radio, slot);
        SetCell(1, ZONE, "5");
        SetCell(1, TFLG, "A0");
        Check(1, "5");
        EXPECT_EQ(Cell(1, ZONE), "") << "radio " << radio;
        EXPECT_EQ(Cell(1, TFLG), "A0") << "radio " << radio;
        EXPECT_EQ(TakenInAll(), 0) << "radio " << radio;
    }
}

TEST_F(CheckZoneTest, GivesARowTheZoneThatItNames) {
    AddP25Page(7);
    SetCell(2, TFLG, "A0");
    Check(2, "K");
    EXPECT_EQ(Cell(2, ZONE), "K");
    EXPECT_EQ(Cell(2, TFLG), "A8");
    EXPECT_EQ(Taken(22), 1);
    EXPECT_EQ(TakenInAll(), 1);
}

TEST_F(CheckZoneTest, KeepsTheOtherTransferFlags) {
    AddP25Page(7);
    SetCell(2, TFLG, "C5");
    Check(2, "1");
    EXPECT_EQ(Cell(2, TFLG), "CD");
    SetCell(3, TFLG, "");
    Check(3, "1");
    EXPECT_EQ(Cell(3, TFLG), "08");
}

TEST_F(CheckZoneTest, TakesOneSlotHoweverOftenItRuns) {
    AddP25Page(6);
    SetCell(2, TFLG, "A0");
    Check(2, "3");
    Check(2, "3");
    Check(2, "4");
    EXPECT_EQ(Cell(2, ZONE), "3");
    EXPECT_EQ(Taken(2), 1);
    EXPECT_EQ(TakenInAll(), 1);
}

TEST_F(CheckZoneTest, WritesNothingInARowThatHoldsItsSlot) {
    AddP25Page(6);
    SetCell(2, TFLG, "A8");
    SetCell(2, ZONE, "anything");
    Check(2, "3");
    EXPECT_EQ(Cell(2, ZONE), "anything");
    EXPECT_EQ(Cell(2, TFLG), "A8");
    EXPECT_EQ(TakenInAll(), 0);
}

TEST_F(CheckZoneTest, FallsToTheFirstFreeZoneForATextThatIsNoZone) {
    AddP25Page(7);
    FillZone(0);
    FillZone(1);
    for (const char* text : {"", "17", "B", "x", "None"}) {
        SetCell(2, TFLG, "A0");
        Check(2, text);
        EXPECT_EQ(Cell(2, ZONE), "3") << '"' << text << '"';
    }
    EXPECT_EQ(Taken(2), 5);
}

TEST_F(CheckZoneTest, FallsToTheFirstFreeZoneForZoneXOnAFirstGenerationPage) {
    AddP25Page(6);
    SetCell(2, TFLG, "A0");
    Check(2, "X");
    EXPECT_EQ(Cell(2, ZONE), "1");
    EXPECT_EQ(Taken(0), 1);
}

TEST_F(CheckZoneTest, FallsToTheFirstFreeZoneForAZoneBelowIt) {
    AddP25Page(7);
    for (int zone = 0; zone < 4; ++zone)
        FillZone(zone);
    SetCell(2, TFLG, "A0");
    Check(2, "2");
    EXPECT_EQ(Cell(2, ZONE), "5");
    EXPECT_EQ(Taken(4), 1);
}

TEST_F(CheckZoneTest, KeepsTheTextAndSetsTheFlagWhenTheNamedZoneIsFull) {
    AddP25Page(7);
    FillZone(9);
    SetCell(2, TFLG, "A0");
    Check(2, "10");
    EXPECT_EQ(Cell(2, ZONE), "10");
    EXPECT_EQ(Cell(2, TFLG), "A8");
    EXPECT_EQ(Taken(9), 16);
    EXPECT_EQ(TakenInAll(), 16) << "no other zone was taken in its place";
}

TEST_F(CheckZoneTest, KeepsTheTextAndSetsTheFlagWhenEveryZoneIsFull) {
    AddP25Page(7);
    ZoneSlots.fill(16);
    for (const char* text : {"2", "nowhere", ""}) {
        SetCell(2, TFLG, "A0");
        Check(2, text);
        EXPECT_EQ(Cell(2, ZONE).utf8_string(), text);
        EXPECT_EQ(Cell(2, TFLG), "A8");
    }
    EXPECT_EQ(Taken(1), 16);
}

TEST_F(CheckZoneTest, NamesTheFirstZoneOfTheNextPageNoneWhenAll32AreFull) {
    AddP25Page(7);
    for (int zone = 0; zone < 32; ++zone)
        FillZone(zone);
    SetCell(2, TFLG, "A0");
    Check(2, "");
    EXPECT_EQ(Cell(2, ZONE), "None");
    EXPECT_EQ(Taken(32), 1);
}

TEST_F(CheckZoneTest, EmptiesTheZoneOfAShadowAndTakesNoSlot) {
    AddP25Page(6);
    for (const char* flags : {"01", "07", "12", "64"}) {
        SetCell(2, TFLG, "A0");
        SetCell(2, MFLG, flags);
        SetCell(2, ZONE, "3");
        Check(2, "3");
        EXPECT_EQ(Cell(2, ZONE), "") << flags;
        EXPECT_EQ(Cell(2, TFLG), "A8") << flags;
    }
    EXPECT_EQ(TakenInAll(), 0);
}

TEST_F(CheckZoneTest, GivesAPrimaryItsSlot) {
    AddP25Page(6);
    SetCell(2, TFLG, "A0");
    SetCell(2, MFLG, "10");
    Check(2, "3");
    EXPECT_EQ(Cell(2, ZONE), "3");
    EXPECT_EQ(Taken(2), 1);
}

TEST_F(CheckZoneTest, WritesTheTextOfTheDefaultRowBackUnchanged) {
    AddP25Page(6);
    SetCell(0, ZONE, "other");
    Check(0, "W");
    EXPECT_EQ(Cell(0, ZONE), "W");
    EXPECT_EQ(Cell(0, TFLG), "A0");
    EXPECT_EQ(TakenInAll(), 0);
}

TEST_F(CheckZoneTest, PutsRowsAbove230OfTheFirstGenerationIntoZone16) {
    AddP25Page(6);
    struct Line {
        int row;
        const char* zone;
    };
    for (const Line& line : std::initializer_list<Line>{{229, "2"}, {230, "2"}, {231, "16"}, {232, "16"}}) {
        SetCell(line.row, TFLG, "A0");
        Check(line.row, "2");
        EXPECT_EQ(Cell(line.row, ZONE).utf8_string(), line.zone) << "row " << line.row;
    }
    EXPECT_EQ(Taken(15), 2);
}

TEST_F(CheckZoneTest, PutsRowsAbove500OfTheSecondGenerationIntoZoneX) {
    AddP25Page(7);
    struct Line {
        int row;
        const char* zone;
    };
    for (const Line& line : std::initializer_list<Line>{{231, "2"}, {500, "2"}, {501, "X"}, {502, "X"}}) {
        SetCell(line.row, TFLG, "A0");
        Check(line.row, "2");
        EXPECT_EQ(Cell(line.row, ZONE).utf8_string(), line.zone) << "row " << line.row;
    }
    EXPECT_EQ(Taken(31), 2);
}

TEST_F(CheckZoneTest, CountsOnTheCurrentPage) {
    AddP25Page(6);
    AddP25Page(6);
    SetCell(2, TFLG, "A0");
    Check(2, "7");
    EXPECT_EQ(SlotsTaken(2, 6), 1);
    EXPECT_EQ(SlotsTaken(1, 6), 0);
}
