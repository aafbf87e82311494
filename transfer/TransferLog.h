// The log of a transfer, "Zelk.log".
#pragma once

#include <wx/string.h>

class wxFFile;

/// Opens the log in a directory if the user asked for one by putting a file "Zelk.log" there; replaces that
/// file by an empty one. Otherwise, and if the file can't be replaced or opened, there is no log: `file` is
/// closed, and no failure is reported.
///
/// @param directory with or without a separator at its end; empty for the working directory
void OpenTransferLog(wxFFile& file, const wxString& directory);

/// Writes a line and its line end. Does nothing without a log. Doesn't report failures.
void WriteTransferLog(wxFFile& file, const wxString& line);

/// Closes the log. Does nothing without one. Doesn't report failures.
void CloseTransferLog(wxFFile& file);
