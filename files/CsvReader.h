// Reader of comma-separated memory lists: splits bytes into lines, and finds headings and rows.
#pragma once

#include "catalogue/CsvTables.h"
#include "catalogue/MemoryRow.h"

#include <wx/arrstr.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Converts a field to the text of a cell: decodes UTF-8 if valid, else Latin-1, replaces each control
/// character with a blank, strips blanks at both ends, and cuts the text to the length that cells need.
wxString CsvCellText(std::string_view field);

/// Texts of one line, indexed by position in CsvHeader or, in the KDAR dialect, by field.
using CsvTexts = std::array<wxString, ColumnTotal>;

/// Reads a list from its start. The general dialect names its columns with the tags of CsvHeader; the KDAR
/// dialect has six columns in a fixed order.
class CsvReader {
public:
    enum class Dialect { General, Kdar };

    /// bytes must outlive the reader. A UTF-8 byte-order mark is skipped.
    CsvReader(std::string_view bytes, Dialect dialect);

    /// True when no byte is left.
    bool IsAtEnd() const { return m_current == EndOfFile; }

    /// Splits the next line; commas and doubled quotes inside quotes belong to their field. A line end
    /// ends the line even inside quotes, and consecutive line ends count as one. Returns the count of
    /// fields, at least 1, even at the end of the list.
    size_t GetLine_CSV(std::vector<std::string>& fields);

    /// Reads up to the first line with a known heading (KDAR: with any text) and stores the column of each
    /// heading. Returns false if the list ends before.
    bool GetHeader_CSV();

    /// Returns field i (0-based) of the last line taken, empty beyond the line's end.
    wxString Field(size_t i) const;

    /// Reads up to the first line for one of the grid's rows (0 to rows - 1) and fills fields with its
    /// texts, empty where the line has none. Notes the lines that it passes over as skipped. Returns false
    /// if there is no such line or no heading was found.
    bool GetData_CSV(CsvTexts& fields, int rows);

    /// Number (from 1) of the last line taken, as an editor counts lines.
    int LineNumber() const { return m_lineNumber; }

    /// Row named by the key of the last line of GetData_CSV. Meaningless in the KDAR dialect.
    int Row() const { return m_row; }

    /// Column (0-based) in the list for each position of CsvHeader, -1 if the list lacks it.
    std::array<int32_t, RadioCatalogue::CsvFieldTotal> CsvFieldColumn;

private:
    static constexpr int EndOfFile = -1;

    int TakeByte();
    void Advance();
    bool LineHasText() const;
    void SkipLine() const;
    int CountHeadings();
    int RowOfKey(int rows) const;

    std::string_view m_bytes;
    size_t m_position = 0;
    Dialect m_dialect;
    wxArrayString m_headings;
    int m_current, m_next;
    bool m_headerFound = false;
    int m_row = -1;
    int m_lineNumber = 0;
    int m_nextLineNumber = 1;
    std::vector<std::string> m_fields;
};
