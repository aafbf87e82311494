// Frequency texts that can still become valid, and their completion.
#include "editing/FrequencyRules.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int Steps[] = {1250, 2500, 6250, 8333, 12500, 25000};

/// The digits (0 to 9) that may be typed after a text.
struct NextDigits {
    const char* text;
    const char* digits;
};

constexpr const char* AnyDigit = "0123456789";

template <size_t count>
void ExpectNextDigits(int step, int band, const NextDigits (&lines)[count]) {
    for (const NextDigits& line : lines)
        for (char digit = '0'; digit <= '9'; ++digit) {
            const std::string text = line.text + std::string(1, digit);
            EXPECT_EQ(IsOkFreq(text, band, step), std::string(line.digits).find(digit) != std::string::npos)
                << text << " band " << band << " step " << step;
        }
}

void ExpectEach(const std::string& texts, bool expected, int step, int band) {
    for (size_t begin = 0; begin < texts.size();) {
        const size_t end = std::min(texts.find(' ', begin), texts.size());
        const std::string text = texts.substr(begin, end - begin);
        EXPECT_EQ(IsOkFreq(text, band, step), expected) << text << " band " << band << " step " << step;
        begin = end + 1;
    }
}

/// A text and its completion; null if it is refused.
struct Completed {
    const char* text;
    const char* expected;
};

template <size_t count>
void ExpectCompleted(int step, int band, size_t width, const Completed (&lines)[count]) {
    for (const Completed& line : lines) {
        wxString text = line.text;
        EXPECT_EQ(FormatFreq(text, band, step, width), line.expected != nullptr)
            << line.text << " band " << band << " step " << step;
        EXPECT_EQ(text.utf8_string(), line.expected ? line.expected : line.text)
            << line.text << " band " << band << " step " << step;
    }
}

} // namespace

TEST(StepTables, HoldTheDigitsOfTheChannelRaster) {
    constexpr int pairs833[10][2] = {{0, 5}, {0, 5}, {5, 5}, {0, 5}, {0, 0},
                                     {0, 5}, {0, 5}, {5, 5}, {0, 5}, {0, 0}};
    constexpr int pairs625[10][2] = {{0, 6}, {2, 8}, {5, 5}, {1, 7}, {3, 3},
                                     {0, 6}, {2, 8}, {5, 5}, {1, 7}, {3, 3}};
    constexpr int next125[10] = {0, 2, 5, 7, -1, 0, 2, 5, 7, -1};
    constexpr int next25[10] = {0, -1, 5, -1, -1, 0, -1, 5, -1, -1};
    for (int digit = 0; digit < 10; ++digit) {
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(StepPairs833[digit][i], pairs833[digit][i]) << digit;
            EXPECT_EQ(StepPairs625[digit][i], pairs625[digit][i]) << digit;
        }
        EXPECT_EQ(StepNext125[digit], next125[digit]) << digit;
        EXPECT_EQ(StepNext25[digit], next25[digit]) << digit;
    }
    EXPECT_STREQ(StepComplete, "0050000500"
                               "0257002570"
                               "0251302513");
}

TEST(CellWidth, IsThatOfTheBandAndTheStep) {
    struct Line {
        int step;
        size_t widths[9]; // by band
    };
    constexpr Line lines[] = {
        {1250, {7, 7, 9, 9, 9, 9, 9, 9, 9}},  {2500, {7, 7, 8, 8, 8, 8, 8, 8, 8}},
        {6250, {7, 7, 8, 8, 8, 8, 8, 8, 8}},  {8333, {7, 7, 7, 7, 7, 7, 7, 7, 7}},
        {12500, {7, 7, 8, 8, 8, 8, 8, 8, 8}}, {25000, {7, 7, 8, 8, 8, 8, 8, 8, 8}},
    };
    for (const Line& line : lines)
        for (int band = 0; band < 9; ++band)
            EXPECT_EQ(FrequencyWidth(band, line.step), line.widths[band]) << band << " step " << line.step;
}

TEST(TypedFrequency, WithoutAPointIsAlwaysAccepted) {
    for (int step : Steps)
        for (int band = 0; band < 9; ++band)
            for (const char* text : {"", "0", "1", "138", "155", "999", "0000000", "123456789", "n/a"})
                EXPECT_TRUE(IsOkFreq(text, band, step))
                    << '"' << text << "\" band " << band << " step " << step;
}

TEST(TypedFrequency, OfAWrongFormIsRefusedAtEveryStep) {
    for (int step : {1250, 2500, 6250, 8333, 12500, 25000, 0, 5000})
        ExpectEach(
            ". .0 .5 155.. 155.0.0 ..155 155.0. 1555.0 0155.0 1550. 155.000000 155.0000000 155.c 155.0c "
            "155.-1 155.0e1 174.c abc.0",
            false, step, 5);
}

TEST(TypedFrequency, HasToLieInTheBandAtEveryStep) {
    struct Line {
        int band;
        const char *inside, *outside;
    };
    constexpr Line lines[] = {
        {0, "30. 30.0 030.0 31.5 49.9 49.95 50. 50.0 50.00000",
         "0. 3. 29. 29.9 50.1 50.01 50.00005 51. 51.0 300.0"},
        {1, "66. 66.0 066.0 87.9 88. 88.0", "6. 65. 65.9 88.1 88.0001 89. 660.0"},
        {2, "108. 108.0 117.9 118. 137.9 138. 138.000", "107. 107.9 138.1 138.005 139. 10.0"},
        {3, "118. 118.0 120.9 137.9 138. 138.000", "108. 117. 117.9 138.1 138.005 139."},
        {4, "136. 136.0 137. 138. 150.5 173.9 174. 174.0000", "135. 135.9 174.1 174.0001 175."},
        {5, "138. 138.0 150.5 173.9 174. 174.0000", "136. 137. 137.9 174.1 174.0001 175."},
        {6, "225. 225.0 300.5 399.9 400. 400.0000", "224. 224.9 400.1 400.0001 401."},
        {7, "403. 403.0 450.5 511.9 512. 512.0000", "402. 402.9 512.1 512.0001 513. 999.0"},
        {8, "896. 896.0 900.5 959.9 960. 960.0000", "31. 31.0 895. 895.9 960.1 960.0001 961."},
    };
    for (int step : {1250, 2500, 6250, 8333, 12500, 25000, 5000})
        for (const Line& line : lines) {
            // "50.00000" is too long for the narrow raster, but the limit itself may always have zeros.
            ExpectEach(line.inside, true, step, line.band);
            ExpectEach(line.outside, false, step, line.band);
        }
}

TEST(TypedFrequency, IsRefusedInABandThatDoesNotExist) {
    for (int band : {-1, 9, 99})
        ExpectEach("30. 31.0000 120.0 155.0 900.0", false, 2500, band);
}

TEST(TypedFrequency, TakesOnlyZerosOnTheHighLimit) {
    constexpr NextDigits lines[] = {
        {"174.", "0"}, {"174.0", "0"}, {"174.00", "0"}, {"174.000", "0"}, {"174.0000", "0"}};
    for (int step : Steps) {
        ExpectNextDigits(step, 4, lines);
        ExpectNextDigits(step, 5, lines);
    }
}

TEST(TypedFrequency, AtStep2500EndsInAQuarterOfTheSecondDigit) {
    constexpr NextDigits lines[] = {
        {"155.", AnyDigit}, {"155.0", AnyDigit}, {"155.00", "0257"}, {"155.01", "0257"}, {"155.02", "0257"},
        {"155.03", "0257"}, {"155.04", "0257"},  {"155.05", "0257"}, {"155.06", "0257"}, {"155.07", "0257"},
        {"155.08", "0257"}, {"155.09", "0257"},  {"155.010", "0"},   {"155.012", "5"},   {"155.015", "0"},
        {"155.017", "5"},   {"155.992", "5"},    {"155.0100", "0"},  {"155.0125", "0"},  {"155.0150", "0"},
        {"155.0175", "0"},  {"155.01250", ""},   {"173.99", "0257"}, {"138.997", "5"},
    };
    ExpectNextDigits(2500, 5, lines);
    ExpectNextDigits(2500, 4, lines);
}

TEST(TypedFrequency, AtStep1250EndsInAnEighthOfTheThirdDigitsTen) {
    constexpr NextDigits lines[] = {
        {"150.", AnyDigit}, {"150.0", AnyDigit}, {"150.00", AnyDigit}, {"150.01", AnyDigit},
        {"150.000", "0"},   {"150.001", "2"},    {"150.002", "5"},     {"150.003", "7"},
        {"150.004", ""},    {"150.005", "0"},    {"150.006", "2"},     {"150.007", "5"},
        {"150.008", "7"},   {"150.009", ""},     {"150.0000", "0"},    {"150.0012", "5"},
        {"150.0025", "0"},  {"150.0037", "5"},   {"150.0050", "0"},    {"150.0062", "5"},
        {"150.0075", "0"},  {"150.0087", "5"},   {"150.00625", ""},    {"137.996", "2"},
        {"173.998", "7"},
    };
    ExpectNextDigits(1250, 4, lines);
}

TEST(TypedFrequency, AtStep6250FollowsItsRaster) {
    constexpr NextDigits lines[] = {
        {"155.", AnyDigit}, {"155.0", AnyDigit}, {"155.00", "06"},  {"155.01", "28"},  {"155.02", "5"},
        {"155.03", "17"},   {"155.04", "3"},     {"155.05", "06"},  {"155.06", "28"},  {"155.07", "5"},
        {"155.08", "17"},   {"155.09", "3"},     {"155.000", "0"},  {"155.006", "2"},  {"155.012", "5"},
        {"155.018", "7"},   {"155.025", "0"},    {"155.031", "2"},  {"155.037", "5"},  {"155.043", "7"},
        {"155.050", "0"},   {"155.056", "2"},    {"155.062", "5"},  {"155.068", "7"},  {"155.075", "0"},
        {"155.081", "2"},   {"155.087", "5"},    {"155.093", "7"},  {"155.0000", "0"}, {"155.0062", "5"},
        {"155.0125", "0"},  {"155.0187", "5"},   {"155.0250", "0"}, {"155.0312", "5"}, {"155.0437", "5"},
        {"155.00625", ""},
    };
    ExpectNextDigits(6250, 5, lines);
}

TEST(TypedFrequency, AtStep8333FollowsTheNarrowRasterOfVoiceChannels) {
    constexpr NextDigits lines[] = {
        {"121.", AnyDigit}, {"121.0", AnyDigit}, {"121.00", "05"}, {"121.01", "05"}, {"121.02", "5"},
        {"121.03", "05"},   {"121.04", "0"},     {"121.05", "05"}, {"121.06", "05"}, {"121.07", "5"},
        {"121.08", "05"},   {"121.09", "0"},     {"121.005", ""},  {"121.010", ""},  {"121.025", ""},
        {"118.01", "05"},   {"118.000", ""},     {"137.97", "5"},  {"137.99", "0"},
    };
    ExpectNextDigits(8333, 2, lines);
    ExpectNextDigits(8333, 3, lines);
    constexpr NextDigits lowestOfVhf[] = {{"138.0", AnyDigit}, {"138.01", "05"}, {"138.010", ""}};
    ExpectNextDigits(8333, 5, lowestOfVhf);
}

TEST(TypedFrequency, AtStep8333Keeps25KhzOutsideTheVoiceChannels) {
    constexpr NextDigits below[] = {
        {"117.", AnyDigit}, {"117.9", "0257"}, {"117.90", "0"},   {"117.92", "5"},
        {"117.95", "0"},    {"117.97", "5"},   {"117.900", "0"},  {"117.925", "0"},
        {"117.9250", "0"},  {"117.92500", ""}, {"108.0", "0257"}, {"108.05", "0"},
    };
    ExpectNextDigits(8333, 2, below);
    constexpr NextDigits above[] = {{"225.1", "0257"}, {"225.10", "0"}, {"225.12", "5"}, {"225.125", "0"}};
    ExpectNextDigits(8333, 6, above);
    constexpr NextDigits justAbove[] = {{"139.0", "0257"}, {"139.00", "0"}};
    ExpectNextDigits(8333, 5, justAbove);
}

TEST(TypedFrequency, AtStep12500FollowsItsRaster) {
    constexpr NextDigits lines[] = {
        {"155.", AnyDigit}, {"155.0", AnyDigit}, {"155.00", "0"},   {"155.01", "2"},  {"155.02", "5"},
        {"155.03", "7"},    {"155.04", ""},      {"155.05", "0"},   {"155.06", "2"},  {"155.07", "5"},
        {"155.08", "7"},    {"155.09", ""},      {"155.000", "0"},  {"155.012", "5"}, {"155.025", "0"},
        {"155.037", "5"},   {"155.050", "0"},    {"155.062", "5"},  {"155.075", "0"}, {"155.087", "5"},
        {"155.0125", "0"},  {"155.0250", "0"},   {"155.01250", ""},
    };
    ExpectNextDigits(12500, 5, lines);
}

TEST(TypedFrequency, AtStep25000FollowsItsRaster) {
    constexpr NextDigits lines[] = {
        {"155.", AnyDigit}, {"155.0", "0257"}, {"155.3", "0257"}, {"155.9", "0257"}, {"155.00", "0"},
        {"155.02", "5"},    {"155.05", "0"},   {"155.07", "5"},   {"155.000", "0"},  {"155.025", "0"},
        {"155.050", "0"},   {"155.075", "0"},  {"155.0250", "0"}, {"155.02500", ""},
    };
    ExpectNextDigits(25000, 5, lines);
}

TEST(TypedFrequency, AtAnUnknownStepTakesAnyDigits) {
    for (int step : {0, 5000, -1})
        ExpectEach("155. 155.1 155.13 155.139 155.1394 155.13948", true, step, 5);
}

TEST(TypedFrequency, OfTheVhfBandIsRefusedAtTheFirstWrongKey) {
    ExpectEach("138 138.01 174.0", true, 2500, 5);
    ExpectEach("138.013 174.1", false, 2500, 5);
}

TEST(TypedFrequency, OfTheAirBandHasThreeDigitsBehindThePoint) {
    ExpectEach("121.0 121.00 121.005 121.010", true, 8333, 3);
    ExpectEach("121.0100", false, 8333, 3);
}

TEST(TypedFrequency, OfTheDigitalBandIsRefusedAtItsFourthDigit) {
    ExpectEach("150.006 150.0062 150.00625", true, 1250, 4);
    ExpectEach("150.0063 150.00635", false, 1250, 4);
}

TEST(CompletedFrequency, AtStep2500) {
    constexpr Completed vhf[] = {
        {"155", "155.0000"},
        {"155.", "155.0000"},
        {"155.2", "155.2000"},
        {"155.01", "155.0100"},
        {"155.99", "155.9900"},
        {"155.010", "155.0100"},
        {"155.012", "155.0125"},
        {"155.015", "155.0150"},
        {"155.017", "155.0175"},
        {"155.997", "155.9975"},
        {"155.0125", "155.0125"},
        {"155.01250", "155.01250"},
        {"138", "138.0000"},
        {"174", "174.0000"},
        {"174.0", "174.0000"},
        {"174.0000", "174.0000"},
        {"", nullptr},
        {".", nullptr},
        {"1", nullptr},
        {"15", nullptr},
        {"137", nullptr},
        {"175", nullptr},
        {"1555", nullptr},
        {"n/a", nullptr},
        {"155.013", nullptr},
        {"155.0126", nullptr},
        {"155.0.0", nullptr},
        {"155.000000", nullptr},
        {"174.1", nullptr},
        {"137.9975", nullptr},
    };
    ExpectCompleted(2500, 5, 8, vhf);
    constexpr Completed low[] = {
        {"30", "30.0000"},      {"30.5", "30.5000"},  {"30.012", "30.0125"}, {"49.997", "49.9975"},
        {"30.0125", "30.0125"}, {"50", "50.0000"},    {"30.01", "30.0100"},  {"51", nullptr},
        {"3", nullptr},         {"50.0025", nullptr},
    };
    ExpectCompleted(2500, 0, 7, low);
    constexpr Completed mid[] = {
        {"66", "66.0000"}, {"70.252", "70.2525"}, {"88.0", "88.0000"}, {"88.1", nullptr}};
    ExpectCompleted(2500, 1, 7, mid);
    constexpr Completed uhfAm[] = {
        {"225", "225.0000"}, {"300.507", "300.5075"}, {"400", "400.0000"}, {"224", nullptr}};
    ExpectCompleted(2500, 6, 8, uhfAm);
    constexpr Completed uhf[] = {
        {"403", "403.0000"}, {"450.555", "450.5550"}, {"512.", "512.0000"}, {"512.1", nullptr}};
    ExpectCompleted(2500, 7, 8, uhf);
}

TEST(CompletedFrequency, AtStep1250) {
    constexpr Completed lines[] = {
        {"136", "136.00000"},
        {"150.2", "150.20000"},
        {"150.01", "150.01000"},
        {"150.000", "150.00000"},
        {"150.001", "150.00125"},
        {"150.002", "150.00250"},
        {"150.003", "150.00375"},
        {"150.005", "150.00500"},
        {"150.006", "150.00625"},
        {"150.007", "150.00750"},
        {"150.008", "150.00875"},
        {"150.0012", "150.00125"},
        {"150.0025", "150.00250"},
        {"150.0050", "150.00500"},
        {"150.0062", "150.00625"},
        {"150.00625", "150.00625"},
        {"174.0000", "174.00000"},
        {"150.0063", nullptr},
        {"150.00635", nullptr},
        {"150.0040", nullptr},
        {"135.9", nullptr},
        {"174.001", nullptr},
        // Digits without a successor still get a zero here.
        {"150.004", "150.00400"},
        {"150.009", "150.00900"},
    };
    ExpectCompleted(1250, 4, 9, lines);
}

TEST(CompletedFrequency, AtStep6250StopsAtTheWidth) {
    constexpr Completed eight[] = {
        {"155", "155.0000"},        {"155.3", "155.3000"},   {"155.00", "155.0000"},
        {"155.01", "155.0125"},     {"155.02", "155.0250"},  {"155.03", "155.0312"},
        {"155.04", "155.0437"},     {"155.05", "155.0500"},  {"155.06", "155.0625"},
        {"155.07", "155.0750"},     {"155.08", "155.0812"},  {"155.09", "155.0937"},
        {"155.006", "155.0062"},    {"155.018", "155.0187"}, {"155.0062", "155.0062"},
        {"155.00625", "155.00625"}, {"155.013", nullptr},    {"155.0063", nullptr},
    };
    ExpectCompleted(6250, 5, 8, eight);
    constexpr Completed nine[] = {
        {"155.00", "155.00000"},  {"155.01", "155.01250"},   {"155.03", "155.03125"},
        {"155.04", "155.04375"},  {"155.06", "155.06250"},   {"155.006", "155.00625"},
        {"155.018", "155.01875"}, {"155.0187", "155.01875"}, {"155", "155.00000"},
    };
    ExpectCompleted(6250, 5, 9, nine);
}

TEST(CompletedFrequency, AtStep8333) {
    constexpr Completed voice[] = {
        {"118", "118.000"},     {"121.5", "121.500"},  {"121.2", "121.200"},  {"121.00", "121.000"},
        {"121.01", "121.010"},  {"121.02", "121.025"}, {"121.03", "121.030"}, {"121.04", "121.040"},
        {"121.05", "121.050"},  {"121.07", "121.075"}, {"121.09", "121.090"}, {"121.005", "121.005"},
        {"121.015", "121.015"}, {"138", "138.000"},    {"121.023", nullptr},  {"121.012", nullptr},
        {"121.0050", nullptr},  {"117.9", nullptr},    {"138.005", nullptr},
    };
    ExpectCompleted(8333, 3, 7, voice);
    constexpr Completed below[] = {
        {"108", "108.000"},    {"117.9", "117.900"},   {"117.92", "117.925"},    {"117.95", "117.950"},
        {"117.97", "117.975"}, {"117.975", "117.975"}, {"117.9000", "117.9000"}, {"117.96", nullptr},
        {"117.974", nullptr},  {"107", nullptr},
    };
    ExpectCompleted(8333, 2, 7, below);
}

TEST(CompletedFrequency, AtStep12500) {
    constexpr Completed lines[] = {
        {"155", "155.0000"},
        {"155.1", "155.1000"},
        {"155.00", "155.0000"},
        {"155.01", "155.0125"},
        {"155.02", "155.0250"},
        {"155.03", "155.0375"},
        {"155.05", "155.0500"},
        {"155.06", "155.0625"},
        {"155.07", "155.0750"},
        {"155.08", "155.0875"},
        {"155.012", "155.0125"},
        {"155.037", "155.0375"},
        {"155.0375", "155.0375"},
        {"155.013", nullptr},
        {"155.040", nullptr},
        {"155.0126", nullptr},
        // Digits without a successor still get zeros here.
        {"155.04", "155.0400"},
        {"155.09", "155.0900"},
    };
    ExpectCompleted(12500, 5, 8, lines);
}

TEST(CompletedFrequency, AtStep25000) {
    constexpr Completed lines[] = {
        {"155", "155.0000"},    {"155.2", "155.2000"},   {"155.02", "155.0250"},   {"155.05", "155.0500"},
        {"155.07", "155.0750"}, {"155.025", "155.0250"}, {"155.0250", "155.0250"}, {"174", "174.0000"},
        {"155.01", nullptr},    {"155.03", nullptr},     {"155.020", nullptr},
    };
    ExpectCompleted(25000, 5, 8, lines);
}

TEST(CompletedFrequency, ThatAlreadyFillsTheCellStaysAsItIs) {
    constexpr Completed full[] = {
        {"155.0125", "155.0125"}, {"155.01250", "155.01250"}, {"138.0000", "138.0000"}};
    ExpectCompleted(2500, 5, 8, full);
}

TEST(ReceiveOnlyFrequency, EndsBelow117975AsItsDigitsRead) {
    struct Line {
        const char* text;
        bool expected;
    };
    constexpr Line lines[] = {
        {"107.975", false},  {"108.000", true},  {"108", true},       {"110.5", true},    {"116.999", true},
        {"116.9999", true},  {"117.000", true},  {"117.", true},      {"117.900", true},  {"117.974", true},
        {"117.975", false},  {"117.976", false}, {"117.9", true},     {"117.97", true},   {"117.9000", false},
        {"117.0975", false}, {"117.0974", true}, {"118.000", false},  {"30.0000", false}, {"n/a", false},
        {"", false},         {"138.000", false}, {"155.0000", false},
    };
    for (const Line& line : lines)
        EXPECT_EQ(CheckRxOnlyFreq(line.text), line.expected) << '"' << line.text << '"';
}
