// Second layout: two-byte numbers, frequencies in Hz.
#include "simulator/DigitalMemory.h"
#include "simulator/HexRecord.h"
#include "simulator/RecordFields.h"

namespace Simulator {

namespace {

constexpr int LengthV2 = 136;
constexpr int AllFlags = 0x3FF;
constexpr int HighestZone = 31;

uint64_t Word(int64_t value) {
    return static_cast<uint64_t>(value);
}

} // namespace

Result<DigitalMemory> ParseMemoryV2(std::string_view body, const DigitalModel& model) {
    RecordFields fields(body);
    if (body.size() != LengthV2)
        return Refusal{"length is " + std::to_string(body.size() + 2) + ", not 138"};
    DigitalMemory memory;
    fields.Literal(0, "T143", "head");
    memory.address = static_cast<int>(fields.Number(4, 4, 0, model.highest, "address"));
    memory.flags = static_cast<int>(fields.Number(8, 4, 0, AllFlags, "flags"));
    memory.primary = static_cast<int>(fields.Number(12, 4, 0, model.highest, "primary"));
    memory.number = static_cast<int>(fields.Number(16, 4, 0, model.highest, "number"));
    memory.zone = static_cast<int>(fields.Number(20, 4, 0, HighestZone << 4, "zone") >> 4);
    fields.Literal(23, "0", "low digit of the zone");
    memory.description = fields.Text(24, 8, "description");
    fields.Literal(40, "20", "separator");
    memory.mode = fields.Letter(42, model.modes, "mode");
    memory.rxFrequency = fields.FrequencyHertz(44, model, "receive frequency");
    fields.Literal(52, "52", "receive tag");
    memory.rxSquelch = fields.Letter(54, model.rxSquelch, "receive squelch");
    memory.rxTone = static_cast<int>(fields.Number(56, 2, 0, 42, "receive tone"));
    memory.rxCode = static_cast<int>(fields.Number(58, 2, 0, model.highestCode, "receive code"));
    const int packed = static_cast<int>(fields.Number(60, 4, 0, 0xFFFF, "squelch value and receive NAC"));
    memory.squelchValue = packed >> 12;
    memory.rxNac = packed & 0xFFF;
    memory.rxTalkGroup = static_cast<int>(fields.Number(64, 4, 0, 0xFFFF, "receive talk group"));
    memory.txFrequency = fields.FrequencyHertz(68, model, "transmit frequency");
    fields.Literal(76, "54", "transmit tag");
    memory.txSquelch = fields.Letter(78, model.txSquelch, "transmit squelch");
    memory.txTone = static_cast<int>(fields.Number(80, 2, 0, 42, "transmit tone"));
    memory.txCode = static_cast<int>(fields.Number(82, 2, 0, model.highestCode, "transmit code"));
    memory.txNac = static_cast<int>(fields.Number(84, 4, 0, 0xFFFF, "transmit NAC"));
    memory.txTalkGroup = static_cast<int>(fields.Number(88, 4, 0, 0xFFFF, "transmit talk group"));
    memory.txId = fields.Number(92, 8, 0, 9'999'999, "transmit ID");
    fields.Zeros(100, 28, "shadows");
    fields.Zeros(128, 8, "reserved field");
    if (const Failure& failure = fields.FirstFailure())
        return Refusal{*failure};
    return memory;
}

std::string FormatMemoryV2(const DigitalMemory& memory, const ShadowSlots& shadows) {
    std::string body = "T143" + Hex(Word(memory.address), 4) + Hex(Word(memory.flags), 4);
    body += Hex(Word(memory.primary), 4) + Hex(Word(memory.number), 4) + Hex(Word(memory.zone << 4), 4);
    body += HexOfText(memory.description) + "20" + HexOfText({&memory.mode, 1});
    body += Hex(Word(memory.rxFrequency), 8) + "52" + HexOfText({&memory.rxSquelch, 1});
    body += Hex(Word(memory.rxTone), 2) + Hex(Word(memory.rxCode), 2);
    body += Hex(Word(memory.squelchValue << 12 | memory.rxNac), 4) + Hex(Word(memory.rxTalkGroup), 4);
    body += Hex(Word(memory.txFrequency), 8) + "54" + HexOfText({&memory.txSquelch, 1});
    body += Hex(Word(memory.txTone), 2) + Hex(Word(memory.txCode), 2) + Hex(Word(memory.txNac), 4);
    body += Hex(Word(memory.txTalkGroup), 4) + Hex(Word(memory.txId), 8);
    for (int shadow : shadows)
        body += Hex(Word(shadow), 4);
    return body + "00000000";
}

} // namespace Simulator
