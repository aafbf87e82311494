#include "catalogue/HexDigits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

TEST(HexDigitsOfEitherCase, HaveTheirValuesAndNothingElseHasOne) {
    const std::string upper = "0123456789ABCDEF", lower = "0123456789abcdef";
    for (int c = 0; c < 0x400; ++c) {
        size_t value = std::string::npos;
        if (c < 0x80) {
            const char character = static_cast<char>(c);
            value = std::min(upper.find(character), lower.find(character));
        }
        const int expected = value == std::string::npos ? -1 : static_cast<int>(value);
        EXPECT_EQ(HexDigitValue(static_cast<wchar_t>(c)), expected) << c;
        EXPECT_EQ(IsHexDigit(static_cast<uint32_t>(c)), expected >= 0) << c;
    }
}

TEST(HexDigitOf, ANumberIsThatOfItsLastFourBits) {
    EXPECT_EQ(HexDigit(0), L'0');
    EXPECT_EQ(HexDigit(9), L'9');
    EXPECT_EQ(HexDigit(10), L'A');
    EXPECT_EQ(HexDigit(15), L'F');
    EXPECT_EQ(HexDigit(0xFFFFFFF3), L'3');
}
