// The memories that a simulated radio holds, and the text file that keeps them.
#pragma once

#include "simulator/AnalogLine.h"

#include <map>
#include <string>

namespace Simulator {

/// Memories that hold data, by number.
using MemoryList = std::map<int, AnalogMemory>;

/// Reads the file into `memories`: one line of the long form a memory; empty lines and lines that begin
/// with '#' are comments. A file that doesn't exist is an empty radio. A line that `model` couldn't hold
/// answers false with file, line and reason in `trouble`; `memories` is then unchanged.
bool LoadMemories(const std::string& path, const AnalogModel& model, MemoryList& memories,
                  std::string& trouble);

/// Writes the file in one step: it holds the old or the new list at any moment. Answers false with the
/// reason in `trouble` when that can't be done.
bool SaveMemories(const std::string& path, const AnalogModel& model, const MemoryList& memories,
                  std::string& trouble);

} // namespace Simulator
