#include "catalogue/HeadingTips.h"

#include "catalogue/ColumnTerms.h"
#include "catalogue/PageModel.h"

#include <wx/grid.h>

namespace {

void ExplainHeadingAt(wxGrid* grid, const wxPoint& pointer) {
    wxWindow* const headings = grid->GetGridColLabelWindow();
    const int col = grid->XToCol(grid->CalcUnscrolledPosition(pointer).x);
    // Only the page in front has a pointer on it.
    const wxString term = col == wxNOT_FOUND ? "" : RadioCatalogue::ColumnTerm(CurrentParameters().Type, col);
    if (term == headings->GetToolTipText())
        return;
    // A new text would not replace one that is shown.
    headings->UnsetToolTip();
    if (!term.empty())
        headings->SetToolTip(term);
}

} // namespace

void ExplainHeadings(wxGrid* grid) {
    for (const auto& type : {wxEVT_ENTER_WINDOW, wxEVT_MOTION})
        grid->GetGridColLabelWindow()->Bind(type, [grid](wxMouseEvent& event) {
            ExplainHeadingAt(grid, event.GetPosition());
            event.Skip();
        });
}
