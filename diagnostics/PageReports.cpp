#include "diagnostics/PageReports.h"

#include "catalogue/ZoneSlots.h"
#include "diagnostics/ReportLines.h"
#include "frame/ZelkMain.h"

#include <wx/log.h>
#include <wx/notebook.h>

#include <algorithm>

namespace {

void LogLines(const wxArrayString& lines) {
    for (const wxString& line : lines)
        wxLogMessage("%s", line);
}

} // namespace

void ReportPageParameters(int page, int, int pages) {
    LogLines(PageParameterLines(page, pages, PageParameters[page], PageStrings[page]));
}

void ReportRowParameters(int page) {
    const PageParameterRecord& parameters = PageParameters[page];
    const wxGrid* grid = PageGrid[page];
    wxLogMessage(">-- Debug - Report Row Parameters -------------------------<");
    const int rows = std::min(parameters.Rows + 1, grid->GetNumberRows());
    for (int row = 0; row < rows; ++row)
        if (grid->IsInSelection(row, PRIM) && !grid->GetCellValue(row, MNUM).empty())
            LogLines(RowLines(parameters.Type, row, GetRowValues(page, row)));
}

void ReportPageP25OnlyParameters(int page) {
    if (!RadioCatalogue::IsP25Type(PageParameters[page].Type))
        return;
    // Intentional: one counter more than the page has. The last line shows zone 0 of the next page.
    LogLines(ZoneLines({ZoneSlotsOf(page), ZoneReach}));
    LogLines(OpModeLines(OpModes[page]));
}

void ZelkFrame::OnDebug(wxCommandEvent& event) {
    wxLogMessage("\n>----------- OnDebug ------------------------------------------------<");
    const auto* notebook = dynamic_cast<wxNotebook*>(event.GetEventObject());
    if (!notebook)
        notebook = m_notebook; // a menu or a tool has no pages of its own
    ReportPageParameters(CurrentPage, 65535, static_cast<int>(notebook->GetPageCount()));
    ReportRowParameters(CurrentPage);
    ReportPageP25OnlyParameters(CurrentPage);
}
