// What the editors of cells do with a text that comes as a whole, without a key press: a pasted one.
#pragma once

#include <wx/string.h>

#include <optional>

class wxGrid;

/// Enters whole texts by the rules of typed ones. Works without the editor's control.
class WholeTextEditor {
public:
    /// Takes the text as if the user had typed it over the cell's own; writes nothing yet. Returns the text
    /// that the cell will hold, or nothing if the text can't stand there.
    virtual std::optional<wxString> HoldText(int row, int col, wxGrid* grid, const wxString& text) = 0;

    /// Ends the edit that HoldText began: writes its text into the cell, with all that follows from it.
    /// Must be called if HoldText returned a text.
    virtual void ApplyHeldText(int row, int col, wxGrid* grid) = 0;

protected:
    ~WholeTextEditor() = default;
};
