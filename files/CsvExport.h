// The selected rows of the current page as a comma-separated list.
#pragma once

#include "files/WholeFile.h"

#include <string>

class wxArrayString;
class wxGrid;

/// Whether whole rows of the grid, the current page's, are selected that a list of the radio type can hold.
bool HasRowsToList(const wxGrid* grid, int type);

/// One list on its way into a file. The file takes its place when the list is closed; until then a
/// former one stands.
class CsvExport {
public:
    /// Begins the file with the heading of the radio type. On a KDAR page the banner asks for a purge
    /// if TFLG of row 1 does. False when a file is open already or this one can't be written.
    bool OpenCsvWrite(const wxString& path, int type);

    /// Adds the first count fields. False when no file is open.
    bool WriteCsvLine(const wxArrayString& fields, size_t count);

    /// Adds the grid's selected rows in the general dialect, with the fields that the type has.
    void ExportCSV(wxGrid* grid, int type);

    /// Adds the selected memory rows that have data, in the KDAR dialect.
    void ExportCSV_KDAR(wxGrid* grid, int type);

    /// Puts the file in its place, in the line ends of the system. False when it can't be written;
    /// a former file then stands as it was. True when none is open.
    bool CloseCsv();

private:
    FileReplacement m_file;
    std::string m_text;
};
