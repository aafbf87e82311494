// Choosing radio, band and port.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

class OrvZELFrame;

/// The chosen serial port, "none" until one has been chosen.
extern wxString PortName;
/// The choices of PortDialog while it lives.
extern wxArrayString PortList;
/// The choices of BandDialog while it lives.
extern wxArrayString BandList;

/// Asks for radio and, where a radio has several, band of page. On success 0, and
/// SetPageParameters has run for the page; otherwise ResultCancelled, ResultBadRadio or
/// ResultBadBand, and the page is as it was.
int UserSelectRadioAndBand(OrvZELFrame* frame, int page);
