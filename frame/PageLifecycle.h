// What happens to a page after it was made.
#pragma once

class OrvZELFrame;

/// Brings the current page's grid from the row count of its former target to that of its
/// present one, with columns, labels and editors of its present type.
void AdjustEditGrid(OrvZELFrame* frame, int oldRadio, int oldBandIndex);

/// AdjustEditGrid, if the page's target has changed, and UpdateStatus.
void UpdatePage(OrvZELFrame* frame, int page, int oldRadio, int oldBandIndex);
