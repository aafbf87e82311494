// Rules for frequency texts: decimal MHz with a point, never converted to floating point.
#pragma once

#include <wx/string.h>

/// Results of CheckFreqInBand and GetFreqBand for a text that is not a frequency or out of band.
enum FreqFault : int {
    FreqNoPoint = -1,     ///< no "."
    FreqSecondPoint = -2, ///< another "." after the first
    FreqTooLong = -3,     ///< 4 or more characters before ".", or 6 or more after it
    FreqNoMegahertz = -4, ///< nothing before "."
    FreqNotInBand = -5,   ///< outside the band's limits, or a band that doesn't exist
    FreqInNoBand = -6,    ///< in no band of the catalogue
};

/// True when the frequency is in the band (id 0 to 8). mhz is whole MHz; fraction is the digits after the
/// point, read as an integer. At the high limit only fraction 0 is in the band. False for an unknown band.
bool IsInBand(int mhz, int fraction, int band);

/// Returns 0 when text is a frequency within the band's limits, otherwise a FreqFault. The channel step is
/// not checked. Trailing blanks of either part don't count towards its length.
int CheckFreqInBand(const wxString& text, int band);

/// Returns the first band id (0 to 8) that contains the frequency, or a FreqFault. The digital band 4 is
/// returned for P25 types (1, 2) only; others get 5 instead.
int GetFreqBand(const wxString& text, int type);

/// A step of 8.33 kHz: the two digits that may follow a digit (0 to 9).
inline constexpr int StepPairs833[10][2] = {
    {0, 5}, {0, 5}, {5, 5}, {0, 5}, {0, 0}, {0, 5}, {0, 5}, {5, 5}, {0, 5}, {0, 0},
};
/// A step of 6.25 kHz: the two digits that may follow a digit (0 to 9).
inline constexpr int StepPairs625[10][2] = {
    {0, 6}, {2, 8}, {5, 5}, {1, 7}, {3, 3}, {0, 6}, {2, 8}, {5, 5}, {1, 7}, {3, 3},
};
/// The 12.5 kHz pattern: the digit that follows a digit (0 to 9), -1 where none can.
inline constexpr int StepNext125[10] = {0, 2, 5, 7, -1, 0, 2, 5, 7, -1};
/// The 25 kHz pattern: the digit that follows a digit (0 to 9), -1 where none can.
inline constexpr int StepNext25[10] = {0, -1, 5, -1, -1, 0, -1, 5, -1, -1};
/// The digit that completes a frequency after the digit d, at row * 10 + d. Rows: 25, 12.5 and 6.25 kHz
/// patterns.
inline constexpr char StepComplete[] = "005000050002570025700251302513";

/// Returns the width in characters (7 to 9) of a frequency cell for a band id and a channel step in Hz.
size_t FrequencyWidth(int band, int step);

/// True when further typing can make text a valid frequency of the band (id 0 to 8) at the channel step in Hz
/// (see GetChannelStep). Always true for a text without a point.
bool IsOkFreq(const wxString& text, int band, int step);

/// Completes text to width characters with the digits that the step determines. Returns false and leaves text
/// unchanged when IsOkFreq refuses it. A text that is already that wide stays unchanged.
bool FormatFreq(wxString& text, int band, int step, size_t width);

/// True for a receive-only frequency: 108 to 116 MHz, and 117 MHz with a fraction of at most 974. The digits
/// of the fraction are read as one number, however many there are.
bool CheckRxOnlyFreq(const wxString& text);
