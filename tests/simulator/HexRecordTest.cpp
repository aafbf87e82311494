#include "simulator/HexRecord.h"

#include <gtest/gtest.h>

namespace {

using namespace Simulator;

TEST(HexRecord, GetsTheComplementOfTheSumAsItsChecksum) {
    EXPECT_EQ(WithChecksum("T204000000"), "T204000000FB");
    EXPECT_EQ(WithChecksum("T9030000"), "T9030000FC");
    EXPECT_EQ(WithChecksum("T2060000320480"), "T206000032048043");
    EXPECT_EQ(WithChecksum("T007000020030000"), "T007000020030000D5");
}

TEST(HexRecord, IsReadIntoTypeAddressAndData) {
    std::string problem;
    const auto erase = ParseRecord("T20401F41"
                                   "0F6",
                                   problem);
    ASSERT_TRUE(erase) << problem;
    EXPECT_EQ(erase->type, HexRecord::Type::Message);
    EXPECT_EQ(erase->address, 500);
    EXPECT_EQ(erase->data, std::vector<uint8_t>{0x10});
    const auto end = ParseRecord("T9030000FC", problem);
    ASSERT_TRUE(end) << problem;
    EXPECT_EQ(end->type, HexRecord::Type::End);
    EXPECT_TRUE(end->data.empty());
}

TEST(HexRecord, ThatIsNotExactlyInShapeIsRefused) {
    const struct {
        const char* what;
        const char* line;
        const char* why;
    } cases[] = {
        {"empty line", "", "begin with T"},
        {"noise", "\xFF\x80T204000000FB", "begin with T"},
        {"small letter at the start", "t204000000FB", "begin with T"},
        {"line feed before it", "\nT204000000FB", "begin with T"},
        {"type 3", "T304000000FB", "type"},
        {"type without meaning", "T804000000FB", "type"},
        {"short", "T2030000", "short"},
        {"small digits", "T204000000fb", "upper-case"},
        {"blank inside", "T2040000 0FB", "upper-case"},
        {"blank at the end", "T204000000FB ", "upper-case"},
        {"half a byte", "T204000000FBF", "half a byte"},
        {"count too high", "T205000000FA", "count is 5, but 4"},
        {"count too low", "T203000000FC", "count is 3, but 4"},
        {"checksum off by one", "T204000000FA", "checksum is FA, not FB"},
        {"message without a code", "T2030000FC", "no data"},
        {"end with data", "T904000000FB", "end record"},
    };
    for (const auto& bad : cases) {
        std::string problem;
        EXPECT_FALSE(ParseRecord(bad.line, problem)) << bad.what;
        EXPECT_NE(problem.find(bad.why), std::string::npos) << bad.what << ": " << problem;
    }
}

TEST(HexDigits, AreUpperCaseAndOfTheirLength) {
    EXPECT_EQ(Hex(0x1AB, 2), "AB");
    EXPECT_EQ(Hex(0x1AB, 4), "01AB");
    EXPECT_EQ(HexValue("01AB"), 0x1AB);
    EXPECT_EQ(HexValue("01ab"), -1);
    EXPECT_EQ(HexValue(""), -1);
    EXPECT_EQ(HexValue("FFFFFFFF"), 0xFFFFFFFFL);
    EXPECT_EQ(HexValue("100000000"), -1);
}

} // namespace
