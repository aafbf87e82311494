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

    /// Makes the page the current one without building it; the counters need no widgets.
    static void GoToPage(int page) { CurrentPage = page; }

    void TearDown() override {
        CurrentPage = MainFrame ? 0 : CurrentPage;
        PageTest::TearDown();
    }

    /// Fills the zones from 0 up to, but not including, end.
    static void FillZones(int page, int end) {
        for (int zone = 0; zone < end; ++zone)
            ZoneSlots[page * 32 + zone] = 16;
    }
};

} // namespace

TEST_F(ZoneSlotsTest, SixteenRowsGoIntoAZoneAndTheSeventeenthIsRefused) {
    for (int row = 1; row <= 16; ++row)
        EXPECT_TRUE(TakeP25ZonePosition(4)) << row;
    EXPECT_FALSE(TakeP25ZonePosition(4));
    EXPECT_EQ(SlotsTaken(0, 4), 16);
    EXPECT_EQ(SlotsTaken(0, 3), 0);
    EXPECT_EQ(SlotsTaken(0, 5), 0);
}

TEST_F(ZoneSlotsTest, ASlotGivenBackCanBeTakenAgain) {
    FillZones(0, 1);
    EXPECT_FALSE(TakeP25ZonePosition(0));
    EXPECT_TRUE(ReleaseP25ZonePosition(0));
    EXPECT_EQ(SlotsTaken(0, 0), 15);
    EXPECT_TRUE(TakeP25ZonePosition(0));
}

TEST_F(ZoneSlotsTest, AnEmptyZoneGivesNothingBack) {
    EXPECT_FALSE(ReleaseP25ZonePosition(7));
    EXPECT_EQ(SlotsTaken(0, 7), 0);
}

TEST_F(ZoneSlotsTest, MoreThanSixteenAreStillRefused) {
    ZoneSlots[2] = 17;
    EXPECT_FALSE(TakeP25ZonePosition(2));
    EXPECT_EQ(SlotsTaken(0, 2), 17);
}

TEST_F(ZoneSlotsTest, AreThoseOfTheCurrentPage) {
    GoToPage(3);
    EXPECT_TRUE(TakeP25ZonePosition(31));
    EXPECT_EQ(SlotsTaken(3, 31), 1);
    EXPECT_EQ(SlotsTaken(0, 31), 0);
    GoToPage(0);
    EXPECT_FALSE(ReleaseP25ZonePosition(31));
    EXPECT_EQ(SlotsTaken(3, 31), 1);
}

TEST_F(ZoneSlotsTest, AZoneOfNoListGivesAndTakesNothing) {
    for (int page : {0, 2, 5}) {
        GoToPage(page);
        for (int zone : {-1, -33, 33, 64, 9999}) {
            ZoneSlots.fill(3);
            EXPECT_FALSE(ReleaseP25ZonePosition(zone)) << "page " << page << " zone " << zone;
            EXPECT_FALSE(TakeP25ZonePosition(zone)) << "page " << page << " zone " << zone;
            for (int32_t taken : ZoneSlots)
                ASSERT_EQ(taken, 3) << "page " << page << " zone " << zone;
        }
    }
}

TEST_F(ZoneSlotsTest, FirstFreeZoneIsTheFirstWithRoom) {
    EXPECT_EQ(FirstFreeZone(), 0);
    FillZones(0, 5);
    EXPECT_EQ(FirstFreeZone(), 5);
    ZoneSlots[2] = 15;
    EXPECT_EQ(FirstFreeZone(), 2);
}

TEST_F(ZoneSlotsTest, FirstFreeZoneReachesTheFirstZoneOfTheNextPage) {
    FillZones(1, 32);
    GoToPage(1);
    EXPECT_EQ(FirstFreeZone(), 32);
    EXPECT_TRUE(TakeP25ZonePosition(32));
    EXPECT_EQ(SlotsTaken(2, 0), 1);
    EXPECT_TRUE(ReleaseP25ZonePosition(32));
    EXPECT_EQ(SlotsTaken(2, 0), 0);
}

TEST_F(ZoneSlotsTest, FirstFreeZoneIsMinusOneWhenAll33AreFull) {
    FillZones(0, 33);
    EXPECT_EQ(FirstFreeZone(), -1);
}

TEST_F(ZoneSlotsTest, ClearingAPageAlsoZeroesZone0OfTheNext) {
    ZoneSlots.fill(9);
    ClearZoneSlots(0);
    for (int zone = 0; zone < 32; ++zone)
        EXPECT_EQ(SlotsTaken(0, zone), 0) << zone;
    EXPECT_EQ(SlotsTaken(1, 0), 0);
    EXPECT_EQ(SlotsTaken(1, 1), 9);
}

TEST_F(ZoneSlotsTest, ClearingTakesThePageNamedNotTheCurrentOne) {
    ZoneSlots.fill(9);
    ClearZoneSlots(2);
    EXPECT_EQ(SlotsTaken(1, 31), 9);
    EXPECT_EQ(SlotsTaken(2, 0), 0);
    EXPECT_EQ(SlotsTaken(3, 0), 0);
    EXPECT_EQ(SlotsTaken(3, 1), 9);
}

TEST_F(ZoneSlotsTest, TheLastPageHasRoomBehindIt) {
    ZoneSlots.fill(16);
    GoToPage(5);
    EXPECT_EQ(FirstFreeZone(), -1);
    ClearZoneSlots(5);
    EXPECT_EQ(SlotsTaken(4, 31), 16);
    for (int zone = 0; zone <= 32; ++zone)
        EXPECT_EQ(SlotsTaken(5, zone), 0) << zone;
    FillZones(5, 32);
    EXPECT_EQ(FirstFreeZone(), 32);
    EXPECT_TRUE(TakeP25ZonePosition(32));
    EXPECT_EQ(SlotsTaken(5, 32), 1);
}

TEST_F(ZoneSlotsTest, NamesAreThoseOfTheCurrentPagesType) {
    constexpr const char* names[] = {"1",  "2",  "3",  "4",  "5",  "6", "7", "8", "9", "10", "11",
                                     "12", "13", "14", "15", "16", "A", "C", "E", "F", "H",  "I",
                                     "K",  "L",  "M",  "N",  "P",  "T", "U", "V", "W", "X"};
    for (int zone = 0; zone < 32; ++zone)
        EXPECT_STREQ(GetZoneName(zone).utf8_str(), names[zone]) << zone;
    for (int zone : {32, 33, 9999, -1})
        EXPECT_EQ(GetZoneName(zone), "None") << zone;
    AddPage(Kdrv716, 0);
    EXPECT_EQ(GetZoneName(15), "16");
    EXPECT_EQ(GetZoneName(16), "None");
    EXPECT_EQ(FindZone("16"), 15);
    EXPECT_EQ(FindZone("X"), -1);
    AddPage(Kdrv716B, 0);
    EXPECT_EQ(GetZoneName(31), "X");
    EXPECT_EQ(FindZone("X"), 31);
    MainFrame->m_notebook->SetSelection(1);
    EXPECT_EQ(GetZoneName(31), "None") << "back on the page of the first generation";
    EXPECT_EQ(FindZone("X"), -1);
}

TEST_F(ZoneSlotsTest, MoveDownWithThePagesWhenOneIsDeleted) {
    AddPage(Kdrv716, 0);
    AddPage(Kdrv716B, 0);
    AddPage(Kdrv716, 0);
    wxGrid* const second = PageGrid[1];
    wxGrid* const fourth = PageGrid[3];
    for (int page = 0; page < 4; ++page)
        for (int zone = 0; zone < 32; ++zone)
            ZoneSlots[page * 32 + zone] = page + 1;
    MainFrame->m_notebook->SetSelection(2);
    ASSERT_EQ(CurrentPage, 2);
    testbench::DialogScript script;
    script.ExpectMessage("Delete Page?", "This will delete ALL data on this page! Continue?");
    wxCommandEvent event;
    MainFrame->OnPageDelete(event);
    EXPECT_EQ(PageGrid[1], second);
    EXPECT_EQ(PageGrid[2], fourth);
    EXPECT_EQ(PageGrid[3], nullptr);
    EXPECT_EQ(PageCount, 3);
    for (int zone = 0; zone < 32; ++zone) {
        EXPECT_EQ(SlotsTaken(1, zone), 2) << zone;
        EXPECT_EQ(SlotsTaken(2, zone), 4) << zone;
        EXPECT_EQ(SlotsTaken(3, zone), 0) << zone;
    }
}
