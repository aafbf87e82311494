#include "commands/FrameLook.h"

#include <wx/defs.h>

const long FrameScrollBars = wxHSCROLL | wxVSCROLL;

// Themes give frames that colour, and draw them when they are enabled again.
void SetFrameLook(wxFrame&) {}
