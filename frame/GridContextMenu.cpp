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

/// What is selected as a whole: the page (Corner) or this column; Cells if neither is.
ClickPlace SelectedWhole(const wxGrid* grid, int col) {
    const auto selected = grid->GetSelectedBlocks();
    ClickPlace whole = ClickPlace::Cells;
    for (const wxGridBlockCoords& block : selected) {
        if (block.GetTopRow() > 0 || block.GetBottomRow() < grid->GetNumberRows() - 1)
            continue;
        if (block.GetLeftCol() <= 0 && block.GetRightCol() >= grid->GetNumberCols() - 1)
            return ClickPlace::Corner;
        if (block.GetLeftCol() <= col && col <= block.GetRightCol())
            whole = ClickPlace::ColumnLabel;
    }
    return whole;
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
        // Opened with the keyboard.
        ShowMenuOfSelection(grid);
        return;
    }

    const wxPoint at = grid->GetGridWindow()->ScreenToClient(event.GetPosition());
    switch (PlaceOf(at.x, at.y)) {
    case ClickPlace::Corner:
        OfferPageCommands(grid);
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

void OrvZELFrame::ShowMenuOfSelection(wxGrid* grid) {
    const int row = grid->GetGridCursorRow(), col = grid->GetGridCursorCol();
    if (row < 0)
        return;
    grid->MakeCellVisible(row, col);
    switch (SelectedWhole(grid, col)) {
    case ClickPlace::Corner:
        OfferPageCommands(grid);
        break;
    case ClickPlace::ColumnLabel:
        OfferColumnCommands(grid, col);
        break;
    default:
        OfferRowCommands(grid, row);
        break;
    }
    const wxPoint below = grid->CalcScrolledPosition(grid->CellToRect(row, col).GetBottomLeft());
    ShowContextMenu(grid, grid->GetGridWindow()->ClientToScreen(below));
}

void OrvZELFrame::OfferPageCommands(wxGrid* grid) {
    grid->SelectAll();
    AppendContextItem(IdDefaultFile);
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
