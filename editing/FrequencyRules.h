// Rules of frequency texts: decimal MHz with a point, never turned into a floating number.
#pragma once

#include <wx/string.h>

/// Answers of CheckFreqInBand and GetFreqBand for a text that is no frequency or out of band.
enum FreqFault : int {
    FreqNoPoint = -1,     ///< no "."
    FreqSecondPoint = -2, ///< another "." behind the first
    FreqTooLong = -3,     ///< 4 or more characters before ".", or 6 or more behind it
    FreqNoMegahertz = -4, ///< nothing before "."
    FreqNotInBand = -5,   ///< outside the band's limits, or a band that doesn't exist
    FreqInNoBand = -6,    ///< in no band of the catalogue
};

/// True when a frequency of mhz whole MHz and the digits of fraction read as an integer lies in
/// the band (id 0 to 8). On the high limit itself only fraction 0 does. False for no such band.
bool IsInBand(int mhz, int fraction, int band);

/// 0 when text is a frequency within the band's limits, else a FreqFault. The channel step is
/// not looked at. Blanks at the right end of either part don't count for its length.
int CheckFreqInBand(const wxString& text, int band);

/// The first band id (0 to 8) that holds the frequency, or a FreqFault. The digital band 4 is
/// answered for P25 types (1, 2) only; others get 5 in its place.
int GetFreqBand(const wxString& text, int type);
