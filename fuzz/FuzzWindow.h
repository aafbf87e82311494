// The program's window for fuzzers whose readers write into a grid.
#pragma once

#include <wx/string.h>

/// Makes the window, once. Whatever dialog comes up later is answered at once.
void MakeFuzzWindow();

/// The page of the window becomes an empty one for the radio index and band slot.
void MakeFuzzPage(int radio, int bandIndex);

/// Ends the program, as a finding, unless the page still has the shape of its target: 32 columns, a row
/// for each memory and the default row, zone counters from 0 to their limit.
void CheckFuzzPage();
