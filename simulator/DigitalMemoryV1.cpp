// First layout: one-byte numbers, frequencies as text.
#include "simulator/DigitalMemory.h"
#include "simulator/HexRecord.h"
#include "simulator/RecordFields.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>

namespace Simulator {

namespace {

constexpr int LengthV1 = 136;
constexpr int GuardOffset = 270; // from guard 231 on the wire to guard 501 of the longer list
constexpr int GuardMark = 0x80;
constexpr int NoRxCode = 0xFF;
constexpr int HighestRxCode = 82;
constexpr int HighestZone = 15;

int FromWire(int number, const DigitalModel& model) {
    return model.remoteGuards && number > LastOrdinaryV1 ? number + GuardOffset : number;
}

/// The number on the wire, or -1 if this layout has none for it.
int OnWire(int number, const DigitalModel& model) {
    const int wire = model.remoteGuards && number > LastOrdinaryV1 ? number - GuardOffset : number;
    const bool named = wire <= HighestV1 && (!model.remoteGuards || number == wire || wire > LastOrdinaryV1);
    return wire >= 0 && named ? wire : -1;
}

std::string FrequencyText(int64_t hertz) {
    char text[32];
    std::snprintf(text, sizeof text, "%03" PRId64 ".%04" PRId64, hertz / 1'000'000 % 1000,
                  hertz % 1'000'000 / 100);
    return text;
}

uint64_t Byte(int value) {
    return static_cast<uint64_t>(value);
}

} // namespace

Result<DigitalMemory> ParseMemoryV1(std::string_view body, const DigitalModel& model) {
    RecordFields fields(body);
    if (body.size() != LengthV1)
        return Refusal{"length is " + std::to_string(body.size() + 2) + ", not 138"};
    DigitalMemory memory;
    fields.Literal(0, "T143", "head");
    const int wire = static_cast<int>(fields.Number(4, 4, 0, HighestV1, "address"));
    memory.address = FromWire(wire, model);
    const int64_t low = fields.Number(8, 2, 0, 0xFF, "flags");
    if (((low & GuardMark) != 0) != (wire > LastOrdinaryV1))
        fields.Refuse(8, "the guard mark 80 belongs to memories 231 and 232 only, and they need it");
    memory.primary = FromWire(static_cast<int>(fields.Number(10, 2, 0, HighestV1, "primary")), model);
    memory.number = FromWire(static_cast<int>(fields.Number(12, 2, wire, wire, "number")), model);
    const int64_t zone = fields.Number(14, 2, 0, 0xFF, "zone");
    memory.zone = static_cast<int>(zone >> 4);
    fields.Literal(15, "0", "low digit of the zone");
    memory.description = fields.Text(16, 8, "description");
    fields.Literal(32, "20", "separator");
    memory.mode = fields.Letter(34, model.modes, "mode");
    memory.rxFrequency = fields.FrequencyText(36, model, "receive frequency");
    fields.Literal(52, "52", "receive tag");
    memory.rxSquelch = fields.Letter(54, model.rxSquelch, "receive squelch");
    memory.rxTalkGroup = static_cast<int>(fields.Number(56, 4, 0, 0xFFFF, "receive talk group"));
    memory.rxTone = static_cast<int>(fields.Number(60, 2, 0, 42, "receive tone"));
    // Receive codes count from 0, with FF for none; transmit codes count from 1.
    const int code = static_cast<int>(fields.Number(62, 2, 0, 0xFF, "receive code"));
    if (code != NoRxCode && code > HighestRxCode)
        fields.Refuse(62, "receive code is neither from 0 to 82 nor FF");
    memory.rxCode = code == NoRxCode ? 0 : code + 1;
    memory.rxNac = static_cast<int>(fields.Number(64, 4, 0, 0xFFF, "receive NAC"));
    memory.txFrequency = fields.FrequencyText(68, model, "transmit frequency");
    fields.Literal(84, "54", "transmit tag");
    memory.txSquelch = fields.Letter(86, model.txSquelch, "transmit squelch");
    memory.txTalkGroup = static_cast<int>(fields.Number(88, 4, 0, 0xFFFF, "transmit talk group"));
    memory.txTone = static_cast<int>(fields.Number(92, 2, 0, 42, "transmit tone"));
    memory.txCode = static_cast<int>(fields.Number(94, 2, 0, model.highestCode, "transmit code"));
    memory.txNac = static_cast<int>(fields.Number(96, 4, 0, 0xFFFF, "transmit NAC"));
    memory.txId = fields.Number(100, 8, 0, 9'999'999, "transmit ID");
    fields.Zeros(108, 14, "shadows");
    memory.squelchValue = static_cast<int>(fields.Number(122, 2, 0, 15, "squelch value"));
    fields.Zeros(124, 4, "reserved field");
    memory.flags = static_cast<int>((low & ~GuardMark) | fields.Number(128, 2, 0, 3, "high flags") << 8);
    fields.Zeros(130, 6, "reserved field");
    if (const Failure& failure = fields.FirstFailure())
        return Refusal{*failure};
    return memory;
}

std::string FormatMemoryV1(const DigitalMemory& memory, const ShadowSlots& shadows,
                           const DigitalModel& model) {
    const int number = OnWire(memory.address, model);
    if (number < 0)
        return {};
    std::string body = "T143" + Hex(Byte(number), 4);
    body += Hex(Byte((memory.flags & 0x7F) | (number > LastOrdinaryV1 ? GuardMark : 0)), 2);
    body += Hex(Byte(std::max(0, OnWire(memory.primary, model))), 2);
    body += Hex(Byte(number), 2);
    body += Hex(Byte((memory.zone & HighestZone) << 4), 2);
    body += HexOfText(memory.description) + "20" + HexOfText({&memory.mode, 1});
    body += HexOfText(FrequencyText(memory.rxFrequency)) + "52" + HexOfText({&memory.rxSquelch, 1});
    body += Hex(Byte(memory.rxTalkGroup), 4) + Hex(Byte(memory.rxTone), 2);
    body += Hex(Byte(memory.rxCode == 0 ? NoRxCode : memory.rxCode - 1), 2) + Hex(Byte(memory.rxNac), 4);
    body += HexOfText(FrequencyText(memory.txFrequency)) + "54" + HexOfText({&memory.txSquelch, 1});
    body += Hex(Byte(memory.txTalkGroup), 4) + Hex(Byte(memory.txTone), 2) + Hex(Byte(memory.txCode), 2);
    body += Hex(Byte(memory.txNac), 4) + Hex(static_cast<uint64_t>(memory.txId), 8);
    for (int shadow : shadows)
        body += Hex(Byte(std::max(0, OnWire(shadow, model))), 2);
    return body + Hex(Byte(memory.squelchValue), 2) + "0000" + Hex(Byte(memory.flags >> 8 & 3), 2) + "000000";
}

} // namespace Simulator
