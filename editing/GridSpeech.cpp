#include "editing/GridSpeech.h"

#include "catalogue/MemoryRow.h"
#include "commands/SpokenNames.h"
#include "editing/CellSpeech.h"

#include <wx/control.h>
#include <wx/grid.h>

#include <memory>

namespace {

/// Whether the grid has got the keyboard since the last cell was told.
struct SpokenGrid {
    bool hasNewFocus = false;
};

/// Tells the cell with the cursor. Events of the grid come before what they announce, and commands change
/// cells without any, so this runs when all is done.
void TellCell(wxGrid& grid, SpokenGrid& spoken) {
    const int row = grid.GetGridCursorRow();
    const int col = grid.GetGridCursorCol();
    if (row < 0 || col < 0 || !grid.IsShownOnScreen() || grid.IsCellEditControlShown())
        return;
    SpeakCell(*grid.GetGridWindow(), row * ColumnTotal + col, SpokenCell(SeeCell(grid, row, col)),
              spoken.hasNewFocus);
    spoken.hasNewFocus = false;
}

void NameEditor(const wxGrid& grid, int row, int col, wxWindow* control) {
    if (control)
        NameForReader(*control, SpokenPlace(SeeCell(grid, row, col)));
}

} // namespace

void SpeakGrid(wxGrid* grid) {
    DescribeToReader(*grid->GetGridWindow(), DrawnContent::Cells, "Channels");
    const auto spoken = std::make_shared<SpokenGrid>();
    grid->GetGridWindow()->Bind(wxEVT_SET_FOCUS, [spoken](wxFocusEvent& event) {
        spoken->hasNewFocus = true;
        event.Skip();
    });
    grid->Bind(wxEVT_IDLE, [grid, spoken](wxIdleEvent& event) {
        TellCell(*grid, *spoken);
        event.Skip();
    });
    // Rows share the editor of a column. Its control is made for the first edit, after the first event.
    grid->Bind(wxEVT_GRID_EDITOR_SHOWN, [grid](wxGridEvent& event) {
        const wxGridCellEditorPtr editor(grid->GetCellEditor(event.GetRow(), event.GetCol()));
        NameEditor(*grid, event.GetRow(), event.GetCol(), editor->GetWindow());
        event.Skip();
    });
    grid->Bind(wxEVT_GRID_EDITOR_CREATED, [grid](wxGridEditorCreatedEvent& event) {
        NameEditor(*grid, event.GetRow(), event.GetCol(), event.GetWindow());
        event.Skip();
    });
}
