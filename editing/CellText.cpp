#include "editing/CellText.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "editing/CellTextRenderer.h"
#include "editing/WholeTextEditor.h"

#include <wx/grid.h>

#include <optional>

namespace {

/// Writes into cells whose editor is one of the toolkit's: numbers of a range, and plain text.
class ToolkitCell final : public WholeTextEditor {
public:
    std::optional<wxString> HoldText(int, int col, wxGrid*, const wxString& text) override {
        m_held = text;
        if (const int highest = HighestNumber(col); highest > 0) {
            const std::optional<int> number = WholeNumber(text, 0, highest);
            if (!number)
                return std::nullopt;
            m_held = DecimalText(static_cast<uint32_t>(*number));
        }
        return m_held;
    }
    void ApplyHeldText(int row, int col, wxGrid* grid) override { grid->SetCellValue(row, col, m_held); }

private:
    /// The highest number of a column of numbers that begin at 0; 0 for a column of texts.
    static int HighestNumber(int col) { return col == TIDC ? 9999999 : col == RNSV ? 15 : 0; }

    wxString m_held;
};

void SendGridEvent(wxGrid* grid, wxEventType type, int row, int col, const wxString& text) {
    wxGridEvent event(grid->GetId(), type, grid, row, col);
    event.SetString(text);
    grid->ProcessWindowEvent(event);
}

} // namespace

wxString ShownText(const wxGrid* grid, int row, int col) {
    const wxGridCellRendererPtr renderer(grid->GetCellRenderer(row, col));
    const auto* shown = dynamic_cast<const CellTextRenderer*>(renderer.get());
    return shown ? shown->TextOf(*grid, row, col) : grid->GetCellValue(row, col);
}

EnteredText EnterText(wxGrid* grid, int row, int col, const wxString& text) {
    if (grid->IsReadOnly(row, col))
        return EnteredText::Locked;
    const wxString before = grid->GetCellValue(row, col);
    if (text == before || text == ShownText(grid, row, col)) {
        TakePaintOff(grid, row, col);
        return EnteredText::Taken;
    }
    const wxGridCellEditorPtr editor(grid->GetCellEditor(row, col));
    ToolkitCell toolkitCell;
    auto* cell = dynamic_cast<WholeTextEditor*>(editor.get());
    if (!cell)
        cell = &toolkitCell;
    std::optional<wxString> held = cell->HoldText(row, col, grid, text);
    if (!held)
        held = cell->HoldText(row, col, grid, wxString(text).Trim(true).Trim(false));
    if (!held)
        return EnteredText::Refused;
    SendGridEvent(grid, wxEVT_GRID_CELL_CHANGING, row, col, *held);
    cell->ApplyHeldText(row, col, grid);
    SendGridEvent(grid, wxEVT_GRID_CELL_CHANGED, row, col, before);
    return EnteredText::Taken;
}
