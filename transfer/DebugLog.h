// The radio's debug log, read from records into a text file.
#pragma once

#include <wx/string.h>

struct TRecordContext;

/// Opens context.DebugLogFile in the working directory, replacing a file of its name, and writes the
/// heading. A file that can't be opened stays closed; that isn't reported.
///
/// @param serial serial number of the radio, part of the file's name
/// @param now    date and time as "YYYY-MM-DD HH:MM:SS"
void OpenDebugLog(TRecordContext& context, const wxString& serial, const wxString& now);

/// Takes the record in context.RxLine, without its checksum, into context.DebugLogFile, moves the main
/// gauge (context.Progress, which may be null) and sets context.Phase to LineDone. The file must be open.
void decodeDebugLog(TRecordContext& context);

/// The trace of the radio's serial traffic, as radios of protocols other than 2 keep it. Works on
/// context.RxLine, LogDataStart, Work2, DebugRxText and DebugTxText.
void decodeDebugLog716A(TRecordContext& context);

/// The timed temperature samples of radios of protocol 2. Works on context.RxLine.
void decodeDebugLog716B(TRecordContext& context);

/// Writes what is left when the radio has ended its log: the message of a trace that was in progress.
void EndDebugLog(TRecordContext& context);
