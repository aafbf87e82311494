#include "simulator/MemoryList.h"

#include "simulator/TextFile.h"

namespace Simulator {

bool LoadMemories(const std::string& path, const AnalogModel& model, MemoryList& memories,
                  std::string& problem) {
    MemoryList read;
    const auto Take = [&](const std::string& line, std::string& why) {
        const auto memory = ParseLongLine(line, model, model.rows, why);
        if (memory)
            read[memory->number] = *memory;
        return memory.has_value();
    };
    if (!ReadLines(path, Missing::IsEmpty, Take, problem))
        return false;
    memories = std::move(read);
    return true;
}

bool SaveMemories(const std::string& path, const AnalogModel& model, const MemoryList& memories,
                  std::string& problem) {
    std::string text = "# " + std::string(model.name) + " " + std::string(model.band) + "\n";
    for (const auto& [number, memory] : memories)
        text += FormatLongLine(memory, NumberField(number)) + "\n";
    return WriteTextFile(path, text, problem);
}

} // namespace Simulator
