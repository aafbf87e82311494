// Comma-separated lists as written by programs and users, imported by menu and dialogs.
#include "tests/files/ImportTest.h"

namespace {

class CsvSamples : public ImportTest {
protected:
    /// Imports a sample into an empty page and expects the report.
    void ImportSample(const std::string& name, const std::string& box) {
        testbench::WriteFile(m_folder / name, SampleFile(name));
        ImportByMenu(name, box);
    }

    void ExpectNoPaint() {
        for (int row : FilledRows(0))
            for (int col = 0; col < ColumnTotal; ++col)
                EXPECT_FALSE(IsPainted(row, col)) << row << ' ' << ColumnTag[col];
    }
};

class DigitalCsvSamples : public CsvSamples {
protected:
    void SetUp() override {
        CsvSamples::SetUp();
        RetargetTo("RP25");
    }
};

} // namespace

TEST_F(DigitalCsvSamples, OfAllColumnsFillThePage) {
    ImportSample("kdrv-716.csv", "Imported 36 Lines from CSV file.");
    // The default row and 35 memories.
    EXPECT_EQ(FilledRows(0).size(), 36u);
    ExpectCells(0, {{MNUM, "000"}, {SCAN, "Y"}, {DESC, "VCALL10"}, {RFRQ, "155.7525"}});
    ExpectCells(1,
                {{MFLG, "0"},    {MNUM, "001"},      {PRIM, "001"},     {SHAD, "N"},     {BAND, "FM 136-174"},
                 {SCAN, "Y"},    {ZONE, "1"},        {DESC, "VCALL10"}, {MODE, "n"},     {RFRQ, "155.7525"},
                 {RSQL, "t"},    {RNSV, ""},         {RTON, "156.7"},   {RCOD, "023"},   {RTGP, "0001"},
                 {RNAC, "293"},  {TFRQ, "155.7525"}, {TSQL, "t"},       {TTON, "156.7"}, {TCOD, "023"},
                 {TTGP, "0001"}, {TNAC, "293"},      {TIDC, "1"},       {RONL, ""},      {TFLG, "A0"}});
    ExpectCells(32, {{DESC, "P25 RPT"},
                     {MODE, "D"},
                     {RFRQ, "154.9500"},
                     {TFRQ, "159.0300"},
                     {RSQL, "n"},
                     {TSQL, "g"},
                     {RTGP, "2711"},
                     {RNAC, "68A"},
                     {TTGP, "2711"},
                     {TNAC, "68A"},
                     {ZONE, "2"}});
    ExpectCells(231, {{MNUM, "231"}, {DESC, "VCALL10"}, {ZONE, "16"}, {SCAN, "Y"}});
    ExpectCells(232, {{MNUM, "232"}, {DESC, "AIRGUARD"}, {ZONE, "16"}, {RFRQ, "168.6250"}});
    EXPECT_EQ(TakenSlots(), 35);
    ExpectNoPaint();
}

TEST_F(DigitalCsvSamples, WithLowerCaseHeadingsInAnyOrderAndColumnsMissing) {
    ImportSample("kdrv-716-lower-case-any-order-crlf.csv", "Imported 35 Lines from CSV file.");
    ExpectCells(1, {{MNUM, "001"},
                    {SCAN, "N"},
                    {ZONE, "1"},
                    {DESC, "VCALL10"},
                    {MODE, "n"},
                    {RFRQ, "155.7525"},
                    {RSQL, "t"},
                    {RTON, "156.7"},
                    {RCOD, "023"},
                    {TFRQ, "155.7525"},
                    {TSQL, ""},
                    {TTON, "156.7"},
                    {TCOD, "023"},
                    {TTGP, "0001"},
                    {TNAC, "293"},
                    {TIDC, "00000001"}});
    ExpectCells(6, {{RFRQ, "151.1375"}, {TFRQ, "159.4725"}, {RSQL, "x"}, {RTON, "67.0"}, {TTON, "136.5"}});
    ExpectCells(232, {{DESC, "AIRGUARD"}, {SCAN, "N"}});
    ExpectNoPaint();
}

TEST_F(DigitalCsvSamples, WithQuotesAnywhereAndDoubledOnes) {
    ImportSample("kdrv-716-quotes-cr.csv", "Imported 35 Lines from CSV file.");
    for (const auto& [row, name] :
         {std::pair(1, "VCALL10"), {2, "VTAC11"}, {3, "\"VTAC12\""}, {4, "VTAC13, "}})
        ExpectCells(row, {{DESC, name}, {MODE, "n"}, {TNAC, "293"}, {TIDC, "1"}});
    EXPECT_EQ(FilledRows(0).size(), 36u);
    ExpectNoPaint();
}

TEST_F(DigitalCsvSamples, OfMoreThanTwentyColumnsLoseThoseBehindTheTwentieth) {
    ImportSample("kdrv-716-many-columns.csv", "Imported 35 Lines from CSV file.");
    ExpectCells(1, {{MNUM, "001"}, {DESC, "VHF  001"}, {RFRQ, "155.7525"}, {RSQL, "x"}, {TSQL, "x"}});
    ExpectCells(32, {{MNUM, "032"}, {DESC, "VHF  032"}, {MODE, "D"}, {TTGP, "2711"}});
    EXPECT_EQ(FilledRows(0).size(), 36u);
}

TEST_F(DigitalCsvSamples, WithBlankLinesAndALastOneWithoutAnEnd) {
    ImportSample("kdrv-716-blank-lines-no-last-end.csv", "Imported 36 Lines from CSV file.");
    ExpectCells(5, {{DESC, "VTAC14"}, {TIDC, "1"}});
    ExpectCells(232, {{DESC, "AIRGUARD"}, {TIDC, "1"}});
    EXPECT_EQ(FilledRows(0).size(), 36u);
}

TEST_F(DigitalCsvSamples, WithNamesThatTheRadioCannotShow) {
    for (const char* name : {"kdrv-716-towns-latin1.csv", "kdrv-716-towns-utf8.csv"}) {
        SCOPED_TRACE(name);
        ImportSample(name, "Imported 35 Lines from CSV file.");
        for (const auto& [row, town] : {std::pair(1, "M NCHEN"), {2, " RE"}, {3, "GEN VE"}, {4, "VTAC13"}})
            ExpectCells(row, {{DESC, town}, {MODE, "n"}});
    }
}

TEST_F(DigitalCsvSamples, OfASpreadsheetWithSemicolonsAreOfNoKind) {
    SetCell(5, DESC, "FORMER");
    ImportSample("kdrv-716-semicolons.csv", "Error: Unknown File Type.");
    EXPECT_EQ(FilledRows(0), Rows({0}));
}

TEST_F(CsvSamples, OfAnAnalogRadioFillThePage) {
    Retarget(Krv630, 1);
    ImportSample("krv-630-vhf.csv", "Imported 30 Lines from CSV file.");
    ExpectCells(1, {{MNUM, "001"},
                    {SCAN, "1"},
                    {ZONE, ""},
                    {DESC, "VCALL10"},
                    {MODE, "N"},
                    {RFRQ, "155.7525"},
                    {RTON, "156.7"},
                    {RCOD, "OFF"},
                    {TFRQ, "155.7525"},
                    {TTON, "156.7"},
                    {TCOD, "023"},
                    {TFLG, "A0"}});
    ExpectCells(6, {{SCAN, "0"}, {RTON, "67.0"}, {TTON, "136.5"}, {TFRQ, "159.4725"}});
    EXPECT_EQ(FilledRows(0).size(), 31u);
    ExpectNoPaint();
}

TEST_F(CsvSamples, OfTheKdarDialectFillThePageFromItsFirstMemory) {
    RetargetTo("KDAR");
    for (const auto& [name, flags] : {std::pair("kdar-2000.csv", "A0"), {"kdar-2000-purge-crlf.csv", "A2"}}) {
        SCOPED_TRACE(name);
        ImportSample(name, "Imported 7 Lines from KDAR file.");
        ExpectCells(1, {{MNUM, "001"},
                        {DESC, "GUARD"},
                        {RFRQ, "121.500"},
                        {TFRQ, "121.500"},
                        {SCAN, "Y"},
                        {RONL, "N"},
                        {TFLG, flags}});
        ExpectCells(7, {{MNUM, "007"},
                        {DESC, "VOR"},
                        {RFRQ, "113.300"},
                        {TFRQ, "113.300"},
                        {SCAN, "N"},
                        {RONL, "Y"},
                        {TFLG, flags}});
        EXPECT_EQ(FilledRows(0).size(), 8u);
    }
}

TEST_F(CsvSamples, OfTheKdarDialectKeepTheirNames) {
    RetargetTo("KDAR");
    for (const char* name : {"kdar-2000-towns-latin1-cr.csv", "kdar-2000-towns-utf8.csv"}) {
        SCOPED_TRACE(name);
        ImportSample(name, "Imported 7 Lines from KDAR file.");
        ExpectCells(1, {{DESC, "M\xC3\x9CNCHEN"}, {RFRQ, "121.500"}});
        ExpectCells(2, {{DESC, "\xC3\x85RE"}});
        ExpectCells(3, {{DESC, "GEN\xC3\x88VE"}});
        ExpectCells(7, {{DESC, "VOR"}, {RONL, "Y"}});
    }
}
