// The target of a page: its radio and band.
#pragma once

class OrvZELFrame;

/// Asks for radio and, where a radio has several, band of page. On success 0, and
/// SetPageParameters has run for the page; otherwise ResultCancelled, ResultBadRadio or
/// ResultBadBand, and the page is as it was.
int UserSelectRadioAndBand(OrvZELFrame* frame, int page);

/// FitGridToTarget, and the editors of the page.
void AdjustEditGrid(OrvZELFrame* frame, int oldRadio, int oldBandIndex);

/// AdjustEditGrid, if the page's target has changed, and UpdateStatus.
void UpdatePage(OrvZELFrame* frame, int page, int oldRadio, int oldBandIndex);
