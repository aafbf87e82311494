#include "files/CsvReader.h"

#include "catalogue/AsciiText.h"
#include "catalogue/TextNumbers.h"
#include "files/CellText.h"
#include "files/CsvFields.h"
#include "files/ImportOutcome.h"

#include <wx/strconv.h>

#include <algorithm>

using RadioCatalogue::CsvFieldTotal;
using RadioCatalogue::CsvHeader;

namespace {

bool IsLineEnd(int c) {
    return c == '\r' || c == '\n';
}

/// Control characters count as blanks; they must not reach a cell.
bool IsBlank(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte <= ' ' || byte == 0x7F;
}

bool IsPlain(char c) {
    return c == ' ' || (!IsBlank(c) && static_cast<unsigned char>(c) < 0x7F);
}

bool IsDigits(const wxString& text) {
    const std::wstring& wide = text.ToStdWstring();
    return std::all_of(wide.begin(), wide.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
}

} // namespace

wxString CsvCellText(std::string_view field) {
    while (!field.empty() && IsBlank(field.front()))
        field.remove_prefix(1);
    while (!field.empty() && IsBlank(field.back()))
        field.remove_suffix(1);
    // Almost every field is a few ASCII characters; converting them would take most of an
    // import.
    wchar_t wide[LongestCellText];
    if (field.size() <= LongestCellText && std::all_of(field.begin(), field.end(), IsPlain)) {
        std::copy(field.begin(), field.end(), wide);
        return wxString(wide, field.size());
    }
    wxString text = wxString::FromUTF8(field.data(), field.size());
    if (text.empty())
        text = wxString(field.data(), wxConvISO8859_1, field.size());
    const std::wstring& all = text.ToStdWstring();
    const size_t length = std::min(all.size(), LongestCellText);
    std::replace_copy_if(
        all.begin(), all.begin() + static_cast<ptrdiff_t>(length), wide,
        [](wchar_t c) { return c < L' ' || c == L'\x7F'; }, L' ');
    return wxString(wide, length).Trim();
}

CsvReader::CsvReader(std::string_view bytes, Dialect dialect)
    : m_bytes(bytes), m_dialect(dialect), m_headings(wxSplit(CsvHeader, ',')) {
    CsvFieldColumn.fill(-1);
    if (constexpr std::string_view mark = "\xEF\xBB\xBF"; m_bytes.starts_with(mark))
        m_bytes.remove_prefix(mark.size());
    m_current = TakeByte();
    m_next = TakeByte();
}

int CsvReader::TakeByte() {
    return m_position < m_bytes.size() ? static_cast<unsigned char>(m_bytes[m_position++]) : EndOfFile;
}

void CsvReader::Advance() {
    m_current = m_next;
    m_next = TakeByte();
}

size_t CsvReader::GetLine_CSV(std::vector<std::string>& fields) {
    fields.clear();
    std::string field;
    bool quoted = false;
    // Intentional: a line end ends the line even inside quotes.
    for (; !IsAtEnd() && !IsLineEnd(m_current); Advance()) {
        if (quoted && m_current == '"' && m_next == '"') {
            field += '"';
            m_next = TakeByte();
        } else if (m_current == '"') {
            quoted = !quoted;
        } else if (m_current == ',' && !quoted) {
            fields.push_back(std::move(field));
            field.clear();
        } else {
            field += static_cast<char>(m_current);
        }
    }
    fields.push_back(std::move(field));
    m_lineNumber = m_nextLineNumber;
    for (; IsLineEnd(m_current); Advance())
        m_nextLineNumber += m_current == '\r' ? m_next != '\n' : 1;
    return fields.size();
}

wxString CsvReader::Field(size_t i) const {
    return i < m_fields.size() ? CsvCellText(m_fields[i]) : wxString();
}

bool CsvReader::LineHasText() const {
    for (size_t i = 0; i < m_fields.size(); ++i)
        if (!Field(i).empty())
            return true;
    return false;
}

/// Notes the last line taken as skipped, unless it has no text to lose.
void CsvReader::SkipLine() const {
    if (LineHasText())
        SkippedLines::Note(m_lineNumber);
}

int CsvReader::CountHeadings() {
    int known = 0;
    for (size_t column = 0; column < m_fields.size(); ++column) {
        const wxString heading = Field(column);
        if (heading.empty())
            continue;
        const int position = m_dialect == Dialect::Kdar ? wxNOT_FOUND : m_headings.Index(heading.Upper());
        if (position != wxNOT_FOUND)
            CsvFieldColumn[static_cast<size_t>(position)] = static_cast<int32_t>(column);
        known += position != wxNOT_FOUND || m_dialect == Dialect::Kdar;
    }
    return known;
}

bool CsvReader::GetHeader_CSV() {
    m_headerFound = false;
    do {
        if (m_dialect == Dialect::General)
            CsvFieldColumn.fill(-1);
        GetLine_CSV(m_fields);
        m_headerFound = CountHeadings() > 0;
        if (!m_headerFound)
            SkipLine();
    } while (!m_headerFound && !IsAtEnd());
    return m_headerFound;
}

/// Returns the row that the line's key names, rows if it names none.
int CsvReader::RowOfKey(int rows) const {
    const bool kdar = m_dialect == Dialect::Kdar;
    const int32_t column = kdar ? KdarMemory : CsvFieldColumn[0];
    const wxString key =
        column >= 0 && column < CsvFieldTotal ? Field(static_cast<size_t>(column)) : wxString();
    if (key.empty())
        return kdar ? 0 : rows;
    if (IsText(key, "DEF"))
        return 0;
    if (IsText(key, "GD1"))
        return rows - 2;
    if (IsText(key, "GD2"))
        return rows - 1;
    return IsDigits(key) ? ReadDecimal(key) : rows;
}

bool CsvReader::GetData_CSV(CsvTexts& fields, int rows) {
    for (wxString& field : fields)
        field.clear();
    const auto take = [&](size_t i, size_t column) {
        wxString text = Field(column);
        fields[i].swap(text);
    };
    while (m_headerFound && !IsAtEnd()) {
        GetLine_CSV(m_fields);
        m_row = RowOfKey(rows);
        if (m_row >= rows) {
            SkipLine();
            continue;
        }
        if (m_dialect == Dialect::Kdar) {
            for (size_t i = 0; i < KdarFieldTotal; ++i)
                take(i, i);
            return true;
        }
        // Intentional: columns after the twentieth are never read.
        for (size_t i = 0; i < CsvFieldTotal; ++i)
            if (CsvFieldColumn[i] >= 0 && CsvFieldColumn[i] < CsvFieldTotal)
                take(i, static_cast<size_t>(CsvFieldColumn[i]));
        return true;
    }
    return false;
}
