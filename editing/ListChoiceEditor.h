// A choice from a list that Escape gives up, whatever the cell held.
#pragma once

#include <wx/grid.h>

/// The toolkit's choice editor, but for Escape: set back on a cell whose text isn't in the list, such
/// as one of a blank row, the toolkit's takes the first text of the list for an answer.
class ListChoiceEditor : public wxGridCellChoiceEditor {
public:
    /// count texts to choose from, which are copied.
    ListChoiceEditor(size_t count, const wxString choices[], bool allowOthers = false)
        : wxGridCellChoiceEditor(count, choices, allowOthers) {}

    void BeginEdit(int row, int col, wxGrid* grid) override {
        wxGridCellChoiceEditor::BeginEdit(row, col, grid);
        // The beginning sets the list back too.
        m_givenUp = false;
    }

    /// Escape comes here before the edit ends.
    void Reset() override {
        wxGridCellChoiceEditor::Reset();
        m_givenUp = true;
    }

    /// Answers false, with nothing changed, for an edit that was given up.
    bool EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) override {
        return !m_givenUp && wxGridCellChoiceEditor::EndEdit(row, col, grid, oldval, newval);
    }

    wxGridCellEditor* Clone() const override { return new ListChoiceEditor(*this); }

protected:
    /// Whether the edit that ends was given up.
    bool IsGivenUp() const { return m_givenUp; }

private:
    bool m_givenUp = false;
};
