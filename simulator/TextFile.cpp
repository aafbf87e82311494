#include "simulator/TextFile.h"

#include "simulator/SystemFiles.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace Simulator {

Failure ReadLines(const std::string& path, Missing missing,
                  const std::function<Failure(const std::string& line)>& take) {
    std::ifstream file(std::filesystem::path(std::u8string(path.begin(), path.end())));
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
        RemoveFile(fresh);
        return reason;
    };
    std::FILE* file = OpenFile(fresh, "wb");
    if (!file)
        return Fail();
    bool good = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    good = std::fflush(file) == 0 && good;
    good = SyncFile(file) && good;
    good = std::fclose(file) == 0 && good;
    if (!good || !RenameFile(fresh, path))
        return Fail();
    return {};
}

} // namespace Simulator
