// The text that a cell shows, and texts that are entered into it as a whole.
#pragma once

#include <wx/string.h>

class wxGrid;

/// Returns the text that the cell shows, which for memory numbers, unit ids and scan lists isn't the cell's
/// own.
wxString ShownText(const wxGrid* grid, int row, int col);

/// What became of a text that was entered.
enum class EnteredText {
    Taken,   ///< the cell holds it, perhaps in another form
    Refused, ///< it can't stand there; nothing was changed
    Locked,  ///< the cell is read-only; nothing was changed
};

/// Enters a text into a cell of the current page as if it had been typed: by the rules of the cell's editor,
/// with the effects on its row (a blank row is filled, paint goes) and on linked cells. A text that the cell
/// holds or shows already changes nothing but the paint. Blanks around a text that can't stand with them
/// don't count. No cell editor may be open.
EnteredText EnterText(wxGrid* grid, int row, int col, const wxString& text);
