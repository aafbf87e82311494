// Functions shared by the sources of the analog driver. Each source calls only functions declared above its
// own.
#pragma once

#include "transfer/TransferStatus.h"

#include <wx/string.h>

#include <cstdint>

class wxGrid;
struct TransferContext;

// All functions use the open port and the progress window of the context.

/// Highest row count at which a radio takes the short commands and the numbered end line.
inline constexpr uint32_t ShortCommandRows = 202;

// ---- AnalogExchange.cpp ----

/// Sends a text character by character, with a pause after each: analog radios have no flow control. Blocks
/// the window for that time and ignores Cancel.
///
/// @param slow true for commands: 350 ms per character; false for lines: 2 ms, with a carriage return
///             appended
void SendPaced(TransferContext& context, const wxString& text, bool slow);

/// Opening command followed by a count, at least three characters wide, and a carriage return.
wxString CountedCommand(const wxString& word, uint32_t count);

// ---- AnalogChannels.cpp ----

/// Sends the selected rows from 1 to context.RowCapacity, waiting for an acknowledgement after each, then the
/// end line.
TransferStatus WriteChannels(TransferContext& context, wxGrid* grid);

/// Asks the user to start the radio if it needs that, then receives channel lines until the end line. A radio
/// that falls silent counts as complete if its last row was reached.
TransferStatus ReadChannels(TransferContext& context, wxGrid* grid);

// ---- AnalogConfig.cpp ----

/// Receives configuration lines into context.ConfigLines until the radio ends them. Drops lines with a wrong
/// checksum.
TransferStatus ReadConfig(TransferContext& context);

/// Sends context.ConfigLines, waiting for an answer to each, then the end line. Returns
/// TransferCommunicationError if the radio refuses a line; context.Index is then one past that line.
TransferStatus WriteConfig(TransferContext& context);
