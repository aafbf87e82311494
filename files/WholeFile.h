// Writing a file so that there is always a whole one.
#pragma once

#include <wx/string.h>

#include <string_view>

/// Makes or replaces the file with these bytes. The former file stands until the new one lies whole
/// beside it; its permissions go over to the new one, and of a link the file it names is replaced.
/// On failure nothing has changed, and the answer is why; otherwise it is empty.
wxString WriteWholeFile(const wxString& path, std::string_view bytes);
