#include "simulator/MemoryList.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <unistd.h>

namespace Simulator {

bool LoadMemories(const std::string& path, const AnalogModel& model, MemoryList& memories,
                  std::string& trouble) {
    std::ifstream file(path);
    if (!file) {
        if (errno == ENOENT)
            return true;
        trouble = path + ": " + std::strerror(errno);
        return false;
    }
    MemoryList read;
    std::string line;
    for (int count = 1; std::getline(file, line); ++count) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line[0] == '#')
            continue;
        std::string why;
        const auto memory = ParseLongLine(line, model, model.rows, why);
        if (!memory) {
            trouble = path + ":" + std::to_string(count) + ": " + why;
            return false;
        }
        read[memory->number] = *memory;
    }
    if (file.bad()) {
        trouble = path + ": can't be read";
        return false;
    }
    memories = std::move(read);
    return true;
}

bool SaveMemories(const std::string& path, const AnalogModel& model, const MemoryList& memories,
                  std::string& trouble) {
    const std::string fresh = path + ".new";
    const auto Fail = [&] {
        trouble = path + ": " + std::strerror(errno);
        std::remove(fresh.c_str());
        return false;
    };
    std::FILE* file = std::fopen(fresh.c_str(), "w");
    if (!file)
        return Fail();
    std::string text = "# " + std::string(model.name) + " " + std::string(model.band) + "\n";
    for (const auto& [number, memory] : memories)
        text += FormatLongLine(memory, NumberField(number)) + "\n";
    bool good = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    good = std::fflush(file) == 0 && good;
    good = fsync(fileno(file)) == 0 && good;
    good = std::fclose(file) == 0 && good;
    if (!good || std::rename(fresh.c_str(), path.c_str()) != 0)
        return Fail();
    return true;
}

} // namespace Simulator
