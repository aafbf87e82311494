// One line to a digital radio and what comes back.
#pragma once

#include <wx/string.h>

struct TRecordContext;
struct TRecordDialogue;

/// Sends the line that was offered, and takes the radio's lines until one of them settles it or the
/// transfer is over. The result is in context.Status: TransferOk to go on.
void ExchangeLine(TRecordDialogue& dialogue);

/// Writes a complete line to the log and sends it.
void SendLine(TRecordContext& context, const wxString& line);
