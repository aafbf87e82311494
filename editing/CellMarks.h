// Cell state that rows leave besides text: read-only marks and paint.
#pragma once

class wxGrid;

/// Clears the read-only marks and paint of former rows of the current page, except the marks that the page
/// itself needs: those of the guard rows and of SHAD, which users can't edit.
void ClearMarksOfRows(wxGrid* grid);

/// Makes all cells of a page's grid writable. SHAD cells follow their column, read-only on P25 pages.
void MakeCellsWritable(wxGrid* grid);
