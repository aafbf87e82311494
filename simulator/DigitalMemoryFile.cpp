#include "simulator/DigitalMemoryFile.h"

#include "simulator/TextFile.h"

namespace Simulator {

namespace {

std::string FileLine(const DigitalMemory& memory, Layout layout, const DigitalModel& model) {
    if (layout == Layout::V1) {
        std::string ignored;
        const std::string record = FormatMemory(Layout::V1, memory, {}, model);
        if (ParseMemory(Layout::V1, record, model, ignored) == memory)
            return "1 " + record;
    }
    return "2 " + FormatMemory(Layout::V2, memory, {}, model);
}

} // namespace

bool LoadDigitalMemories(const std::string& path, const DigitalModel& model, DigitalMemoryList& memories,
                         std::string& problem) {
    DigitalMemoryList read;
    const auto Take = [&](const std::string& line, std::string& why) {
        if (!line.starts_with("1 ") && !line.starts_with("2 ")) {
            why = "begins with neither \"1 \" nor \"2 \"";
            return false;
        }
        const auto memory = ParseMemory(line[0] == '1' ? Layout::V1 : Layout::V2, line.substr(2), model, why);
        if (memory)
            read[memory->address] = *memory;
        return memory.has_value();
    };
    if (!ReadLines(path, Missing::IsEmpty, Take, problem))
        return false;
    memories = std::move(read);
    return true;
}

bool SaveDigitalMemories(const std::string& path, const DigitalModel& model, Layout layout,
                         const DigitalMemoryList& memories, std::string& problem) {
    std::string text = "# " + std::string(model.name) + " " + std::string(model.band) + "\n";
    for (const auto& [address, memory] : memories)
        text += FileLine(memory, layout, model) + "\n";
    return WriteTextFile(path, text, problem);
}

} // namespace Simulator
