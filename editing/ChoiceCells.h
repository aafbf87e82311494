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

/// Edits BAND of an MDLX row. Clears frequencies outside the chosen band and fits the row's cells to it.
class MDLXBandChoiceEditor : public ListChoiceEditor {
public:
    /// count texts to choose from, which are copied.
    MDLXBandChoiceEditor(size_t count, const wxString choices[], bool allowOthers = false)
        : ListChoiceEditor(count, choices, allowOthers) {}

    void ApplyEdit(int row, int col, wxGrid* grid) override;
    wxGridCellEditor* Clone() const override { return new MDLXBandChoiceEditor(*this); }
};
