// The shadows that a primary names in SHD0 to SHD6.
#pragma once

#include <vector>

class wxGrid;

/// The rows of the current page that the slots of a row name, in the order of the slots. A row is
/// left out if it isn't a memory row of the page or its MFLG says that it is no shadow: a number
/// may have gone stale after rows have moved. Empty for a row outside the page.
std::vector<int> ShadowRowsOf(wxGrid* grid, int row);
