// A page's grid as a screen reader hears it.
#pragma once

class wxGrid;

/// From now on tells a reader the cell with the cursor: when the cursor moves, when the cell's text, paint or
/// selection changes, and when the grid gets the keyboard. Names the editors of its cells. Call once for each
/// grid, before it is used.
void SpeakGrid(wxGrid* grid);
