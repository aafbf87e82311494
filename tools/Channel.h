// Common form for the channels of a file, a radio and a page.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>

namespace Tour {

/// Properties that only the memories of P25 radios have.
struct P25Facts {
    std::string receiveSquelch, transmitSquelch; ///< letters
    std::string receiveGroup, transmitGroup;     ///< four hexadecimal digits
    std::string receiveNac, transmitNac;         ///< three hexadecimal digits
    int squelchValue = 0;                        ///< 0 if the radio has none
    int unitId = 0;
    std::string zone;             ///< empty for a shadow
    int primary = 0;              ///< of a shadow: number of its primary; of other memories: their own number
    int shadowPlace = 0;          ///< 1 to 7 for a shadow, 0 for other memories
    std::string link;             ///< "N", "P-" and the number of shadows, or "S-" and the primary
    std::array<int, 7> shadows{}; ///< numbers of the shadows; 0: free place

    bool operator==(const P25Facts&) const = default;
};

/// One channel as a technician would compare it: "OFF", "n/a" and a missing tone are equal.
struct Channel {
    std::string description;       ///< without leading and trailing blanks
    std::string receive, transmit; ///< MHz without leading zeros; for P25 radios also without trailing zeros
    std::string receiveTone, transmitTone, receiveCode, transmitCode;
    int scan = 0;    ///< lists as bits; for P25 radios 0 or 1
    char mode = 'N'; ///< 'W' or 'N'; for P25 radios 'w', 'n' or 'D'
    std::optional<P25Facts> p25;

    bool operator==(const Channel&) const = default;
};

/// Channels by number, 1 and up.
using ChannelList = std::map<int, Channel>;

} // namespace Tour
