// Serial port used by transfers.
#pragma once

#include <wx/string.h>

/// The chosen serial port, "none" until one has been chosen.
extern wxString PortName;
