// The hardware information that a digital radio tells, and the files made of it.
#pragma once

struct TRecordDialogue;

/// Takes the first hardware record, in context.RxLine: the serial number, if the user asked for a log. The
/// hardware file "Logs/" + serial + ".txt" is then begun, and in a read of the debug log that log's file.
void BeginHardware(TRecordDialogue& dialogue);

/// Takes a hardware text record, in context.RxLine, into context.InfoLines and the hardware file.
void TakeHardwareText(TRecordDialogue& dialogue);

/// Closes the hardware file.
void EndHardware(TRecordDialogue& dialogue);

/// Begins the debug log's file for a radio that is asked for its log and tells no hardware information.
void BeginDebugLogWithoutHardware(TRecordDialogue& dialogue);
