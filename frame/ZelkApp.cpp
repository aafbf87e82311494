#include "frame/ZelkApp.h"

#include "files/ZelkFile_OpenSave.h"
#include "frame/ZelkMain.h"

#include <wx/image.h>
#include <wx/stdpaths.h>

bool ZelkApp::OnInit() {
    // In the classic layout the toolkit's configuration file and the user data directory have the same path.
    wxStandardPaths::Get().SetFileLayout(wxStandardPaths::FileLayout_XDG);
    SetAppName("zelk");
    wxInitAllImageHandlers();
    MainFrame = new ZelkFrame(nullptr);
    MainFrame->Show();
    // Desktops name the file to open as an argument. Its message boxes need the running main loop. Options
    // are left to the toolkit.
    if (argc < 2)
        return true;
    if (const wxString path = argv[1]; !path.StartsWith("-"))
        MainFrame->CallAfter([path] { OpenChannelFile(path); });
    return true;
}
