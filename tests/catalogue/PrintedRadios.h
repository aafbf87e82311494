// The radios, bands and types as printed in their data sheet, independent of the program's tables.
#pragma once

#include <array>
#include <vector>

namespace printed {

/// Radio types in the order of their numbers.
enum Type { ANFM, RP25, NP25, MDLX, O12, KDAR, ANAM, FXAM };

/// A band that a radio has.
struct Slot {
    int slot;
    int band;
    const char* bandName;
    int rows;
    Type type;
    int step; ///< Hz
};

struct Radio {
    int index;
    const char* name;
    const char* label;
    std::vector<Slot> slots;
};

inline const std::vector<Radio> Radios = {
    // clang-format off
    {0, "KRV-21", "KRV-21",
     {{0, 0, "FM 30-50", 122, ANFM, 2500}}},
    {1, "KRV-47", "KRV-47",
     {{0, 1, "FM 66-88", 122, ANFM, 2500}}},
    {2, "ORV-12", "ORV-12",
     {{0, 3, "AM 118-138", 6, O12, 8333}}},
    {3, "KRV-214", "KRV-214",
     {{0, 5, "FM 138-174", 102, ANFM, 2500}}},
    {4, "KRV-214B", "KRV-214B",
     {{0, 5, "FM 138-174", 122, ANFM, 2500}}},
    {5, "KRV-305", "KRV-305",
     {{0, 7, "FM 403-512", 122, ANFM, 2500}}},
    {6, "KDRV-716", "KDRV-716[A|B]",
     {{0, 4, "FM 136-174", 232, RP25, 2500}}},
    {7, "KDRV-716B", "KDRV-716B-V2",
     {{0, 4, "FM 136-174", 502, NP25, 1250}}},
    {8, "KDAR-2000", "KDAR-2000",
     {{0, 3, "AM 118-138", 100, KDAR, 8333}}},
    {9, "KRV-610", "KRV-610",
     {{0, 5, "FM 138-174", 202, ANFM, 2500},
      {1, 7, "FM 403-512", 200, ANFM, 2500}}},
    {10, "KRV-620", "KRV-620",
     {{0, 5, "FM 138-174", 200, ANFM, 2500},
      {1, 6, "AM 225-400", 200, ANAM, 2500}}},
    {11, "KRV-630", "KRV-630",
     {{0, 0, "FM 30-50", 200, ANFM, 2500},
      {1, 5, "FM 138-174", 202, ANFM, 2500}}},
    {12, "KRV-630_QNT", "KRV-630QNT",
     {{0, 0, "FM 30-50", 202, ANFM, 2500},
      {1, 5, "FM 138-174", 200, ANFM, 2500}}},
    {13, "KRV-650", "KRV-650",
     {{0, 0, "FM 30-50", 200, ANFM, 2500},
      {1, 5, "FM 138-174", 200, ANFM, 2500},
      {2, 7, "FM 403-512", 200, ANFM, 2500}}},
    {14, "KRV-656", "KRV-656",
     {{0, 1, "FM 66-88", 200, ANFM, 2500},
      {1, 5, "FM 138-174", 200, ANFM, 2500},
      {2, 7, "FM 403-512", 200, ANFM, 2500}}},
    {15, "KRV-666", "KRV-666",
     {{0, 1, "FM 66-88", 200, ANFM, 2500},
      {1, 5, "FM 138-174", 202, ANFM, 2500}}},
    {16, "KDRV-8400", "KDRV-8400",
     {{0, 0, "FM 30-50", 200, ANFM, 2500},
      {1, 3, "AM 118-138", 200, ANAM, 8333},
      {2, 5, "FM 138-174", 200, ANFM, 2500},
      {3, 6, "AM 225-400", 200, ANAM, 2500},
      {4, 7, "FM 403-512", 200, ANFM, 2500}}},
    {17, "KDRV-4xxx", "KDRV-4xxx",
     {{0, 0, "FM 30-50", 200, ANFM, 2500},
      {1, 3, "AM 118-138", 200, ANAM, 8333},
      {2, 5, "FM 138-174", 200, ANFM, 2500},
      {3, 6, "AM 225-400", 200, ANAM, 2500},
      {4, 7, "FM 403-512", 200, ANFM, 2500},
      {5, 8, "K6 3-BAND", 500, MDLX, 2500}}},
    // clang-format on
};

struct Band {
    int id;
    const char* name;
    int low, high; ///< MHz
    const char* start;
};

inline constexpr std::array<Band, 9> Bands{{
    {0, "FM 30-50", 30, 50, "30.0000"},
    {1, "FM 66-88", 66, 88, "66.0000"},
    {2, "AM 108-138", 108, 138, "118.0000"},
    {3, "AM 118-138", 118, 138, "118.0000"},
    {4, "FM 136-174", 136, 174, "136.0000"},
    {5, "FM 138-174", 138, 174, "138.0000"},
    {6, "AM 225-400", 225, 400, "225.0000"},
    {7, "FM 403-512", 403, 512, "403.0000"},
    {8, "K6 3-BAND", 896, 960, "31.0000"},
}};

struct TypeLine {
    Type type;
    const char* tag;
    int columns; ///< that the user sees and edits
};

inline constexpr std::array<TypeLine, 8> Types{{
    {ANFM, "ANFM", 10},
    {RP25, "RP25", 19},
    {NP25, "NP25", 20},
    {MDLX, "MDLX", 11},
    {O12, "O12", 2},
    {KDAR, "KDAR", 6},
    {ANAM, "ANAM", 5},
    {FXAM, "FXAM", 7},
}};

} // namespace printed
