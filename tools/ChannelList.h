// Channels of a file, a radio or a page in one form, so that they can be held against each other.
#pragma once

#include "tools/Channel.h"

#include <string>
#include <vector>

class wxGrid;

namespace Tour {

/// The memory rows of a channel file. Throws std::runtime_error if it can't be read.
ChannelList ChannelsOfFile(const std::string& path);

/// What zelk-radio keeps in its memories file: a line in the radio's own form for each memory. Of digital
/// radios memory 0, the defaults, is left out. What their shadows say is put together into the lists of the
/// primaries. Throws std::runtime_error on the old layout of digital records.
ChannelList ChannelsOfRadio(const std::string& path);

/// The memory rows of a grid that have a number. To be called in the window thread.
ChannelList ChannelsOfGrid(wxGrid& grid);

/// What differs, a line each; empty when both are equal.
std::vector<std::string> Differences(const ChannelList& wanted, const ChannelList& found);

} // namespace Tour
