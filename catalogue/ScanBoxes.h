// The boxes of a scan cell on pages whose channels belong to five scan lists.
#pragma once

#include <wx/gdicmn.h>

#include <algorithm>

namespace RadioCatalogue {

/// One box for each list.
inline constexpr int ScanBoxCount = 5;
inline constexpr char32_t EmptyScanBox = 0x2610, CrossedScanBox = 0x2612;

/// Returns the width of one box in pixels, with the space beside it, from the size of the text of all boxes.
/// A font without these characters may give them any width; a box keeps room for a square then.
inline int ScanBoxWidth(const wxSize& text) {
    return text.x == 0 ? 0 : std::max(text.x / ScanBoxCount, text.y * 3 / 4);
}

} // namespace RadioCatalogue
