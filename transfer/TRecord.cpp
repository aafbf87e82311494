#include "transfer/TRecord.h"

#include "catalogue/HexDigits.h"
#include "transfer/HexText.h"

#include <wx/datetime.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr size_t ChecksumDigits = 2;
constexpr size_t CountPosition = 2;
constexpr size_t DataPosition = 8;

bool IsHexPairAt(std::wstring_view line, size_t at) {
    return IsHexDigit(line[at]) && IsHexDigit(line[at + 1]);
}

bool IsHexFrom(std::wstring_view line, size_t at) {
    return std::all_of(line.begin() + static_cast<ptrdiff_t>(std::min(at, line.size())), line.end(),
                       [](wchar_t c) { return IsHexDigit(c); });
}

} // namespace

wxString HexField(int64_t value, size_t digits) {
    constexpr size_t most = 8;
    std::array<wchar_t, most> text;
    const size_t length = std::min(digits, most);
    WriteHex(text.data(), length, static_cast<uint32_t>(value));
    return wxString(text.data(), length);
}

int TRecordChecksum(const wxString& line) {
    return ~HexByteSum(line.Mid(CountPosition)) & 0xFF;
}

wxString WithChecksum(const wxString& line) {
    return line + HexField(TRecordChecksum(line), ChecksumDigits);
}

bool HasGoodChecksum(const wxString& line) {
    if (line.length() < ChecksumDigits)
        return false;
    const size_t end = line.length() - ChecksumDigits;
    // The sum passes over what isn't hexadecimal: noise within a record would add nothing.
    return IsHexFrom(line.ToStdWstring(), CountPosition) &&
           static_cast<int>(HexNumberAt(line, end, ChecksumDigits)) == TRecordChecksum(line.Left(end));
}

wxString HexToText(const wxString& line) {
    wxString text;
    for (size_t at = DataPosition; at + 1 < line.length(); at += 2)
        if (IsHexPairAt(line.ToStdWstring(), at))
            text += wxUniChar(HexNumberAt(line, at, 2));
    return text;
}

wxString MakeRadioStamp(const wxDateTime& now) {
    return now.Format("%Y%m%d%H%M%S");
}
