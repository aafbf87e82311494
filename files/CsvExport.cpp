#include "files/CsvExport.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "files/CsvFields.h"
#include "files/CsvWriter.h"

#include <wx/grid.h>
#include <wx/textbuf.h>

#include <vector>

using namespace RadioCatalogue;

namespace {

/// Returns the text with the system's line ends.
std::string InSystemLineEnds(const std::string& text) {
    const std::string end = wxString(wxTextBuffer::GetEOL()).utf8_string();
    if (end == "\n")
        return text;
    std::string lines;
    for (const char c : text)
        if (c == '\n')
            lines += end;
        else
            lines += c;
    return lines;
}

/// True if a list of the radio type has a line for a selected row.
bool IsListed(int type, int row) {
    // A KDAR list has no blank memories and no default row: every line is read back as a memory.
    return type != KDAR || (row > 0 && RowHasData(row));
}

/// Returns the selected rows of the current page that a list of the radio type includes, ascending.
std::vector<int> RowsToList(const wxGrid* grid, int type) {
    std::vector<int> rows;
    for (int row = 0; row < grid->GetNumberRows(); ++row)
        if (grid->IsInSelection(row, MNUM) && IsListed(type, row))
            rows.push_back(row);
    return rows;
}

} // namespace

bool HasRowsToList(const wxGrid* grid, int type) {
    return !grid->GetSelectedRows().empty() && !RowsToList(grid, type).empty();
}

bool CsvExport::OpenCsvWrite(const wxString& path, int type) {
    const int flags = TransferFlags(CurrentGrid(), 1);
    if (m_file.IsOpened() || m_file.Open(path))
        return false;
    m_text = type == KDAR ? KdarHeadingLines(flags & EraseFlag) : CsvHeadingLine(type);
    return true;
}

bool CsvExport::WriteCsvLine(const wxArrayString& fields, size_t count) {
    if (!m_file.IsOpened())
        return false;
    m_text += CsvLine(fields, count);
    return true;
}

void CsvExport::ExportCSV(wxGrid* grid, int type) {
    wxArrayString fields;
    for (int row : RowsToList(grid, type)) {
        fields.Empty();
        for (int position = 0; position < CsvFieldTotal; ++position)
            if (CsvFieldMask[type][position])
                fields.Add(grid->GetCellValue(row, CsvFieldTable[position].written));
        WriteCsvLine(fields, CsvFieldCount(type));
    }
}

void CsvExport::ExportCSV_KDAR(wxGrid* grid, int) {
    for (int row : RowsToList(grid, KDAR)) {
        wxArrayString fields;
        fields.Add(KdarNumberText(grid->GetCellValue(row, MNUM)));
        fields.Add(grid->GetCellValue(row, DESC));
        fields.Add(KdarFrequencyText(grid->GetCellValue(row, RFRQ)));
        fields.Add(KdarFrequencyText(grid->GetCellValue(row, TFRQ)));
        fields.Add(KdarScanText(grid->GetCellValue(row, SCAN)));
        fields.Add(KdarRxOnlyText(grid->GetCellValue(row, RONL)));
        WriteCsvLine(fields, KdarFieldTotal);
    }
}

bool CsvExport::CloseCsv() {
    return !m_file.IsOpened() || !m_file.Finish(InSystemLineEnds(m_text)).error;
}
