// Cells that are chosen from a list and carry their choice to neighbouring cells.
#pragma once

#include "editing/ListChoiceEditor.h"

/// Writes "OFF" into the cells of a row that can't stand beside a tone or code in col: those of the
/// other kind, on the transmit side alone where col is a transmit column. Nothing for other columns.
void TurnRivalsOff(wxGrid* grid, int row, int col);

/// Edits MODE, squelch, tone and code. A receive tone or code is carried to the transmit one; on
/// pages of type ANFM, ANAM and FXAM tone and code turn each other off; on P25 pages a mode brings
/// its squelches.
class ZelkChoiceEditor : public ListChoiceEditor {
public:
    /// count texts to choose from, which are copied.
    ZelkChoiceEditor(size_t count, const wxString choices[], bool allowOthers = false)
        : ListChoiceEditor(count, choices, allowOthers) {}

    void ApplyEdit(int row, int col, wxGrid* grid) override;
    wxGridCellEditor* Clone() const override { return new ZelkChoiceEditor(*this); }
};

/// Edits BAND of an MDLX row. Frequencies that lie in another band than the chosen one are emptied,
/// and the row's cells become those of the band.
class MDLXBandChoiceEditor : public ListChoiceEditor {
public:
    /// count texts to choose from, which are copied.
    MDLXBandChoiceEditor(size_t count, const wxString choices[], bool allowOthers = false)
        : ListChoiceEditor(count, choices, allowOthers) {}

    void ApplyEdit(int row, int col, wxGrid* grid) override;
    wxGridCellEditor* Clone() const override { return new MDLXBandChoiceEditor(*this); }
};
