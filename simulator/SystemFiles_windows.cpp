#include "simulator/SystemFiles.h"

#include <io.h>
#include <windows.h>

#include <cerrno>

namespace Simulator {

namespace {

std::wstring Wide(const std::string& text) {
    std::wstring wide(text.size(), L'\0');
    const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           wide.data(), static_cast<int>(wide.size()));
    wide.resize(static_cast<size_t>(length));
    return wide;
}

} // namespace

std::FILE* OpenFile(const std::string& name, const char* mode) {
    return _wfopen(Wide(name).c_str(), Wide(mode).c_str());
}

bool SyncFile(std::FILE* file) {
    return _commit(_fileno(file)) == 0;
}

bool RenameFile(const std::string& from, const std::string& to) {
    if (MoveFileExW(Wide(from).c_str(), Wide(to).c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return true;
    errno = GetLastError() == ERROR_FILE_NOT_FOUND ? ENOENT : EACCES;
    return false;
}

void RemoveFile(const std::string& name) {
    _wremove(Wide(name).c_str());
}

} // namespace Simulator
