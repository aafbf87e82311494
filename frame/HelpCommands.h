// The Help menu.
#pragma once

#include <wx/aboutdlg.h>
#include <wx/string.h>

/// Full path of the user guide, which is beside the executable, even when a link started the program.
wxString UserGuidePath();

/// The texts of the About box.
wxAboutDialogInfo MakeAboutInfo();
