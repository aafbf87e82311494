// Lists of choices. Radio records hold the position in a list.
#pragma once

#include <iterator>

namespace RadioCatalogue {

/// CTCSS tones of analog pages. "OFF" is at both ends: radios use position 64, a search finds position 0.
inline constexpr const char* ToneTexts[] = {
    "OFF",   "67.0",  "71.9",  "74.4",  "77.0",  "79.7",  "82.5",  "85.4",  "88.5",  "91.5",  "94.8",
    "97.4",  "100.0", "103.5", "107.2", "110.9", "114.8", "118.8", "123.0", "127.3", "131.8", "136.5",
    "141.3", "146.2", "151.4", "156.7", "162.2", "167.9", "173.8", "179.9", "186.2", "192.8", "203.5",
    "33.0",  "35.4",  "36.6",  "37.9",  "39.6",  "44.4",  "47.5",  "49.2",  "51.2",  "53.0",  "54.9",
    "56.8",  "58.8",  "63.0",  "69.3",  "150.0", "165.5", "171.3", "177.3", "183.5", "189.9", "196.6",
    "199.5", "206.5", "210.7", "218.1", "225.7", "229.1", "233.6", "241.8", "250.3", "OFF",
};

/// CTCSS tones of P25 pages, without "OFF".
inline constexpr const char* CtcssTexts[] = {
    "67.0",  "69.3",  "71.9",  "74.4",  "77.0",  "79.7",  "82.5",  "85.4",  "88.5",  "91.5",  "94.8",
    "97.4",  "100.0", "103.5", "107.2", "110.9", "114.8", "118.8", "123.0", "127.3", "131.8", "136.5",
    "141.3", "146.2", "151.4", "156.7", "162.2", "167.9", "173.8", "179.9", "186.2", "192.8", "203.5",
    "210.7", "218.1", "225.7", "233.6", "241.8", "250.3", "206.5", "229.1", "254.8",
};

/// DPL codes. P25 pages omit "OFF" and count from 0 at "023".
inline constexpr const char* CodeTexts[] = {
    "OFF", "023", "025", "026", "031", "032", "043", "047", "051", "054", "065", "071", "072", "073",
    "074", "114", "115", "116", "125", "131", "132", "134", "143", "152", "155", "156", "162", "165",
    "172", "174", "205", "223", "226", "243", "244", "245", "251", "261", "263", "265", "271", "306",
    "311", "315", "331", "343", "346", "351", "364", "365", "371", "411", "412", "413", "423", "431",
    "432", "445", "464", "465", "466", "503", "506", "516", "532", "546", "565", "606", "612", "624",
    "627", "631", "632", "654", "662", "664", "703", "712", "723", "731", "732", "734", "743", "754",
};

/// Zones of first generation P25 radios.
inline constexpr const char* ZoneNames16[] = {
    "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16",
};

/// Zones of second generation P25 radios.
inline constexpr const char* ZoneNames32[] = {
    "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16",
    "A", "C", "E", "F", "H", "I", "K", "L", "M", "N",  "P",  "T",  "U",  "V",  "W",  "X",
};

/// Zones of the guard rows, by position in the lists. Second generation radios never scan theirs.
inline constexpr int RP25GuardZone = std::size(ZoneNames16) - 1;
inline constexpr int NP25GuardZone = std::size(ZoneNames32) - 1;

inline constexpr const char* ScanYesNo[] = {"Y", "N"};

inline constexpr const char* AnalogModes[] = {"W", "N"};
inline constexpr const char* P25Modes[] = {"w", "n", "D"};

inline constexpr const char* RxAnalogSquelch[] = {"x", "t", "c"};
inline constexpr const char* TxAnalogSquelch[] = {"x", "t", "c", "-"};
inline constexpr const char* RxDigitalSquelch[] = {"m", "n", "g"};
inline constexpr const char* TxDigitalSquelch[] = {"g", "i", "-"};
inline constexpr const char* TxDigitalSquelchRestricted[] = {"g", "-"};

inline constexpr const char* MdlxBands3[] = {"FM 30-50", "AM 108-138", "AM 225-400"};

/// Intentional: the underscore in one entry.
inline constexpr const char* MdlxBands8[] = {
    "FM 30-50",   "FM 66-88",   "AM 108-138", "FM 136-174",
    "AM 225-400", "FM_403-512", "FM 7xx-8xx", "FM 896-960",
};

} // namespace RadioCatalogue
