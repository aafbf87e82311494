// Conversion of the radio's debug log from records into a text file.
#pragma once

#include <wx/string.h>

struct TRecordContext;

/// Opens context.DebugLogFile in the working directory, replacing a file of the same name, and writes the
/// heading. If the file can't be opened, it stays closed; no error is reported.
///
/// @param serial serial number of the radio, part of the file's name
/// @param now    date and time as "YYYY-MM-DD HH:MM:SS"
void OpenDebugLog(TRecordContext& context, const wxString& serial, const wxString& now);

/// Decodes the record in context.RxLine, without its checksum, into context.DebugLogFile, moves the main
/// gauge (context.Progress, which may be null) and sets context.Phase to LineDone. The file must be open.
void decodeDebugLog(TRecordContext& context);

/// Decodes the trace of the radio's serial traffic, as kept by radios of protocols other than 2. Works on
/// context.RxLine, LogDataStart, Work2, DebugRxText and DebugTxText.
void decodeDebugLog716A(TRecordContext& context);

/// Decodes the timed temperature samples of radios of protocol 2. Works on context.RxLine.
void decodeDebugLog716B(TRecordContext& context);

/// Writes the message of a trace that is still in progress when the radio ends its log.
void EndDebugLog(TRecordContext& context);
