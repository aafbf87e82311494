// The boxes of a scan cell on pages whose channels belong to five scan lists.
#pragma once

namespace RadioCatalogue {

/// One box for each list.
inline constexpr int ScanBoxCount = 5;
inline constexpr char32_t EmptyScanBox = 0x2610, CrossedScanBox = 0x2612;

} // namespace RadioCatalogue
