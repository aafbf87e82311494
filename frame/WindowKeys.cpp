// Keys of the window that the toolkit's controls don't know.
#include "commands/OpenEditor.h"
#include "frame/ToolKeys.h"
#include "frame/ZelkGUI.h"

#include <wx/grid.h>
#include <wx/notebook.h>

namespace {

/// Whether the window is this one or within it.
bool IsWithin(const wxWindow* window, const wxWindow* whole) {
    while (window && window != whole)
        window = window->GetParent();
    return window;
}

/// The next column in this direction (1 or -1) that is shown, beginning with col; wxNOT_FOUND for none.
int ShownColumn(const wxGrid* grid, int col, int direction) {
    for (; col >= 0 && col < grid->GetNumberCols(); col += direction)
        if (grid->IsColShown(col))
            return col;
    return wxNOT_FOUND;
}

} // namespace

void OrvZELFrame::OnKey(wxKeyEvent& event) {
    // Not wxWindow::FindFocus: the toolkit doesn't know that a tool has the keyboard.
    auto* source = dynamic_cast<wxWindow*>(event.GetEventObject());
    const int key = event.GetKeyCode();
    // Keys of windows that belong to this one, such as that of a transfer, arrive here too.
    if (wxGetTopLevelParent(source) != this)
        event.Skip();
    else if (event.GetModifiers() == wxMOD_CONTROL && (key == WXK_PAGEUP || key == WXK_PAGEDOWN))
        ChangePage(key == WXK_PAGEDOWN, IsWithin(source, CurrentGrid()));
    else if ((event.GetModifiers() & ~wxMOD_SHIFT) == wxMOD_CONTROL && key == WXK_TAB)
        MoveKeyboard(IsWithin(source, CurrentGrid()));
    else if (event.GetModifiers() != wxMOD_NONE || key != WXK_F10 || !OpenMenuBar(*this))
        event.Skip();
}

void OrvZELFrame::ChangePage(bool forward, bool inGrid) {
    // A box about the text in the editor belongs to the page that is still shown.
    CommitOpenEditor();
    m_notebook->AdvanceSelection(forward);
    if (inGrid)
        CurrentGrid()->SetFocus();
}

void OrvZELFrame::MoveKeyboard(bool leavesGrid) {
    CommitOpenEditor();
    if (leavesGrid)
        GiveKeyboardToTools(*m_toolBar, [] { CurrentGrid()->SetFocus(); });
    else
        CurrentGrid()->SetFocus();
}

void OrvZELFrame::OnGridTabbing(wxGridEvent& event) {
    auto* grid = dynamic_cast<wxGrid*>(event.GetEventObject());
    const int direction = event.ShiftDown() ? -1 : 1;
    const int row = event.GetRow() + direction;
    // Within a row the toolkit goes on; hidden columns at its end would hold it there.
    if (!grid || ShownColumn(grid, event.GetCol() + direction, direction) != wxNOT_FOUND || row < 0 ||
        row >= grid->GetNumberRows()) {
        event.Skip();
        return;
    }
    grid->ClearSelection();
    grid->GoToCell(row, ShownColumn(grid, direction > 0 ? 0 : grid->GetNumberCols() - 1, direction));
}
