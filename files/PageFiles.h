// Which channel files belong to which page.
#pragma once

#include <wx/string.h>

/// True when page (0-based) has opened or saved the file of this full path, under whatever name it is
/// reached.
bool IsOwnFile(int page, const wxString& path);

/// The page has opened or saved the file.
void AddOwnFile(int page, const wxString& path);

/// True when a save of the page may write the file: it doesn't exist, is the page's own, or the user, who is
/// asked then, wants it replaced.
bool MayReplaceFile(int page, const wxString& path);
