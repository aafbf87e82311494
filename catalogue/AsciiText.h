// Comparing cell texts with constant ones.
#pragma once

#include <wx/string.h>

#include <algorithm>
#include <string_view>

/// True when text is exactly these ASCII characters. As text == "..." but without a conversion of the
/// constant each time, which is most of what a check of a cell would cost.
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
