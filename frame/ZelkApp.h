#pragma once

#include <wx/app.h>

/// The application object: shows the main window.
class ZelkApp : public wxApp {
public:
    bool OnInit() override;
};
