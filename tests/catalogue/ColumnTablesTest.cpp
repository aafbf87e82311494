#include "catalogue/ColumnTables.h"

#include "catalogue/TextNumbers.h"
#include "tests/catalogue/PrintedColumns.h"
#include "tests/catalogue/PrintedRadios.h"

#include <gtest/gtest.h>

using namespace RadioCatalogue;

TEST(Columns, StandAtTheirPositionsUnderTheirTags) {
    ASSERT_EQ(ColumnTotal, 32);
    for (const printed::ColumnLine& line : printed::Columns)
        EXPECT_STREQ(ColumnTag[line.column], line.tag) << "column " << line.column;
}

TEST(Columns, AreNamedByTheirTags) {
    constexpr int columns[] = {MFLG, MNUM, PRIM, SHAD, BAND, SCAN, ZONE, DESC, MODE, RFRQ, RSQL,
                               RNSV, RTON, RCOD, RTGP, RNAC, TFRQ, TSQL, TTON, TCOD, TTGP, TNAC,
                               TIDC, SHD0, SHD1, SHD2, SHD3, SHD4, SHD5, SHD6, RONL, TFLG};
    for (int i = 0; i < 32; ++i)
        EXPECT_EQ(columns[i], i) << printed::Columns[static_cast<size_t>(i)].tag;
}

TEST(Columns, HaveHeadingAndWidthOfEachType) {
    ASSERT_EQ(ColumnHeading.size(), 8u);
    ASSERT_EQ(ColumnWidth.size(), 8u);
    for (const printed::ColumnLine& line : printed::Columns)
        for (const printed::TypeLine& type : printed::Types) {
            SCOPED_TRACE(std::string(line.tag) + " of " + type.tag);
            const printed::Look& look = line.looks[type.type];
            EXPECT_STREQ(ColumnHeading[type.type][line.column], look.heading);
            EXPECT_EQ(ColumnWidth[type.type][line.column], look.width);
        }
}

TEST(DefaultRows, HoldAll32CellsOfEachRow) {
    ASSERT_EQ(std::size(PageDefault), 11u);
    for (int row = 0; row < 11; ++row) {
        const auto texts = printed::DefaultRow(row);
        ASSERT_EQ(texts.size(), 32u);
        int col = 0;
        for (const char* text : texts) {
            EXPECT_STREQ(PageDefault[row][col], text) << "row " << row << " " << ColumnTag[col];
            ++col;
        }
    }
}

TEST(MemoryFlags, HaveTheBitsOfTheRadioRecords) {
    EXPECT_EQ(ShadowIndexMask, 0x007);
    EXPECT_EQ(ScanFlag, 0x008);
    EXPECT_EQ(ShadowLinkFlag, 0x010);
    EXPECT_EQ(LinkFlags, 0x017);
    EXPECT_EQ(RadioFlags, 0x060);
    EXPECT_EQ(GuardFlag, 0x080);
    EXPECT_EQ(HighRadioFlags, 0x300);
}

TEST(TransferFlags, HaveTheirBitsAndStartTexts) {
    EXPECT_EQ(DEF, 0x80);
    EXPECT_EQ(InRadioFlag, 0x40);
    EXPECT_EQ(MadeFlag, 0x20);
    EXPECT_EQ(ZoneTakenFlag, 0x08);
    EXPECT_EQ(MarkedFlag, 0x04);
    EXPECT_EQ(EraseFlag, 0x02);
    EXPECT_EQ(SEL, 0x01);
    EXPECT_STREQ(TflgMade, "A0");
    EXPECT_STREQ(TflgRead, "C0");
}

TEST(TransferFlags, OfRowsMadeAndReadAreTheirStartTexts) {
    EXPECT_EQ(TflgMade, FlagText(DEF | MadeFlag));
    EXPECT_EQ(TflgRead, FlagText(DEF | InRadioFlag));
}

TEST(OperatingModes, HaveTheBitsOfTheRadiosAnswer) {
    EXPECT_EQ(WideMode, 0x40u);
    EXPECT_EQ(NarrowMode, 0x20u);
    EXPECT_EQ(DigitalMode, 0x10u);
    EXPECT_EQ(AllModes, 0x70u);
}
