// The Help menu.
#pragma once

#include <wx/aboutdlg.h>
#include <wx/string.h>

/// Full path of the user guide, which stands beside the executable whatever link started it.
wxString UserGuidePath();

/// The texts of the About box.
wxAboutDialogInfo MakeAboutInfo();
