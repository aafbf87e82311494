#include "files/CsvWriter.h"

#include "files/CsvFields.h"

#include <gtest/gtest.h>

namespace {

wxArrayString Texts(std::initializer_list<const char*> texts) {
    wxArrayString array;
    for (const char* text : texts)
        array.Add(wxString::FromUTF8(text));
    return array;
}

} // namespace

TEST(CsvField, IsQuotedOnlyForAQuoteAndThenEndsWithIt) {
    const struct {
        const char *text, *field;
    } cases[] = {
        {"", ""},
        {"ABC", "ABC"},
        {" A B ", " A B "},
        {"A,B", "A,B"},
        {"K\xC3\xB6ln", "K\xC3\xB6ln"},
        {"\"", "\"\"\"\""},
        {"A\"", "\"A\"\"\""},
        {"\"A\"", "\"\"\"A\"\"\""},
        {"A\"B", "\"A\"\"\""},
        {"A\"B\"CD", "\"A\"\"B\"\"\""},
        {"A,\"B", "\"A,\"\"\""},
        {"\"\"", "\"\"\"\"\"\""},
    };
    for (const auto& [text, field] : cases)
        EXPECT_EQ(CsvField(wxString::FromUTF8(text)), field) << '[' << text << ']';
}

TEST(CsvLine, HasACommaBehindEachFieldAndEndsWithALineEnd) {
    EXPECT_EQ(CsvLine(Texts({}), 0), "\n");
    EXPECT_EQ(CsvLine(Texts({"1"}), 1), "1,\n");
    EXPECT_EQ(CsvLine(Texts({"1", "", "A", "more"}), 3), "1,,A,\n");
}

TEST(CsvHeading, NamesTheFieldsOfTheType) {
    const struct {
        int type;
        size_t count;
        const char* line;
    } cases[] = {
        {0, 10, "MNUM,SCAN,DESC,MODE,RFRQ,RTON,RCOD,TFRQ,TTON,TCOD,\n"},
        {1, 18,
         "MNUM,SCAN,ZONE,DESC,MODE,RFRQ,RSQL,RTON,RCOD,RTGP,RNAC,TFRQ,TSQL,TTON,TCOD,TTGP,TNAC,TIDC,\n"},
        {2, 19,
         "MNUM,SCAN,ZONE,DESC,MODE,RFRQ,RSQL,RNSV,RTON,RCOD,RTGP,RNAC,TFRQ,TSQL,TTON,TCOD,TTGP,TNAC,TIDC,\n"},
        {3, 11, "MNUM,BAND,SCAN,DESC,MODE,RFRQ,RTON,RCOD,TFRQ,TTON,TCOD,\n"},
        {4, 2, "MNUM,RFRQ,\n"},
        {5, 5, "MNUM,SCAN,DESC,RFRQ,TFRQ,\n"},
        {6, 8, "MNUM,SCAN,DESC,MODE,RFRQ,RTON,TFRQ,TTON,\n"},
        {7, 8, "MNUM,SCAN,DESC,MODE,RFRQ,RTON,TFRQ,TTON,\n"},
    };
    for (const auto& [type, count, line] : cases) {
        EXPECT_EQ(CsvHeadingLine(type), line) << type;
        EXPECT_EQ(CsvFieldCount(type), count) << type;
    }
}

TEST(CsvHeading, OfTheKdarDialectHasABannerThatCanAskForAPurge) {
    EXPECT_EQ(KdarHeadingLines(false), "KDAR-2000,,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n");
    EXPECT_EQ(KdarHeadingLines(true), "KDAR-2000,Purge,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n");
}

TEST(CsvFields, HaveTheirColumnsWithTheReceiveGroupAndNacCrossedOnTheWayOut) {
    const struct {
        int written, read;
    } columns[] = {{1, 1},   {4, 4},   {5, 5},   {6, 6},   {7, 7},   {8, 8},   {9, 9},
                   {10, 10}, {11, 11}, {12, 12}, {13, 13}, {15, 14}, {14, 15}, {16, 16},
                   {17, 17}, {18, 18}, {19, 19}, {20, 20}, {21, 21}, {22, 22}};
    for (size_t position = 0; position < 20; ++position) {
        EXPECT_EQ(CsvFieldTable[position].written, columns[position].written) << position;
        EXPECT_EQ(CsvFieldTable[position].read, columns[position].read) << position;
    }
}

TEST(KdarText, OfAMemoryNumberHasNoZerosBeforeIt) {
    const std::pair<const char*, const char*> cases[] = {{"001", "1"}, {"100", "100"}, {"0", "0"},
                                                         {"", "0"},    {"x", "0"},     {"7x", "7"}};
    for (const auto& [cell, text] : cases)
        EXPECT_EQ(KdarNumberText(cell), text) << cell;
}

TEST(KdarText, OfAFrequencyLacksThePointBehindThreeDigits) {
    const std::pair<const char*, const char*> cases[] = {
        {"118.000", "118000"},
        {"121.5", "1215"},
        {"99.5000", "99.5000"},
        {"n/a", "n/a"},
        {"", ""},
        {"118", "118"},
        {"118000", "118000"},
        {"118.0.0", "1180.0"},
        {"1180.00", "1180.00"},
        {"118.", "118"},
        {"...", "..."},
    };
    for (const auto& [cell, text] : cases)
        EXPECT_EQ(KdarFrequencyText(cell), text) << cell;
}

TEST(KdarText, OfScanAndReceiveOnlyIsYesOrNo) {
    const std::pair<const char*, const char*> scans[] = {{"Y", "Yes"}, {"N", "No"}, {"y", "No"},
                                                         {"", "No"},   {"1", "No"}, {"Yes", "No"}};
    for (const auto& [cell, text] : scans)
        EXPECT_EQ(KdarScanText(cell), text) << cell;
    const std::pair<const char*, const char*> receiveOnly[] = {
        {"Y", "Yes"}, {"N", "No"}, {"", ""}, {"y", "y"}, {"x", "x"}};
    for (const auto& [cell, text] : receiveOnly)
        EXPECT_EQ(KdarRxOnlyText(cell), text) << cell;
}
