// How a page comes into being: its parameters and its widgets.
#pragma once

#include "catalogue/PageModel.h"

/// Fills parameters and texts of page (0-based) for a radio index and a band slot, forgets its
/// file, and sets GD1 and GD2 for it. The page flags that become 0 are those of the current
/// page, which need not be this one.
void SetPageParameters(OrvZELFrame* frame, int page, int radio, int bandIndex);

/// Builds panel, grid and tab of page, which must be the next free number. Its parameters must
/// have been set. The page becomes the current one.
void CreateNewPage(OrvZELFrame* frame, int page);

/// Tells the log, which is silent unless somebody turns it on, what page is for.
void ShowPageParameters(OrvZELFrame* frame, int page);
