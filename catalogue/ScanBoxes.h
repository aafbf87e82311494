// The boxes of a scan cell on pages whose channels belong to five scan lists.
#pragma once

#include <wx/gdicmn.h>

namespace RadioCatalogue {

/// One box for each list.
inline constexpr int ScanBoxCount = 5;
inline constexpr char32_t EmptyScanBox = 0x2610, CrossedScanBox = 0x2612;

/// Returns the width of one box in pixels, with the space beside it, from the size of the text of all boxes:
/// a fifth of it. A font without these characters may have a narrow stroke for them; a box has room for a
/// square then.
inline int ScanBoxWidth(const wxSize& text) {
    const int width = text.x / ScanBoxCount;
    return width > 0 && width * 3 < text.y ? text.y * 3 / 4 : width;
}

} // namespace RadioCatalogue
