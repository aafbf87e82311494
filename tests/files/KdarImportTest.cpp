// Importing lists of the KDAR-2000 into the page.
#include "tests/files/CsvImportTest.h"

using testbench::DialogScript;

namespace {

class KdarImport : public CsvImport {
protected:
    /// Imports the lines after their heading.
    int ImportLines(const std::string& lines, const std::string& banner = "KDAR-2000,,,,,") {
        return ImportKdar(banner + "\nMemory,Name,Receive,Transmit,Scan,Rx Only\n" + lines);
    }
};

} // namespace

TEST_F(KdarImport, PutsEachFieldIntoItsCell) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(ImportLines("1,TOWER,121500,122000,Yes,Yes,\n"), 1);
    const std::map<int, const char*> shown = {{MNUM, "001"},     {DESC, "TOWER"}, {RFRQ, "121.500"},
                                              {TFRQ, "122.000"}, {SCAN, "Y"},     {RONL, "Y"},
                                              {TFLG, "A0"}};
    for (const auto& [col, text] : shown)
        EXPECT_EQ(Text(1, col), text) << col;
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 1}));
}

TEST_F(KdarImport, FillsThePageFromItsFirstMemoryWhateverTheNumbers) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(ImportLines("7,A\nDEF,B\n007,C"), 3);
    for (const auto& [row, name] : {std::pair(1, "A"), {2, "B"}, {3, "C"}}) {
        EXPECT_EQ(Text(row, DESC), name);
        EXPECT_EQ(Text(row, MNUM), "00" + std::to_string(row));
    }
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 1, 2, 3}));
}

TEST_F(KdarImport, PassesLinesOverWithoutUsingUpARow) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(ImportLines("1,A\nx,B\n101,C\n-1,D\n2,E\n"), 2);
    ExpectTexts(1, {{DESC, "A"}});
    ExpectTexts(2, {{DESC, "E"}});
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 1, 2}));
}

TEST_F(KdarImport, OfALineWithoutANumberTakesTheRowsNumberAway) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(ImportLines(",A\n1,B\n"), 2);
    ExpectTexts(1, {{MNUM, ""}, {DESC, "A"}});
    ExpectTexts(2, {{MNUM, "002"}});
}

TEST_F(KdarImport, LosesLinesBehindTheLastRow) {
    EmptyPageOf("KDAR");
    EXPECT_EQ(ImportLines(Repeat("1,A\n", 130)), 100);
    EXPECT_EQ(Text(100, MNUM), "100");
}

TEST_F(KdarImport, PutsAPointBehindThreeDigitsWhereThereIsNone) {
    const struct {
        const char *receive, *transmit, *rfrq, *tfrq;
    } cases[] = {
        {"118000", "119000", "118.000", "119.000"},
        {"118.000", "119.000", "118.000", "119.000"},
        {"118000", "", "118.000", "118.000"},
        {"", "119000", "118.000", "119.000"},
        {"", "", "118.000", "138.000"},
        {" 118500 ", " ", "118.500", "118.500"},
        {"118", "12", "118.", "12"},
        {"99.5", "1185", "99.5", "118.5"},
        {"\"118,5\"", "n/a", "118.,5", "n/a."},
    };
    for (const auto& [receive, transmit, rfrq, tfrq] : cases) {
        EmptyPageOf("KDAR");
        ASSERT_EQ(ImportLines(std::string("1,A,") + receive + "," + transmit + ",No,No,"), 1);
        EXPECT_EQ(Text(1, RFRQ), rfrq) << receive << " / " << transmit;
        EXPECT_EQ(Text(1, TFRQ), tfrq) << receive << " / " << transmit;
    }
}

TEST_F(KdarImport, ReadsScanAndReceiveOnly) {
    const struct {
        const char *scan, *rxOnly, *scanCell, *ronl;
    } cases[] = {
        {"Yes", "Yes", "Y", "Y"}, {"No", "No", "N", "N"}, {"Y", "Y", "Y", "N"}, {"yes", "yes", "N", "N"},
        {"1", "1", "Y", "N"},     {"", "", "N", "N"},     {"x", "x", "N", "N"},
    };
    for (const auto& [scan, rxOnly, scanCell, ronl] : cases) {
        EmptyPageOf("KDAR");
        ASSERT_EQ(ImportLines(std::string("1,A,118000,118000,") + scan + "," + rxOnly), 1);
        EXPECT_EQ(Text(1, SCAN), scanCell) << scan;
        EXPECT_EQ(Text(1, RONL), ronl) << rxOnly;
    }
}

TEST_F(KdarImport, OfEmptyFieldsKeepsTheDefaultTexts) {
    EmptyPageOf("KDAR");
    SetCell(0, SCAN, "Y");
    SetCell(0, RONL, "Y");
    ASSERT_EQ(ImportLines("1,,,,,"), 1);
    std::vector<std::string> expected = RowTexts(0);
    expected[MNUM] = "001";
    expected[DESC] = "VHFAM001";
    EXPECT_EQ(RowTexts(1), expected);
}

TEST_F(KdarImport, OfAPurgeListMarksItsRowsForErasing) {
    const std::pair<const char*, const char*> cases[] = {
        {"KDAR-2000,Purge,,,,", "A2"}, {"KDAR-2000,,,,,", "A0"},   {"KDAR-2000", "A0"},
        {"KDAR-2000,purge", "A0"},     {"KDAR-2000,,Purge", "A0"}, {"KDAR-2000, \"Purge\" ,", "A2"},
    };
    for (const auto& [banner, flags] : cases) {
        EmptyPageOf("KDAR");
        ASSERT_EQ(ImportLines("1,A\n2,B", banner), 2);
        EXPECT_EQ(Text(1, TFLG), flags) << banner;
        EXPECT_EQ(Text(2, TFLG), flags) << banner;
    }
}

TEST_F(KdarImport, WithoutASecondLineSaysSoAndLeavesThePage) {
    EmptyPageOf("KDAR");
    for (const char* bytes : {"", "KDAR-2000,,,,,", "KDAR-2000,Purge,,,,\n\n,,,,,\n"}) {
        DialogScript script;
        ExpectErrorBox(script, "Import CSV", HeaderMissing);
        EXPECT_EQ(ImportKdar(bytes), 0) << bytes;
    }
    EXPECT_EQ(FilledRows(0), std::vector<int>{0});
}

TEST_F(KdarImport, TakesAnyLineForTheHeading) {
    EmptyPageOf("KDAR");
    EXPECT_EQ(ImportKdar("KDAR-2000,,,,,\n1,A,118000\n2,B,119000\n"), 1) << "a list without it loses a line";
    EXPECT_EQ(Text(1, DESC), "B");
}

TEST_F(KdarImport, FillsOnlyItsRows) {
    EmptyPageOf("KDAR");
    SetCell(9, DESC, "KEPT");
    Select({9});
    ASSERT_EQ(ImportLines("1,A"), 1);
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 1, 9}));
    EXPECT_EQ(Text(9, MNUM), "");
}
