// What an analog driver exchanges with the radio once the opening command is out.
#pragma once

#include <cstdint>
#include <wx/string.h>

class wxGrid;
struct TransferContext;

// All answer a TransferStatus and take the open port and the progress window from the context.

/// Sends the selected rows from 1 to context.RowCapacity, each to be acknowledged, and the end line.
int WriteChannels(TransferContext& context, wxGrid* grid);

/// Asks the user to start the radio where it needs that, and takes channel lines until the end line. A
/// radio that falls silent has ended well if its last row was reached.
int ReadChannels(TransferContext& context, wxGrid* grid);

/// Takes configuration lines into context.ConfigLines until the radio ends them. A line with a wrong
/// checksum is dropped.
int ReadConfig(TransferContext& context);

/// Sends context.ConfigLines, each to be answered, and the end line. TransferCommunicationError, with Index
/// behind the line that was refused.
int WriteConfig(TransferContext& context);

/// An opening command that names a count, in three characters at least, with its carriage return.
wxString CountedCommand(const wxString& word, std::uint32_t count);
