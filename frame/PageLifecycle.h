// What happens to a page after it was made.
#pragma once

class OrvZELFrame;

/// Brings the current page's grid from the row count of its former target to that of its
/// present one, with columns and labels of its present type. Editors are not looked at: this is
/// for a caller that sets them up once the rows have come.
void FitGridToTarget(int oldRadio, int oldBandIndex);

/// FitGridToTarget, and the editors of the page.
void AdjustEditGrid(OrvZELFrame* frame, int oldRadio, int oldBandIndex);

/// AdjustEditGrid, if the page's target has changed, and UpdateStatus.
void UpdatePage(OrvZELFrame* frame, int page, int oldRadio, int oldBandIndex);
