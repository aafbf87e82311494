#include "editing/FrequencyRules.h"

#include <gtest/gtest.h>

TEST(InBand, IsFromTheLowLimitToTheHighOneWithoutAFraction) {
    struct Line {
        int mhz, fraction, band;
        bool expected;
    };
    constexpr Line lines[] = {
        {29, 9999, 0, false}, {30, 0, 0, true},   {49, 9999, 0, true},   {50, 0, 0, true},
        {50, 1, 0, false},    {51, 0, 0, false},  {65, 0, 1, false},     {66, 0, 1, true},
        {88, 0, 1, true},     {88, 5, 1, false},  {107, 999, 2, false},  {108, 0, 2, true},
        {138, 0, 2, true},    {138, 1, 2, false}, {117, 999, 3, false},  {118, 0, 3, true},
        {138, 0, 3, true},    {138, 5, 3, false}, {135, 9999, 4, false}, {136, 0, 4, true},
        {174, 0, 4, true},    {174, 1, 4, false}, {137, 9999, 5, false}, {138, 0, 5, true},
        {174, 0, 5, true},    {174, 1, 5, false}, {224, 9999, 6, false}, {225, 0, 6, true},
        {400, 0, 6, true},    {400, 1, 6, false}, {402, 9999, 7, false}, {403, 0, 7, true},
        {512, 0, 7, true},    {512, 1, 7, false}, {895, 9999, 8, false}, {896, 0, 8, true},
        {960, 0, 8, true},    {960, 1, 8, false}, {31, 0, 8, false},
    };
    for (const Line& line : lines)
        EXPECT_EQ(IsInBand(line.mhz, line.fraction, line.band), line.expected)
            << line.mhz << "." << line.fraction << " band " << line.band;
}

TEST(InBand, IsNothingInABandThatDoesNotExist) {
    for (int band : {-1, 9, 10, 99, -99})
        for (int mhz : {0, 30, 31, 150, 896})
            EXPECT_FALSE(IsInBand(mhz, 0, band)) << mhz << " band " << band;
}

TEST(FreqInBand, AnswersTheFirstFaultOfTheText) {
    struct Line {
        const char* text;
        int band;
        int expected;
    };
    constexpr Line lines[] = {
        // No point.
        {"", 5, -1},
        {"155", 5, -1},
        {"1550000", 5, -1},
        {"n/a", 5, -1},
        // A second point; it is reported before any other fault of the parts.
        {"155.0.0", 5, -2},
        {"155..", 5, -2},
        {"..", 5, -2},
        {"1555.000000.", 5, -2},
        // Too long. Blanks at the right end of a part don't count.
        {"1555.0", 5, -3},
        {"0155.0", 5, -3},
        {" 155.0", 5, -3},
        {"155.000000", 5, -3},
        {".000000", 5, -3},
        {"155 .0", 5, 0},
        {"155.0000  ", 5, 0},
        {"155.00000 ", 5, 0},
        {"155.00000", 5, 0},
        // Nothing before the point.
        {".", 5, -4},
        {".5", 5, -4},
        // Out of band.
        {"137.9999", 5, -5},
        {"174.0001", 5, -5},
        {"000.0000", 5, -5},
        {"abc.0000", 5, -5},
        {"-38.0", 5, -5},
        {"150.0000", 7, -5},
        {"150.0000", -1, -5},
        {"150.0000", 9, -5},
        {"31.0000", 8, -5},
        // Good: any digits within the limits, on a step or not.
        {"138.0000", 5, 0},
        {"138.", 5, 0},
        {"174.0000", 5, 0},
        {"174.", 5, 0},
        {"155.01237", 5, 0},
        {"30.0001", 0, 0},
        {"50.0000", 0, 0},
        {"108.000", 2, 0},
        {"136.0000", 4, 0},
        {"900.0", 8, 0},
    };
    for (const Line& line : lines)
        EXPECT_EQ(CheckFreqInBand(line.text, line.band), line.expected)
            << '"' << line.text << "\" band " << line.band;
}

TEST(FreqInBand, ComparesTheFractionAsANumberOnTheHighLimit) {
    EXPECT_EQ(CheckFreqInBand("174.0000", 5), 0);
    EXPECT_EQ(CheckFreqInBand("174.0001", 5), -5);
    EXPECT_EQ(CheckFreqInBand("174.1", 5), -5);
}

TEST(FreqBand, IsTheFirstBandThatHoldsTheFrequency) {
    struct Line {
        const char* text;
        int analog, p25;
    };
    constexpr Line lines[] = {
        {"29.9999", -6, -6}, {"30.0000", 0, 0},  {"50.0000", 0, 0}, {"50.0001", -6, -6}, {"66.0", 1, 1},
        {"88.0", 1, 1},      {"88.1", -6, -6},   {"108.000", 2, 2}, {"117.975", 2, 2},   {"118.000", 2, 2},
        {"120.000", 2, 2},   {"136.500", 2, 2},  {"138.000", 2, 2}, {"138.0001", 5, 4},  {"150.0000", 5, 4},
        {"174.0000", 5, 4},  {"174.5", -6, -6},  {"225.0", 6, 6},   {"400.0", 6, 6},     {"400.0001", -6, -6},
        {"403.0", 7, 7},     {"512.0000", 7, 7}, {"512.5", -6, -6}, {"896.0", 8, 8},     {"960.0", 8, 8},
        {"960.5", -6, -6},   {"0.0", -6, -6},    {"abc.d", -6, -6},
    };
    for (const Line& line : lines) {
        for (int type : {0, 3, 4, 5, 6, 7})
            EXPECT_EQ(GetFreqBand(line.text, type), line.analog) << line.text << " type " << type;
        for (int type : {1, 2})
            EXPECT_EQ(GetFreqBand(line.text, type), line.p25) << line.text << " type " << type;
    }
}

TEST(FreqBand, AnswersTheFaultOfATextThatIsNoFrequency) {
    struct Line {
        const char* text;
        int expected;
    };
    constexpr Line lines[] = {
        {"", -1},       {"150", -1},    {"n/a", -1},        {"150.0.0", -2},
        {"1500.0", -3}, {" 150.0", -3}, {"150.000000", -3}, {".5", -4},
    };
    for (const Line& line : lines)
        for (int type : {0, 1})
            EXPECT_EQ(GetFreqBand(line.text, type), line.expected) << '"' << line.text << '"';
}
