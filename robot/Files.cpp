#include "robot/Files.h"

#include <fstream>
#include <iterator>
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

void WriteFile(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        throw std::runtime_error("can't write " + file.string());
    }
}

} // namespace testbench
