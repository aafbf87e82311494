// Status bar whose texts are cut with an ellipsis. One source file for each operating system.
#pragma once

#include <wx/defs.h>

class wxStatusBar;
class wxString;
class wxWindow;

/// Makes a status bar that cuts texts at their end, and where the system's own bar allows it that of the
/// field cutAtStart (from 0) at its start.
wxStatusBar* MakeCutStatusBar(wxWindow* parent, wxWindowID id, long style, const wxString& name,
                              int cutAtStart);
