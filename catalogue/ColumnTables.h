// Headings and widths of the 32 columns by radio type, and the default rows.
#pragma once

#include "catalogue/MemoryRow.h"
#include "catalogue/NumberedArray.h"
#include "catalogue/RadioTables.h"

namespace RadioCatalogue {

/// Heading and width in pixels of one column on the pages of one radio type. Width 0 hides it.
struct ColumnLook {
    const char* heading;
    int width;
};

// clang-format off
// One line per column, one entry per radio type: ANFM, RP25, NP25, MDLX, O12, KDAR, ANAM, FXAM.
// The wide column without a heading on O12 is a blank filler beside its two real columns.
inline constexpr ColumnLook ColumnLooks[ColumnTotal][TypeTotal] = {
    /* MFLG */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* MNUM */ {{"Chan", 45}, {"Mem", 45}, {"Mem", 45}, {"Chan", 45}, {"Chan", 45}, {"Mem", 45}, {"Chan", 45}, {"Chan", 45}},
    /* PRIM */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* SHAD */ {{"", 0}, {"Shad", 45}, {"Shad", 45}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* BAND */ {{"", 0}, {"", 0}, {"", 0}, {"Band", 90}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* SCAN */ {{"Scan", 75}, {"Scan", 45}, {"Scan", 45}, {"Scan", 75}, {"", 0}, {"Scan", 45}, {"Scan", 75}, {"Scan", 75}},
    /* ZONE */ {{"", 0}, {"Zone", 45}, {"Zone", 45}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* DESC */ {{"Desc", 90}, {"Desc", 90}, {"Desc", 90}, {"Desc", 90}, {"", 0}, {"Desc", 80}, {"Desc", 90}, {"Desc", 90}},
    /* MODE */ {{"Mode", 50}, {"Mode", 50}, {"Mode", 50}, {"Mode", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* RFRQ */ {{"RxFreq", 80}, {"RxFreq", 80}, {"RxFreq", 80}, {"RxFreq", 80}, {"Freq", 80}, {"RxFreq", 80}, {"RxFreq", 80}, {"RxFreq", 80}},
    /* RSQL */ {{"", 0}, {"RxSq", 50}, {"RxSq", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* RNSV */ {{"", 0}, {"", 0}, {"NSqV", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* RTON */ {{"RxTn", 50}, {"RxTn", 50}, {"RxTn", 50}, {"RxTn", 50}, {"", 0}, {"", 0}, {"", 0}, {"RxTn", 50}},
    /* RCOD */ {{"RxCd", 50}, {"RxCd", 50}, {"RxCd", 50}, {"RxCd", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* RTGP */ {{"", 0}, {"RxTG", 50}, {"RxTG", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* RNAC */ {{"", 0}, {"RxNAC", 55}, {"RxNAC", 55}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* TFRQ */ {{"TxFreq", 80}, {"TxFreq", 80}, {"TxFreq", 80}, {"TxFreq", 80}, {"", 0}, {"TxFreq", 80}, {"TxFreq", 80}, {"TxFreq", 80}},
    /* TSQL */ {{"", 0}, {"TxSq", 50}, {"TxSq", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* TTON */ {{"TxTn", 50}, {"TxTn", 50}, {"TxTn", 50}, {"TxTn", 50}, {"", 0}, {"", 0}, {"", 0}, {"TxTn", 50}},
    /* TCOD */ {{"TxCd", 50}, {"TxCd", 50}, {"TxCd", 50}, {"TxCd", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* TTGP */ {{"", 0}, {"TxTG", 50}, {"TxTG", 50}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* TNAC */ {{"", 0}, {"TxNAC", 55}, {"TxNAC", 55}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* TIDC */ {{"", 0}, {"TxIDC", 70}, {"TxIDC", 70}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* SHD0 */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* SHD1 */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* SHD2 */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* SHD3 */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* SHD4 */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* SHD5 */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* SHD6 */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
    /* RONL */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 500}, {"RxOnly", 60}, {"", 0}, {"", 0}},
    /* TFLG */ {{"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}},
};
// clang-format on

template <class Value>
using TypeByColumn = NumberedArray<NumberedArray<Value, ColumnTotal>, TypeTotal>;

constexpr TypeByColumn<const char*> ColumnHeadings() {
    TypeByColumn<const char*> table{};
    for (int type = 0; type < TypeTotal; ++type)
        for (int col = 0; col < ColumnTotal; ++col)
            table[type][col] = ColumnLooks[col][type].heading;
    return table;
}

constexpr TypeByColumn<int> ColumnWidths() {
    TypeByColumn<int> table{};
    for (int type = 0; type < TypeTotal; ++type)
        for (int col = 0; col < ColumnTotal; ++col)
            table[type][col] = ColumnLooks[col][type].width;
    return table;
}

/// Column headings, by radio type and then column.
inline constexpr auto ColumnHeading = ColumnHeadings();

/// Column widths in pixels, by radio type and then column; 0 hides the column.
inline constexpr auto ColumnWidth = ColumnWidths();

/// The 32 cell texts of a row.
using RowTexts = NumberedArray<const char*, ColumnTotal>;

constexpr RowTexts EmptyRow() {
    RowTexts row{};
    for (const char*& text : row)
        text = "";
    return row;
}

/// Columns in which the default rows of the analog bands differ.
struct AnalogDefault {
    const char *band, *scan, *desc, *mode, *rfrq, *rton, *rcod, *tfrq, *tton, *tcod;
};

constexpr RowTexts AnalogRow(const AnalogDefault& d, const char* ronl = "") {
    RowTexts row = EmptyRow();
    row[MNUM] = "0";
    row[BAND] = d.band;
    row[SCAN] = d.scan;
    row[DESC] = d.desc;
    row[MODE] = d.mode;
    row[RFRQ] = d.rfrq;
    row[RTON] = d.rton;
    row[RCOD] = d.rcod;
    row[TFRQ] = d.tfrq;
    row[TTON] = d.tton;
    row[TCOD] = d.tcod;
    row[RONL] = ronl;
    row[TFLG] = TflgMade;
    return row;
}

constexpr RowTexts P25Row(const char* rnsv) {
    RowTexts row =
        AnalogRow({"FM 136-174", "N", "VHF  136", "n", "136.0000", "67.0", "023", "174.0000", "67.0", "023"});
    row[MFLG] = "0";
    row[PRIM] = "0";
    row[SHAD] = "N";
    row[ZONE] = "1";
    row[RSQL] = row[TSQL] = "x";
    row[RNSV] = rnsv;
    row[RTGP] = row[TTGP] = "0001";
    row[RNAC] = row[TNAC] = "293";
    row[TIDC] = "00000001";
    for (int col = SHD0; col <= SHD6; ++col)
        row[col] = "0";
    return row;
}

/// Rows of PageDefault that belong to KDRV-716B and KDAR-2000.
inline constexpr int Kdrv716BDefaultRow = 9, Kdar2000DefaultRow = 10;

// clang-format off
/// Default rows, by the band id of a page; two radios have a row of their own.
inline constexpr RowTexts PageDefault[11] = {
    AnalogRow({"FM 30-50",   "0", "LOW    30", "W", "30.0000",  "OFF", "OFF", "50.0000",  "OFF", "OFF"}),
    AnalogRow({"FM 66-88",   "0", "LOW    66", "W", "66.0000",  "OFF", "OFF", "88.0000",  "OFF", "OFF"}),
    AnalogRow({"AM 108-138", "0", "VHFAM 108", "",  "108.000",  "",    "",    "138.000",  "",    ""}),
    AnalogRow({"AM 118-138", "0", "VHFAM 118", "",  "118.000",  "",    "",    "138.000",  "",    ""}),
    P25Row(""),
    AnalogRow({"FM 138-174", "0", "VHF   138", "N", "138.0000", "OFF", "OFF", "174.0000", "OFF", "OFF"}),
    AnalogRow({"AM 225-400", "0", "UHFAM 225", "",  "225.0000", "",    "",    "400.0000", "",    ""}),
    AnalogRow({"FM 403-512", "0", "UHF   403", "W", "403.0000", "OFF", "OFF", "512.0000", "OFF", "OFF"}),
    AnalogRow({"FM 30-50",   "0", "MODL   K6", "N", "31.0000",  "OFF", "OFF", "31.0000",  "OFF", "OFF"}),
    P25Row("10"),
    AnalogRow({"AM 118-138", "N", "VHFAM118",  "",  "118.000",  "",    "",    "138.000",  "",    ""}, "N"),
};
// clang-format on

} // namespace RadioCatalogue
