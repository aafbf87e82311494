// What is exported and imported again comes back, but for what the dialects can't hold.
#include "tests/files/CsvTest.h"

namespace {

class CsvRoundTrip : public CsvTest {
protected:
    /// A cell that comes back with another text.
    struct Difference {
        int row, col;
        std::string before, after;
        auto operator<=>(const Difference&) const = default;
    };

    /// Texts of all rows of the page.
    static std::vector<std::vector<std::string>> PageTexts() {
        std::vector<std::vector<std::string>> texts;
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            texts.push_back(RowTexts(row));
        return texts;
    }

    /// Exports the rows, empties the page as an import does, and imports them. What differs then.
    std::vector<Difference> ThereAndBack(std::initializer_list<int> rows) {
        const auto before = PageTexts();
        Select(rows);
        const std::string bytes = Export();
        ResetPage(CurrentPage);
        EmptyDefaultMemories(CurrentPage);
        for (int col = 0; col < ColumnTotal; ++col)
            SetCell(0, col, before[0][static_cast<size_t>(col)]);
        const bool kdar = CurrentParameters().Type == RadioCatalogue::KDAR;
        EXPECT_EQ(static_cast<int>(rows.size()), kdar ? ImportKdar(bytes) : Import(bytes));
        std::vector<Difference> differences;
        const auto after = PageTexts();
        for (size_t row = 0; row < after.size(); ++row)
            for (size_t col = 0; col < ColumnTotal; ++col)
                if (after[row][col] != before[row][col])
                    differences.push_back(
                        {static_cast<int>(row), static_cast<int>(col), before[row][col], after[row][col]});
        return differences;
    }

    /// A memory as the program fills it, with these cells.
    static void MakeRow(int row, const std::vector<std::pair<int, const char*>>& cells) {
        FillRowsFromDefault({row});
        FillRow(row, cells);
    }
};

void PrintTo(const std::vector<std::string>& texts, std::ostream* out) {
    for (const std::string& text : texts)
        *out << text << ' ';
}

} // namespace

/// One line a cell that differs.
#define EXPECT_DIFFERENCES(expected, rows)                                                                   \
    do {                                                                                                     \
        std::vector<Difference> wanted expected;                                                             \
        const auto found = ThereAndBack rows;                                                                \
        for (const Difference& d : found)                                                                    \
            if (std::find(wanted.begin(), wanted.end(), d) == wanted.end())                                  \
                ADD_FAILURE() << "row " << d.row << ' ' << ColumnTag[d.col] << ": " << d.before << " -> "    \
                              << d.after;                                                                    \
        for (const Difference& d : wanted)                                                                   \
            if (std::find(found.begin(), found.end(), d) == found.end())                                     \
                ADD_FAILURE() << "not so: row " << d.row << ' ' << ColumnTag[d.col];                         \
    } while (false)

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
    EXPECT_DIFFERENCES(({}), ({5, 6, 101, 102}));
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
    EXPECT_DIFFERENCES(({}), ({5, 6, 231}));
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
    EXPECT_DIFFERENCES(({}), ({5, 9}));
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
    EXPECT_DIFFERENCES(({}), ({5, 6, 7}));
}

TEST_F(CsvRoundTrip, OfASixChannelPage) {
    EmptyPageOf("O12");
    MakeRow(1, {{RFRQ, "121.500"}});
    MakeRow(6, {});
    EXPECT_DIFFERENCES(({}), ({1, 6}));
}

TEST_F(CsvRoundTrip, OfAKdarPage) {
    EmptyPageOf("KDAR");
    MakeRow(1, {{DESC, "TOWER"}, {RFRQ, "121.500"}, {TFRQ, "122.0"}, {SCAN, "Y"}, {RONL, "Y"}});
    MakeRow(2, {});
    MakeRow(5, {{DESC, "LATER"}});
    EXPECT_DIFFERENCES(({}), ({1, 2, 5}));
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
        MakeRow(200, {});
        EXPECT_DIFFERENCES(({}), ({5, 200}));
    }
}
