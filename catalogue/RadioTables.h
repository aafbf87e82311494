// The constant tables of radios, bands and radio types.
#pragma once

namespace RadioCatalogue {

constexpr int RadioTotal = 18;
constexpr int BandSlotTotal = 6;
constexpr int BandTotal = 9;
constexpr int TypeTotal = 8;

/// Radio indices, in the order of the tables.
enum RadioIndex : int {
    Krv21,
    Krv47,
    Orv12,
    Krv214,
    Krv214B,
    Krv305,
    Kdrv716,  ///< the P25 radio of the first generation
    Kdrv716B, ///< the P25 radio of the second generation
    Kdar2000,
    Krv610, ///< this one and all following ones have several bands
    Krv620,
    Krv630,
    Krv630Qnt,
    Krv650,
    Krv656,
    Krv666,
    Kdrv8400,
    Kdrv4xxx,
};
static_assert(Kdrv4xxx + 1 == RadioTotal);

/// Band ids, in the order of the tables.
enum BandId : int {
    Fm30To50,
    Fm66To88,
    Am108To138,
    Am118To138,
    Fm136To174,
    Fm138To174,
    Am225To400,
    Fm403To512,
    K6Module, ///< the module: each of its rows is on one of three bands
    K7Module, ///< the module's second generation. No radio offers it, and the tables have no row for it
};
static_assert(K6Module + 1 == BandTotal);

/// An empty band slot.
inline constexpr int NoBand = -1;

/// True for the bands that a row of the K6 module can be on.
constexpr bool IsK6Band(int band) {
    return band == Fm30To50 || band == Am108To138 || band == Am225To400;
}

/// True for radios whose band the user chooses.
constexpr bool HasBandChoice(int radio) {
    return radio >= Krv610 && radio < RadioTotal;
}

/// Radio types. They determine the columns of a page and, with the band, the protocol of a transfer.
enum RadioType : int { ANFM, RP25, NP25, MDLX, O12, KDAR, ANAM, FXAM };

/// Number of memories of P25 radios, by type, without the guard rows after them. The old record layout and
/// the files of the 716 family have as many as RP25.
inline constexpr int RP25Memories = 230;
inline constexpr int NP25Memories = 500;

/// Guard rows of a page that has them.
inline constexpr int GuardRowTotal = 2;

/// Guard rows of NP25 pages are this many rows further down than those of RP25.
inline constexpr int NP25GuardShift = NP25Memories - RP25Memories;

/// Internal names by radio index (0 to 17), as channel files, titles and the status bar use them.
inline constexpr const char* RadioName[RadioTotal] = {
    "KRV-21",      "KRV-47",    "ORV-12",    "KRV-214", "KRV-214B",  "KRV-305",
    "KDRV-716",    "KDRV-716B", "KDAR-2000", "KRV-610", "KRV-620",   "KRV-630",
    "KRV-630_QNT", "KRV-650",   "KRV-656",   "KRV-666", "KDRV-8400", "KDRV-4xxx",
};

/// Labels that RadioDialog offers, by radio index. Three differ from the internal name (6, 7 and 12).
inline constexpr const char* RadioLabel[RadioTotal] = {
    "KRV-21",        "KRV-47",       "ORV-12",    "KRV-214", "KRV-214B",  "KRV-305",
    "KDRV-716[A|B]", "KDRV-716B-V2", "KDAR-2000", "KRV-610", "KRV-620",   "KRV-630",
    "KRV-630QNT",    "KRV-650",      "KRV-656",   "KRV-666", "KDRV-8400", "KDRV-4xxx",
};

/// Band id by radio index and band slot, NoBand in an empty slot. Slots fill from 0 without gaps.
inline constexpr int RadioBands[RadioTotal][BandSlotTotal] = {
    {Fm30To50, NoBand, NoBand, NoBand, NoBand, NoBand},                   // KRV-21
    {Fm66To88, NoBand, NoBand, NoBand, NoBand, NoBand},                   // KRV-47
    {Am118To138, NoBand, NoBand, NoBand, NoBand, NoBand},                 // ORV-12
    {Fm138To174, NoBand, NoBand, NoBand, NoBand, NoBand},                 // KRV-214
    {Fm138To174, NoBand, NoBand, NoBand, NoBand, NoBand},                 // KRV-214B
    {Fm403To512, NoBand, NoBand, NoBand, NoBand, NoBand},                 // KRV-305
    {Fm136To174, NoBand, NoBand, NoBand, NoBand, NoBand},                 // KDRV-716
    {Fm136To174, NoBand, NoBand, NoBand, NoBand, NoBand},                 // KDRV-716B
    {Am118To138, NoBand, NoBand, NoBand, NoBand, NoBand},                 // KDAR-2000
    {Fm138To174, Fm403To512, NoBand, NoBand, NoBand, NoBand},             // KRV-610
    {Fm138To174, Am225To400, NoBand, NoBand, NoBand, NoBand},             // KRV-620
    {Fm30To50, Fm138To174, NoBand, NoBand, NoBand, NoBand},               // KRV-630
    {Fm30To50, Fm138To174, NoBand, NoBand, NoBand, NoBand},               // KRV-630_QNT
    {Fm30To50, Fm138To174, Fm403To512, NoBand, NoBand, NoBand},           // KRV-650
    {Fm66To88, Fm138To174, Fm403To512, NoBand, NoBand, NoBand},           // KRV-656
    {Fm66To88, Fm138To174, NoBand, NoBand, NoBand, NoBand},               // KRV-666
    {Fm30To50, Am118To138, Fm138To174, Am225To400, Fm403To512, NoBand},   // KDRV-8400
    {Fm30To50, Am118To138, Fm138To174, Am225To400, Fm403To512, K6Module}, // KDRV-4xxx
};

/// Band slot of the module in KDRV-4xxx.
inline constexpr int ModuleSlot = 5;
static_assert(RadioBands[Kdrv4xxx][ModuleSlot] == K6Module);

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
static_assert(RadioRows[Kdrv716][0] == RP25Memories + GuardRowTotal);
static_assert(RadioRows[Kdrv716B][0] == NP25Memories + GuardRowTotal);

/// BAND text of a band id (0 to 8), also used in channel files.
inline constexpr const char* BandName[BandTotal] = {
    "FM 30-50",   "FM 66-88",   "AM 108-138", "AM 118-138", "FM 136-174",
    "FM 138-174", "AM 225-400", "FM 403-512", "K6 3-BAND",
};

/// Lowest and highest MHz of a band id, as integers.
/// Intentional: the pair of the module (8) is not the range of its rows, each of which has its own band.
inline constexpr int BandLimit[BandTotal][2] = {
    {30, 50}, {66, 88}, {108, 138}, {118, 138}, {136, 174}, {138, 174}, {225, 400}, {403, 512}, {896, 960},
};

/// Replacement that a legacy import writes for a frequency that it can't use, by band id.
/// Intentional: "118.0000" for AM 108-138 and "31.0000" for the module.
inline constexpr const char* BandStart[BandTotal] = {
    "30.0000", "66.0000", "118.0000", "118.0000", "136.0000", "138.0000", "225.0000", "403.0000", "31.0000",
};

/// Type tags of channel files, by radio type.
inline constexpr const char* RadioTypeName[TypeTotal] = {
    "ANFM", "RP25", "NP25", "MDLX", "O12", "KDAR", "ANAM", "FXAM",
};

/// Number of columns that the user sees and edits, by radio type.
inline constexpr int ColumnCount[TypeTotal] = {10, 19, 20, 11, 2, 6, 5, 7};

/// One word per radio index. Bits 8 to 15 are the PIB number of an analog radio. The last two entries belong
/// to no radio that users can choose.
inline constexpr unsigned AnalogRadioCode[20] = {
    0x0028027A, 0x004D027A, 0x00760006, 0x009B0466, 0x009B017A, 0x01C2037A, 0x008D0000,
    0x008D0000, 0x00760064, 0x009B00CA, 0x009B00C8, 0x009B00CA, 0x009B00C8, 0x009B00C8,
    0x009B00C8, 0x009B00CA, 0x008000C8, 0x00800000, 0x00800A00, 0x00800A00,
};

} // namespace RadioCatalogue
