// What the row commands are made of.
#pragma once

class OrvZELFrame;

/// Makes RowCopyBuffer, a row of the current page, fit to be pasted into another row: takes the
/// links of a primary or shadow out of it. Nothing for other rows and on pages other than P25 ones.
void FixCopiedRow(OrvZELFrame* frame);

/// True when ContextRow is a memory row of the current page. Row 0 is none, and a row of a longer
/// page can be none here.
bool ContextRowIsMemory();

/// Selects ContextRow, alone or together with what is selected. Outside the grid it selects nothing.
void SelectContextRow(bool addToSelection);
