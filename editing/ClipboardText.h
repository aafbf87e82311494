// Text of the clipboard as spreadsheets write and read it: tabs between cells, a line for each row.
#pragma once

#include <wx/string.h>

#include <vector>

/// Returns the text on the system's clipboard, empty if there is none.
wxString TextOfClipboard();

/// Texts of cells by row. Rows may differ in length.
using ClipboardRows = std::vector<std::vector<wxString>>;

/// Splits text at tabs and line ends (LF, CR LF or CR); the last line may lack its end. A cell that is
/// enclosed in double quotes may contain tabs, line ends and doubled quotes. A quote anywhere else is part of
/// its cell. Returns no row for an empty text.
ClipboardRows SplitClipboardText(const wxString& text);

/// Joins the texts of cells, with lineEnd after each row. A text that SplitClipboardText would split or
/// change is enclosed in quotes.
wxString JoinClipboardText(const ClipboardRows& rows, const wxString& lineEnd);
