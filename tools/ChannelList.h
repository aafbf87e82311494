// Channels of a file, a radio or a page in one form, so that they can be held against each other.
#pragma once

#include <map>
#include <string>
#include <vector>

class wxGrid;

namespace Tour {

/// One channel as a technician would compare it: "OFF", "n/a" and no tone at all are the same.
struct Channel {
    std::string description;       ///< without blanks at its ends
    std::string receive, transmit; ///< MHz, leading zeros dropped
    std::string receiveTone, transmitTone, receiveCode, transmitCode;
    int scan = 0;
    char mode = 'N';

    bool operator==(const Channel&) const = default;
};

/// Channels by number, 1 and up.
using ChannelList = std::map<int, Channel>;

/// The memory rows of an analog channel file. Throws std::runtime_error if it can't be read.
ChannelList ChannelsOfFile(const std::string& path);

/// What zelk-radio keeps in its memories file: a line in the radio's own form for each memory.
ChannelList ChannelsOfRadio(const std::string& path);

/// The memory rows of a grid that have a number. To be called in the window thread.
ChannelList ChannelsOfGrid(wxGrid& grid);

/// What differs, a line each; empty when both are equal.
std::vector<std::string> Differences(const ChannelList& wanted, const ChannelList& found);

} // namespace Tour
