#include "robot/Files.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace testbench {

std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw std::runtime_error("can't read " + file.string());
    }
    std::string bytes{std::istreambuf_iterator<char>(in), {}};
    if (in.bad()) {
        throw std::runtime_error("can't read " + file.string());
    }
    return bytes;
}

std::string ReadFileIfAny(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> ReadLines(const std::filesystem::path& file) {
    std::istringstream text(ReadFile(file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

void WriteFile(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        throw std::runtime_error("can't write " + file.string());
    }
}

} // namespace testbench
