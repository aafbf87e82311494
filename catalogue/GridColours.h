// Colours of a page's grid in the theme of the desktop.
#pragma once

class wxGrid;

/// Sets the colours of selected cells. All other colours of a new grid are those of the theme.
void SetSelectionColours(wxGrid* grid);

/// Gives a grid the colours of the theme after a change of the theme. Paint of cells stays.
void FollowTheme(wxGrid* grid);

/// Call after a change of the grid's own colours: the toolkit keeps those of the cell that it asked for last.
void ForgetCachedColours(wxGrid* grid);
