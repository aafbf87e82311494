// Tracks which channel files belong to which page.
#pragma once

#include <wx/string.h>

/// True if page (0-based) has opened or saved the file with this full path, even if under another name.
bool IsOwnFile(int page, const wxString& path);

/// Records that the page has opened or saved the file.
void AddOwnFile(int page, const wxString& path);

/// True if a save of the page may write the file: it doesn't exist, it is the page's own, or the user, who
/// is then asked, agrees to replace it.
[[nodiscard]] bool MayReplaceFile(int page, const wxString& path);
