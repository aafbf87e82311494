// The import of files that other programs wrote.
#pragma once

#include "files/FileKind.h"

#include <wx/ffile.h>
#include <wx/textfile.h>

/// Finds out what a file is, and reads it into the current page. The window has one.
class FileImporter {
public:
    virtual ~FileImporter() = default;

    /// The kind (FileKind) of a file, by its contents alone. The file stays open for Read: a binary one
    /// on its first record, others on their first character. UnknownFile when it can't be opened, or
    /// while another one is open.
    int Identify(const wxString& path);

    /// Opens the lines of a MultiZEL file, in the place of the stream that Identify has left open.
    /// False when they can't be read.
    virtual bool OpenLines(const wxString& path);

    /// Reads the file, of the kind that Identify gave, into the current page. The count of lines that
    /// its reader gives, 0 for a file of no kind.
    int Read(int kind);

    /// Closes what is open.
    void Close();

private:
    wxFFile m_stream;
    wxTextFile m_lines;
};
