// How a transfer with a digital radio is told to have ended.
#pragma once

struct TRecordContext;

/// Tells the radio, the user and the log by context.Status how the transfer ended. The end record goes out
/// where the radio waits for one; for that context.Port must be open.
///
/// @param mode a TransferMode
void ReportResult(TRecordContext& context, int mode);
