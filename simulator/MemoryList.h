// Memories of a simulated analog radio, and the text file that keeps them.
#pragma once

#include "simulator/AnalogLine.h"

#include <map>
#include <string>

namespace Simulator {

/// Memories that hold data, by number.
using MemoryList = std::map<int, AnalogMemory>;

/// Reads the file into `memories`: one line of the long form per memory. Skips empty lines and comments,
/// which begin with '#'. A missing file means an empty radio. If `model` couldn't hold a line, or the file
/// can't be read, leaves `memories` unchanged.
[[nodiscard]] Failure LoadMemories(const std::string& path, const AnalogModel& model, MemoryList& memories);

/// Writes the file in one step: at any time it holds either the old or the new list.
[[nodiscard]] Failure SaveMemories(const std::string& path, const AnalogModel& model,
                                   const MemoryList& memories);

} // namespace Simulator
