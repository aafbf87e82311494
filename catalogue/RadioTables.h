// The constant tables of radios, bands and radio types.
#pragma once

namespace RadioCatalogue {

constexpr int RadioTotal = 18;
constexpr int BandSlotTotal = 6;
constexpr int BandTotal = 9;
constexpr int TypeTotal = 8;

/// Radio types: they choose the columns of a page and, with the band, the protocol of a transfer.
enum RadioType : int { ANFM, RP25, NP25, MDLX, O12, KDAR, ANAM, FXAM };

/// Internal names by radio index (0 to 17), as channel files, titles and the status bar use them.
inline constexpr const char* RadioName[RadioTotal] = {
    "KRV-21",      "KRV-47",    "ORV-12",    "KRV-214", "KRV-214B",  "KRV-305",
    "KDRV-716",    "KDRV-716B", "KDAR-2000", "KRV-610", "KRV-620",   "KRV-630",
    "KRV-630_QNT", "KRV-650",   "KRV-656",   "KRV-666", "KDRV-8400", "KDRV-4xxx",
};

/// What RadioDialog offers, by radio index. Three differ from the internal name (6, 7 and 12).
inline constexpr const char* RadioLabel[RadioTotal] = {
    "KRV-21",        "KRV-47",       "ORV-12",    "KRV-214", "KRV-214B",  "KRV-305",
    "KDRV-716[A|B]", "KDRV-716B-V2", "KDAR-2000", "KRV-610", "KRV-620",   "KRV-630",
    "KRV-630QNT",    "KRV-650",      "KRV-656",   "KRV-666", "KDRV-8400", "KDRV-4xxx",
};

/// Band id by radio index and band slot, -1 in an empty slot. Slots fill from 0 without gaps.
inline constexpr int RadioBands[RadioTotal][BandSlotTotal] = {
    {0, -1, -1, -1, -1, -1}, // KRV-21
    {1, -1, -1, -1, -1, -1}, // KRV-47
    {3, -1, -1, -1, -1, -1}, // ORV-12
    {5, -1, -1, -1, -1, -1}, // KRV-214
    {5, -1, -1, -1, -1, -1}, // KRV-214B
    {7, -1, -1, -1, -1, -1}, // KRV-305
    {4, -1, -1, -1, -1, -1}, // KDRV-716
    {4, -1, -1, -1, -1, -1}, // KDRV-716B
    {3, -1, -1, -1, -1, -1}, // KDAR-2000
    {5, 7, -1, -1, -1, -1},  // KRV-610
    {5, 6, -1, -1, -1, -1},  // KRV-620
    {0, 5, -1, -1, -1, -1},  // KRV-630
    {0, 5, -1, -1, -1, -1},  // KRV-630_QNT
    {0, 5, 7, -1, -1, -1},   // KRV-650
    {1, 5, 7, -1, -1, -1},   // KRV-656
    {1, 5, -1, -1, -1, -1},  // KRV-666
    {0, 3, 5, 6, 7, -1},     // KDRV-8400
    {0, 3, 5, 6, 7, 8},      // KDRV-4xxx
};

/// Grid rows below the default row, by radio index and band slot, 0 in an empty slot.
/// A count that ends in 2 includes the band's two guard rows.
inline constexpr int RadioRows[RadioTotal][BandSlotTotal] = {
    {122, 0, 0, 0, 0, 0},           // KRV-21
    {122, 0, 0, 0, 0, 0},           // KRV-47
    {6, 0, 0, 0, 0, 0},             // ORV-12
    {102, 0, 0, 0, 0, 0},           // KRV-214
    {122, 0, 0, 0, 0, 0},           // KRV-214B
    {122, 0, 0, 0, 0, 0},           // KRV-305
    {232, 0, 0, 0, 0, 0},           // KDRV-716
    {502, 0, 0, 0, 0, 0},           // KDRV-716B
    {100, 0, 0, 0, 0, 0},           // KDAR-2000
    {202, 200, 0, 0, 0, 0},         // KRV-610
    {200, 200, 0, 0, 0, 0},         // KRV-620
    {200, 202, 0, 0, 0, 0},         // KRV-630
    {202, 200, 0, 0, 0, 0},         // KRV-630_QNT
    {200, 200, 200, 0, 0, 0},       // KRV-650
    {200, 200, 200, 0, 0, 0},       // KRV-656
    {200, 202, 0, 0, 0, 0},         // KRV-666
    {200, 200, 200, 200, 200, 0},   // KDRV-8400
    {200, 200, 200, 200, 200, 500}, // KDRV-4xxx
};

/// The BAND text of a band id (0 to 8), also that of channel files.
inline constexpr const char* BandName[BandTotal] = {
    "FM 30-50",   "FM 66-88",   "AM 108-138", "AM 118-138", "FM 136-174",
    "FM 138-174", "AM 225-400", "FM 403-512", "K6 3-BAND",
};

/// Lowest and highest whole MHz of a band id. The pair of the module (8) is no range of its
/// own rows, and it is meant to stand so: its rows carry a band each.
inline constexpr int BandLimit[BandTotal][2] = {
    {30, 50}, {66, 88}, {108, 138}, {118, 138}, {136, 174}, {138, 174}, {225, 400}, {403, 512}, {896, 960},
};

/// What a legacy import puts in place of a frequency that it can't use, by band id.
/// "118.0000" for AM 108-138 and "31.0000" for the module are meant.
inline constexpr const char* BandStart[BandTotal] = {
    "30.0000", "66.0000", "118.0000", "118.0000", "136.0000", "138.0000", "225.0000", "403.0000", "31.0000",
};

/// Type tags of channel files, by radio type.
inline constexpr const char* RadioTypeName[TypeTotal] = {
    "ANFM", "RP25", "NP25", "MDLX", "O12", "KDAR", "ANAM", "FXAM",
};

/// How many columns the user sees and edits, by radio type.
inline constexpr int ColumnCount[TypeTotal] = {10, 19, 20, 11, 2, 6, 5, 7};

/// One word per radio index. Bits 8 to 15 are the PIB number of an analog radio; the last two
/// entries belong to no radio that can be chosen.
inline constexpr unsigned AnalogRadioCode[20] = {
    0x0028027A, 0x004D027A, 0x00760006, 0x009B0466, 0x009B017A, 0x01C2037A, 0x008D0000,
    0x008D0000, 0x00760064, 0x009B00CA, 0x009B00C8, 0x009B00CA, 0x009B00C8, 0x009B00C8,
    0x009B00C8, 0x009B00CA, 0x008000C8, 0x00800000, 0x00800A00, 0x00800A00,
};

} // namespace RadioCatalogue
