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
            EXPECT_EQ(parameters.Radio, radio.index);
            EXPECT_EQ(parameters.BandIndex, slot.slot);
            EXPECT_EQ(parameters.Band, slot.band);
            EXPECT_EQ(parameters.Rows, slot.rows);
            EXPECT_EQ(parameters.Type, slot.type);
            EXPECT_EQ(parameters.Cols, printed::Types[slot.type].columns);
            EXPECT_EQ(PageStrings[0].RadioName.utf8_string(), radio.name);
            EXPECT_EQ(PageStrings[0].BandName.utf8_string(), slot.bandName);
            EXPECT_EQ(PageStrings[0].TypeName.utf8_string(), printed::Types[slot.type].tag);
        }
}

TEST_F(PageParametersTest, HaveNoFileAfterATargetIsSet) {
    PageStrings[0].FileName = "coast";
    PageStrings[0].FileDir = "/home/";
    SetPageParameters(MainFrame, 0, Krv214, 0);
    EXPECT_EQ(PageStrings[0].FileName, "");
    EXPECT_EQ(PageStrings[0].FileDir, "");
}

TEST_F(PageParametersTest, AcceptModesNarrowAndDigitalUntilTheRadioTells) {
    OpModes[0] = 0x40;
    OpModes[1] = 0x40;
    SetPageParameters(MainFrame, 0, Kdrv716, 0);
    EXPECT_EQ(OpModes[0], 0x30u);
    EXPECT_EQ(OpModes[1], 0x40u) << "another page's";
}

TEST_F(PageParametersTest, FlagsOfTheCurrentPageGoNotThoseOfThePageNamed) {
    PageParameters[0].Flags = 0x12;
    PageParameters[1].Flags = 0x08;
    SetPageParameters(MainFrame, 1, Krv214, 0);
    EXPECT_EQ(PageParameters[0].Flags, 0);
    EXPECT_EQ(PageParameters[1].Flags, 0x08);
    EXPECT_EQ(PageParameters[1].Rows, 102);
    EXPECT_EQ(PageParameters[0].Rows, 122) << "nothing else of the current page changes";
}

TEST_F(PageParametersTest, ClearTheZonesOfAP25Page) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        ZoneSlots.fill(5);
        SetPageParameters(MainFrame, 1, radio, 0);
        EXPECT_EQ(SlotsTaken(0, 31), 5) << "radio " << radio;
        for (int zone = 0; zone < 32; ++zone)
            EXPECT_EQ(SlotsTaken(1, zone), 0) << "radio " << radio << " zone " << zone;
    }
}

TEST_F(PageParametersTest, LeaveTheZonesAloneOnAnyOtherPage) {
    for (int radio : {Krv21, Orv12, Kdar2000, Kdrv4xxx}) {
        ZoneSlots.fill(5);
        SetPageParameters(MainFrame, 1, radio, 0);
        for (int32_t taken : ZoneSlots)
            ASSERT_EQ(taken, 5) << "radio " << radio;
    }
}

TEST_F(PageParametersTest, SetTheGuardRowsOfEveryRadioAndBandSlot) {
    for (const printed::Radio& radio : printed::Radios)
        for (const printed::Slot& slot : radio.slots) {
            SetPageParameters(MainFrame, 0, radio.index, slot.slot);
            const bool guards = slot.rows == 102 || slot.rows == 122 || slot.rows == 202 ||
                                slot.rows == 232 || slot.rows == 502;
            EXPECT_EQ(GD1, guards ? slot.rows - 1 : -1) << radio.name << " " << slot.bandName;
            EXPECT_EQ(GD2, guards ? slot.rows : -1) << radio.name << " " << slot.bandName;
        }
}

TEST_F(PageParametersTest, OfANewPageSetTheGuardRowsForItEvenBeforeItIsCurrent) {
    SetPageParameters(MainFrame, 1, Krv610, 0);
    EXPECT_EQ(CurrentPage, 0);
    EXPECT_EQ(GD1, 201);
    EXPECT_EQ(GD2, 202);
}
