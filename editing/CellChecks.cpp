#include "editing/CellChecks.h"

#include "catalogue/AsciiText.h"
#include "catalogue/HexDigits.h"
#include "catalogue/RadioCatalogue.h"

#include <algorithm>
#include <string>

using namespace RadioCatalogue;

wxString ScanTextToMask(const wxString& text) {
    const size_t lists = std::min<size_t>(text.length(), 5);
    int mask = 0;
    for (size_t list = 0; list < lists; ++list) {
        if (text[list] == 'L')
            return TextOfAscii("0");
        if (text[list] != '_')
            mask |= 1 << list;
    }
    return TextOfAscii(std::to_string(mask));
}

bool IsDescChar(wxUniChar c, int type) {
    const auto code = c.GetValue();
    if (IsP25Type(type) && code >= 32 && code <= 122)
        return true;
    return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z') || (code >= '-' && code <= ':') ||
           code == '+' || code == ' ' || code == '?' || code == '_';
}

namespace {

/// Maximum description length of a type. For the types without one, only the editor limits it.
size_t DescriptionLength(int type) {
    if (IsP25Type(type))
        return 8;
    return type == ANFM || type == MDLX ? 9 : wxString::npos;
}

/// True for the second half of a character beyond U+FFFF, which is in two halves on Windows only.
bool IsSecondHalf(wxUniChar c) {
    return c.GetValue() >= 0xDC00 && c.GetValue() <= 0xDFFF;
}

/// Such a character must become one blank on both systems.
wxString WithoutSecondHalves(const wxString& text) {
    if (std::none_of(text.begin(), text.end(), IsSecondHalf))
        return text;
    wxString whole;
    for (const wxUniChar c : text)
        if (!IsSecondHalf(c))
            whole += c;
    return whole;
}

} // namespace

wxString DescriptionText(const wxString& text, int type) {
    const wxString whole = WithoutSecondHalves(text);
    wxString description = (type == ANFM ? whole.Upper() : whole).Left(DescriptionLength(type));
    for (wxUniCharRef c : description)
        if (!IsDescChar(c, type))
            c = ' ';
    return description;
}

std::optional<wxString> ModeText(const wxString& text, int type) {
    switch (GetModeIndex(text)) {
    case 0:
        return wxString(wxUniChar(IsP25Type(type) ? 'w' : 'W'));
    case 1:
        return wxString(wxUniChar(IsP25Type(type) ? 'n' : 'N'));
    case 2:
        if (IsP25Type(type))
            return wxString(wxUniChar('D'));
        break;
    default:
        break;
    }
    return std::nullopt;
}

std::optional<wxString> HexDigitsText(const wxString& text, size_t digits) {
    const std::wstring& wide = text.ToStdWstring();
    const size_t count = std::min(wide.length(), digits);
    if (count == 0 ||
        !std::all_of(wide.begin(), wide.begin() + static_cast<ptrdiff_t>(count), IsHexDigit<wchar_t>))
        return std::nullopt;
    return count == digits ? text : wxString('0', digits - count) + text;
}
