// The log of a transfer, "Zelk.log".
#pragma once

#include <wx/string.h>

class wxFFile;

/// Opens the log in a directory, if the user has asked for one by putting a file "Zelk.log" there: the file
/// is then replaced by an empty one. Otherwise, and whenever the file can't be replaced or opened, there is
/// no log: `file` is closed, and nobody is told.
///
/// @param directory with or without a separator at its end; empty for the working directory
void OpenTransferLog(wxFFile& file, const wxString& directory);

/// Writes a line and its line end. Does nothing without a log, and tells nobody of a failure.
void WriteTransferLog(wxFFile& file, const wxString& line);

/// Ends the log. Does nothing without one, and tells nobody of a failure.
void CloseTransferLog(wxFFile& file);
