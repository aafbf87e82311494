#include "editing/ScanListCell.h"

#include "catalogue/MemoryRow.h"
#include "catalogue/ScanBoxes.h"
#include "catalogue/TextNumbers.h"

#include <wx/dcprint.h>
#include <wx/msgdlg.h>

#include <algorithm>

namespace {

using RadioCatalogue::ScanBoxCount;

/// Returns the box (0 to 4) under a mouse position in the grid's window, -1 if there is none.
int BoxAt(const wxPoint& position, int col, int boxWidth, const wxGrid* grid) {
    int left = 0;
    for (int before = 0; before < col; ++before)
        if (grid->IsColShown(before))
            left += grid->GetColSize(before);
    const int within = grid->CalcUnscrolledPosition(position).x - left;
    if (within < 0 || boxWidth == 0 || within / boxWidth >= ScanBoxCount)
        return -1;
    return within / boxWidth;
}

/// Draws a box with its top left corner there.
void DrawBox(wxDC& dc, const wxPoint& corner, int edge, bool crossed) {
    dc.DrawRectangle(corner, wxSize(edge, edge));
    if (!crossed)
        return;
    const int first = edge / 4;
    const int last = edge - 1 - first;
    // The end of a line isn't drawn everywhere.
    dc.DrawLine(corner + wxPoint(first, first), corner + wxPoint(last + 1, last + 1));
    dc.DrawLine(corner + wxPoint(last, first), corner + wxPoint(first - 1, last + 1));
}

/// True if the cell has the renderer, editor and font of boxes, from its column or of its own.
bool HasBoxes(const wxGrid* grid, int row, int col) {
    const wxGridCellRendererPtr renderer(grid->GetCellRenderer(row, col));
    const wxGridCellEditorPtr editor(grid->GetCellEditor(row, col));
    return dynamic_cast<ScanlistRenderer*>(renderer.get()) && dynamic_cast<ScanlistEditor*>(editor.get()) &&
           grid->GetCellFont(row, col) == grid->GetDefaultCellFont();
}

} // namespace

void SetScanCell(wxGrid* grid, int row, int col, const wxString& text, bool flag) {
    grid->SetCellValue(row, col, text);
    // The grid may have cached an outdated attribute of the cell.
    grid->RefreshAttr(row, col);
    if (HasBoxes(grid, row, col))
        return;
    grid->SetCellRenderer(row, col, new ScanlistRenderer);
    grid->SetCellEditor(row, col, new ScanlistEditor(flag));
    // No font of its own, so that it follows the grid's, also on paper.
    grid->SetCellFont(row, col, wxNullFont);
}

std::optional<int> ScanMaskOf(const wxString& text) {
    const auto consistsOf = [&text](const wxString& characters) {
        return !text.empty() && text.find_first_not_of(characters) == wxString::npos;
    };
    if (text.length() <= 2 && consistsOf("0123456789") && ReadDecimal(text) < 1 << ScanBoxCount)
        return ReadDecimal(text);
    const wxString boxes =
        wxString(wxUniChar(RadioCatalogue::EmptyScanBox)) + wxUniChar(RadioCatalogue::CrossedScanBox);
    if (text.length() != ScanBoxCount || !(consistsOf(boxes) || consistsOf("_12345")))
        return std::nullopt;
    int mask = 0;
    for (size_t box = 0; box < ScanBoxCount; ++box)
        if (text[box] != '_' && text[box] != wxUniChar(RadioCatalogue::EmptyScanBox))
            mask |= 1 << box;
    return mask;
}

int GetScanMask(const wxGrid* grid, int row, int col) {
    if (grid->GetCellValue(row, MNUM).empty())
        return -1;
    const int mask = ReadDecimal(grid->GetCellValue(row, col));
    return mask >= 0 && mask < 1 << ScanBoxCount ? mask : 0;
}

wxString ScanMaskText(int mask) {
    wxString text;
    if (mask >= 0)
        for (int box = 0; box < ScanBoxCount; ++box)
            text +=
                wxUniChar(mask >> box & 1 ? RadioCatalogue::CrossedScanBox : RadioCatalogue::EmptyScanBox);
    return text;
}

wxGridActivationResult ScanlistEditor::TryActivate(int row, int col, wxGrid* grid,
                                                   const wxGridActivationSource& source) {
    const int mask = GetScanMask(grid, row, col);
    int box = -1;
    if (source.GetOrigin() == wxGridActivationSource::Key) {
        // wchar_t, no signed char. NOLINTNEXTLINE(bugprone-signed-char-misuse)
        const int key = source.GetKeyEvent().GetUnicodeKey();
        if (key >= '1' && key < '1' + ScanBoxCount)
            box = key - '1';
    } else if (source.GetOrigin() == wxGridActivationSource::Mouse) {
        int width = 0, height = 0;
        const wxFont font = grid->GetCellFont(row, col);
        grid->GetGridWindow()->GetTextExtent(ScanMaskText(mask), &width, &height, nullptr, nullptr, &font);
        if (width == 0)
            wxMessageBox("Chan number cannot be empty!", "ERROR", wxOK | wxCENTRE);
        else
            box = BoxAt(source.GetMouseEvent().GetPosition(), col,
                        RadioCatalogue::ScanBoxWidth(wxSize(width, height)), grid);
    }
    if (box < 0)
        return wxGridActivationResult::DoNothing();
    // Intentional: without a number the mask is -1, and a key flips a bit of that.
    m_value.Printf("%d", mask ^ 1 << box);
    return wxGridActivationResult::DoChange(m_value);
}

std::optional<wxString> ScanlistEditor::HoldText(int, int, wxGrid*, const wxString& text) {
    const std::optional<int> mask = ScanMaskOf(text);
    if (!mask)
        return std::nullopt;
    m_value.Printf("%d", *mask);
    return m_value;
}

void ScanlistEditor::DoActivate(int row, int col, wxGrid* grid) {
    grid->SetCellValue(row, col, m_value);
}

wxString ScanlistRenderer::TextOf(const wxGrid& grid, int row, int col) const {
    return ScanMaskText(GetScanMask(&grid, row, col));
}

wxSize ScanlistRenderer::GetBestSize(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, int row, int col) {
    const wxSize text = CellTextRenderer::GetBestSize(grid, attr, dc, row, col);
    return {std::max(text.x, ScanBoxCount * RadioCatalogue::ScanBoxWidth(text)), text.y};
}

void ScanlistRenderer::DrawContent(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect,
                                   const wxString& text) const {
    if (dynamic_cast<wxPrinterDC*>(&dc))
        return CellTextRenderer::DrawContent(grid, attr, dc, rect, text);
    const wxSize size = dc.GetTextExtent(text);
    const int width = RadioCatalogue::ScanBoxWidth(size);
    // The place and size that the characters have in the usual font.
    const int edge = width * 5 / 6;
    wxPoint corner = rect.GetTopLeft() + wxPoint(1 + (width - edge) / 2, 1 + (size.y - edge) / 2);
    const wxDCClipper clipper(dc, rect);
    const wxDCPenChanger pen(dc, wxPen(dc.GetTextForeground(), std::max(1, edge / 12)));
    const wxDCBrushChanger brush(dc, *wxTRANSPARENT_BRUSH);
    for (const wxUniChar box : text) {
        DrawBox(dc, corner, edge, box == wxUniChar(RadioCatalogue::CrossedScanBox));
        corner.x += width;
    }
}
