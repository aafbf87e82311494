// What the column commands are made of.
#pragma once

#include <wx/string.h>

/// Writes value, the default row's text of the column, into a memory row of the current page, with
/// the cells that hang on it: transmit follows receive, tone and code exclude each other, a new mode
/// brings a P25 row its squelches, and a P25 row gets the first zone with room, whatever value says.
void DefaultColInRow(int row, int col, const wxString& value);

/// Tell that the clipboard is not served yet. Connected to no command.
void TellCopyIsMissing();
void TellPasteIsMissing();
