// One form for the channels of a file, a radio and a page.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>

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

} // namespace Tour
