// Helpers for cell texts and ASCII characters. They avoid the toolkit's conversions, which would cost more
// than the rest of the work on a cell.
#pragma once

#include <wx/string.h>

#include <algorithm>
#include <string>
#include <string_view>

/// True when text is exactly these ASCII characters.
inline bool IsText(const wxString& text, std::string_view ascii) {
    const std::wstring& wide = text.ToStdWstring();
    return std::equal(wide.begin(), wide.end(), ascii.begin(), ascii.end(),
                      [](wchar_t a, char b) { return a == static_cast<wchar_t>(b); });
}

/// True when text begins with these ASCII characters.
inline bool BeginsWith(const wxString& text, std::string_view ascii) {
    return text.length() >= ascii.size() &&
           std::equal(ascii.begin(), ascii.end(), text.ToStdWstring().begin(),
                      [](char a, wchar_t b) { return static_cast<wchar_t>(a) == b; });
}

/// True when all characters are ASCII.
inline bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// These ASCII characters as a text.
inline wxString TextOfAscii(std::string_view ascii) {
    constexpr size_t most = 128;
    if (ascii.size() > most)
        return wxString(std::wstring(ascii.begin(), ascii.end()));
    wchar_t wide[most];
    std::copy(ascii.begin(), ascii.end(), wide);
    return wxString(wide, ascii.size());
}
