// The program's window for fuzzers whose readers write into a grid.
#pragma once

#include <wx/string.h>

/// Makes the window; call it once. Any dialog that opens later is answered at once.
void MakeFuzzWindow();

/// Turns the window's page into an empty one for the radio index and band slot.
void MakeFuzzPage(int radio, int bandIndex);

/// Aborts the program, as a finding, unless the page still has the shape of its target: 32 columns, a row for
/// each memory and the default row, zone counters from 0 to their limit.
void CheckFuzzPage();
