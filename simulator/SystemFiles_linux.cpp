#include "simulator/SystemFiles.h"

#include <unistd.h>

namespace Simulator {

std::FILE* OpenFile(const std::string& name, const char* mode) {
    return std::fopen(name.c_str(), mode);
}

bool SyncFile(std::FILE* file) {
    return fsync(fileno(file)) == 0;
}

bool RenameFile(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

void RemoveFile(const std::string& name) {
    std::remove(name.c_str());
}

} // namespace Simulator
