#include "frame/ZelkApp.h"

#include <wx/init.h>
#include <wx/log.h>

wxIMPLEMENT_APP_NO_MAIN(ZelkApp);

int main(int argc, char** argv) {
    wxDISABLE_DEBUG_SUPPORT();
    wxLog::SetLogLevel(wxLOG_Info);
    return wxEntry(argc, argv);
}
