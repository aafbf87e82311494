#include "catalogue/ColumnTables.h"

#include "catalogue/TextNumbers.h"
#include "tests/catalogue/PrintedColumns.h"
#include "tests/catalogue/PrintedRadios.h"

#include <gtest/gtest.h>

using namespace RadioCatalogue;

TEST(Columns, StandAtTheirPositionsUnderTheirTags) {
    ASSERT_EQ(32, ColumnTotal);
    for (const printed::ColumnLine& line : printed::Columns)
        EXPECT_STREQ(line.tag, ColumnTag[line.column]) << "column " << line.column;
}

TEST(Columns, AreNamedByTheirTags) {
    constexpr int columns[] = {MFLG, MNUM, PRIM, SHAD, BAND, SCAN, ZONE, DESC, MODE, RFRQ, RSQL,
                               RNSV, RTON, RCOD, RTGP, RNAC, TFRQ, TSQL, TTON, TCOD, TTGP, TNAC,
                               TIDC, SHD0, SHD1, SHD2, SHD3, SHD4, SHD5, SHD6, RONL, TFLG};
    for (int i = 0; i < 32; ++i)
        EXPECT_EQ(i, columns[i]) << printed::Columns[static_cast<size_t>(i)].tag;
}

TEST(Columns, HaveHeadingAndWidthOfEachType) {
    ASSERT_EQ(8u, ColumnHeading.size());
    ASSERT_EQ(8u, ColumnWidth.size());
    for (const printed::ColumnLine& line : printed::Columns)
        for (const printed::TypeLine& type : printed::Types) {
            SCOPED_TRACE(std::string(line.tag) + " of " + type.tag);
            const printed::Look& look = line.looks[type.type];
            EXPECT_STREQ(look.heading, ColumnHeading[type.type][static_cast<size_t>(line.column)]);
            EXPECT_EQ(look.width, ColumnWidth[type.type][static_cast<size_t>(line.column)]);
        }
}

TEST(DefaultRows, HoldAll32CellsOfEachRow) {
    ASSERT_EQ(11u, std::size(PageDefault));
    for (int row = 0; row < 11; ++row) {
        const auto texts = printed::DefaultRow(row);
        for (size_t col = 0; col < 32; ++col)
            EXPECT_STREQ(texts[col], PageDefault[row][col])
                << "row " << row << " " << printed::Columns[col].tag;
    }
}

TEST(MemoryFlags, HaveTheBitsOfTheRadioRecords) {
    EXPECT_EQ(0x007, ShadowIndexMask);
    EXPECT_EQ(0x008, ScanFlag);
    EXPECT_EQ(0x010, ShadowLinkFlag);
    EXPECT_EQ(0x017, LinkFlags);
    EXPECT_EQ(0x060, RadioFlags);
    EXPECT_EQ(0x080, GuardFlag);
    EXPECT_EQ(0x300, HighRadioFlags);
}

TEST(TransferFlags, HaveTheirBitsAndStartTexts) {
    EXPECT_EQ(0x80, DEF);
    EXPECT_EQ(0x40, InRadioFlag);
    EXPECT_EQ(0x20, MadeFlag);
    EXPECT_EQ(0x08, ZoneTakenFlag);
    EXPECT_EQ(0x04, MarkedFlag);
    EXPECT_EQ(0x02, EraseFlag);
    EXPECT_EQ(0x01, SEL);
    EXPECT_STREQ("A0", TflgMade);
    EXPECT_STREQ("C0", TflgRead);
}

TEST(TransferFlags, OfRowsMadeAndReadAreTheirStartTexts) {
    EXPECT_EQ(FlagText(DEF | MadeFlag), TflgMade);
    EXPECT_EQ(FlagText(DEF | InRadioFlag), TflgRead);
}

TEST(OperatingModes, HaveTheBitsOfTheRadiosAnswer) {
    EXPECT_EQ(0x40u, WideMode);
    EXPECT_EQ(0x20u, NarrowMode);
    EXPECT_EQ(0x10u, DigitalMode);
    EXPECT_EQ(0x70u, AllModes);
}
