// Imports files written by other programs.
#pragma once

#include "files/FileKind.h"

#include <wx/ffile.h>
#include <wx/textfile.h>

/// Identifies a file and reads it into the current page. The window has one instance.
class FileImporter {
public:
    virtual ~FileImporter() = default;

    /// Returns the kind (FileKind) of a file by its contents alone. The file stays open for Read: a
    /// binary file at its first record, others at their first character. Returns UnknownFile if it
    /// can't be opened, or if another file is open.
    int Identify(const wxString& path);

    /// Opens the lines of a MultiZEL file, in place of the stream that Identify left open. Returns
    /// false if they can't be read.
    [[nodiscard]] virtual bool OpenLines(const wxString& path);

    /// Reads the file, of the kind that Identify returned, into the current page. Returns the line
    /// count of its reader, 0 for a file of unknown kind.
    int Read(int kind);

    /// Closes all that is open.
    void Close();

private:
    wxFFile m_stream;
    wxTextFile m_lines;
};
