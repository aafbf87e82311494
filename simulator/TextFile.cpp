#include "simulator/TextFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>

namespace Simulator {

bool ReadLines(const std::string& path, Missing missing,
               const std::function<bool(const std::string& line, std::string& why)>& take,
               std::string& problem) {
    std::ifstream file(path);
    if (!file) {
        if (errno == ENOENT && missing == Missing::IsEmpty)
            return true;
        problem = path + ": " + std::strerror(errno);
        return false;
    }
    std::string line;
    for (int count = 1; std::getline(file, line); ++count) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line[0] == '#')
            continue;
        std::string why;
        if (!take(line, why)) {
            problem = path + ":" + std::to_string(count) + ": " + why;
            return false;
        }
    }
    if (file.bad())
        problem = path + ": can't be read";
    return !file.bad();
}

bool WriteTextFile(const std::string& path, const std::string& text, std::string& problem) {
    const std::string fresh = path + ".new";
    const auto Fail = [&] {
        problem = path + ": " + std::strerror(errno);
        std::remove(fresh.c_str());
        return false;
    };
    std::FILE* file = std::fopen(fresh.c_str(), "w");
    if (!file)
        return Fail();
    bool good = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    good = std::fflush(file) == 0 && good;
    good = fsync(fileno(file)) == 0 && good;
    good = std::fclose(file) == 0 && good;
    if (!good || std::rename(fresh.c_str(), path.c_str()) != 0)
        return Fail();
    return true;
}

} // namespace Simulator
