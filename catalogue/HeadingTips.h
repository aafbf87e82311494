// Tool tips of a grid's column headings.
#pragma once

class wxGrid;

/// Shows the full term of the heading that the pointer is on. Call once for each grid.
void ExplainHeadings(wxGrid* grid);
