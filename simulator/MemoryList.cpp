#include "simulator/MemoryList.h"

#include "simulator/TextFile.h"

namespace Simulator {

Failure LoadMemories(const std::string& path, const AnalogModel& model, MemoryList& memories) {
    MemoryList read;
    const auto Take = [&](const std::string& line) -> Failure {
        const auto memory = ParseLongLine(line, model, model.rows);
        if (!memory)
            return memory.Reason();
        read[memory->number] = *memory;
        return {};
    };
    if (Failure failure = ReadLines(path, Missing::IsEmpty, Take))
        return failure;
    memories = std::move(read);
    return {};
}

Failure SaveMemories(const std::string& path, const AnalogModel& model, const MemoryList& memories) {
    std::string text = "# " + std::string(model.name) + " " + std::string(model.band) + "\n";
    for (const auto& [number, memory] : memories)
        text += FormatLongLine(memory, NumberField(number)) + "\n";
    return WriteTextFile(path, text);
}

} // namespace Simulator
