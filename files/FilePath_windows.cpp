#include "files/FilePath.h"

// Both keep names in UTF-16; a name in the code page would lose letters.

std::filesystem::path PathOf(const wxString& name) {
    return name.ToStdWstring();
}

wxString NameOf(const std::filesystem::path& path) {
    return path.wstring();
}
