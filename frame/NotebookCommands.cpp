// Adding, deleting and changing pages.
#include "catalogue/PageCreation.h"
#include "catalogue/ZoneSlots.h"
#include "commands/ErrorBox.h"
#include "commands/OpenEditor.h"
#include "commands/StatusOutcome.h"
#include "frame/TargetSelection.h"
#include "frame/ZelkMain.h"

#include <wx/grid.h>
#include <wx/msgdlg.h>
#include <wx/notebook.h>
#include <wx/wupdlock.h>

#include <algorithm>

void ZelkFrame::OnPageAdd(wxCommandEvent&) {
    CommitOpenEditor();
    if (PageCount >= PageLimit) {
        wxMessageBox("Cannot add further pages to notebook", "MAX Page Reached", wxOK | wxCENTRE);
        return;
    }
    const int result = UserSelectRadioAndBand(this, PageCount);
    if (result == ResultCancelled)
        return;
    if (result != 0) {
        DisplayError(result, 0);
        return;
    }
    // The status bar draws its text at once, and GTK would draw the new tab along with it, which has no size
    // yet.
    const wxWindowUpdateLocker quiet(this);
    CreateNewPage(this, PageCount);
    UpdateStatus(this, CurrentPage);
}

namespace {

/// Moves the data of the page after page down by one number. Zone counters are moved in the range in which
/// ClearZoneSlots clears them.
void TakeNextPagesPlace(OrvZELFrame* frame, int page) {
    const int next = page + 1;
    PageGrid[page] = PageGrid[next];
    frame->m_pagePanels[page] = frame->m_pagePanels[next];
    PageParameters[page] = PageParameters[next];
    PageStrings[page] = PageStrings[next];
    std::copy_n(ZoneSlotsOf(next), ZoneReach, ZoneSlotsOf(page));
}

void ForgetPage(OrvZELFrame* frame, int page) {
    PageGrid[page] = nullptr;
    frame->m_pagePanels[page] = nullptr;
    PageParameters[page] = {};
    PageStrings[page] = {};
    ClearZoneSlots(page);
}

} // namespace

void ZelkFrame::OnPageDelete(wxCommandEvent&) {
    CommitOpenEditor();
    const int pages = static_cast<int>(m_notebook->GetPageCount());
    if (pages == 1) {
        wxMessageBox("There must always be at least one Page", "Delete Page Error", wxOK | wxCENTRE);
        return;
    }
    wxMessageDialog question(this, "This will delete ALL data on this page! Continue?", "Delete Page?",
                             wxOK | wxCANCEL);
    if (question.ShowModal() != wxID_OK)
        return;

    int page = CurrentPage;
    if (m_lastPanel == m_pagePanels[page])
        m_lastPanel = nullptr;
    m_notebook->DeletePage(static_cast<size_t>(page));
    CurrentPage = m_notebook->GetSelection();
    // Intentional: OpModes is not moved.
    for (; page + 1 < pages; ++page) {
        TakeNextPagesPlace(this, page);
        UpdateStatus(this, page);
    }
    ForgetPage(this, page);
    UpdateStatus(this, CurrentPage);
    ShowFileOfPage();
    // Intentional: lower the count only now, so that the title keeps the former count until its next update.
    --PageCount;
    for (int remaining = 0; remaining < PageCount; ++remaining)
        ShowPageParameters(this, remaining);
}

void ZelkFrame::OnPageChanged(wxBookCtrlEvent&) {
    const int selection = m_notebook->GetSelection();
    if (selection == wxNOT_FOUND)
        return;
    // Text in an open editor belongs to the page that was left.
    CommitOpenEditor();
    ForgetOutcome();
    CurrentPage = selection;
    UpdateStatus(this, CurrentPage);
    ShowFileOfPage();
}
