#include "files/CsvWriter.h"

#include "catalogue/AsciiText.h"
#include "catalogue/CsvTables.h"
#include "catalogue/TextNumbers.h"

#include <algorithm>
#include <iterator>

using namespace RadioCatalogue;

std::string CsvField(const wxString& text) {
    std::string bytes = text.utf8_string();
    const size_t last = bytes.rfind('"');
    // Intentional: a text without a double quote is not quoted, even if it contains a comma.
    if (last == std::string::npos)
        return bytes;
    std::string field = "\"";
    // Intentional: the text ends at its last quote; the rest is dropped.
    for (const char c : bytes.substr(0, last + 1)) {
        field += c;
        if (c == '"')
            field += '"';
    }
    return field + '"';
}

std::string CsvLine(const wxArrayString& fields, size_t count) {
    std::string line;
    for (size_t i = 0; i < count; ++i)
        (line += CsvField(fields[i])) += ',';
    return line += '\n';
}

std::string CsvHeadingLine(int type) {
    const wxArrayString names = wxSplit(CsvHeader, ',');
    wxArrayString shown;
    for (size_t position = 0; position < CsvFieldTotal; ++position)
        if (CsvFieldMask[type][position])
            shown.Add(names[position]);
    return CsvLine(shown, shown.size());
}

size_t CsvFieldCount(int type) {
    return static_cast<size_t>(std::count(std::begin(CsvFieldMask[type]), std::end(CsvFieldMask[type]), 1));
}

std::string KdarHeadingLines(bool purge) {
    wxArrayString banner = wxSplit(KdarCsvBanner, ',');
    if (!purge)
        banner[1].clear();
    return wxJoin(banner, ',', '\0').utf8_string() + '\n' + KdarCsvHeader + '\n';
}

wxString KdarNumberText(const wxString& number) {
    return std::to_string(ReadDecimal(number));
}

wxString KdarFrequencyText(const wxString& frequency) {
    constexpr size_t PointPlace = 3;
    wxString text = frequency;
    if (text.length() > PointPlace && text[PointPlace] == '.')
        text.erase(PointPlace, 1);
    return text;
}

wxString KdarScanText(const wxString& scan) {
    return IsText(scan, "Y") ? "Yes" : "No";
}

wxString KdarRxOnlyText(const wxString& receiveOnly) {
    if (IsText(receiveOnly, "Y"))
        return "Yes";
    return IsText(receiveOnly, "N") ? wxString("No") : receiveOnly;
}
