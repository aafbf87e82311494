#include "catalogue/RadioCatalogue.h"

#include "tests/catalogue/PrintedRadios.h"

#include <gtest/gtest.h>

#include <utility>

using namespace RadioCatalogue;

TEST(RadioTable, HoldsEachRadioUnderItsNameAndLabel) {
    ASSERT_EQ(18, RadioTotal);
    ASSERT_EQ(18u, printed::Radios.size());
    for (const printed::Radio& radio : printed::Radios) {
        EXPECT_STREQ(radio.name, RadioName[radio.index]) << "radio " << radio.index;
        EXPECT_STREQ(radio.label, RadioLabel[radio.index]) << "radio " << radio.index;
    }
}

TEST(RadioTable, GivesEachBandSlotItsBandAndRows) {
    ASSERT_EQ(6, BandSlotTotal);
    for (const printed::Radio& radio : printed::Radios)
        for (const printed::Slot& slot : radio.slots) {
            SCOPED_TRACE(std::string(radio.name) + " slot " + std::to_string(slot.slot));
            const int band = RadioBands[radio.index][slot.slot];
            ASSERT_EQ(slot.band, band);
            EXPECT_STREQ(slot.bandName, BandName[band]);
            EXPECT_EQ(slot.rows, RadioRows[radio.index][slot.slot]);
        }
}

TEST(RadioTable, LeavesTheSlotsBehindTheLastBandEmpty) {
    for (const printed::Radio& radio : printed::Radios)
        for (int slot = static_cast<int>(radio.slots.size()); slot < 6; ++slot) {
            EXPECT_EQ(-1, RadioBands[radio.index][slot]) << radio.name << " slot " << slot;
            EXPECT_EQ(0, RadioRows[radio.index][slot]) << radio.name << " slot " << slot;
        }
}

TEST(RadioTable, GivesEachBandSlotItsTypeAndStep) {
    for (const printed::Radio& radio : printed::Radios)
        for (const printed::Slot& slot : radio.slots) {
            SCOPED_TRACE(std::string(radio.name) + " band " + slot.bandName);
            EXPECT_EQ(slot.type, GetRadioType(radio.index, slot.band));
            EXPECT_EQ(slot.step, GetChannelStep(radio.index, slot.band));
        }
}

TEST(BandTable, HoldsNamesLimitsAndStartFrequencies) {
    ASSERT_EQ(9, BandTotal);
    for (const printed::Band& band : printed::Bands) {
        SCOPED_TRACE(band.name);
        EXPECT_STREQ(band.name, BandName[band.id]);
        EXPECT_EQ(band.low, BandLimit[band.id][0]);
        EXPECT_EQ(band.high, BandLimit[band.id][1]);
        EXPECT_STREQ(band.start, BandStart[band.id]);
    }
}

TEST(TypeTable, HoldsTagsAndColumnCounts) {
    ASSERT_EQ(8, TypeTotal);
    for (const printed::TypeLine& line : printed::Types) {
        EXPECT_STREQ(line.tag, RadioTypeName[line.type]);
        EXPECT_EQ(line.columns, ColumnCount[line.type]) << line.tag;
    }
}

TEST(TypeTable, NumbersTheTypesInTheirOrder) {
    EXPECT_EQ(0, ANFM);
    EXPECT_EQ(1, RP25);
    EXPECT_EQ(2, NP25);
    EXPECT_EQ(3, MDLX);
    EXPECT_EQ(4, O12);
    EXPECT_EQ(5, KDAR);
    EXPECT_EQ(6, ANAM);
    EXPECT_EQ(7, FXAM);
}

TEST(RadioIndices, AreThePositionsOfTheirNames) {
    constexpr std::pair<RadioIndex, const char*> indices[] = {
        {Krv21, "KRV-21"},          {Krv47, "KRV-47"},       {Orv12, "ORV-12"},     {Krv214, "KRV-214"},
        {Krv214B, "KRV-214B"},      {Krv305, "KRV-305"},     {Kdrv716, "KDRV-716"}, {Kdrv716B, "KDRV-716B"},
        {Kdar2000, "KDAR-2000"},    {Krv610, "KRV-610"},     {Krv620, "KRV-620"},   {Krv630, "KRV-630"},
        {Krv630Qnt, "KRV-630_QNT"}, {Krv650, "KRV-650"},     {Krv656, "KRV-656"},   {Krv666, "KRV-666"},
        {Kdrv8400, "KDRV-8400"},    {Kdrv4xxx, "KDRV-4xxx"},
    };
    ASSERT_EQ(18u, std::size(indices));
    for (int i = 0; i < 18; ++i) {
        EXPECT_EQ(i, indices[i].first) << indices[i].second;
        EXPECT_STREQ(indices[i].second, RadioName[i]);
    }
}

TEST(BandIds, AreThePositionsOfTheirNames) {
    constexpr std::pair<BandId, const char*> ids[] = {
        {Fm30To50, "FM 30-50"},     {Fm66To88, "FM 66-88"},     {Am108To138, "AM 108-138"},
        {Am118To138, "AM 118-138"}, {Fm136To174, "FM 136-174"}, {Fm138To174, "FM 138-174"},
        {Am225To400, "AM 225-400"}, {Fm403To512, "FM 403-512"}, {K6Module, "K6 3-BAND"},
    };
    ASSERT_EQ(9u, std::size(ids));
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(i, ids[i].first) << ids[i].second;
        EXPECT_STREQ(ids[i].second, BandName[i]);
    }
    EXPECT_EQ(9, K7Module) << "one past the tables";
}

TEST(BandIds, OfTheFirstModuleAreThree) {
    for (int band = -1; band <= 9; ++band)
        EXPECT_EQ(band == 0 || band == 2 || band == 6, IsK6Band(band)) << band;
}

TEST(BandChoice, BelongsToRadios9To17) {
    for (int radio = -1; radio <= 20; ++radio)
        EXPECT_EQ(radio >= 9 && radio <= 17, HasBandChoice(radio)) << radio;
}

TEST(MemoryCounts, AreThoseOfBothP25Generations) {
    EXPECT_EQ(230, RP25Memories);
    EXPECT_EQ(500, NP25Memories);
    EXPECT_EQ(2, GuardRowTotal);
    EXPECT_EQ(270, NP25GuardShift);
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
    ASSERT_EQ(20u, std::size(AnalogRadioCode));
    for (size_t i = 0; i < std::size(codes); ++i)
        EXPECT_EQ(codes[i], AnalogRadioCode[i]) << "entry " << i;
}
