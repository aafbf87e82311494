#include "files/CsvReader.h"

#include "catalogue/MemoryRow.h"
#include "tests/files/HangLimit.h"
#include "tests/support/ProcessorTime.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Fields = std::vector<std::string>;
using Lines = std::vector<Fields>;
using Dialect = CsvReader::Dialect;

/// All lines of a list, up to its end.
Lines LinesOf(const std::string& bytes) {
    CsvReader reader(bytes, Dialect::General);
    Lines lines;
    while (!reader.IsAtEnd()) {
        Fields fields;
        const size_t count = reader.GetLine_CSV(fields);
        EXPECT_EQ(fields.size(), count);
        lines.push_back(fields);
    }
    return lines;
}

std::string Bytes(const char* text, size_t length) {
    return {text, length};
}

/// Target rows of a list's lines on a grid of 103 rows.
std::vector<int> RowsOf(const std::string& bytes) {
    CsvReader reader(bytes, Dialect::General);
    EXPECT_TRUE(reader.GetHeader_CSV());
    std::vector<int> rows;
    CsvTexts fields;
    while (reader.GetData_CSV(fields, 103))
        rows.push_back(reader.Row());
    return rows;
}

/// The texts of the first line with data.
CsvTexts DataOf(const std::string& bytes, Dialect dialect = Dialect::General) {
    CsvReader reader(bytes, dialect);
    EXPECT_TRUE(reader.GetHeader_CSV());
    CsvTexts fields;
    EXPECT_TRUE(reader.GetData_CSV(fields, 103)) << bytes;
    return fields;
}

std::array<int32_t, 20> ColumnsOf(const std::string& heading) {
    CsvReader reader(heading, Dialect::General);
    EXPECT_TRUE(reader.GetHeader_CSV()) << heading;
    return reader.CsvFieldColumn;
}

std::array<int32_t, 20> Columns(std::initializer_list<std::pair<size_t, int32_t>> known) {
    std::array<int32_t, 20> columns;
    columns.fill(-1);
    for (const auto& [position, column] : known)
        columns[position] = column;
    return columns;
}

} // namespace

TEST(CsvLines, AreSplitIntoFields) {
    const struct {
        const char* name;
        std::string bytes;
        Lines lines;
    } cases[] = {
        {"nothing", "", {}},
        {"one field", "a", {{"a"}}},
        {"commas", "a,b,,c", {{"a", "b", "", "c"}}},
        {"a comma at the end gives one more field", "a,b,\n", {{"a", "b", ""}}},
        {"commas alone", ",,", {{"", "", ""}}},
        {"blanks stay", " a , b ", {{" a ", " b "}}},
        {"LF", "a\nb\n", {{"a"}, {"b"}}},
        {"CR", "a\rb\r", {{"a"}, {"b"}}},
        {"CRLF", "a\r\nb\r\n", {{"a"}, {"b"}}},
        {"LFCR", "a\n\rb", {{"a"}, {"b"}}},
        {"blank lines between lines don't exist", "a\n\n\r\r\n\nb", {{"a"}, {"b"}}},
        {"a blank line at the start", "\na", {{""}, {"a"}}},
        {"the last line needs no end", "a,b\nc,d", {{"a", "b"}, {"c", "d"}}},
        {"a quoted field", "\"a\",b", {{"a", "b"}}},
        {"a comma inside quotes", "\"a,b\",c", {{"a,b", "c"}}},
        {"a doubled quote inside quotes", "\"a\"\"b\",c", {{"a\"b", "c"}}},
        {"a quote in the middle opens", "a\"b,c\"d,e", {{"ab,cd", "e"}}},
        {"quotes twice in a field", "\"a,\"b\",c\",d", {{"a,b,c", "d"}}},
        {"nothing in quotes", "\"\",a", {{"", "a"}}},
        {"a doubled quote outside opens and closes", "a\"\"b,c", {{"ab", "c"}}},
        {"three quotes", "\"\"\"a\",b", {{"\"a", "b"}}},
        {"four quotes", "\"\"\"\",b", {{"\"", "b"}}},
        {"six quotes", "\"\"\"\"\"\"", {{"\"\""}}},
        {"a doubled quote and a closing one", "\"a\"\"\",b", {{"a\"", "b"}}},
        {"blanks before quotes", " \"a,b\" ,c", {{" a,b ", "c"}}},
        {"an open quote ends with the file", "\"a,b", {{"a,b"}}},
        {"a quote as the last byte", "a,\"", {{"a", ""}}},
        {"semicolons separate nothing", "a;b,c", {{"a;b", "c"}}},
        {"tabs separate nothing", "a\tb", {{"a\tb"}}},
        {"a zero byte is a character", Bytes("a\0b,c", 5), {{Bytes("a\0b", 3), "c"}}},
        {"the byte 255 is a character", "a\xFF,b", {{"a\xFF", "b"}}},
        {"a byte-order mark is skipped",
         "\xEF\xBB\xBF"
         "a,b",
         {{"a", "b"}}},
        {"only at the start",
         "a\n\xEF\xBB\xBF"
         "b",
         {{"a"},
          {"\xEF\xBB\xBF"
           "b"}}},
        {"half a byte-order mark is text",
         "\xEF\xBB"
         "a",
         {{"\xEF\xBB"
           "a"}}},
    };
    for (const auto& [name, bytes, lines] : cases)
        EXPECT_EQ(LinesOf(bytes), lines) << name;
}

TEST(CsvLines, EndInsideQuotesToo) {
    EXPECT_EQ(LinesOf("\"a\nb\",c"), (Lines{{"a"}, {"b,c"}})) << "the second quote opens one again";
    EXPECT_EQ(LinesOf("\"a\r\"b,c\""), (Lines{{"a"}, {"b,c"}}));
    EXPECT_EQ(LinesOf("\"a,b\r\nc,d"), (Lines{{"a,b"}, {"c", "d"}}));
}

TEST(CsvLines, BehindTheEndAreOneEmptyField) {
    CsvReader reader("a", Dialect::General);
    Fields fields;
    EXPECT_EQ(reader.GetLine_CSV(fields), 1u);
    EXPECT_TRUE(reader.IsAtEnd());
    EXPECT_EQ(reader.GetLine_CSV(fields), 1u);
    EXPECT_EQ(fields, Fields{""});
}

TEST(CsvTexts, AreUtf8OrElseLatin1WithoutControlCharactersAndOuterBlanks) {
    const struct {
        const char* name;
        std::string bytes;
        const char* utf8;
    } cases[] = {
        {"nothing", "", ""},
        {"plain", "ABC 1", "ABC 1"},
        {"blanks at both ends", "  A B ", "A B"},
        {"blanks only", "   ", ""},
        {"tabs are blanks", "\tA\tB\t", "A B"},
        {"UTF-8", "K\xC3\xB6ln", "K\xC3\xB6ln"},
        {"UTF-8 of three and four bytes", "\xE2\x82\xAC \xF0\x9F\x93\xBB", "\xE2\x82\xAC \xF0\x9F\x93\xBB"},
        {"Latin-1", "K\xF6ln", "K\xC3\xB6ln"},
        {"UTF-8 that is cut off", "Stra\xC3", "Stra\xC3\x83"},
        {"one bad byte makes the field Latin-1", "\xC3\xB6\xFF", "\xC3\x83\xC2\xB6\xC3\xBF"},
        {"longer than needed", "\xC0\xAF", "\xC3\x80\xC2\xAF"},
        {"zero bytes are blanks", Bytes("A\0B\0", 4), "A B"},
        {"zero bytes only", Bytes("\0\0", 2), ""},
        {"other control characters are blanks",
         "A\x01\x1F\x7F"
         "B",
         "A   B"},
    };
    for (const auto& [name, bytes, utf8] : cases)
        EXPECT_EQ(CsvCellText(bytes).utf8_string(), utf8) << name;
}

TEST(CsvTexts, AreCutToWhatACellNeeds) {
    EXPECT_EQ(CsvCellText(std::string(1000, 'x')).utf8_string(), std::string(256, 'x'));
    EXPECT_EQ(CsvCellText(std::string(255, 'x') + " " + std::string(9, 'x')).utf8_string(),
              std::string(255, 'x'));
}

TEST(CsvHeadings, AreTheTagsInTheirOrder) {
    const char* names[] = {"MNUM", "BAND", "SCAN", "ZONE", "DESC", "MODE", "RFRQ", "RSQL", "RNSV", "RTON",
                           "RCOD", "RTGP", "RNAC", "TFRQ", "TSQL", "TTON", "TCOD", "TTGP", "TNAC", "TIDC"};
    for (size_t position = 0; position < 20; ++position)
        EXPECT_EQ(ColumnsOf(names[position]), Columns({{position, 0}})) << names[position];
}

TEST(CsvHeadings, MatchInAnyCaseOrderAndNumber) {
    EXPECT_EQ(ColumnsOf("mnum\n"), Columns({{0, 0}}));
    EXPECT_EQ(ColumnsOf("Desc,rFrQ,MNUM"), Columns({{0, 2}, {4, 0}, {6, 1}}));
    EXPECT_EQ(ColumnsOf(" x , mnum ,, \"desc\" "), Columns({{0, 1}, {4, 3}}));
    EXPECT_EQ(ColumnsOf(std::string(24, ',') + "MNUM"), Columns({{0, 24}})) << "known, though never read";
    EXPECT_EQ(ColumnsOf("MFLG,MNUM,TFLG,RONL,MNUMB,MNU"), Columns({{0, 1}}));
}

TEST(CsvHeadings, OfTheSameNameLetTheLaterWin) {
    EXPECT_EQ(ColumnsOf("MNUM,DESC,MNUM"), Columns({{0, 2}, {4, 1}}));
}

TEST(CsvHeadings, AreTheFirstLineThatHasAKnownOne) {
    CsvReader reader("My channels\n\n,,\nRFRQ;MNUM\nMNUM,DESC\n5,A\n", Dialect::General);
    EXPECT_TRUE(reader.GetHeader_CSV());
    EXPECT_EQ(reader.CsvFieldColumn, Columns({{0, 0}, {4, 1}}));
    EXPECT_EQ(reader.Field(0), "MNUM");
    EXPECT_EQ(reader.Field(2), "");
}

TEST(CsvHeadings, ThatAreMissingAreNotFound) {
    for (const char* bytes : {"", "\n\n", ",,,\n,,,\n", "1,2,3\n4,5,6\n", "Memory,Name\n", "mnum;desc\n"}) {
        CsvReader reader(bytes, Dialect::General);
        EXPECT_FALSE(reader.GetHeader_CSV()) << bytes;
        CsvTexts fields;
        EXPECT_FALSE(reader.GetData_CSV(fields, 103)) << bytes;
    }
}

TEST(CsvHeadings, InTheKdarDialectAreAnyLineWithText) {
    CsvReader reader("\n , ,\nKDAR-2000, Purge ,,,,\nwhatever\n", Dialect::Kdar);
    EXPECT_TRUE(reader.GetHeader_CSV());
    EXPECT_EQ(reader.Field(0), "KDAR-2000");
    EXPECT_EQ(reader.Field(1), "Purge");
    EXPECT_TRUE(reader.GetHeader_CSV());
    EXPECT_EQ(reader.Field(0), "whatever");
    EXPECT_FALSE(reader.GetHeader_CSV());
}

TEST(CsvKeys, NameTheRow) {
    const struct {
        const char* key;
        std::vector<int> rows;
    } cases[] = {
        {"0", {0}},
        {"1", {1}},
        {"001", {1}},
        {"102", {102}},
        {"103", {}},
        {"99999999999999999999", {}},
        {"5", {5}},
        {" 5 ", {5}},
        {"\"5\"", {5}},
        {"+5", {}},
        {"-5", {}},
        {"5.0", {}},
        {"5a", {}},
        {"x", {}},
        {"", {}},
        {"   ", {}},
        {"DEF", {0}},
        {" DEF ", {0}},
        {"GD1", {101}},
        {"GD2", {102}},
        {"def", {}},
        {"gd1", {}},
        {"GD3", {}},
        {"\xC2\xB2", {}},
        {"00000000000000000000000000000000000000000000007", {7}},
    };
    for (const auto& [key, rows] : cases)
        EXPECT_EQ(RowsOf(std::string("MNUM,DESC\n") + key + ",A\n"), rows) << '[' << key << ']';
}

TEST(CsvKeys, ThatNameNoRowPassTheirLineOverAndNoOther) {
    EXPECT_EQ(RowsOf("MNUM\n1\nx\n2\n200\n-1\n3"), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(RowsOf("DESC\nA\nB\n"), std::vector<int>{}) << "no column has keys";
    EXPECT_EQ(RowsOf("DESC,MNUM\nA\nB,4\n"), std::vector<int>{4}) << "a line too short to have one";
    EXPECT_EQ(RowsOf(std::string(20, ',') + "MNUM\n" + std::string(20, ',') + "5\n"), std::vector<int>{})
        << "the key after the twentieth column is never read";
    EXPECT_EQ(RowsOf(std::string(19, ',') + "MNUM\n" + std::string(19, ',') + "5\n"), std::vector<int>{5});
}

TEST(CsvKeys, OfGuardRowsAreThoseOfTheGridsSize) {
    CsvReader reader("MNUM\nGD1\nGD2\nDEF\n6\n7\n", Dialect::General);
    ASSERT_TRUE(reader.GetHeader_CSV());
    CsvTexts fields;
    std::vector<int> rows;
    while (reader.GetData_CSV(fields, 7))
        rows.push_back(reader.Row());
    EXPECT_EQ(rows, (std::vector<int>{5, 6, 0, 6}));
}

TEST(CsvData, StandsAtThePositionsOfItsHeadings) {
    const CsvTexts fields = DataOf("TIDC,DESC,other,MNUM\n 42 ,\"A, B\",x,5,after\n");
    for (size_t i = 0; i < fields.size(); ++i)
        EXPECT_EQ(fields[i], i == 0 ? "5" : i == 4 ? "A, B" : i == 19 ? "42" : "") << i;
}

TEST(CsvData, BehindTheTwentiethColumnIsNeverRead) {
    const std::string commas(18, ',');
    const CsvTexts fields = DataOf("MNUM," + commas + "DESC,MODE\n5," + commas + "A,W\n");
    EXPECT_EQ(fields[4], "A") << "column 20";
    EXPECT_EQ(fields[5], "") << "column 21";
}

TEST(CsvData, OfAShortLineIsEmptyWhereTheLineHasEnded) {
    const CsvTexts fields = DataOf("MNUM,DESC,MODE\n5,A");
    EXPECT_EQ(fields[4], "A");
    EXPECT_EQ(fields[5], "");
}

TEST(CsvData, OfTheKdarDialectAreSixFieldsWithTheKeyInTheFirst) {
    const CsvTexts fields = DataOf("Memory\n1, A ,118000,119000,Yes,No,after\n", Dialect::Kdar);
    const char* expected[] = {"1", "A", "118000", "119000", "Yes", "No", ""};
    for (size_t i = 0; i < 7; ++i)
        EXPECT_EQ(fields[i], expected[i]) << i;
}

TEST(CsvData, OfTheKdarDialectHasAnEmptyKeyOrOneOfTheGrid) {
    CsvReader reader("Memory\n,A\nx,B\n99,C\n103,D\nDEF,E\n-1,F\n102", Dialect::Kdar);
    ASSERT_TRUE(reader.GetHeader_CSV());
    CsvTexts fields;
    std::string names;
    while (reader.GetData_CSV(fields, 103))
        names += (fields[1].empty() ? "-" : fields[1].utf8_string());
    EXPECT_EQ(names, "ACE-");
}

TEST(CsvSpeed, OfManyLinesAndLongOnesIsLinear) {
    std::string many = "MNUM,DESC,RFRQ\n";
    for (int i = 0; i < 100000; ++i)
        many += std::to_string(i % 1000) + ",\"CHANNEL, ONE\",150.0000\r\n";
    const double start = ProcessorSeconds();
    EXPECT_EQ(RowsOf(many).size(), 10300u);
    EXPECT_LT(ProcessorSeconds() - start, HangLimit);

    for (const char unit : {'x', ',', '"', '\n'}) {
        const double begin = ProcessorSeconds();
        EXPECT_EQ(RowsOf("MNUM,DESC\n5,\"" + std::string(1'000'000, unit)).size(), 1u) << unit;
        EXPECT_LT(ProcessorSeconds() - begin, HangLimit) << unit;
    }
}
