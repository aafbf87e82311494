// The context menu of the grids, rebuilt for the place of each click.
#include "commands/CommandIds.h"
#include "commands/OpenEditor.h"
#include "frame/ZelkMain.h"

#include <wx/menu.h>

#include <algorithm>

namespace {

enum class ClickPlace { Corner, RowLabel, ColumnLabel, Cells };

/// Returns the part of the grid that was clicked, from a position relative to the cell area.
ClickPlace PlaceOf(int x, int y) {
    if (x < 0 && y >= 0)
        return ClickPlace::RowLabel;
    if (x >= 0 && y < 0)
        return ClickPlace::ColumnLabel;
    if (x > 0 && y > 0)
        return ClickPlace::Cells;
    return ClickPlace::Corner;
}

/// The row at y of the visible cell area, at most the last one; -1 below all rows.
int RowAt(wxGrid* grid, int y) {
    const int offset = grid->YToRow(y);
    if (offset < 0)
        return -1;
    return std::min<int>(grid->GetFirstFullyVisibleRow() + offset, CurrentParameters().Rows);
}

} // namespace

void OrvZELFrame::OnGridContextMenu(wxContextMenuEvent& event) {
    // The text in an open editor may be the first of its row; the offer depends on it.
    CommitOpenEditor();
    wxGrid* grid = CurrentGrid();
    for (wxMenuItem* item : m_contextItems)
        if (m_contextMenu->FindItem(item->GetId()))
            m_contextMenu->Remove(item);

    if (event.GetPosition() == wxDefaultPosition) {
        // Opened with the keyboard: show the menu of the row with the cursor.
        const int row = grid->GetGridCursorRow();
        if (row < 0)
            return;
        grid->MakeCellVisible(row, grid->GetGridCursorCol());
        OfferRowCommands(grid, row);
        const wxRect cell = grid->CellToRect(row, grid->GetGridCursorCol());
        const wxPoint below = grid->CalcScrolledPosition(cell.GetBottomLeft());
        ShowContextMenu(grid, grid->GetGridWindow()->ClientToScreen(below));
        return;
    }

    const wxPoint at = grid->GetGridWindow()->ScreenToClient(event.GetPosition());
    switch (PlaceOf(at.x, at.y)) {
    case ClickPlace::Corner:
        grid->SelectAll();
        AppendContextItem(IdDefaultFile);
        break;
    case ClickPlace::RowLabel:
        OfferRowCommands(grid, RowAt(grid, at.y));
        break;
    case ClickPlace::ColumnLabel:
        OfferColumnCommands(grid, grid->XToCol(grid->CalcUnscrolledPosition(at).x));
        break;
    case ClickPlace::Cells:
        break;
    }
    ShowContextMenu(grid, event.GetPosition());
}

void OrvZELFrame::ShowContextMenu(wxGrid* grid, const wxPoint& position) {
    if (m_contextMenu->GetMenuItemCount() > 0)
        grid->PopupMenu(m_contextMenu.get(), grid->ScreenToClient(position));
}

void OrvZELFrame::AppendContextItem(int id) {
    for (wxMenuItem* item : m_contextItems)
        if (item->GetId() == id)
            m_contextMenu->Append(item);
}

void OrvZELFrame::OfferRowCommands(wxGrid* grid, int row) {
    if (row < 0)
        return;
    grid->SelectRow(row, true);
    ContextRow = row;
    if (row == 0) {
        AppendContextItem(IdLoadDefault);
        AppendContextItem(IdSaveDefault);
        return;
    }
    const bool guard = IsGuardRow(row);
    const bool data = RowHasData(row);
    const bool shadow = IsShadow(grid, row);
    AppendContextItem(IdDefaultRow);
    if (CurrentPageIsP25() && !guard && data && !shadow)
        AppendContextItem(IdCreateShadow);
    if (data)
        AppendContextItem(IdCopyRow);
    AppendContextItem(IdPasteRow);
    if (data) {
        AppendContextItem(IdClearRow);
        AppendContextItem(IdMarkRow);
    }
    if (!guard) {
        AppendContextItem(IdInsertRow);
        AppendContextItem(IdDeleteRow);
    }
}

void OrvZELFrame::OfferColumnCommands(wxGrid* grid, int col) {
    if (col < 0 || col == PRIM)
        return;
    grid->SelectCol(col);
    if (col == MNUM) {
        AppendContextItem(IdRenumberToRowNum);
        AppendContextItem(IdRenumberSequencial);
        return;
    }
    AppendContextItem(IdDefaultCol);
    if (CurrentParameters().Flags & PageHasMarks)
        AppendContextItem(IdDefaultMarked);
}
