// The target of a page: its radio and band.
#pragma once

class OrvZELFrame;

/// Asks for the radio of page and, if the radio has several bands, for the band. Returns 0 on
/// success, after a call of SetPageParameters for the page. Otherwise returns ResultCancelled,
/// ResultBadRadio or ResultBadBand and leaves the page unchanged.
int UserSelectRadioAndBand(OrvZELFrame* frame, int page);

/// Calls FitGridToTarget and sets the editors of the current page.
void AdjustEditGrid(OrvZELFrame* frame, int oldRadio, int oldBandIndex);

/// Calls AdjustEditGrid if the page's target has changed, then UpdateStatus.
void UpdatePage(OrvZELFrame* frame, int page, int oldRadio, int oldBandIndex);
