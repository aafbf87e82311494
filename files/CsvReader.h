// Comma-separated memory lists as bytes: lines, headings, and which row a line is for.
#pragma once

#include "catalogue/CsvTables.h"
#include "catalogue/MemoryRow.h"

#include <wx/arrstr.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// A field as a cell takes it: UTF-8 when it is that, else Latin-1, with a blank for each control
/// character, without blanks at its ends, and no longer than any cell needs.
wxString CsvCellText(std::string_view field);

/// Texts of one line, by position in CsvHeader or, in the KDAR dialect, by field.
using CsvTexts = std::array<wxString, ColumnTotal>;

/// Goes through a list from its start. The general dialect names its columns with the tags of
/// CsvHeader; the KDAR dialect has six columns in a fixed order.
class CsvReader {
public:
    enum class Dialect { General, Kdar };

    /// bytes stay the caller's. A UTF-8 byte-order mark is no part of the list.
    CsvReader(std::string_view bytes, Dialect dialect);

    /// True when no byte is left.
    bool IsAtEnd() const { return m_current == EndOfFile; }

    /// Splits the next line; commas and doubled quotes inside quotes belong to their field. A line
    /// ends at its end also inside quotes, and empty lines don't exist. The count of fields, at
    /// least 1, also at the end of the list.
    size_t GetLine_CSV(std::vector<std::string>& fields);

    /// Takes lines up to the first with a known heading (KDAR: with any text) and keeps which column
    /// has which heading. False when the list ends before.
    bool GetHeader_CSV();

    /// Field i (0-based) of the line taken last; empty behind its end.
    wxString Field(size_t i) const;

    /// Takes lines up to the first that is for one of the grid's rows (0 to rows - 1) and gives its
    /// texts, empty where the line has nothing. Lines that it passes over are noted as skipped. False when
    /// there is no such line or was no heading.
    bool GetData_CSV(CsvTexts& fields, int rows);

    /// The number (from 1) of the line taken last, as an editor counts it.
    int LineNumber() const { return m_lineNumber; }

    /// The row that the key of the line of GetData_CSV names. Without meaning in the KDAR dialect.
    int Row() const { return m_row; }

    /// The list's column (0-based) of each position of CsvHeader, -1 for one that it hasn't.
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
