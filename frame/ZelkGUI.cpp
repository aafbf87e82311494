#include "frame/ZelkGUI.h"

#include <wx/notebook.h>
#include <wx/statusbr.h>

void UpdateStatus(OrvZELFrame* frame, int page) {
    const PageStringRecord& texts = PageStrings[page];
    const int rows = PageParameters[page].Rows;
    frame->m_statusBar->SetStatusText(texts.RadioName, 1);
    frame->m_statusBar->SetStatusText(texts.BandName, 2);
    frame->m_statusBar->SetStatusText(wxString::Format("%d Rows", rows), 3);
    frame->m_notebook->SetPageText(static_cast<size_t>(page), texts.RadioName);
    frame->SetTitle(wxString::Format("Orv Zelk: Page %d of %d.", page + 1, PageCount));
    SetGuardRows(frame, page, rows);
}
