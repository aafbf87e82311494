// What the radio that was connected last said of itself.
#pragma once

#include <wx/string.h>

/// Firmware version, empty before the first transfer. Outlives the transfer.
extern wxString RadioVersion;
/// Serial number, empty before the first transfer. Outlives the transfer.
extern wxString RadioSerial;
/// Identity stamp that the last read gave its radio, 14 digits, empty before. Outlives the transfer.
extern wxString RadioStamp;
