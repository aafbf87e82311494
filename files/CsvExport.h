// Exports the selected rows of the current page as a comma-separated list.
#pragma once

#include "files/FileReplacement.h"

#include <string>

class wxArrayString;
class wxGrid;

/// True if entire rows of the grid (the current page's) are selected, and a list of the radio type can
/// hold at least one selected row.
bool HasRowsToList(const wxGrid* grid, int type);

/// Writer of one list. The file takes its place when the list is closed; until then a former one stays.
class CsvExport {
public:
    /// Starts the file with the heading of the radio type. On a KDAR page the banner requests a purge if
    /// TFLG of row 1 does. Returns false if a file is already open or this one can't be written.
    [[nodiscard]] bool OpenCsvWrite(const wxString& path, int type);

    /// Adds a line of the first count fields. Returns false if no file is open.
    bool WriteCsvLine(const wxArrayString& fields, size_t count);

    /// Adds the grid's selected rows in the general dialect, with the fields of the radio type.
    void ExportCSV(wxGrid* grid, int type);

    /// Adds the selected memory rows that have data, in the KDAR dialect.
    void ExportCSV_KDAR(wxGrid* grid, int type);

    /// Puts the file in its place, with the system's line ends. Returns false if it can't be written; a
    /// former file is then unchanged. Returns true if no file is open.
    [[nodiscard]] bool CloseCsv();

private:
    FileReplacement m_file;
    std::string m_text;
};
