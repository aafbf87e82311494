#include "robot/TempFolder.h"

#include <random>
#include <stdexcept>

namespace testbench {

namespace {

constexpr int MostTries = 100;

} // namespace

TempFolder::TempFolder(const std::string& name) {
    const std::filesystem::path start = std::filesystem::temp_directory_path() / (name + "-");
    std::random_device random;
    for (int tries = 0; m_path.empty() && tries < MostTries; ++tries) {
        std::filesystem::path path = start;
        path += std::to_string(random());
        // Fails without an error if there is such a folder already.
        if (std::filesystem::create_directory(path)) {
            m_path = path;
            std::filesystem::permissions(m_path, std::filesystem::perms::owner_all);
        }
    }
    if (m_path.empty())
        throw std::runtime_error("can't make a temporary folder like " + start.string());
}

TempFolder::~TempFolder() {
    Remove();
}

std::string TempFolder::File(const std::string& entry) const {
    const std::u8string text = (*this / entry).u8string();
    return {text.begin(), text.end()};
}

void TempFolder::Remove() {
    std::error_code ignored;
    if (!m_path.empty()) {
        std::filesystem::remove_all(m_path, ignored);
    }
}

} // namespace testbench
