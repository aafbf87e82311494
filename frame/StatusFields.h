// The fields of the status bar.
#pragma once

#include <wx/defs.h>

class wxStatusBar;
class wxString;
class wxWindow;

/// Number of the field that shows the port, from 0.
inline constexpr int PortField = 4;

/// Makes a status bar that cuts a text that doesn't fit its field with an ellipsis, and shows the whole text
/// as tool tip when the pointer is on it. The port is cut at its start, because names of ports differ at
/// their end. Elsewhere the tool tip is the story of the outcome (commands/StatusOutcome.h).
wxStatusBar* MakeStatusFields(wxWindow* parent, wxWindowID id, long style, const wxString& name);
