// Lines of comma-separated lists, read in both dialects without a window.
#include "files/CellText.h"
#include "files/CsvReader.h"
#include "fuzz/Mutation.h"

#include <wx/init.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int Rows = 103;

void Demand(bool condition, const char* what) {
    if (condition)
        return;
    std::fprintf(stderr, "the list is broken: %s\n", what);
    std::abort();
}

std::string_view WithoutMark(std::string_view bytes) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return bytes.starts_with(mark) ? bytes.substr(mark.size()) : bytes;
}

/// Takes the next line off bytes, with the line ends after it.
std::string_view NextLine(std::string_view& bytes) {
    const std::string_view line = bytes.substr(0, bytes.find_first_of("\r\n"));
    bytes.remove_prefix(line.size());
    bytes.remove_prefix(std::min(bytes.find_first_not_of("\r\n"), bytes.size()));
    return line;
}

/// Checks the fields of a line without quotes by counting alone.
void DemandSplitAtCommas(std::string_view line, const std::vector<std::string>& fields) {
    const auto commas = static_cast<size_t>(std::count(line.begin(), line.end(), ','));
    Demand(fields.size() == commas + 1, "the count of fields is not that of the commas and one");
    for (const std::string& field : fields) {
        Demand(line.starts_with(field), "a field is not the text of the line");
        line.remove_prefix(std::min(field.size() + 1, line.size()));
    }
    Demand(line.empty(), "the fields are not the whole line");
}

/// Checks the fields of a line with quotes, which protect commas and are removed. A comma splits the line if
/// the number of quotes before it is even; a doubled quote counts as two.
void DemandSplitOutsideQuotes(std::string_view line, const std::vector<std::string>& fields) {
    size_t commas = 0, characters = 0;
    bool quoted = false;
    for (const char c : line) {
        quoted ^= c == '"';
        commas += c == ',' && !quoted;
    }
    for (const std::string& field : fields)
        characters += field.size();
    Demand(fields.size() == commas + 1,
           "the count of fields is not that of the commas outside quotes and one");
    Demand(characters + commas < line.size(), "the fields hold more than their line");
}

void CheckLines(std::string_view bytes) {
    CsvReader reader(bytes, CsvReader::Dialect::General);
    std::vector<std::string> fields;
    std::string_view rest = WithoutMark(bytes);
    while (!rest.empty()) {
        Demand(!reader.IsAtEnd(), "lines are missing");
        const std::string_view line = NextLine(rest);
        const size_t count = reader.GetLine_CSV(fields);
        Demand(count == fields.size(), "the count is not that of the fields");
        if (line.find('"') == line.npos)
            DemandSplitAtCommas(line, fields);
        else
            DemandSplitOutsideQuotes(line, fields);
    }
    Demand(reader.IsAtEnd(), "there are lines after the last one");
    Demand(reader.GetLine_CSV(fields) == 1 && fields[0].empty(), "there is a field after the end");
}

void CheckTexts(const CsvTexts& texts) {
    for (const wxString& text : texts) {
        Demand(text.length() <= LongestCellText, "a text is too long for a cell");
        Demand(text.empty() || (text[0] != ' ' && text.Last() != ' '), "a text has blanks at its ends");
    }
}

void CheckData(std::string_view bytes, CsvReader::Dialect dialect) {
    CsvReader reader(bytes, dialect);
    // The list of the KDAR-2000 begins with its banner.
    if (dialect == CsvReader::Dialect::Kdar)
        reader.GetHeader_CSV();
    const bool found = reader.GetHeader_CSV();
    Demand(found || reader.IsAtEnd(), "a line is left although no heading was found");
    for (const int32_t column : reader.CsvFieldColumn)
        Demand(column >= -1 && column < static_cast<int32_t>(bytes.size()) + 1, "a heading is in no column");
    CsvTexts texts;
    const auto most = static_cast<size_t>(std::count_if(bytes.begin(), bytes.end(),
                                                        [](char c) { return c == '\r' || c == '\n'; })) +
                      1;
    size_t lines = 0;
    for (; reader.GetData_CSV(texts, Rows); ++lines) {
        Demand(lines < most, "there are more lines than line ends");
        Demand(dialect == CsvReader::Dialect::Kdar || (reader.Row() >= 0 && reader.Row() < Rows),
               "a line is for no row");
        CheckTexts(texts);
    }
    Demand(found || lines == 0, "there is data without a heading");
    Demand(!found || reader.IsAtEnd(), "lines are left over");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    static wxInitializer toolkit;
    return toolkit.IsOk() ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    CheckLines(bytes);
    CheckData(bytes, CsvReader::Dialect::General);
    CheckData(bytes, CsvReader::Dialect::Kdar);
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, [](std::string_view input, size_t longest, Dice& dice) {
        return MutatedPieces(input, PiecesOfList(input, dice), longest, dice);
    });
}
