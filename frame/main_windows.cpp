#include "frame/ZelkApp.h"

#include <wx/init.h>
#include <wx/log.h>

#include <windows.h>

wxIMPLEMENT_APP_NO_MAIN(ZelkApp);

// From here the toolkit takes the command line as the system keeps it. The arguments of main() are in the
// code page, which lacks letters of other languages.
int WINAPI WinMain(HINSTANCE instance, HINSTANCE, char*, int show) {
    wxDISABLE_DEBUG_SUPPORT();
    wxLog::SetLogLevel(wxLOG_Info);
    return wxEntry(instance, nullptr, nullptr, show);
}
