// A page that is full to its last row.
#pragma once

#include "catalogue/RadioTables.h"

using enum RadioCatalogue::RadioIndex;

/// The radio of a page to be measured.
struct PageCase {
    const char* type;
    int radio, bandIndex;
    int forcedType = -1; ///< for the type that no radio has by itself
    int rows = 0;        ///< for a number of rows that no radio of the type has
};

/// One page a radio type.
inline constexpr PageCase PageCases[] = {
    {"ANFM", Krv610, 0},   {"RP25", Kdrv716, 0},
    {"NP25", Kdrv716B, 0}, {"MDLX", Kdrv4xxx, RadioCatalogue::ModuleSlot},
    {"O12", Orv12, 0},     {"KDAR", Kdar2000, 0},
    {"ANAM", Kdrv8400, 1}, {"FXAM", Kdrv8400, 1, RadioCatalogue::FXAM},
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
