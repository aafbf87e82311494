#include "simulator/TextFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>

namespace Simulator {

Failure ReadLines(const std::string& path, Missing missing,
                  const std::function<Failure(const std::string& line)>& take) {
    std::ifstream file(path);
    if (!file) {
        if (errno == ENOENT && missing == Missing::IsEmpty)
            return {};
        return path + ": " + std::strerror(errno);
    }
    std::string line;
    for (int count = 1; std::getline(file, line); ++count) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line[0] == '#')
            continue;
        if (const Failure failure = take(line))
            return path + ":" + std::to_string(count) + ": " + *failure;
    }
    if (file.bad())
        return path + ": can't be read";
    return {};
}

Failure WriteTextFile(const std::string& path, const std::string& text) {
    const std::string fresh = path + ".new";
    const auto Fail = [&] {
        std::string reason = path + ": " + std::strerror(errno);
        std::remove(fresh.c_str());
        return reason;
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
    return {};
}

} // namespace Simulator
