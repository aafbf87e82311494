// What the radio that was connected last said of itself.
#pragma once

#include <set>
#include <wx/string.h>

/// Firmware version, empty before the first transfer. Outlives the transfer.
extern wxString RadioVersion;
/// Serial number, empty before the first transfer. Outlives the transfer.
extern wxString RadioSerial;
/// Identity stamp of the radio whose content the page's InRadioFlag tells of: the one that the last read gave
/// its radio, or that the radio of the last complete write told. 14 digits. Empty while no radio is known:
/// before the first transfer, and from a purge until a write is complete. Outlives the transfer.
extern wxString RadioStamp;

/// What this program has read from a digital radio and put there.
struct KnownContent {
    wxString stamp;            ///< identity stamp of the radio
    std::set<int> rows;        ///< grid rows that the radio holds
    bool readBrokeOff = false; ///< the last read didn't reach its end: the radio holds more
};

/// The content of the radio of RadioStamp; of another stamp it says nothing. Outlives the transfer.
extern KnownContent HeldByRadio;
