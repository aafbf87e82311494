// Limit for texts that a file puts into cells.
#pragma once

#include <cstddef>

/// Longest text taken into a cell, in characters. No cell needs more, and drawing a very long text takes
/// seconds.
inline constexpr size_t LongestCellText = 256;
