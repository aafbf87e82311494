// A page that is full to its last row.
#pragma once

/// The radio of a page to be measured.
struct PageCase {
    const char* type;
    int radio, bandIndex;
    int forcedType = -1; ///< for the type that no radio has by itself
    int rows = 0;        ///< for a number of rows that no radio of the type has
};

/// One page a radio type.
inline constexpr PageCase PageCases[] = {
    {"ANFM", 9, 0}, {"RP25", 6, 0}, {"NP25", 7, 0},  {"MDLX", 17, 5},
    {"O12", 2, 0},  {"KDAR", 8, 0}, {"ANAM", 16, 1}, {"FXAM", 16, 1, 7},
};

/// Makes page 1 (the window's second) for the case; DropPage ends it.
void MakePage(const PageCase& page);
void DropPage();

/// Fills every memory row of the current page from its default row; zones are dealt afresh.
void FillPage();

/// Gives the rows of an analog or P25 page the tones and codes of the lists by turns, as channels that
/// are in use have them.
void SpreadTonesAndCodes();

/// Empties the current page's memories and gives back their zone slots; the default row stays.
void EmptyPage();
