#include "tests/catalogue/PageTest.h"
#include "tests/catalogue/PrintedRadios.h"

namespace {

class PageParametersTest : public PageTest {};

} // namespace

TEST_F(PageParametersTest, AreThoseOfEveryRadioAndBandSlot) {
    for (const printed::Radio& radio : printed::Radios)
        for (const printed::Slot& slot : radio.slots) {
            SCOPED_TRACE(std::string(radio.name) + " slot " + std::to_string(slot.slot));
            SetPageParameters(MainFrame, 0, radio.index, slot.slot);
            const PageParameterRecord& parameters = PageParameters[0];
            EXPECT_EQ(radio.index, parameters.Radio);
            EXPECT_EQ(slot.slot, parameters.BandIndex);
            EXPECT_EQ(slot.band, parameters.Band);
            EXPECT_EQ(slot.rows, parameters.Rows);
            EXPECT_EQ(slot.type, parameters.Type);
            EXPECT_EQ(printed::Types[slot.type].columns, parameters.Cols);
            EXPECT_EQ(radio.name, PageStrings[0].RadioName.utf8_string());
            EXPECT_EQ(slot.bandName, PageStrings[0].BandName.utf8_string());
            EXPECT_EQ(printed::Types[slot.type].tag, PageStrings[0].TypeName.utf8_string());
        }
}

TEST_F(PageParametersTest, HaveNoFileAfterATargetIsSet) {
    PageStrings[0].FileName = "coast";
    PageStrings[0].FileDir = "/home/";
    SetPageParameters(MainFrame, 0, Krv214, 0);
    EXPECT_EQ("", PageStrings[0].FileName);
    EXPECT_EQ("", PageStrings[0].FileDir);
}

TEST_F(PageParametersTest, AcceptModesNarrowAndDigitalUntilTheRadioTells) {
    OpModes[0] = 0x40;
    OpModes[1] = 0x40;
    SetPageParameters(MainFrame, 0, Kdrv716, 0);
    EXPECT_EQ(0x30u, OpModes[0]);
    EXPECT_EQ(0x40u, OpModes[1]) << "another page's";
}

TEST_F(PageParametersTest, FlagsOfTheCurrentPageGoNotThoseOfThePageNamed) {
    PageParameters[0].Flags = 0x12;
    PageParameters[1].Flags = 0x08;
    SetPageParameters(MainFrame, 1, Krv214, 0);
    EXPECT_EQ(0, PageParameters[0].Flags);
    EXPECT_EQ(0x08, PageParameters[1].Flags);
    EXPECT_EQ(102, PageParameters[1].Rows);
    EXPECT_EQ(122, PageParameters[0].Rows) << "nothing else of the current page changes";
}

TEST_F(PageParametersTest, ClearTheZonesOfAP25Page) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        ZoneSlots.fill(5);
        SetPageParameters(MainFrame, 1, radio, 0);
        EXPECT_EQ(5, SlotsTaken(0, 31)) << "radio " << radio;
        for (int zone = 0; zone < 32; ++zone)
            EXPECT_EQ(0, SlotsTaken(1, zone)) << "radio " << radio << " zone " << zone;
    }
}

TEST_F(PageParametersTest, LeaveTheZonesAloneOnAnyOtherPage) {
    for (int radio : {Krv21, Orv12, Kdar2000, Kdrv4xxx}) {
        ZoneSlots.fill(5);
        SetPageParameters(MainFrame, 1, radio, 0);
        for (int32_t taken : ZoneSlots)
            ASSERT_EQ(5, taken) << "radio " << radio;
    }
}

TEST_F(PageParametersTest, SetTheGuardRowsOfEveryRadioAndBandSlot) {
    for (const printed::Radio& radio : printed::Radios)
        for (const printed::Slot& slot : radio.slots) {
            SetPageParameters(MainFrame, 0, radio.index, slot.slot);
            const bool guards = slot.rows == 102 || slot.rows == 122 || slot.rows == 202 ||
                                slot.rows == 232 || slot.rows == 502;
            EXPECT_EQ(guards ? slot.rows - 1 : -1, GD1) << radio.name << " " << slot.bandName;
            EXPECT_EQ(guards ? slot.rows : -1, GD2) << radio.name << " " << slot.bandName;
        }
}

TEST_F(PageParametersTest, OfANewPageSetTheGuardRowsForItEvenBeforeItIsCurrent) {
    SetPageParameters(MainFrame, 1, Krv610, 0);
    EXPECT_EQ(0, CurrentPage);
    EXPECT_EQ(201, GD1);
    EXPECT_EQ(202, GD2);
}
