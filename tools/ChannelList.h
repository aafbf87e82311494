// Reads the channels of a file, a radio or a page in a common form, and compares them.
#pragma once

#include "tools/Channel.h"

#include <string>
#include <vector>

class wxGrid;

namespace Tour {

/// Returns the memory rows of a channel file. Throws std::runtime_error if it can't be read.
ChannelList ChannelsOfFile(const std::string& path);

/// Returns the memories in the memories file of zelk-radio, which holds a line in the radio's own form for
/// each. For digital radios, skips memory 0 (the defaults) and builds the primaries' lists of shadows from
/// the shadows. Throws std::runtime_error on the old layout of digital records.
ChannelList ChannelsOfRadio(const std::string& path);

/// Returns the memory rows of a grid that have a number. Call in the window thread.
ChannelList ChannelsOfGrid(wxGrid& grid);

/// Returns the differences, one line each; empty if both lists are equal.
std::vector<std::string> Differences(const ChannelList& wanted, const ChannelList& found);

} // namespace Tour
