// Creation of a page: its parameters and its widgets.
#pragma once

#include "catalogue/PageModel.h"

/// Fills parameters and texts of page (0-based) for a radio index and a band slot, forgets its
/// file, and sets GD1 and GD2 for it. Resets the page flags of the current page, which need not
/// be this one.
void SetPageParameters(OrvZELFrame* frame, int page, int radio, int bandIndex);

/// Builds panel, grid and tab of page, which must be the next free number. Its parameters must
/// be set already. The page becomes the current one.
void CreateNewPage(OrvZELFrame* frame, int page);

/// Logs the parameters of page. The log is silent unless someone turns it on.
void ShowPageParameters(OrvZELFrame* frame, int page);
