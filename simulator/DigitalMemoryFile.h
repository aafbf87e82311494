// The text file that keeps the memories of a digital radio.
#pragma once

#include "simulator/DigitalMemory.h"

namespace Simulator {

/// Reads the file into `memories`: one memory a line, the number of its layout ("1" or "2"), a blank, and
/// its record with checksum and without shadows; empty lines and lines that begin with '#' are comments. A
/// file that doesn't exist is an empty radio. A line that `model` couldn't hold answers false with file,
/// line and reason in `trouble`; `memories` is then unchanged.
bool LoadDigitalMemories(const std::string& path, const DigitalModel& model, DigitalMemoryList& memories,
                         std::string& trouble);

/// Writes the file in one step, each memory in `layout` unless only the other one can hold it whole.
/// Answers false with the reason in `trouble` when that can't be done.
bool SaveDigitalMemories(const std::string& path, const DigitalModel& model, Layout layout,
                         const DigitalMemoryList& memories, std::string& trouble);

} // namespace Simulator
