#include "transfer/TRecord.h"

#include "transfer/HexText.h"

#include <wx/datetime.h>

namespace {

constexpr size_t ChecksumDigits = 2;
constexpr size_t CountPosition = 2;
constexpr size_t DataPosition = 8;

bool IsHexDigit(wxUniChar c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

} // namespace

wxString HexField(std::int64_t value, size_t digits) {
    return wxString::Format("%08X", static_cast<std::uint32_t>(value)).Right(digits);
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
    return IsHexDigit(line[end]) && IsHexDigit(line[end + 1]) &&
           static_cast<int>(HexNumberAt(line, end, ChecksumDigits)) == TRecordChecksum(line.Left(end));
}

wxString HexToText(const wxString& line) {
    wxString text;
    for (size_t at = DataPosition; at + 1 < line.length(); at += 2)
        if (IsHexDigit(line[at]) && IsHexDigit(line[at + 1]))
            text += wxUniChar(HexNumberAt(line, at, 2));
    return text;
}

wxString MakeRadioStamp() {
    return wxDateTime::Now().Format("%Y%m%d%H%M%S");
}
