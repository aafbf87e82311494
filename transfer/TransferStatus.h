// Results of a transfer and their texts.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstdint>

/// Result of a transfer and of its waits. The numbers are fixed: users see them in a message box.
enum TransferStatus : int32_t {
    TransferOk = 0,
    TransferComplete = 1,
    TransferPortError = 2,
    TransferCommunicationFailure = 3, // never set by the program
    TransferTimeout = 4,
    TransferCommunicationError = 5,
    TransferChecksumError = 6,
    TransferNoDataSelected = 7,
    TransferInvalidTransmitData = 8,
    TransferUnsupported = 9,
    TransferCancelled = 10,
    TransferK7Unsupported = 11, // never set by the program
};

/// The 12 texts of TransferStatus in the order of their numbers, once FillStatusList has run.
extern wxArrayString StatusList;

/// Fills StatusList. Called at the start of the program; a further call changes nothing.
void FillStatusList();

/// Returns the text of a TransferStatus for the user, from StatusList; "Bad Index" for a number without a
/// text.
wxString GetStatusText(int status);
