#include "transfer/DriverChoice.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr auto None = TransferDriver::None;
constexpr auto Analog = TransferDriver::Analog;
constexpr auto TRecord = TransferDriver::TRecord;

struct Case {
    const char* name;
    int type;
    int firstBand, lastBand;
    TransferDriver read, write;
    const char* title;
};

const Case Cases[] = {
    {"ANFM", 0, 0, 9, Analog, Analog, "Send to ANFM Radio Progress"},
    {"RP25", 1, 0, 9, TRecord, TRecord, "Send to RP25 Radio Progress"},
    {"NP25", 2, 0, 9, TRecord, TRecord, "Send to RP25 Radio Progress"},
    {"MDLX K6", 3, 8, 8, Analog, Analog, "Send to MDLX K6 Module Progress"},
    {"MDLX K7", 3, 9, 9, TRecord, TRecord, "Send to MDLX K7 Module Progress"},
    {"MDLX of another band", 3, 0, 7, None, TRecord, "Send to MDLX K7 Module Progress"},
    {"O12", 4, 0, 9, Analog, None, ""},
    {"KDAR", 5, 0, 9, Analog, None, ""},
    {"ANAM", 6, 0, 9, Analog, Analog, "Send to ANFM Radio Progress"},
    {"FXAM", 7, 0, 9, Analog, Analog, "Send to ANFM Radio Progress"},
    {"no type", 8, 0, 9, None, None, ""},
    {"below the types", -1, 0, 9, None, None, ""},
};

} // namespace

TEST(TransferDriverChoice, FollowsTypeAndBand) {
    for (const Case& c : Cases)
        for (int band = c.firstBand; band <= c.lastBand; ++band) {
            EXPECT_EQ(ChooseDriver(c.type, band, TransferDirection::Read).driver, c.read) << c.name << band;
            const DriverChoice write = ChooseDriver(c.type, band, TransferDirection::Write);
            EXPECT_EQ(write.driver, c.write) << c.name << " band " << band;
            EXPECT_STREQ(write.title, c.title) << c.name << " band " << band;
        }
}
