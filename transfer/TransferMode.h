// Modes of the transfer drivers.
#pragma once

/// Kinds of transfer. Callers of the drivers pass them as numbers. The commands of the window start the first
/// two; the others are for direct calls.
enum TransferMode : int {
    WriteChannelsMode = 0,
    ReadChannelsMode = 1,
    ReadConfigMode = 2,
    WriteConfigMode = 3,
    ReadInformationMode = 4,
    ReadDebugLogMode = 5,
};
