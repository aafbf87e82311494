#include "tests/editing/CopiedText.h"

#include <wx/string.h>

#include <windows.h>

// The toolkit would turn the line ends into line feeds.
std::string testbench::TextOnClipboard() {
    std::string text = "(nothing)";
    if (!OpenClipboard(nullptr))
        return text;
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        text = wxString(static_cast<const wchar_t*>(GlobalLock(data))).utf8_string();
        GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
}
