#include "simulator/DigitalMemoryFile.h"

#include "simulator/TextFile.h"

namespace Simulator {

namespace {

std::string FileLine(const DigitalMemory& memory, Layout layout, const DigitalModel& model) {
    if (layout == Layout::V1) {
        const std::string record = FormatMemory(Layout::V1, memory, {}, model);
        const auto kept = ParseMemory(Layout::V1, record, model);
        if (kept && *kept == memory)
            return "1 " + record;
    }
    return "2 " + FormatMemory(Layout::V2, memory, {}, model);
}

} // namespace

Failure LoadDigitalMemories(const std::string& path, const DigitalModel& model, DigitalMemoryList& memories) {
    DigitalMemoryList read;
    const auto Take = [&](const std::string& line) -> Failure {
        if (!line.starts_with("1 ") && !line.starts_with("2 "))
            return "begins with neither \"1 \" nor \"2 \"";
        const auto memory = ParseMemory(line[0] == '1' ? Layout::V1 : Layout::V2, line.substr(2), model);
        if (!memory)
            return memory.Reason();
        read[memory->address] = *memory;
        return {};
    };
    if (Failure failure = ReadLines(path, Missing::IsEmpty, Take))
        return failure;
    memories = std::move(read);
    return {};
}

Failure SaveDigitalMemories(const std::string& path, const DigitalModel& model, Layout layout,
                            const DigitalMemoryList& memories) {
    std::string text = "# " + std::string(model.name) + " " + std::string(model.band) + "\n";
    for (const auto& [address, memory] : memories)
        text += FileLine(memory, layout, model) + "\n";
    return WriteTextFile(path, text);
}

} // namespace Simulator
