// Channels of a file, a radio or a page in one form, so that they can be held against each other.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

class wxGrid;

namespace Tour {

/// What only the memories of P25 radios have.
struct P25Facts {
    std::string receiveSquelch, transmitSquelch; ///< letters
    std::string receiveGroup, transmitGroup;     ///< four hexadecimal digits
    std::string receiveNac, transmitNac;         ///< three hexadecimal digits
    int squelchValue = 0;                        ///< 0 where the radio has none
    int unitId = 0;
    std::string zone;             ///< empty of a shadow
    int primary = 0;              ///< number of the primary; of other memories their own
    int shadowPlace = 0;          ///< 1 to 7, 0 of other memories
    std::string link;             ///< "N", "P-" and the number of shadows, or "S-" and the primary
    std::array<int, 7> shadows{}; ///< numbers of the shadows, 0 for a free place

    bool operator==(const P25Facts&) const = default;
};

/// One channel as a technician would compare it: "OFF", "n/a" and no tone at all are the same.
struct Channel {
    std::string description;       ///< without blanks at its ends
    std::string receive, transmit; ///< MHz, leading zeros dropped, on P25 radios those at the end too
    std::string receiveTone, transmitTone, receiveCode, transmitCode;
    int scan = 0;    ///< lists as bits; on P25 radios 0 or 1
    char mode = 'N'; ///< 'W' or 'N'; on P25 radios 'w', 'n' or 'D'
    std::optional<P25Facts> p25;

    bool operator==(const Channel&) const = default;
};

/// Channels by number, 1 and up.
using ChannelList = std::map<int, Channel>;

/// The memory rows of a channel file. Throws std::runtime_error if it can't be read.
ChannelList ChannelsOfFile(const std::string& path);

/// What zelk-radio keeps in its memories file: a line in the radio's own form for each memory. Of digital
/// radios memory 0, the defaults, is left out. What their shadows say is put together into the lists of the
/// primaries. Throws std::runtime_error on the old layout of digital records.
ChannelList ChannelsOfRadio(const std::string& path);

/// The memory rows of a grid that have a number. To be called in the window thread.
ChannelList ChannelsOfGrid(wxGrid& grid);

/// The channels of a P25 page as the page shows them when the radio has sent them back: every code comes
/// one place further down the list, and where that has an end, the default row's stands. The default row
/// came from the radio too.
///
/// @param defaultCode the default row's code before it was sent; "023" on a new page
ChannelList AsReadBack(ChannelList channels, const std::string& defaultCode);

/// What differs, a line each; empty when both are equal.
std::vector<std::string> Differences(const ChannelList& wanted, const ChannelList& found);

} // namespace Tour
