// How a transfer ended.
#pragma once

#include <cstdint>
#include <wx/arrstr.h>
#include <wx/string.h>

/// Result of a transfer and of its waits. The numbers are fixed: users read them in a box.
enum TransferStatus : std::int32_t {
    TransferOk = 0,
    TransferComplete = 1,
    TransferPortError = 2,
    TransferCommunicationFailure = 3, // no path of the program ends so
    TransferTimeout = 4,
    TransferCommunicationError = 5,
    TransferChecksumError = 6,
    TransferNoDataSelected = 7,
    TransferInvalidTransmitData = 8,
    TransferUnsupported = 9,
    TransferCancelled = 10,
    TransferK7Unsupported = 11, // no path of the program ends so
};

/// The 12 texts of TransferStatus in the order of their numbers, once FillStatusList has run.
extern wxArrayString StatusList;

/// Fills StatusList. For the start of the program; a further call changes nothing.
void FillStatusList();

/// The text of a TransferStatus for the user, "Bad Index" for a number that has none. Comes from StatusList.
wxString GetStatusText(int status);
