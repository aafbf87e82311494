#include "frame/HelpCommands.h"

#include "catalogue/Version.h"
#include "frame/ZelkMain.h"
#include "resources/ToolImages.h"

#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/msgdlg.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

namespace {

constexpr const char* ToolkitText = "wxWidgets 3.2.5-Windows-Unicode build";

} // namespace

wxString UserGuidePath() {
    const wxFileName program(wxStandardPaths::Get().GetExecutablePath());
    return program.GetPathWithSep() + "ZelkUserGuide.pdf";
}

wxAboutDialogInfo MakeAboutInfo() {
    wxAboutDialogInfo info;
    info.SetName("Orv Zelk");
    info.SetVersion(ProgramVersion);
    info.SetDescription("Channel loading software for Orv Radios. \n" + wxString(ReleaseDay) + " \n\n" +
                        ToolkitText);
    info.SetCopyright("Copyright 2026 the Zelk developers");
    return info;
}

void ZelkFrame::OnHelp(wxCommandEvent&) {
    const wxString guide = UserGuidePath();
    if (wxFileExists(guide) && wxLaunchDefaultApplication(guide))
        return;
    wxMessageBox("Unable to open User Guide.\nLook in the install directory for ZelkUserGuide.pdf",
                 "User Guide", wxOK | wxCENTRE);
}

void ZelkFrame::OnAbout(wxCommandEvent&) {
    wxAboutDialogInfo info = MakeAboutInfo();
    // Without an icon, desktops show the sign of a missing image.
    info.SetIcon(GetZelkIcon());
    wxAboutBox(info);
}
