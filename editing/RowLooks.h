// What rows leave on their cells besides text: read-only marks and paint.
#pragma once

class wxGrid;

/// Takes away what former rows of the current page left on their cells, but not the marks that the
/// page itself needs: those of the guard rows and of SHAD, into which no one types.
void ForgetLooksOfRows(wxGrid* grid);

/// Makes all cells of a page's grid writable. Those of SHAD become as their column is, which on P25 pages is
/// read-only.
void MakeCellsWritable(wxGrid* grid);
