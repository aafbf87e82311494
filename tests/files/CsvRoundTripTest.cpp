// Export followed by import returns everything except what the dialects can't hold.
#include "editing/PageReset.h"
#include "tests/files/CsvTest.h"

namespace {

class CsvRoundTrip : public CsvTest {
protected:
    /// A cell that comes back with a different text.
    struct Difference {
        int row, col;
        std::string before, after;
        const char* why;
        bool operator==(const Difference& other) const {
            return row == other.row && col == other.col && before == other.before && after == other.after;
        }
    };

    /// Texts of all rows of the page.
    static std::vector<std::vector<std::string>> PageTexts() {
        std::vector<std::vector<std::string>> texts;
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            texts.push_back(RowTexts(row));
        return texts;
    }

    /// Exports the rows and imports the list, both by menu and dialogs, and returns the differences. A list
    /// too narrow to be recognised is imported directly.
    std::vector<Difference> ThereAndBack(std::initializer_list<int> rows) {
        const auto before = PageTexts();
        Select(rows);
        const std::string bytes = Export("list.csv");
        const int type = CurrentParameters().Type;
        if (type == RadioCatalogue::O12) {
            ResetPage(CurrentPage);
            EmptyDefaultMemories(CurrentPage);
            EXPECT_EQ(Import(bytes), static_cast<int>(rows.size()));
        } else {
            ImportByMenu("list.csv", "Imported " + std::to_string(rows.size()) + " Lines from " +
                                         (type == RadioCatalogue::KDAR ? "KDAR" : "CSV") + " file.");
        }
        std::vector<Difference> differences;
        const auto after = PageTexts();
        for (size_t row = 0; row < after.size(); ++row)
            for (size_t col = 0; col < ColumnTotal; ++col)
                if (after[row][col] != before[row][col])
                    differences.push_back({static_cast<int>(row), static_cast<int>(col), before[row][col],
                                           after[row][col], ""});
        return differences;
    }

    static bool Holds(const std::vector<Difference>& list, const Difference& difference) {
        return std::find(list.begin(), list.end(), difference) != list.end();
    }

    /// Expects differences in exactly these cells.
    void ExpectDifferences(std::initializer_list<int> rows, const std::vector<Difference>& expected) {
        const std::vector<Difference> found = ThereAndBack(rows);
        for (const Difference& d : found)
            EXPECT_TRUE(Holds(expected, d)) << "{" << d.row << ", " << ColumnTag[d.col] << ", \"" << d.before
                                            << "\", \"" << d.after << "\"} is not reported";
        for (const Difference& d : expected)
            EXPECT_TRUE(Holds(found, d)) << "{" << d.row << ", " << ColumnTag[d.col] << ", \"" << d.before
                                         << "\", \"" << d.after << "\"} doesn't come: " << d.why;
    }

    /// Fills a row with a memory as the program does, then sets these cells.
    static void MakeRow(int row, const std::vector<std::pair<int, const char*>>& cells) {
        FillRowsFromDefault({row});
        SetCells(row, cells);
    }
};

constexpr const char* OtherList = "tones are looked up in the list of the other kind of page";
constexpr const char* GuardRow = "guard rows have no receive tone and code";
constexpr const char* NoScan = "guard rows take the default row's scan mark";
constexpr const char* NoMode = "rows of an AM band have no mode once their editors are set";
constexpr const char* Crossed = "talk group and NAC of the receive side are crossed";
constexpr const char* NoFlag = "the row's slot is counted without its flag";
constexpr const char* NoLinks = "lists know no primaries and shadows";
constexpr const char* NoTones = "the radio has no tones";
constexpr const char* InOrder = "the lines go to the first rows";

} // namespace

TEST_F(CsvRoundTrip, OfAnAnalogPage) {
    EmptyPageOf("ANFM");
    MakeRow(5, {{SCAN, "7"},
                {DESC, "TOWER 1"},
                {MODE, "W"},
                {RFRQ, "150.0000"},
                {RTON, "100.0"},
                {RCOD, "025"},
                {TFRQ, "151.1250"},
                {TTON, "71.9"},
                {TCOD, "OFF"}});
    MakeRow(6, {{RTON, "150.0"}});
    MakeRow(101, {});
    MakeRow(102, {{RTON, "n/a"}, {RCOD, "n/a"}});
    ExpectDifferences({5, 6, 101, 102}, {
                                            {6, RTON, "150.0", "OFF", OtherList},
                                            {101, RTON, "OFF", "n/a", GuardRow},
                                            {101, RCOD, "OFF", "n/a", GuardRow},
                                        });
}

TEST_F(CsvRoundTrip, OfAFirstGenerationPage) {
    EmptyPageOf("RP25");
    MakeRow(5, {{SCAN, "Y"},
                {ZONE, "7"},
                {DESC, "TOWER 1"},
                {MODE, "D"},
                {RFRQ, "150.0000"},
                {RSQL, "m"},
                {RTON, "100.0"},
                {RCOD, "025"},
                {RTGP, "00AB"},
                {RNAC, "12C"},
                {TFRQ, "151.1250"},
                {TSQL, "g"},
                {TTON, "71.9"},
                {TCOD, "026"},
                {TTGP, "1234"},
                {TNAC, "ABC"},
                {TIDC, "00000042"}});
    MakeRow(6, {{RTON, "254.8"}});
    MakeRow(231, {});
    ExpectDifferences({5, 6, 231}, {
                                       {5, RTGP, "00AB", "012C", Crossed},
                                       {5, RNAC, "12C", "00AB", Crossed},
                                       {5, TFLG, "A8", "A0", NoFlag},
                                       {6, RTON, "254.8", "67.0", OtherList},
                                       {6, RTGP, "0001", "0293", Crossed},
                                       {6, RNAC, "293", "0001", Crossed},
                                       {6, TFLG, "A8", "A0", NoFlag},
                                       {231, RTGP, "0001", "0293", Crossed},
                                       {231, RNAC, "293", "0001", Crossed},
                                       {231, TFLG, "A8", "A0", NoFlag},
                                   });
}

TEST_F(CsvRoundTrip, OfASecondGenerationPage) {
    EmptyPageOf("NP25");
    MakeRow(5, {{MFLG, "10"},
                {SHAD, "P-1"},
                {ZONE, "C"},
                {MODE, "w"},
                {RSQL, "t"},
                {RNSV, "12"},
                {TSQL, "-"},
                {SHD0, "9"}});
    MakeRow(9, {{MFLG, "01"}, {PRIM, "005"}, {SHAD, "S-005"}, {ZONE, ""}});
    MakeRow(502, {{SCAN, "Y"},
                  {DESC, "LAST"},
                  {MODE, "D"},
                  {RFRQ, "173.9875"},
                  {RSQL, "n"},
                  {RNSV, "0"},
                  {RTON, "250.3"},
                  {RCOD, "754"},
                  {RTGP, "0FFF"},
                  {RNAC, "FFF"},
                  {TFRQ, "136.0125"},
                  {TSQL, "g"},
                  {TTON, "67.0"},
                  {TCOD, "023"},
                  {TTGP, "FFFF"},
                  {TNAC, "001"},
                  {TIDC, "9999999"}});
    ExpectDifferences({5, 9, 502}, {
                                       {5, MFLG, "10", "0", NoLinks},
                                       {5, SHAD, "P-1", "N", NoLinks},
                                       {5, RTGP, "0001", "0293", Crossed},
                                       {5, RNAC, "293", "0001", Crossed},
                                       {5, SHD0, "9", "0", NoLinks},
                                       {5, TFLG, "A8", "A0", NoFlag},
                                       {9, MFLG, "01", "0", NoLinks},
                                       {9, PRIM, "005", "009", NoLinks},
                                       {9, SHAD, "S-005", "N", NoLinks},
                                       {9, ZONE, "", "1", NoLinks},
                                       {9, RTGP, "0001", "0293", Crossed},
                                       {9, RNAC, "293", "0001", Crossed},
                                       {9, TFLG, "A8", "A0", NoFlag},
                                       {502, SCAN, "Y", "N", NoScan},
                                       {502, RNAC, "FFF", "0FFF", Crossed},
                                       {502, TFLG, "A8", "A0", NoFlag},
                                   });
}

TEST_F(CsvRoundTrip, OfAModulePage) {
    EmptyPageOf("MDLX");
    MakeRow(5, {{BAND, "AM 225-400"},
                {SCAN, "9"},
                {MODE, "N"},
                {RFRQ, "300.0000"},
                {TFRQ, "301.0000"},
                {RCOD, "n/a"},
                {TCOD, "n/a"}});
    MakeRow(6, {{BAND, "AM 108-138"},
                {RFRQ, "120.000"},
                {TFRQ, "n/a"},
                {RTON, "n/a"},
                {RCOD, "n/a"},
                {TTON, "n/a"},
                {TCOD, "n/a"}});
    MakeRow(7, {{BAND, "FM 30-50"}, {RFRQ, "40.0000"}, {TFRQ, "41.0000"}, {RTON, "88.5"}, {RCOD, "OFF"}});
    ExpectDifferences({5, 6, 7}, {{5, MODE, "N", "n/a", NoMode}});
}

TEST_F(CsvRoundTrip, OfASixChannelPage) {
    EmptyPageOf("O12");
    MakeRow(1, {{RFRQ, "121.500"}});
    MakeRow(6, {});
    ExpectDifferences({1, 6}, {});
}

TEST_F(CsvRoundTrip, OfAKdarPage) {
    EmptyPageOf("KDAR");
    MakeRow(1, {{DESC, "TOWER"}, {RFRQ, "121.500"}, {TFRQ, "122.0"}, {SCAN, "Y"}, {RONL, "Y"}});
    MakeRow(2, {});
    MakeRow(5, {{DESC, "LATER"}});
    ExpectDifferences({1, 2, 5}, {
                                     {3, MNUM, "", "003", InOrder},
                                     {3, BAND, "", "AM 118-138", InOrder},
                                     {3, SCAN, "", "N", InOrder},
                                     {3, DESC, "", "LATER", InOrder},
                                     {3, RFRQ, "", "118.000", InOrder},
                                     {3, TFRQ, "", "138.000", InOrder},
                                     {3, RONL, "", "N", InOrder},
                                     {3, TFLG, "", "A0", InOrder},
                                     {5, MNUM, "005", "", InOrder},
                                     {5, BAND, "AM 118-138", "", InOrder},
                                     {5, SCAN, "N", "", InOrder},
                                     {5, DESC, "LATER", "", InOrder},
                                     {5, RFRQ, "118.000", "", InOrder},
                                     {5, TFRQ, "138.000", "", InOrder},
                                     {5, RONL, "N", "", InOrder},
                                     {5, TFLG, "A0", "", InOrder},
                                 });
}

TEST_F(CsvRoundTrip, OfAKdarPageSelectedAsAWholeInventsNoMemories) {
    for (const int memories : {1, 3, 100}) {
        SCOPED_TRACE(memories);
        EmptyPageOf("KDAR");
        for (int row = 1; row <= memories; ++row)
            MakeRow(row, {{DESC, ("CH" + std::to_string(row)).c_str()}, {RFRQ, "121.500"}, {SCAN, "Y"}});
        SetCell(0, DESC, "DEFAULTS");
        const auto before = PageTexts();
        Choose(IdSelectAll);
        const std::string bytes = Export("list.csv");
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), memories + 2);
        ImportByMenu("list.csv", "Imported " + std::to_string(memories) + " Lines from KDAR file.");
        const auto after = PageTexts();
        for (size_t row = 1; row < after.size(); ++row)
            EXPECT_EQ(after[row], before[row]) << "row " << row;
        EXPECT_NE(Text(0, DESC), "DEFAULTS") << "such a list has no default row";
    }
}

TEST_F(CsvRoundTrip, OfAnAmPage) {
    for (const char* type : {"ANAM", "FXAM"}) {
        SCOPED_TRACE(type);
        EmptyPageOf(type);
        MakeRow(5, {{SCAN, "31"},
                    {DESC, "TOWER"},
                    {MODE, "W"},
                    {RFRQ, "300.0000"},
                    {RTON, "100.0"},
                    {TFRQ, "301.0000"},
                    {TTON, "100.0"}});
        MakeRow(6, {});
        MakeRow(200, {});
        ExpectDifferences({5, 6, 200}, {
                                           {5, RTON, "100.0", "", NoTones},
                                           {5, TTON, "100.0", "", NoTones},
                                       });
    }
}

TEST_F(CsvRoundTrip, OfAWholePageWithItsDefaultRowLosesTheLastLine) {
    EmptyPageOf("ANFM");
    for (int row = 1; row <= 102; ++row)
        MakeRow(row, {{DESC, ("CH" + std::to_string(row)).c_str()}});
    CurrentGrid()->SelectAll();
    const std::string bytes = Export();
    ResetPage(CurrentPage);
    EXPECT_EQ(Import(bytes), 102);
    EXPECT_EQ(Text(101, DESC), "CH101");
    EXPECT_EQ(Text(102, DESC), "");
}

TEST_F(CsvRoundTrip, OfTextsThatAFieldCannotHold) {
    const struct {
        const char *cell, *field, *back;
    } cases[] = {
        {"A,B", "A,B", "A"},          // not quoted, so it is two fields
        {"A\"B", "\"A\"\"\"", "A\""}, // ends with its last quote
        {"\"AB\"", "\"\"\"AB\"\"\"", "\"AB\""},
        {" A ", " A ", "A"},  // blanks at both ends are lost
        {"", "", "VHFAM001"}, // an empty field keeps the default
    };
    for (const auto& [cell, field, back] : cases) {
        EmptyPageOf("KDAR");
        MakeRow(1, {{DESC, cell}});
        Select({1});
        const std::string bytes = Export();
        EXPECT_NE(bytes.find(std::string("\n1,") + field + ","), std::string::npos) << bytes;
        ResetPage(CurrentPage);
        ImportKdar(bytes);
        EXPECT_EQ(Text(1, DESC), back) << cell;
    }
}

TEST_F(CsvRoundTrip, OfAPurgeListAsksForThePurgeInEveryRow) {
    EmptyPageOf("KDAR");
    MakeRow(1, {{TFLG, "A2"}});
    MakeRow(2, {});
    Select({1, 2});
    const std::string bytes = Export();
    ResetPage(CurrentPage);
    EXPECT_EQ(ImportKdar(bytes), 2);
    EXPECT_EQ(Text(1, TFLG), "A2");
    EXPECT_EQ(Text(2, TFLG), "A2");
}

TEST_F(CsvRoundTrip, OfANarrowListHasTooFewCommasToBeRecognised) {
    // A list is recognised by five commas in each of its first four lines; this radio's lists have two.
    EmptyPageOf("O12");
    for (int row = 1; row <= 6; ++row)
        MakeRow(row, {});
    Select({1, 2, 3, 4, 5, 6});
    Export("list.csv");
    ImportByMenu("list.csv", "Error: Unknown File Type.");
    EXPECT_EQ(FilledRows(0), std::vector<int>{0});
}

TEST_F(CsvRoundTrip, OfFewerThanThreeRowsIsNotRecognised) {
    for (const char* type : {"ANFM", "RP25", "NP25", "MDLX", "ANAM", "FXAM"}) {
        SCOPED_TRACE(type);
        for (int rows = 2; rows <= 3; ++rows) {
            EmptyPageOf(type);
            CurrentGrid()->ClearSelection();
            for (int row = 1; row <= rows; ++row)
                MakeRow(row, {});
            CurrentGrid()->SelectBlock(1, 0, rows, ColumnTotal - 1);
            Export("list.csv");
            ImportByMenu("list.csv",
                         rows < 3 ? "Error: Unknown File Type." : "Imported 3 Lines from CSV file.");
            EXPECT_EQ(FilledRows(0).size(), rows < 3 ? 1u : 4u) << rows;
        }
    }
}

TEST_F(CsvRoundTrip, OfOneRowIsRecognisedInTheKdarDialect) {
    EmptyPageOf("KDAR");
    MakeRow(1, {{DESC, "TOWER"}});
    Select({1});
    Export("list.csv");
    ImportByMenu("list.csv", "Imported 1 Lines from KDAR file.");
    EXPECT_EQ(Text(1, DESC), "TOWER");
}
