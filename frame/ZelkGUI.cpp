#include "frame/ZelkGUI.h"

#include <wx/notebook.h>
#include <wx/statusbr.h>
#include <wx/utils.h>

namespace {

/// Name of the file that a save of the page writes, empty without one.
wxString FileNameOf(int page) {
    const wxString& name = PageStrings[page].FileName;
    return name.empty() ? name : name + ".zelk";
}

} // namespace

void OrvZELFrame::ShowFileOfPage() {
    const wxString name = FileNameOf(CurrentPage);
    m_statusBar->SetStatusText(name.empty() ? wxString("Select function") : name, 0);
}

void OrvZELFrame::OnMouseOnTabs(wxMouseEvent& event) {
    event.Skip();
    const int page =
        event.Leaving() ? wxNOT_FOUND : m_notebook->HitTest(m_notebook->ScreenToClient(wxGetMousePosition()));
    const wxString name = page == wxNOT_FOUND ? wxString() : FileNameOf(page);
    // The pages of the notebook would show its tool tip too.
    if (name.empty())
        m_notebook->UnsetToolTip();
    else if (const wxString path = PageStrings[page].FileDir + name; m_notebook->GetToolTipText() != path)
        m_notebook->SetToolTip(path);
}

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
