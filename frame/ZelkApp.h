#pragma once

#include <wx/app.h>

/// The application object: shows the main window. The first argument of the command line, if any, is a
/// channel file to open on its first page.
class ZelkApp : public wxApp {
public:
    bool OnInit() override;
};
