#include "files/FilePath.h"

#include <wx/strconv.h>

std::filesystem::path PathOf(const wxString& name) {
    return name.fn_str().data();
}

wxString NameOf(const std::filesystem::path& path) {
    return {path.c_str(), *wxConvFileName};
}
