#include "frame/ZelkApp.h"

#include "files/ZelkFile_OpenSave.h"
#include "frame/ZelkMain.h"

#include <wx/image.h>
#include <wx/stdpaths.h>

bool ZelkApp::OnInit() {
    // In the classic layout the toolkit's configuration file and the user data directory are one
    // and the same path.
    wxStandardPaths::Get().SetFileLayout(wxStandardPaths::FileLayout_XDG);
    SetAppName("zelk");
    wxInitAllImageHandlers();
    MainFrame = new ZelkFrame(nullptr);
    MainFrame->Show();
    // A desktop that was asked to open a file names it. Its message boxes need the running main loop. Options
    // are the toolkit's own affair.
    if (argc > 1 && !wxString(argv[1]).StartsWith("-"))
        MainFrame->CallAfter([path = wxString(argv[1])] { OpenChannelFile(path); });
    return true;
}
