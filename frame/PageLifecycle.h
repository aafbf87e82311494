// What happens to a page after it was made.
#pragma once

class OrvZELFrame;

/// FitGridToTarget, and the editors of the page.
void AdjustEditGrid(OrvZELFrame* frame, int oldRadio, int oldBandIndex);

/// AdjustEditGrid, if the page's target has changed, and UpdateStatus.
void UpdatePage(OrvZELFrame* frame, int page, int oldRadio, int oldBandIndex);
