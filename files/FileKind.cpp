#include "files/FileKind.h"

#include "catalogue/AsciiText.h"
#include "files/ImportText.h"

#include <algorithm>

namespace {

using namespace std::string_view_literals;

struct HeaderPart {
    size_t offset;
    std::string_view bytes;
};

constexpr HeaderPart Header716[] = {
    {0, "ZEL716  "sv}, {8, "2 "sv}, {15, "\x01"sv}, {16, "\x01"sv}, {17, "KDRV716 "sv},
};

/// True if line has text at position; such texts identify the kind of a file.
bool StandsAt(const wxString& line, size_t position, std::string_view text) {
    return TextColumns{position, text.size()}.Is(line, text);
}

constexpr int LeastCommas = 5;

bool HoldsFields(const wxString& line) {
    return line.Freq(',') >= LeastCommas;
}

} // namespace

bool Is716Header(std::string_view bytes) {
    return bytes.size() >= HeaderSize716 &&
           std::all_of(std::begin(Header716), std::end(Header716), [&](const HeaderPart& part) {
               return bytes.substr(part.offset, part.bytes.size()) == part.bytes;
           });
}

FileKind KindOfText(const std::array<wxString, 4>& lines) {
    constexpr std::string_view toneHeading = "TX CTCSS: ";
    constexpr size_t toneHeadingAt = 33;
    if (BeginsWith(lines[0], "001") && StandsAt(lines[0], toneHeadingAt, toneHeading) &&
        BeginsWith(lines[1], "002") && StandsAt(lines[1], toneHeadingAt, toneHeading))
        return MultiZELFile;
    if (StandsAt(lines[0], 5, "Basic Information") && StandsAt(lines[0], 32, "Rx Information") &&
        StandsAt(lines[1], 3, "Ch# Scan  Desc"))
        return Text716File;
    if (BeginsWith(lines[0], "KDAR-2000"))
        return KdarFile;
    return std::all_of(lines.begin(), lines.end(), HoldsFields) ? CsvFile : UnknownFile;
}
