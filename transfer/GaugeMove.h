// Moves of a gauge during a transfer.
#pragma once

class wxGauge;

/// Sets the value of a gauge. It is drawn with the next events, not here, where a radio waits for its next
/// line. One source file for each operating system.
void MoveGauge(wxGauge& gauge, int value);
