// Commands that open and save a channel file.
#include "catalogue/PageModel.h"
#include "commands/OpenEditor.h"
#include "files/ZelkFile_OpenSave.h"
#include "frame/ZelkMain.h"

#include <wx/filedlg.h>
#include <wx/msgdlg.h>

void ZelkFrame::OnOpen(wxCommandEvent&) {
    CommitOpenEditor();
    wxMessageDialog question(nullptr, "This will overwrite all data on this page! Continue?", "Open File?",
                             wxOK | wxCANCEL);
    if (question.ShowModal() != wxID_OK)
        return;
    const PageStringRecord& strings = PageStrings[CurrentPage];
    wxFileDialog dialog(this, "Select Zelk file",
                        strings.FileDir.empty() ? PageStrings[0].FileDir : strings.FileDir, "",
                        "Zelk files|*.zelk|All files|*.*", wxFD_OPEN);
    if (dialog.ShowModal() != wxID_OK)
        return;
    OpenChannelFile(dialog.GetPath());
}

namespace {

void SaveCurrentPage(bool saveAs) {
    CommitOpenEditor();
    if (CountRowsWithData(CurrentPage) == 0) {
        wxMessageBox("Empty Grid - No data to Save", "Error", wxOK | wxCENTRE | wxICON_ERROR);
        return;
    }
    SaveZelkFile(CurrentPage, saveAs);
}

} // namespace

void ZelkFrame::OnSave(wxCommandEvent&) {
    SaveCurrentPage(false);
}

void ZelkFrame::OnSaveAs(wxCommandEvent&) {
    SaveCurrentPage(true);
}
