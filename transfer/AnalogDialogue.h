// What the sources of the analog driver share. Each calls only what is declared above its own functions.
#pragma once

#include "transfer/TransferStatus.h"

#include <cstdint>
#include <wx/string.h>

class wxGrid;
struct TransferContext;

// All take the open port and the progress window from the context.

/// Up to this count of rows a radio knows the short commands and the end line with a number.
inline constexpr std::uint32_t ShortCommandRows = 202;

// ---- AnalogExchange.cpp ----

/// Sends a text character by character, with a pause after each: analog radios have no way to say stop.
/// Blocks the window for that time and doesn't look at Cancel.
///
/// @param slow true for commands: 350 ms a character; false for lines: 2 ms, and a carriage return is added
void SendPaced(TransferContext& context, const wxString& text, bool slow);

/// An opening command that names a count, in three characters at least, with its carriage return.
wxString CountedCommand(const wxString& word, std::uint32_t count);

// ---- AnalogChannels.cpp ----

/// Sends the selected rows from 1 to context.RowCapacity, each to be acknowledged, and the end line.
TransferStatus WriteChannels(TransferContext& context, wxGrid* grid);

/// Asks the user to start the radio where it needs that, and takes channel lines until the end line. A
/// radio that falls silent has ended well if its last row was reached.
TransferStatus ReadChannels(TransferContext& context, wxGrid* grid);

// ---- AnalogConfig.cpp ----

/// Takes configuration lines into context.ConfigLines until the radio ends them. A line with a wrong
/// checksum is dropped.
TransferStatus ReadConfig(TransferContext& context);

/// Sends context.ConfigLines, each to be answered, and the end line. TransferCommunicationError, with Index
/// behind the line that was refused.
TransferStatus WriteConfig(TransferContext& context);
