#include "catalogue/ZoneSlots.h"

#include "tests/catalogue/PageTest.h"
#include "tests/support/Modals.h"

#include <wx/notebook.h>

namespace {

class ZoneSlotsTest : public PageTest {
protected:
    void SetUp() override {
        PageTest::SetUp();
        ZoneSlots.fill(0);
    }

    /// Makes the page the current one without building it: the counters need no widgets.
    static void GoToPage(int page) { CurrentPage = page; }

    void TearDown() override {
        CurrentPage = MainFrame ? 0 : CurrentPage;
        PageTest::TearDown();
    }

    /// Fills the zones from 0 up to, but not including, the end given.
    static void FillZones(int page, int end) {
        for (int zone = 0; zone < end; ++zone)
            ZoneSlots[static_cast<size_t>(page * 32 + zone)] = 16;
    }
};

} // namespace

TEST_F(ZoneSlotsTest, SixteenRowsGoIntoAZoneAndTheSeventeenthIsRefused) {
    for (int row = 1; row <= 16; ++row)
        EXPECT_TRUE(TakeP25ZonePosition(4)) << row;
    EXPECT_FALSE(TakeP25ZonePosition(4));
    EXPECT_EQ(16, SlotsTaken(0, 4));
    EXPECT_EQ(0, SlotsTaken(0, 3));
    EXPECT_EQ(0, SlotsTaken(0, 5));
}

TEST_F(ZoneSlotsTest, ASlotGivenBackCanBeTakenAgain) {
    FillZones(0, 1);
    EXPECT_FALSE(TakeP25ZonePosition(0));
    EXPECT_TRUE(ReleaseP25ZonePosition(0));
    EXPECT_EQ(15, SlotsTaken(0, 0));
    EXPECT_TRUE(TakeP25ZonePosition(0));
}

TEST_F(ZoneSlotsTest, AnEmptyZoneGivesNothingBack) {
    EXPECT_FALSE(ReleaseP25ZonePosition(7));
    EXPECT_EQ(0, SlotsTaken(0, 7));
}

TEST_F(ZoneSlotsTest, MoreThanSixteenAreStillRefused) {
    ZoneSlots[2] = 17;
    EXPECT_FALSE(TakeP25ZonePosition(2));
    EXPECT_EQ(17, SlotsTaken(0, 2));
}

TEST_F(ZoneSlotsTest, AreThoseOfTheCurrentPage) {
    GoToPage(3);
    EXPECT_TRUE(TakeP25ZonePosition(31));
    EXPECT_EQ(1, SlotsTaken(3, 31));
    EXPECT_EQ(0, SlotsTaken(0, 31));
    GoToPage(0);
    EXPECT_FALSE(ReleaseP25ZonePosition(31));
    EXPECT_EQ(1, SlotsTaken(3, 31));
}

TEST_F(ZoneSlotsTest, AZoneOfNoListGivesAndTakesNothing) {
    for (int page : {0, 2, 5}) {
        GoToPage(page);
        for (int zone : {-1, -33, 33, 64, 9999}) {
            ZoneSlots.fill(3);
            EXPECT_FALSE(ReleaseP25ZonePosition(zone)) << "page " << page << " zone " << zone;
            EXPECT_FALSE(TakeP25ZonePosition(zone)) << "page " << page << " zone " << zone;
            for (int32_t taken : ZoneSlots)
                ASSERT_EQ(3, taken) << "page " << page << " zone " << zone;
        }
    }
}

TEST_F(ZoneSlotsTest, FirstFreeZoneIsTheFirstWithRoom) {
    EXPECT_EQ(0, FirstFreeZone());
    FillZones(0, 5);
    EXPECT_EQ(5, FirstFreeZone());
    ZoneSlots[2] = 15;
    EXPECT_EQ(2, FirstFreeZone());
}

TEST_F(ZoneSlotsTest, FirstFreeZoneReachesTheFirstZoneOfTheNextPage) {
    FillZones(1, 32);
    GoToPage(1);
    EXPECT_EQ(32, FirstFreeZone());
    EXPECT_TRUE(TakeP25ZonePosition(32));
    EXPECT_EQ(1, SlotsTaken(2, 0));
    EXPECT_TRUE(ReleaseP25ZonePosition(32));
    EXPECT_EQ(0, SlotsTaken(2, 0));
}

TEST_F(ZoneSlotsTest, FirstFreeZoneIsMinusOneWhenAll33AreFull) {
    FillZones(0, 33);
    EXPECT_EQ(-1, FirstFreeZone());
}

TEST_F(ZoneSlotsTest, ClearingAPageAlsoZeroesZone0OfTheNext) {
    ZoneSlots.fill(9);
    ClearZoneSlots(0);
    for (int zone = 0; zone < 32; ++zone)
        EXPECT_EQ(0, SlotsTaken(0, zone)) << zone;
    EXPECT_EQ(0, SlotsTaken(1, 0));
    EXPECT_EQ(9, SlotsTaken(1, 1));
}

TEST_F(ZoneSlotsTest, ClearingTakesThePageNamedNotTheCurrentOne) {
    ZoneSlots.fill(9);
    ClearZoneSlots(2);
    EXPECT_EQ(9, SlotsTaken(1, 31));
    EXPECT_EQ(0, SlotsTaken(2, 0));
    EXPECT_EQ(0, SlotsTaken(3, 0));
    EXPECT_EQ(9, SlotsTaken(3, 1));
}

TEST_F(ZoneSlotsTest, TheLastPageHasRoomBehindIt) {
    ZoneSlots.fill(16);
    GoToPage(5);
    EXPECT_EQ(-1, FirstFreeZone());
    ClearZoneSlots(5);
    EXPECT_EQ(16, SlotsTaken(4, 31));
    for (int zone = 0; zone <= 32; ++zone)
        EXPECT_EQ(0, SlotsTaken(5, zone)) << zone;
    FillZones(5, 32);
    EXPECT_EQ(32, FirstFreeZone());
    EXPECT_TRUE(TakeP25ZonePosition(32));
    EXPECT_EQ(1, SlotsTaken(5, 32));
}

TEST_F(ZoneSlotsTest, NamesAreThoseOfTheCurrentPagesType) {
    constexpr const char* names[] = {"1",  "2",  "3",  "4",  "5",  "6", "7", "8", "9", "10", "11",
                                     "12", "13", "14", "15", "16", "A", "C", "E", "F", "H",  "I",
                                     "K",  "L",  "M",  "N",  "P",  "T", "U", "V", "W", "X"};
    for (int zone = 0; zone < 32; ++zone)
        EXPECT_STREQ(names[zone], GetZoneName(zone).utf8_str()) << zone;
    for (int zone : {32, 33, 9999, -1})
        EXPECT_EQ("None", GetZoneName(zone)) << zone;
    AddPage(Kdrv716, 0);
    EXPECT_EQ("16", GetZoneName(15));
    EXPECT_EQ("None", GetZoneName(16));
    EXPECT_EQ(15, FindZone("16"));
    EXPECT_EQ(-1, FindZone("X"));
    AddPage(Kdrv716B, 0);
    EXPECT_EQ("X", GetZoneName(31));
    EXPECT_EQ(31, FindZone("X"));
    MainFrame->m_notebook->SetSelection(1);
    EXPECT_EQ("None", GetZoneName(31)) << "back on the page of the first generation";
    EXPECT_EQ(-1, FindZone("X"));
}

TEST_F(ZoneSlotsTest, MoveDownWithThePagesWhenOneIsDeleted) {
    AddPage(Kdrv716, 0);
    AddPage(Kdrv716B, 0);
    AddPage(Kdrv716, 0);
    wxGrid* const second = PageGrid[1];
    wxGrid* const fourth = PageGrid[3];
    for (int page = 0; page < 4; ++page)
        for (int zone = 0; zone < 32; ++zone)
            ZoneSlots[static_cast<size_t>(page * 32 + zone)] = page + 1;
    MainFrame->m_notebook->SetSelection(2);
    ASSERT_EQ(2, CurrentPage);
    testbench::DialogScript script;
    script.ExpectMessage("Delete Page?", "This will delete ALL data on this page! Continue?");
    wxCommandEvent event;
    MainFrame->OnPageDelete(event);
    EXPECT_EQ(second, PageGrid[1]);
    EXPECT_EQ(fourth, PageGrid[2]);
    EXPECT_EQ(nullptr, PageGrid[3]);
    EXPECT_EQ(3, PageCount);
    for (int zone = 0; zone < 32; ++zone) {
        EXPECT_EQ(2, SlotsTaken(1, zone)) << zone;
        EXPECT_EQ(4, SlotsTaken(2, zone)) << zone;
        EXPECT_EQ(0, SlotsTaken(3, zone)) << zone;
    }
}
