// bare-frame.exe: the window of the bare toolkit, as a program of its own.
#include "bench/BareFrame.h"

#include <wx/app.h>
#include <wx/init.h>

#include <windows.h>

namespace {

class BareApp : public wxApp {
public:
    bool OnInit() override {
        ShowBareFrame();
        return true;
    }
};

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, char*, int show) {
    wxDISABLE_DEBUG_SUPPORT();
    wxApp::SetInstance(new BareApp);
    return wxEntry(instance, nullptr, nullptr, show);
}
