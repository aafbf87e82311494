#include "simulator/AnalogModels.h"

#include <gtest/gtest.h>

namespace {

using namespace Simulator;

struct Expected {
    const char* name;
    const char* band;
    int low, high;
    int rows;
    int openingNumber;
    StartKey key;
    bool writable;
};

constexpr StartKey NoKey = StartKey::None;
constexpr StartKey Enter = StartKey::Enter;
constexpr StartKey Home = StartKey::Home;

const Expected Radios[] = {
    {"KRV-21", "FM 30-50", 30, 50, 122, 2, NoKey, true},
    {"KRV-47", "FM 66-88", 66, 88, 122, 2, NoKey, true},
    {"ORV-12", "AM 118-138", 118, 138, 6, 0, NoKey, false},
    {"KRV-214", "FM 138-174", 138, 174, 102, 4, NoKey, true},
    {"KRV-214B", "FM 138-174", 138, 174, 122, 1, NoKey, true},
    {"KRV-305", "FM 403-512", 403, 512, 122, 3, NoKey, true},
    {"KDAR-2000", "AM 118-138", 118, 138, 100, 0, NoKey, false},
    {"KRV-610", "FM 138-174", 138, 174, 202, 0, Enter, true},
    {"KRV-610", "FM 403-512", 403, 512, 200, 0, Enter, true},
    {"KRV-620", "FM 138-174", 138, 174, 200, 0, Enter, true},
    {"KRV-620", "AM 225-400", 225, 400, 200, 0, Enter, true},
    {"KRV-630", "FM 30-50", 30, 50, 200, 0, Enter, true},
    {"KRV-630", "FM 138-174", 138, 174, 202, 0, Enter, true},
    {"KRV-630_QNT", "FM 30-50", 30, 50, 202, 0, Enter, true},
    {"KRV-630_QNT", "FM 138-174", 138, 174, 200, 0, Enter, true},
    {"KRV-650", "FM 30-50", 30, 50, 200, 0, Enter, true},
    {"KRV-650", "FM 138-174", 138, 174, 200, 0, Enter, true},
    {"KRV-650", "FM 403-512", 403, 512, 200, 0, Enter, true},
    {"KRV-656", "FM 66-88", 66, 88, 200, 0, Enter, true},
    {"KRV-656", "FM 138-174", 138, 174, 200, 0, Enter, true},
    {"KRV-656", "FM 403-512", 403, 512, 200, 0, Enter, true},
    {"KRV-666", "FM 66-88", 66, 88, 200, 0, Enter, true},
    {"KRV-666", "FM 138-174", 138, 174, 202, 0, Enter, true},
    {"KDRV-8400", "FM 30-50", 30, 50, 200, 0, Home, true},
    {"KDRV-8400", "AM 118-138", 118, 138, 200, 0, Home, true},
    {"KDRV-8400", "FM 138-174", 138, 174, 200, 0, Home, true},
    {"KDRV-8400", "AM 225-400", 225, 400, 200, 0, Home, true},
    {"KDRV-8400", "FM 403-512", 403, 512, 200, 0, Home, true},
    {"KDRV-4xxx", "FM 30-50", 30, 50, 200, 0, NoKey, true},
    {"KDRV-4xxx", "AM 118-138", 118, 138, 200, 0, NoKey, true},
    {"KDRV-4xxx", "FM 138-174", 138, 174, 200, 0, NoKey, true},
    {"KDRV-4xxx", "AM 225-400", 225, 400, 200, 0, NoKey, true},
    {"KDRV-4xxx", "FM 403-512", 403, 512, 200, 0, NoKey, true},
    {"KDRV-4xxx", "K6 3-BAND", 30, 50, 500, 0, NoKey, true},
};

TEST(AnalogModels, HoldEveryAnalogBandOfTheProductList) {
    ASSERT_EQ(AnalogModels().size(), std::size(Radios));
    for (const Expected& expected : Radios) {
        SCOPED_TRACE(std::string(expected.name) + ":" + expected.band);
        const auto found = FindAnalogModel(expected.name, expected.band);
        ASSERT_TRUE(found) << found.Reason();
        const AnalogModel* model = *found;
        EXPECT_EQ(model->ranges[0].low, expected.low);
        EXPECT_EQ(model->ranges[0].high, expected.high);
        EXPECT_EQ(model->rows, expected.rows);
        EXPECT_EQ(model->openingNumber, expected.openingNumber);
        EXPECT_EQ(model->key, expected.key);
        EXPECT_EQ(model->writable, expected.writable);
        EXPECT_EQ(HasGuards(*model), expected.rows % 10 == 2);
        EXPECT_EQ(ShortOpeningReach(*model), expected.rows == 500 ? 202 : expected.rows);
    }
}

TEST(AnalogModels, OfOneBandAreFoundWithoutIt) {
    const auto found = FindAnalogModel("KRV-305", "");
    ASSERT_TRUE(found) << found.Reason();
    EXPECT_EQ((*found)->band, "FM 403-512");
}

TEST(AnalogModels, OfSeveralBandsAskForOne) {
    const auto found = FindAnalogModel("KRV-650", "");
    EXPECT_FALSE(found);
    EXPECT_NE(found.Reason().find("several bands"), std::string::npos) << found.Reason();
    EXPECT_NE(found.Reason().find("\"FM 403-512\""), std::string::npos) << found.Reason();
}

TEST(AnalogModels, RefuseUnknownNamesAndBands) {
    const auto digital = FindAnalogModel("KDRV-716", "");
    EXPECT_FALSE(digital);
    EXPECT_NE(digital.Reason().find("no analog radio"), std::string::npos) << digital.Reason();
    EXPECT_FALSE(FindAnalogModel("krv-214", ""));
    const auto otherBand = FindAnalogModel("KRV-214", "FM 30-50");
    EXPECT_FALSE(otherBand);
    EXPECT_NE(otherBand.Reason().find("no such band"), std::string::npos) << otherBand.Reason();
}

TEST(AnalogModels, ModuleTunesThreeRanges) {
    const auto found = FindAnalogModel("KDRV-4xxx", "K6 3-BAND");
    ASSERT_TRUE(found) << found.Reason();
    const AnalogModel* model = *found;
    const int expected[][2] = {{30, 50}, {108, 138}, {225, 400}};
    for (size_t k = 0; k < 3; ++k) {
        EXPECT_EQ(model->ranges[k].low, expected[k][0]);
        EXPECT_EQ(model->ranges[k].high, expected[k][1]);
    }
}

} // namespace
