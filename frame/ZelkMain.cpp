#include "frame/ZelkMain.h"

#include "commands/StatusOutcome.h"
#include "files/ZelkFile_ImportExport.h"

#include <wx/statusbr.h>

ZelkFrame::ZelkFrame(wxWindow* parent) : OrvZELFrame(parent), m_importer(std::make_unique<FileImporter>()) {
    m_statusBar->SetStatusText("Select function", 0);
    ShowOutcomesIn(m_statusBar);
}

ZelkFrame::~ZelkFrame() = default;

// Intentional: closing asks nothing and discards unsaved changes.
void ZelkFrame::OnClose(wxCloseEvent&) {
    Destroy();
}

void ZelkFrame::OnQuit(wxCommandEvent&) {
    Destroy();
}
