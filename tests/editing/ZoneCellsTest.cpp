// Choice of the zone of a P25 memory, and its effect on the slots.
#include "tests/editing/CellTools.h"

using namespace testbench;

namespace {

class ZoneCells : public CellTest {
protected:
    void SetUp() override {
        CellTest::SetUp();
        Retarget(Kdrv716B, 0);
    }

    static const Texts& AllZones() {
        static const Texts zones = {"1",  "2",  "3",  "4",  "5",  "6", "7", "8", "9", "10", "11",
                                    "12", "13", "14", "15", "16", "A", "C", "E", "F", "H",  "I",
                                    "K",  "L",  "M",  "N",  "P",  "T", "U", "V", "W", "X"};
        return zones;
    }

    static Texts ZonesBut(std::initializer_list<std::string> missing) {
        Texts zones = AllZones();
        for (const std::string& zone : missing)
            std::erase(zones, zone);
        return zones;
    }

    static int SlotsOf(int zone) { return ZoneSlotsOf(CurrentPage)[zone]; }

    static int AllSlots() {
        int sum = 0;
        for (int zone = 0; zone < ZonesPerPage; ++zone)
            sum += SlotsOf(zone);
        return sum;
    }
};

} // namespace

TEST_F(ZoneCells, OfTheSecondGenerationOfferAllZones) {
    EXPECT_EQ(OfferedIn(2, ZONE), AllZones());
}

TEST_F(ZoneCells, OfTheFirstGenerationOfferZones1To15) {
    Retarget(Kdrv716, 0);
    EXPECT_EQ(OfferedIn(2, ZONE), Texts(AllZones().begin(), AllZones().begin() + 15));
    EXPECT_EQ((Texts{Text(231, ZONE), Text(232, ZONE)}), (Texts{"16", "16"}))
        << "zone 16 belongs to the guard rows";
    EXPECT_TRUE(IsLocked(231, ZONE));
    EXPECT_TRUE(IsLocked(232, ZONE));
}

TEST_F(ZoneCells, OfAScannedRowNeverOfferX) {
    Fill({2});
    SetCell(2, SCAN, "Y");
    EXPECT_EQ(OfferedIn(2, ZONE), ZonesBut({"X"}));
    SetCell(2, SCAN, "N");
    EXPECT_EQ(OfferedIn(2, ZONE), AllZones());
}

TEST_F(ZoneCells, TakeTheChosenZonesSlotAndGiveBackTheOld) {
    Fill({2, 3});
    const int before = AllSlots();
    ASSERT_EQ(SlotsOf(0), 3) << "rows 1, 2 and 3";
    Choose(2, ZONE, "3");
    EXPECT_EQ(Text(2, ZONE), "3");
    EXPECT_EQ(SlotsOf(0), 2);
    EXPECT_EQ(SlotsOf(2), 1);
    EXPECT_EQ(AllSlots(), before);
}

TEST_F(ZoneCells, KeepTheirSlotWhenTheSameZoneIsChosen) {
    Fill({2});
    const int before = AllSlots();
    OpenChoice(2, ZONE);
    EXPECT_EQ(AllSlots(), before - 1) << "no slot while the edit runs";
    PressKey("Return");
    EXPECT_EQ(Text(2, ZONE), "1");
    EXPECT_EQ(AllSlots(), before);
    EXPECT_EQ(SlotsOf(0), 2);
}

// A departure: a lost slot would allow a seventeenth memory.
TEST_F(ZoneCells, KeepTheirSlotWhenTheEditIsGivenUp_Departure) {
    Fill({2});
    const int before = AllSlots();
    OpenChoice(2, ZONE);
    PressKey("Escape");
    EXPECT_EQ(Text(2, ZONE), "1");
    EXPECT_EQ(AllSlots(), before);
    EXPECT_EQ(SlotsOf(0), 2);
}

TEST_F(ZoneCells, OfABlankRowLeaveItBlankWhenTheEditIsGivenUp) {
    const int before = AllSlots();
    OpenChoice(20, ZONE);
    PressKey("Down");
    PressKey("Escape");
    EXPECT_EQ(TextsOf(20, {MNUM, ZONE}), (Texts{"", ""}));
    EXPECT_EQ(AllSlots(), before);
    Choose(20, ZONE, "3");
    EXPECT_EQ(Text(20, ZONE), "3");
}

TEST_F(ZoneCells, FillAZoneUpTo16Memories) {
    for (int row = 2; row <= 17; ++row)
        Fill({row});
    ASSERT_EQ(Text(16, ZONE), "1");
    ASSERT_EQ(Text(17, ZONE), "2") << "the seventeenth falls to the next zone";
    ASSERT_EQ(SlotsOf(0), 16);
    EXPECT_EQ(OfferedIn(17, ZONE), ZonesBut({"1"})) << "a full zone isn't offered";
    SetCell(17, ZONE, "");
    EXPECT_FALSE(TakeP25ZonePosition(0)) << "and takes no more";
    // A row of the full zone is still offered that zone, and can choose it again.
    EXPECT_EQ(OpenChoice(9, ZONE)->GetString(0), "1");
    PressKey("Return");
    EXPECT_EQ(Text(9, ZONE), "1");
    EXPECT_EQ(SlotsOf(0), 16);
    // One slot is free: the next row may enter.
    Choose(9, ZONE, "5");
    EXPECT_EQ(SlotsOf(0), 15);
    Choose(17, ZONE, "1");
    EXPECT_EQ(SlotsOf(0), 16);
    EXPECT_EQ(Text(17, ZONE), "1");
    EXPECT_EQ(OfferedIn(9, ZONE), ZonesBut({"1"}));
}

TEST_F(ZoneCells, ChosenByKeysFillUpAndAreThenNoLongerOffered) {
    for (int row = 2; row <= 17; ++row) {
        EXPECT_EQ(SlotsOf(2), row - 2);
        Choose(row, ZONE, "3");
        EXPECT_EQ(Text(row, ZONE), "3") << row;
    }
    EXPECT_EQ(SlotsOf(2), 16);
    EXPECT_EQ(OfferedIn(18, ZONE), ZonesBut({"3"}));
    Choose(17, ZONE, "4");
    EXPECT_EQ(OfferedIn(18, ZONE), AllZones()) << "one has left it";
}

TEST_F(ZoneCells, OfferEachTimeWhatHasRoomThen) {
    Fill({2});
    ZoneSlotsOf(0)[4] = 16;
    EXPECT_EQ(OfferedIn(2, ZONE), ZonesBut({"5"}));
    ZoneSlotsOf(0)[4] = 15;
    ZoneSlotsOf(0)[31] = 16;
    EXPECT_EQ(OfferedIn(2, ZONE), ZonesBut({"X"}));
    ZoneSlotsOf(0)[31] = 17;
    EXPECT_EQ(OfferedIn(2, ZONE), AllZones()) << "only exactly 16 is full";
}

TEST_F(ZoneCells, StayWhenTheChosenZoneHasFilledMeanwhile) {
    Fill({2});
    OpenChoice(2, ZONE);
    PressKey("Down");
    ZoneSlotsOf(0)[1] = 16;
    const int before = SlotsOf(0);
    PressKey("Return");
    EXPECT_EQ(Text(2, ZONE), "1");
    EXPECT_EQ(SlotsOf(0), before) << "the slot that was given back stays so";
    EXPECT_EQ(SlotsOf(1), 16);
}

TEST_F(ZoneCells, OfferNothingWhenAllZonesAreFull) {
    for (int zone = 0; zone < ZonesPerPage; ++zone)
        ZoneSlotsOf(0)[zone] = 16;
    SetCell(2, TFLG, "A0");
    wxComboBox* combo = OpenChoice(2, ZONE);
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->GetCount(), 0u);
    PressKey("Return");
    EXPECT_EQ(Text(2, ZONE), "");
}

TEST_F(ZoneCells, XIsNotScanned) {
    Fill({2});
    Choose(2, ZONE, "X");
    EXPECT_EQ(Text(2, ZONE), "X");
    EXPECT_TRUE(IsLocked(2, SCAN));
    EXPECT_EQ(SlotsOf(31), 3) << "with the guard rows";
    SetPageEditors(CurrentPage);
    EXPECT_TRUE(IsLocked(2, SCAN));
    Choose(2, ZONE, "W");
    EXPECT_FALSE(IsLocked(2, SCAN));
    EXPECT_EQ(SlotsOf(31), 2);
}

TEST_F(ZoneCells, XLocksScanWheneverTheRowsEditorsAreSet) {
    Fill({2, 3});
    SetCell(2, ZONE, "X");
    SetCell(3, ZONE, "W");
    SetRowEditorsP25(Grid(), 2);
    SetRowEditorsP25(Grid(), 3);
    EXPECT_TRUE(IsLocked(2, SCAN));
    EXPECT_FALSE(IsLocked(3, SCAN));
    SetCell(2, ZONE, "1");
    SetCell(3, ZONE, "X");
    SetPageEditors(CurrentPage);
    EXPECT_FALSE(IsLocked(2, SCAN)) << "writable again";
    EXPECT_TRUE(IsLocked(3, SCAN));
    SetCell(0, ZONE, "X");
    SetPageEditors(CurrentPage);
    EXPECT_TRUE(IsLocked(0, SCAN));
    SetCell(0, ZONE, "1");
    SetPageEditors(CurrentPage);
    EXPECT_FALSE(IsLocked(0, SCAN));
}

TEST_F(ZoneCells, OfLinkedAndGuardRowsKeepScanLockedWhateverTheZone) {
    Fill({4, 5, 6});
    SetCell(4, SHAD, "P-1");
    SetCell(4, MFLG, "10");
    SetCell(5, SHAD, "S-004");
    SetCell(5, MFLG, "01");
    SetPageEditors(CurrentPage);
    for (int row : {4, 5, 501, 502})
        EXPECT_TRUE(IsLocked(row, SCAN)) << row;
    EXPECT_FALSE(IsLocked(6, SCAN));
    for (int row : {501, 502}) {
        SetCell(row, ZONE, "1");
        SetRowEditorsP25(Grid(), row);
        EXPECT_TRUE(IsLocked(row, SCAN)) << row;
        EXPECT_TRUE(IsLocked(row, ZONE)) << row;
    }
}

TEST_F(ZoneCells, OfTheFirstGenerationHaveNoXThatWouldLockScan) {
    Retarget(Kdrv716, 0);
    Fill({2});
    SetCell(2, ZONE, "X");
    SetPageEditors(CurrentPage);
    EXPECT_FALSE(IsLocked(2, SCAN));
}

TEST_F(ZoneCells, OfAPrimaryAreToldToItsShadows) {
    Fill({4, 5, 8, 9});
    SetCell(5, MFLG, "10");
    SetCell(5, SHD0, "008");
    SetCell(5, SHD6, "9");
    SetCell(5, SHD3, "4");
    SetCell(5, SHD4, "900");
    SetCell(8, MFLG, "01");
    SetCell(9, MFLG, "07");
    Choose(5, ZONE, "4");
    EXPECT_EQ(Text(5, ZONE), "4");
    EXPECT_EQ(Text(8, ZONE), "4");
    EXPECT_EQ(Text(9, ZONE), "4");
    EXPECT_EQ(Text(4, ZONE), "1") << "no shadow";
    EXPECT_EQ(SlotsOf(3), 1) << "shadows hold no slot";
    SetCell(5, MFLG, "00");
    Choose(5, ZONE, "2");
    EXPECT_EQ(Text(8, ZONE), "4");
}

TEST_F(ZoneCells, OfAPrimaryTellTheShadowsOfTheRowThatItsNumberNames) {
    Fill({5, 7, 8, 9});
    SetCell(5, MFLG, "10");
    SetCell(5, MNUM, "7");
    SetCell(5, SHD0, "009");
    SetCell(7, ZONE, "12");
    SetCell(7, SHD6, "008");
    SetCell(8, MFLG, "01");
    SetCell(9, MFLG, "01");
    Choose(5, ZONE, "4");
    EXPECT_EQ((Texts{Text(5, ZONE), Text(7, ZONE), Text(8, ZONE), Text(9, ZONE)}),
              (Texts{"4", "12", "12", "1"}));
}

TEST_F(ZoneCells, OfAPrimaryLeaveItOutOfTheScan) {
    Fill({5, 6});
    for (int row : {5, 6}) {
        SetCell(row, MFLG, "10");
        Grid()->SetReadOnly(row, SCAN, true);
    }
    SetCell(5, SHAD, "P-1");
    Choose(5, ZONE, "X");
    EXPECT_TRUE(IsLocked(5, SCAN));
    Choose(5, ZONE, "4");
    EXPECT_EQ(Text(5, ZONE), "4");
    EXPECT_TRUE(IsLocked(5, SCAN)) << "a linked memory is never scanned";
    Choose(6, ZONE, "4");
    EXPECT_FALSE(IsLocked(6, SCAN)) << "a copy of a primary has no links";
}

TEST_F(ZoneCells, OfABlankRowTakeOneSlot) {
    const int before = AllSlots();
    Choose(20, ZONE, "7");
    EXPECT_EQ(TextsOf(20, {MNUM, ZONE}), (Texts{"020", "7"}));
    EXPECT_EQ(AllSlots(), before + 1);
    EXPECT_EQ(SlotsOf(6), 1);
}

TEST_F(ZoneCells, OfTheDefaultRowMoveNoSlotSoThatNoZoneTakesSeventeenRows) {
    Fill({2, 3});
    const auto slots = ZoneSlots;
    OpenChoice(0, ZONE);
    EXPECT_EQ(ZoneSlots, slots) << "no slot is given back for the edit";
    PressKey("Return");
    EXPECT_EQ(ZoneSlots, slots);
    Choose(0, ZONE, "3");
    EXPECT_EQ(Text(0, ZONE), "3");
    EXPECT_EQ(ZoneSlots, slots) << "and none is taken for the choice";
    OpenChoice(0, ZONE);
    PressKey("Escape");
    EXPECT_EQ(Text(0, ZONE), "3");
    EXPECT_EQ(ZoneSlots, slots);
}

TEST_F(ZoneCells, OfTheDefaultRowLetAFullZoneStayFull) {
    for (int row = 2; row <= 16; ++row)
        Fill({row});
    ASSERT_EQ(SlotsOf(0), 16);
    Choose(0, ZONE, "2");
    EXPECT_EQ(SlotsOf(0), 16);
    EXPECT_EQ(SlotsOf(1), 0);
    Fill({17});
    EXPECT_EQ(Text(17, ZONE), "2") << "the seventeenth row";
}

TEST_F(ZoneCells, OfTheDefaultRowOfferItsOwnZoneThoughThatIsFull) {
    ZoneSlotsOf(0)[0] = 16;
    ZoneSlotsOf(0)[4] = 16;
    EXPECT_EQ(OfferedIn(0, ZONE), ZonesBut({"5"}));
    OpenChoice(0, ZONE);
    PressKey("Return");
    EXPECT_EQ(Text(0, ZONE), "1");
}

TEST_F(ZoneCells, OfARowWithoutAZoneGiveNothingBack) {
    Fill({2});
    SetCell(2, ZONE, "");
    const int before = AllSlots();
    OpenChoice(2, ZONE);
    EXPECT_EQ(AllSlots(), before);
    PressKey("Return");
    EXPECT_EQ(Text(2, ZONE), "") << "no zone was chosen";
    EXPECT_EQ(AllSlots(), before);
    Choose(2, ZONE, "1");
    EXPECT_EQ(AllSlots(), before + 1);
}
