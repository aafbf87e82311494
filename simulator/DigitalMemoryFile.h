// Text file that keeps the memories of a digital radio.
#pragma once

#include "simulator/DigitalMemory.h"

namespace Simulator {

/// Reads the file into `memories`. Each line holds one memory: the number of its layout ("1" or "2"), a
/// blank, and its record with checksum and without shadows. Skips empty lines and comments, which begin with
/// '#'. A missing file means an empty radio. If `model` couldn't hold a line, or the file can't be read,
/// leaves `memories` unchanged.
[[nodiscard]] Failure LoadDigitalMemories(const std::string& path, const DigitalModel& model,
                                          DigitalMemoryList& memories);

/// Writes the file in one step. Each memory is in `layout`, unless only the other layout can hold all of it.
[[nodiscard]] Failure SaveDigitalMemories(const std::string& path, const DigitalModel& model, Layout layout,
                                          const DigitalMemoryList& memories);

} // namespace Simulator
