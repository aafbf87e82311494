#include "robot/TempFolder.h"

#include <cstdlib>
#include <stdexcept>

namespace testbench {

TempFolder::TempFolder(const std::string& name) {
    std::string pattern = (std::filesystem::temp_directory_path() / (name + "-XXXXXX")).string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("can't make a temporary folder like " + pattern);
    }
    m_path = pattern;
}

TempFolder::~TempFolder() {
    Remove();
}

void TempFolder::Remove() {
    std::error_code ignored;
    if (!m_path.empty()) {
        std::filesystem::remove_all(m_path, ignored);
    }
}

} // namespace testbench
