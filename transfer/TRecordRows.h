// Which rows of the page go to a digital radio, and as what.
#pragma once

struct TRecordDialogue;

/// Goes over the rows before a write. Sets SEL in the TFLG of the selected ones, and in that of primaries
/// and shadows that must go along with them; counts them; finds out what the rows need of the radio
/// (XferFlags) and which operating modes the radio lacks for them (InvalidModes).
void EvaluateRows(TRecordDialogue& dialogue);

/// Sets TxLine for the row at context.Index: its record, the message that erases it, or nothing. May move
/// Index on over rows that the old layout doesn't know.
void ChooseRowLine(TRecordDialogue& dialogue);
