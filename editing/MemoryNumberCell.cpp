#include "editing/MemoryNumberCell.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "commands/ErrorBox.h"
#include "editing/MemoryNumbers.h"
#include "editing/Shadows.h"

#include <wx/msgdlg.h>
#include <wx/spinctrl.h>

namespace {

/// Writes a number that no other row has; the shadows of a primary follow.
void WriteMemoryNumber(wxGrid* grid, int row, int number) {
    const wxString text = NumberText(number);
    if (CurrentPageIsP25()) {
        if (IsPrimary(grid, row))
            for (int shadow : ShadowRowsOf(grid, row)) {
                grid->SetCellValue(shadow, PRIM, text);
                grid->SetCellValue(shadow, SHAD, "S-" + text);
                LockCell(grid, shadow, SHAD);
            }
        grid->SetCellValue(row, PRIM, text);
    }
    grid->SetCellValue(row, MNUM, text);
}

} // namespace

void ZelkMemoryNumberEditor::Create(wxWindow* parent, wxWindowID id, wxEvtHandler* handler) {
    wxGridCellNumberEditor::Create(parent, id, handler);
    // The control clamps a typed number to its range before the edit ends. With a range one digit wider, an
    // invalid number can still be recognised.
    Spin()->SetRange(m_min - 1, 10 * m_max + 9);
}

bool ZelkMemoryNumberEditor::EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval,
                                     wxString* newval) {
    const int number = Spin()->GetValue();
    if (number >= m_min && number <= m_max)
        return wxGridCellNumberEditor::EndEdit(row, col, grid, oldval, newval);
    wxMessageBox(wxString::Format("Memory number must be from 0 to %d.", m_max), "Error", wxOK | wxCENTRE);
    return false;
}

std::optional<wxString> ZelkMemoryNumberEditor::HoldText(int row, int, wxGrid*, const wxString& text) {
    const int rows = CurrentParameters().Rows;
    const std::optional<int> number = WholeNumber(text, m_min, m_max);
    if (!number || FindDuplicateMNum(1, row, rows, *number) <= rows)
        return std::nullopt;
    m_held = *number;
    return NumberText(m_held);
}

void ZelkMemoryNumberEditor::ApplyHeldText(int row, int, wxGrid* grid) {
    WriteMemoryNumber(grid, row, m_held);
}

void ZelkMemoryNumberEditor::ApplyEdit(int row, int, wxGrid* grid) {
    const int number = ReadDecimal(GetValue());
    const int rows = CurrentParameters().Rows;
    const int duplicate = FindDuplicateMNum(1, row, rows, number);
    if (duplicate <= rows)
        DisplayError(ResultNumberUsed, duplicate);
    else
        WriteMemoryNumber(grid, row, number);
}

wxString MemoryNumberText(const wxString& text, int row) {
    if (text.empty())
        return "";
    const int number = ReadDecimal(text);
    if (number == 0)
        return row == 0 ? "DEF" : "";
    const int rows = CurrentParameters().Rows;
    if (HasGuardRows(CurrentPage)) {
        if (number == rows - 1)
            return "GD1";
        if (number == rows)
            return "GD2";
    }
    return NumberText(number);
}

wxString IdcNumberText(const wxString& text) {
    return text.empty() ? wxString() : wxString::Format("%07d", ReadDecimal(text));
}

wxString MemoryNumberRenderer::TextOf(const wxGrid& grid, int row, int col) const {
    return MemoryNumberText(grid.GetCellValue(row, col), row);
}

wxString IDCNumberRenderer::TextOf(const wxGrid& grid, int row, int col) const {
    return IdcNumberText(grid.GetCellValue(row, col));
}
