// Data that the last connected radio reported about itself.
#pragma once

#include <wx/string.h>

#include <set>

/// Firmware version, empty before the first transfer. Outlives the transfer.
extern wxString RadioVersion;
/// Serial number, empty before the first transfer. Outlives the transfer.
extern wxString RadioSerial;
/// Identity stamp, 14 digits, of the radio whose content the page's InRadioFlag describes: the stamp that the
/// last read gave to its radio, or that the radio of the last complete write reported. Empty while no radio
/// is known: before the first transfer, and from a purge until a write is complete. Outlives the transfer.
extern wxString RadioStamp;

/// Content of a digital radio that this program has read or written.
struct KnownContent {
    wxString stamp;            ///< identity stamp of the radio
    std::set<int> rows;        ///< grid rows that the radio holds
    bool readBrokeOff = false; ///< the last read didn't complete: the radio holds more
};

/// Content of the radio identified by RadioStamp; not valid for any other stamp. Outlives the transfer.
extern KnownContent HeldByRadio;
