#include "catalogue/RadioCatalogue.h"
#include "tests/catalogue/PrintedRadios.h"

#include <gtest/gtest.h>

#include <utility>

using namespace RadioCatalogue;

TEST(RadioTable, HoldsEachRadioUnderItsNameAndLabel) {
    ASSERT_EQ(RadioTotal, 18);
    ASSERT_EQ(printed::Radios.size(), 18u);
    for (const printed::Radio& radio : printed::Radios) {
        EXPECT_STREQ(RadioName[radio.index], radio.name) << "radio " << radio.index;
        EXPECT_STREQ(RadioLabel[radio.index], radio.label) << "radio " << radio.index;
    }
}

TEST(RadioTable, GivesEachBandSlotItsBandAndRows) {
    ASSERT_EQ(BandSlotTotal, 6);
    for (const printed::Radio& radio : printed::Radios)
        for (const printed::Slot& slot : radio.slots) {
            SCOPED_TRACE(std::string(radio.name) + " slot " + std::to_string(slot.slot));
            const int band = RadioBands[radio.index][slot.slot];
            ASSERT_EQ(band, slot.band);
            EXPECT_STREQ(BandName[band], slot.bandName);
            EXPECT_EQ(RadioRows[radio.index][slot.slot], slot.rows);
        }
}

TEST(RadioTable, LeavesTheSlotsBehindTheLastBandEmpty) {
    for (const printed::Radio& radio : printed::Radios)
        for (int slot = static_cast<int>(radio.slots.size()); slot < 6; ++slot) {
            EXPECT_EQ(RadioBands[radio.index][slot], -1) << radio.name << " slot " << slot;
            EXPECT_EQ(RadioRows[radio.index][slot], 0) << radio.name << " slot " << slot;
        }
}

TEST(RadioTable, GivesEachBandSlotItsTypeAndStep) {
    for (const printed::Radio& radio : printed::Radios)
        for (const printed::Slot& slot : radio.slots) {
            SCOPED_TRACE(std::string(radio.name) + " band " + slot.bandName);
            EXPECT_EQ(GetRadioType(radio.index, slot.band), slot.type);
            EXPECT_EQ(GetChannelStep(radio.index, slot.band), slot.step);
        }
}

TEST(BandTable, HoldsNamesLimitsAndStartFrequencies) {
    ASSERT_EQ(BandTotal, 9);
    for (const printed::Band& band : printed::Bands) {
        SCOPED_TRACE(band.name);
        EXPECT_STREQ(BandName[band.id], band.name);
        EXPECT_EQ(BandLimit[band.id][0], band.low);
        EXPECT_EQ(BandLimit[band.id][1], band.high);
        EXPECT_STREQ(BandStart[band.id], band.start);
    }
}

TEST(TypeTable, HoldsTagsAndColumnCounts) {
    ASSERT_EQ(TypeTotal, 8);
    for (const printed::TypeLine& line : printed::Types) {
        EXPECT_STREQ(RadioTypeName[line.type], line.tag);
        EXPECT_EQ(ColumnCount[line.type], line.columns) << line.tag;
    }
}

TEST(TypeTable, NumbersTheTypesInTheirOrder) {
    EXPECT_EQ(ANFM, 0);
    EXPECT_EQ(RP25, 1);
    EXPECT_EQ(NP25, 2);
    EXPECT_EQ(MDLX, 3);
    EXPECT_EQ(O12, 4);
    EXPECT_EQ(KDAR, 5);
    EXPECT_EQ(ANAM, 6);
    EXPECT_EQ(FXAM, 7);
}

TEST(RadioIndices, AreThePositionsOfTheirNames) {
    constexpr std::pair<RadioIndex, const char*> indices[] = {
        {Krv21, "KRV-21"},          {Krv47, "KRV-47"},       {Orv12, "ORV-12"},     {Krv214, "KRV-214"},
        {Krv214B, "KRV-214B"},      {Krv305, "KRV-305"},     {Kdrv716, "KDRV-716"}, {Kdrv716B, "KDRV-716B"},
        {Kdar2000, "KDAR-2000"},    {Krv610, "KRV-610"},     {Krv620, "KRV-620"},   {Krv630, "KRV-630"},
        {Krv630Qnt, "KRV-630_QNT"}, {Krv650, "KRV-650"},     {Krv656, "KRV-656"},   {Krv666, "KRV-666"},
        {Kdrv8400, "KDRV-8400"},    {Kdrv4xxx, "KDRV-4xxx"},
    };
    ASSERT_EQ(std::size(indices), 18u);
    for (int i = 0; i < 18; ++i) {
        EXPECT_EQ(indices[i].first, i) << indices[i].second;
        EXPECT_STREQ(RadioName[i], indices[i].second);
    }
}

TEST(BandIds, AreThePositionsOfTheirNames) {
    constexpr std::pair<BandId, const char*> ids[] = {
        {Fm30To50, "FM 30-50"},     {Fm66To88, "FM 66-88"},     {Am108To138, "AM 108-138"},
        {Am118To138, "AM 118-138"}, {Fm136To174, "FM 136-174"}, {Fm138To174, "FM 138-174"},
        {Am225To400, "AM 225-400"}, {Fm403To512, "FM 403-512"}, {K6Module, "K6 3-BAND"},
    };
    ASSERT_EQ(std::size(ids), 9u);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(ids[i].first, i) << ids[i].second;
        EXPECT_STREQ(BandName[i], ids[i].second);
    }
    EXPECT_EQ(K7Module, 9) << "one past the tables";
}

TEST(BandIds, OfTheFirstModuleAreThree) {
    for (int band = -1; band <= 9; ++band)
        EXPECT_EQ(IsK6Band(band), band == 0 || band == 2 || band == 6) << band;
}

TEST(BandChoice, BelongsToRadios9To17) {
    for (int radio = -1; radio <= 20; ++radio)
        EXPECT_EQ(HasBandChoice(radio), radio >= 9 && radio <= 17) << radio;
}

TEST(MemoryCounts, AreThoseOfBothP25Generations) {
    EXPECT_EQ(RP25Memories, 230);
    EXPECT_EQ(NP25Memories, 500);
    EXPECT_EQ(GuardRowTotal, 2);
    EXPECT_EQ(NP25GuardShift, 270);
}

TEST(AnalogRadioCodes, AreThoseOfTheRadios) {
    constexpr unsigned codes[] = {
        0x0028027A, // 0
        0x004D027A, // 1
        0x00760006, // 2
        0x009B0466, // 3
        0x009B017A, // 4
        0x01C2037A, // 5
        0x008D0000, // 6
        0x008D0000, // 7
        0x00760064, // 8
        0x009B00CA, // 9
        0x009B00C8, // 10
        0x009B00CA, // 11
        0x009B00C8, // 12
        0x009B00C8, // 13
        0x009B00C8, // 14
        0x009B00CA, // 15
        0x008000C8, // 16
        0x00800000, // 17
        0x00800A00, // 18
        0x00800A00, // 19
    };
    ASSERT_EQ(std::size(AnalogRadioCode), 20u);
    for (size_t i = 0; i < std::size(codes); ++i)
        EXPECT_EQ(AnalogRadioCode[i], codes[i]) << "entry " << i;
}
