#include "simulator/DigitalMemory.h"

#include "simulator/HexRecord.h"

namespace Simulator {

std::optional<DigitalMemory> ParseMemory(Layout layout, std::string_view line, const DigitalModel& model,
                                         std::string& problem) {
    const auto record = ParseRecord(line, problem);
    if (!record)
        return std::nullopt;
    const std::string_view body = line.substr(0, line.size() - 2);
    return layout == Layout::V1 ? ParseMemoryV1(body, model, problem) : ParseMemoryV2(body, model, problem);
}

std::string FormatMemory(Layout layout, const DigitalMemory& memory, const ShadowSlots& shadows,
                         const DigitalModel& model) {
    const std::string body =
        layout == Layout::V1 ? FormatMemoryV1(memory, shadows, model) : FormatMemoryV2(memory, shadows);
    return body.empty() ? body : WithChecksum(body);
}

ShadowSlots ShadowsOf(const DigitalMemory& primary, const DigitalMemoryList& memories) {
    ShadowSlots slots{};
    for (const auto& [address, memory] : memories) {
        const int place = memory.flags & 0x07;
        // A copy of a shadow names itself as its primary; it belongs to no other memory.
        if (place > 0 && memory.primary == primary.number && address != primary.address)
            slots[static_cast<size_t>(place - 1)] = memory.number;
    }
    return slots;
}

} // namespace Simulator
