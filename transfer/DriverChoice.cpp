#include "transfer/DriverChoice.h"

#include "catalogue/RadioTables.h"

using namespace RadioCatalogue;

namespace {

constexpr int AnyBand = -1;
constexpr TransferDriver None = TransferDriver::None;
constexpr TransferDriver Analog = TransferDriver::Analog;
constexpr TransferDriver TRecord = TransferDriver::TRecord;

struct DriverEntry {
    int type;
    int band;
    TransferDriver read;
    TransferDriver write;
    const char* writeTitle;
};

// The first matching entry applies.
constexpr DriverEntry Drivers[] = {
    {ANFM, AnyBand, Analog, Analog, "Send to ANFM Radio Progress"},
    {ANAM, AnyBand, Analog, Analog, "Send to ANFM Radio Progress"},
    {FXAM, AnyBand, Analog, Analog, "Send to ANFM Radio Progress"},
    {RP25, AnyBand, TRecord, TRecord, "Send to RP25 Radio Progress"},
    {NP25, AnyBand, TRecord, TRecord, "Send to RP25 Radio Progress"},
    {MDLX, K6Module, Analog, Analog, "Send to MDLX K6 Module Progress"},
    {MDLX, K7Module, TRecord, TRecord, "Send to MDLX K7 Module Progress"},
    {MDLX, AnyBand, None, TRecord, "Send to MDLX K7 Module Progress"},
    {O12, AnyBand, Analog, None, ""},
    {KDAR, AnyBand, Analog, None, ""},
};

} // namespace

DriverChoice ChooseDriver(int type, int band, TransferDirection direction) {
    for (const DriverEntry& entry : Drivers) {
        if (entry.type != type || (entry.band != AnyBand && entry.band != band))
            continue;
        if (direction == TransferDirection::Write)
            return {entry.write, entry.writeTitle};
        return {entry.read};
    }
    return {};
}
