// Lists of the KDAR-2000 into the page.
#include "tests/files/CsvImportTest.h"

using testbench::DialogKind;
using testbench::DialogScript;

namespace {

class KdarImport : public CsvImport {
protected:
    /// Imports the lines behind their heading.
    int ImportLines(const std::string& lines, const std::string& banner = "KDAR-2000,,,,,") {
        return ImportKdar(banner + "\nMemory,Name,Receive,Transmit,Scan,Rx Only\n" + lines);
    }
};

} // namespace

TEST_F(KdarImport, PutsEachFieldIntoItsCell) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(1, ImportLines("1,TOWER,121500,122000,Yes,Yes,\n"));
    const std::map<int, const char*> shown = {{MNUM, "001"},     {DESC, "TOWER"}, {RFRQ, "121.500"},
                                              {TFRQ, "122.000"}, {SCAN, "Y"},     {RONL, "Y"},
                                              {TFLG, "A0"}};
    for (const auto& [col, text] : shown)
        EXPECT_EQ(text, Text(1, col)) << col;
    EXPECT_EQ((std::vector<int>{0, 1}), FilledRows(0));
}

TEST_F(KdarImport, FillsThePageFromItsFirstMemoryWhateverTheNumbers) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(3, ImportLines("7,A\nDEF,B\n007,C"));
    for (const auto& [row, name] : {std::pair(1, "A"), {2, "B"}, {3, "C"}}) {
        EXPECT_EQ(name, Text(row, DESC));
        EXPECT_EQ("00" + std::to_string(row), Text(row, MNUM));
    }
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3}), FilledRows(0));
}

TEST_F(KdarImport, PassesLinesOverWithoutUsingUpARow) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(2, ImportLines("1,A\nx,B\n101,C\n-1,D\n2,E\n"));
    EXPECT_EQ("A", Text(1, DESC));
    EXPECT_EQ("E", Text(2, DESC));
    EXPECT_EQ((std::vector<int>{0, 1, 2}), FilledRows(0));
}

TEST_F(KdarImport, OfALineWithoutANumberTakesTheRowsNumberAway) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(2, ImportLines(",A\n1,B\n"));
    EXPECT_EQ("", Text(1, MNUM));
    EXPECT_EQ("A", Text(1, DESC));
    EXPECT_EQ("002", Text(2, MNUM));
}

TEST_F(KdarImport, LosesLinesBehindTheLastRow) {
    EmptyPageOf("KDAR");
    EXPECT_EQ(100, ImportLines(Repeat("1,A\n", 130)));
    EXPECT_EQ("100", Text(100, MNUM));
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
        ASSERT_EQ(1, ImportLines(std::string("1,A,") + receive + "," + transmit + ",No,No,"));
        EXPECT_EQ(rfrq, Text(1, RFRQ)) << receive << " / " << transmit;
        EXPECT_EQ(tfrq, Text(1, TFRQ)) << receive << " / " << transmit;
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
        ASSERT_EQ(1, ImportLines(std::string("1,A,118000,118000,") + scan + "," + rxOnly));
        EXPECT_EQ(scanCell, Text(1, SCAN)) << scan;
        EXPECT_EQ(ronl, Text(1, RONL)) << rxOnly;
    }
}

TEST_F(KdarImport, OfEmptyFieldsKeepsTheDefaultTexts) {
    EmptyPageOf("KDAR");
    SetCell(0, SCAN, "Y");
    SetCell(0, RONL, "Y");
    ASSERT_EQ(1, ImportLines("1,,,,,"));
    std::vector<std::string> expected = RowTexts(0);
    expected[MNUM] = "001";
    expected[DESC] = "VHFAM001";
    EXPECT_EQ(expected, RowTexts(1));
}

TEST_F(KdarImport, OfAPurgeListMarksItsRowsForErasing) {
    const std::pair<const char*, const char*> cases[] = {
        {"KDAR-2000,Purge,,,,", "A2"}, {"KDAR-2000,,,,,", "A0"},   {"KDAR-2000", "A0"},
        {"KDAR-2000,purge", "A0"},     {"KDAR-2000,,Purge", "A0"}, {"KDAR-2000, \"Purge\" ,", "A2"},
    };
    for (const auto& [banner, flags] : cases) {
        EmptyPageOf("KDAR");
        ASSERT_EQ(2, ImportLines("1,A\n2,B", banner));
        EXPECT_EQ(flags, Text(1, TFLG)) << banner;
        EXPECT_EQ(flags, Text(2, TFLG)) << banner;
    }
}

TEST_F(KdarImport, WithoutASecondLineSaysSoAndLeavesThePage) {
    EmptyPageOf("KDAR");
    for (const char* bytes : {"", "KDAR-2000,,,,,", "KDAR-2000,Purge,,,,\n\n,,,,,\n"}) {
        DialogScript script;
        script.Expect(DialogKind::Message, "Import CSV")
            .Message(HeaderMissing)
            .Style(wxOK | wxCENTRE | wxICON_ERROR);
        EXPECT_EQ(0, ImportKdar(bytes)) << bytes;
    }
    EXPECT_EQ(std::vector<int>{0}, FilledRows(0));
}

TEST_F(KdarImport, TakesAnyLineForTheHeading) {
    EmptyPageOf("KDAR");
    EXPECT_EQ(1, ImportKdar("KDAR-2000,,,,,\n1,A,118000\n2,B,119000\n")) << "a list without it loses a line";
    EXPECT_EQ("B", Text(1, DESC));
}

TEST_F(KdarImport, FillsOnlyItsRows) {
    EmptyPageOf("KDAR");
    SetCell(9, DESC, "KEPT");
    Select({9});
    ASSERT_EQ(1, ImportLines("1,A"));
    EXPECT_EQ((std::vector<int>{0, 1, 9}), FilledRows(0));
    EXPECT_EQ("", Text(9, MNUM));
}
