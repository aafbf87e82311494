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
/// The digit that completes a frequency behind the digit d, at row * 10 + d. Rows: 25, 12.5 and
/// 6.25 kHz patterns.
inline constexpr char StepComplete[] = "005000050002570025700251302513";

/// Characters of a frequency cell for a band id and a channel step in Hz: 7 to 9.
int FrequencyWidth(int band, int step);

/// True when text can still become a good frequency of the band (id 0 to 8) at the channel step
/// in Hz (see GetChannelStep) by typing on: any text without a point can.
bool IsOkFreq(const wxString& text, int band, int step);

/// Completes text to width characters with the digits that the step makes certain. False, and
/// text as it was, when IsOkFreq refuses it; a text that is that wide already stays as it is.
bool FormatFreq(wxString& text, int band, int step, int width);

/// True for a frequency on which nobody transmits: 108 to 116 MHz, and 117 MHz with a fraction
/// of at most 974 when its digits are read as one number, however many they are.
bool CheckRxOnlyFreq(const wxString& text);
