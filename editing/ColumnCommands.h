// Helpers of the column commands.
#pragma once

#include <wx/string.h>

/// Writes value, the default row's text of the column, into a memory row of the current page and updates the
/// dependent cells: transmit follows receive, tone and code exclude each other, a new mode sets a P25 row's
/// squelches, and a P25 row gets the first zone with room, whatever value is.
void DefaultColInRow(int row, int col, const wxString& value);

/// Show a message that the clipboard is not supported yet. Connected to no command.
void TellCopyIsMissing();
void TellPasteIsMissing();
