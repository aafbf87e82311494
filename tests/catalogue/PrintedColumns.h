// The 32 columns and the default rows as printed in their data sheet, independent of the program's
// tables.
#pragma once

#include <array>
#include <cstddef>

namespace printed {

struct Look {
    const char* heading;
    int width; ///< pixels
};

struct ColumnLine {
    int column;
    const char* tag;
    std::array<Look, 8> looks; ///< by radio type
};

// clang-format off
inline constexpr std::array<ColumnLine, 32> Columns{{
    //           ANFM, RP25, NP25, MDLX, O12, KDAR, ANAM, FXAM
    { 0, "MFLG", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    { 1, "MNUM", {{{"Chan", 45}, {"Mem", 45}, {"Mem", 45}, {"Chan", 45}, {"Chan", 45}, {"Mem", 45}, {"Chan", 45}, {"Chan", 45}}}},
    { 2, "PRIM", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    { 3, "SHAD", {{{"", 0}, {"Shad", 45}, {"Shad", 45}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    { 4, "BAND", {{{"", 0}, {"", 0}, {"", 0}, {"Band", 90}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    { 5, "SCAN", {{{"Scan", 75}, {"Scan", 45}, {"Scan", 45}, {"Scan", 75}, {"", 0}, {"Scan", 45}, {"Scan", 75}, {"Scan", 75}}}},
    { 6, "ZONE", {{{"", 0}, {"Zone", 45}, {"Zone", 45}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    { 7, "DESC", {{{"Desc", 90}, {"Desc", 90}, {"Desc", 90}, {"Desc", 90}, {"", 0}, {"Desc", 80}, {"Desc", 90}, {"Desc", 90}}}},
    { 8, "MODE", {{{"Mode", 50}, {"Mode", 50}, {"Mode", 50}, {"Mode", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    { 9, "RFRQ", {{{"RxFreq", 80}, {"RxFreq", 80}, {"RxFreq", 80}, {"RxFreq", 80}, {"Freq", 80}, {"RxFreq", 80}, {"RxFreq", 80}, {"RxFreq", 80}}}},
    {10, "RSQL", {{{"", 0}, {"RxSq", 50}, {"RxSq", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {11, "RNSV", {{{"", 0}, {"", 0}, {"NSqV", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {12, "RTON", {{{"RxTn", 50}, {"RxTn", 50}, {"RxTn", 50}, {"RxTn", 50}, {"", 0}, {"", 0}, {"", 0}, {"RxTn", 50}}}},
    {13, "RCOD", {{{"RxCd", 50}, {"RxCd", 50}, {"RxCd", 50}, {"RxCd", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {14, "RTGP", {{{"", 0}, {"RxTG", 50}, {"RxTG", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {15, "RNAC", {{{"", 0}, {"RxNAC", 55}, {"RxNAC", 55}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {16, "TFRQ", {{{"TxFreq", 80}, {"TxFreq", 80}, {"TxFreq", 80}, {"TxFreq", 80}, {"", 0}, {"TxFreq", 80}, {"TxFreq", 80}, {"TxFreq", 80}}}},
    {17, "TSQL", {{{"", 0}, {"TxSq", 50}, {"TxSq", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {18, "TTON", {{{"TxTn", 50}, {"TxTn", 50}, {"TxTn", 50}, {"TxTn", 50}, {"", 0}, {"", 0}, {"", 0}, {"TxTn", 50}}}},
    {19, "TCOD", {{{"TxCd", 50}, {"TxCd", 50}, {"TxCd", 50}, {"TxCd", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {20, "TTGP", {{{"", 0}, {"TxTG", 50}, {"TxTG", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {21, "TNAC", {{{"", 0}, {"TxNAC", 55}, {"TxNAC", 55}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {22, "TIDC", {{{"", 0}, {"TxIDC", 70}, {"TxIDC", 70}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {23, "SHD0", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {24, "SHD1", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {25, "SHD2", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {26, "SHD3", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {27, "SHD4", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {28, "SHD5", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {29, "SHD6", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
    {30, "RONL", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 500}, {"RxOnly", 60}, {"", 0}, {"", 0}}}},
    {31, "TFLG", {{{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}}},
}};

/// Texts of the default rows of analog bands, besides MNUM "0" and TFLG "A0".
struct DefaultLine {
    int row;
    const char *band, *scan, *desc, *mode, *rfrq, *rton, *rcod, *tfrq, *tton, *tcod;
};

inline constexpr std::array<DefaultLine, 9> AnalogDefaults{{
    { 0, "FM 30-50",   "0", "LOW    30", "W", "30.0000",  "OFF", "OFF", "50.0000",  "OFF", "OFF"},
    { 1, "FM 66-88",   "0", "LOW    66", "W", "66.0000",  "OFF", "OFF", "88.0000",  "OFF", "OFF"},
    { 2, "AM 108-138", "0", "VHFAM 108", "",  "108.000",  "",    "",    "138.000",  "",    ""},
    { 3, "AM 118-138", "0", "VHFAM 118", "",  "118.000",  "",    "",    "138.000",  "",    ""},
    { 5, "FM 138-174", "0", "VHF   138", "N", "138.0000", "OFF", "OFF", "174.0000", "OFF", "OFF"},
    { 6, "AM 225-400", "0", "UHFAM 225", "",  "225.0000", "",    "",    "400.0000", "",    ""},
    { 7, "FM 403-512", "0", "UHF   403", "W", "403.0000", "OFF", "OFF", "512.0000", "OFF", "OFF"},
    { 8, "FM 30-50",   "0", "MODL   K6", "N", "31.0000",  "OFF", "OFF", "31.0000",  "OFF", "OFF"},
    {10, "AM 118-138", "N", "VHFAM118",  "",  "118.000",  "",    "",    "138.000",  "",    ""},
}};

struct Cell {
    const char* tag;
    const char* text;
};

/// The default row of P25 radios; RNSV is "" on the first generation and "10" on the second.
inline constexpr std::array<Cell, 32> P25Default{{
    {"MFLG", "0"},        {"MNUM", "0"},        {"PRIM", "0"},    {"SHAD", "N"},
    {"BAND", "FM 136-174"}, {"SCAN", "N"},      {"ZONE", "1"},    {"DESC", "VHF  136"},
    {"MODE", "n"},        {"RFRQ", "136.0000"}, {"RSQL", "x"},    {"RNSV", nullptr},
    {"RTON", "67.0"},     {"RCOD", "023"},      {"RTGP", "0001"}, {"RNAC", "293"},
    {"TFRQ", "174.0000"}, {"TSQL", "x"},        {"TTON", "67.0"}, {"TCOD", "023"},
    {"TTGP", "0001"},     {"TNAC", "293"},      {"TIDC", "00000001"},
    {"SHD0", "0"}, {"SHD1", "0"}, {"SHD2", "0"}, {"SHD3", "0"}, {"SHD4", "0"}, {"SHD5", "0"}, {"SHD6", "0"},
    {"RONL", ""},         {"TFLG", "A0"},
}};
// clang-format on

/// Position of a tag in Columns, -1 if there is none.
constexpr int ColumnOf(const char* tag) {
    for (const ColumnLine& line : Columns) {
        bool same = true;
        for (int i = 0; i < 4; ++i)
            same = same && line.tag[i] == tag[i];
        if (same)
            return line.column;
    }
    return -1;
}

/// The 32 texts of a row of the table of default rows (0 to 10).
inline std::array<const char*, 32> DefaultRow(int row) {
    std::array<const char*, 32> texts{};
    if (row == 4 || row == 9) {
        for (size_t i = 0; i < texts.size(); ++i)
            texts[i] = P25Default[i].text ? P25Default[i].text : row == 9 ? "10" : "";
        return texts;
    }
    texts.fill("");
    for (const DefaultLine& line : AnalogDefaults) {
        if (line.row != row)
            continue;
        texts[1] = "0";
        texts[4] = line.band;
        texts[5] = line.scan;
        texts[7] = line.desc;
        texts[8] = line.mode;
        texts[9] = line.rfrq;
        texts[12] = line.rton;
        texts[13] = line.rcod;
        texts[16] = line.tfrq;
        texts[18] = line.tton;
        texts[19] = line.tcod;
        texts[30] = row == 10 ? "N" : "";
        texts[31] = "A0";
    }
    return texts;
}

} // namespace printed
