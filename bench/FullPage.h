// Pages filled to their last row.
#pragma once

#include "catalogue/RadioTables.h"

using enum RadioCatalogue::RadioIndex;

/// Radio of a measured page.
struct PageCase {
    const char* type;
    int radio, bandIndex;
    int forcedType = -1; ///< type to set instead of the radio's own, -1 for none
    int rows = 0;        ///< number of rows to set instead of the radio's own, 0 for none
};

/// One page for each radio type.
inline constexpr PageCase PageCases[] = {
    {"ANFM", Krv610, 0},   {"RP25", Kdrv716, 0},
    {"NP25", Kdrv716B, 0}, {"MDLX", Kdrv4xxx, RadioCatalogue::ModuleSlot},
    {"O12", Orv12, 0},     {"KDAR", Kdar2000, 0},
    {"ANAM", Kdrv8400, 1}, {"FXAM", Kdrv8400, 1, RadioCatalogue::FXAM},
};

/// Makes page 1 (the window's second) for the case; DropPage deletes it.
void MakePage(const PageCase& page);
void DropPage();

/// Fills every memory row of the current page from its default row; reassigns the zones.
void FillPage();

/// Assigns the tones and codes of the lists in turn to the rows of an analog or P25 page, as on pages of
/// channels in use.
void SpreadTonesAndCodes();

/// Empties the current page's memories and frees their zone slots; keeps the default row.
void EmptyPage();
