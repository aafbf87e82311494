// Cells chosen from a list, whose choice also changes neighbouring cells.
#pragma once

#include "editing/ListChoiceEditor.h"

/// Writes "OFF" into the cells of a row that can't be combined with a tone or code in col: those of the other
/// kind, on the transmit side only if col is a transmit column. Does nothing for other columns.
void TurnRivalsOff(wxGrid* grid, int row, int col);

/// Edits MODE, squelch, tone and code. A receive tone or code is copied to the transmit one. On pages of type
/// ANFM, ANAM and FXAM tone and code turn each other off. On P25 pages a mode sets its squelches.
class ZelkChoiceEditor : public ListChoiceEditor {
public:
    /// count texts to choose from, which are copied.
    ZelkChoiceEditor(size_t count, const wxString choices[], bool allowOthers = false)
        : ListChoiceEditor(count, choices, allowOthers) {}

    void ApplyEdit(int row, int col, wxGrid* grid) override;
    wxGridCellEditor* Clone() const override { return new ZelkChoiceEditor(*this); }
};

/// Creates a ZelkChoiceEditor for the entries of a constant list.
template <const auto& texts>
wxGridCellEditor* NewLinkedEditor() {
    return new ZelkChoiceEditor(std::size(texts), Choices<texts>());
}

/// Returns the editor that RSQL and TSQL of all analog rows of a P25 page share.
wxGridCellEditorPtr AnalogSquelchEditor(wxGrid* grid);

/// Sets the squelch choices of a P25 row for the text of its MODE; applyDefault also writes the mode's
/// defaults.
void SetSquelchChoices(wxGrid* grid, int row, const wxString& mode, bool applyDefault);
