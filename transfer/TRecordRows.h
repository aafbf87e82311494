// Which rows of the page go to a digital radio, and as what.
#pragma once

struct TRecordDialogue;

/// Goes over the rows before a write. Sets SEL in the TFLG of the selected ones, and in that of primaries
/// and shadows that must go along with them, and clears it in all others; counts them; finds out what the
/// rows need of the radio (XferFlags) and which operating modes the radio lacks for them (InvalidModes).
void EvaluateRows(TRecordDialogue& dialogue);

/// Sets TxLine for the row at context.Index: its record, the message that erases it, or nothing. May move
/// Index on over rows that the old layout doesn't know.
void ChooseRowLine(TRecordDialogue& dialogue);

/// Takes over that the radio has acknowledged the line of the row at context.Index: sets InRadioFlag of a
/// memory row that was sent, clears it in one that was erased, and keeps the row in context.RowsSent.
void TakeRowAck(TRecordDialogue& dialogue);

/// Whether a write has to erase all memories of the radio before it sends any.
bool PurgeIsNeeded(const TRecordDialogue& dialogue);

/// Whether the purge that a write needs may cost memories. Of a radio that isn't the known one: a memory row
/// of the page, guards included, has data and isn't selected. Of the known one: it holds memories that don't
/// go out again, or its read broke off.
bool PurgeMayCostMemories(const TRecordDialogue& dialogue);

/// Takes over at the end of a read that the radio holds the rows with InRadioFlag and no others.
void KeepContentOfRead(const TRecordDialogue& dialogue);
