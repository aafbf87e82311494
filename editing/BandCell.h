// BAND cell of MDLX pages, whose rows each have a band.
#pragma once

#include "editing/ListChoiceEditor.h"

/// Edits BAND of an MDLX row. Clears frequencies outside the chosen band and fits the row's cells to it.
class MDLXBandChoiceEditor : public ListChoiceEditor {
public:
    /// count texts to choose from, which are copied.
    MDLXBandChoiceEditor(size_t count, const wxString choices[], bool allowOthers = false)
        : ListChoiceEditor(count, choices, allowOthers) {}

    void ApplyEdit(int row, int col, wxGrid* grid) override;
    wxGridCellEditor* Clone() const override { return new MDLXBandChoiceEditor(*this); }
};
