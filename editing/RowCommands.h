// Helpers of the row commands.
#pragma once

class OrvZELFrame;

/// Prepares RowCopyBuffer, a row of the current page, for pasting into another row: removes the links of a
/// primary or shadow. Does nothing for other rows, and on pages that aren't P25.
void FixCopiedRow(OrvZELFrame* frame);

/// True when ContextRow is a memory row of the current page. False for row 0, and for a row that only a
/// longer page has.
bool ContextRowIsMemory();

/// Selects ContextRow, alone or in addition to the selection. Selects nothing if it is outside the grid.
void SelectContextRow(bool addToSelection);
