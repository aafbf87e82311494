// The 32 text cells of a memory row and the flags kept in them.
#pragma once

/// Column positions, the same on every page. A grid row of these cells is a memory.
enum Column : int {
    MFLG, ///< memory flags of P25 rows, hexadecimal "%02X"; hidden
    MNUM, ///< memory (channel) number, decimal "%03d", unique in the page
    PRIM, ///< P25: MNUM of the row's primary, decimal "%03d"; hidden
    SHAD, ///< P25: "N", "P-" and a digit, or "S-" and the primary's number
    BAND, ///< MDLX: the band of this row; elsewhere hidden
    SCAN, ///< "Y" or "N" on P25 and KDAR pages, else a scan list mask 0 to 31
    ZONE, ///< P25: one of the ZoneNames of the page's type; empty on a shadow row
    DESC, ///< description, 8 characters on P25 and KDAR pages, else 9
    MODE, ///< "W" or "N"; P25: "w", "n" or "D"
    RFRQ, ///< receive frequency, decimal MHz with a point
    RSQL, ///< P25: receive squelch letter
    RNSV, ///< NP25: numeric squelch value, 0 to 15
    RTON, ///< receive CTCSS tone
    RCOD, ///< receive DPL code
    RTGP, ///< P25: receive talk group, four hexadecimal digits
    RNAC, ///< P25: receive NAC, three hexadecimal digits
    TFRQ, ///< transmit frequency, as RFRQ
    TSQL, ///< P25: transmit squelch letter
    TTON, ///< transmit CTCSS tone
    TCOD, ///< transmit DPL code
    TTGP, ///< P25: transmit talk group
    TNAC, ///< P25: transmit NAC
    TIDC, ///< P25: transmit unit id, decimal 0 to 9999999
    SHD0, ///< P25: numbers of a primary's shadows, "0" for a free slot; hidden
    SHD1,
    SHD2,
    SHD3,
    SHD4,
    SHD5,
    SHD6,
    RONL, ///< KDAR: receive only, "Y" or "N"
    TFLG, ///< transfer flags, hexadecimal "%02X"; empty on a row never used; hidden
    ColumnTotal
};

/// Four-letter tags by column, as CSV files and reports write them.
inline constexpr const char* ColumnTag[ColumnTotal] = {
    "MFLG", "MNUM", "PRIM", "SHAD", "BAND", "SCAN", "ZONE", "DESC", "MODE", "RFRQ", "RSQL",
    "RNSV", "RTON", "RCOD", "RTGP", "RNAC", "TFRQ", "TSQL", "TTON", "TCOD", "TTGP", "TNAC",
    "TIDC", "SHD0", "SHD1", "SHD2", "SHD3", "SHD4", "SHD5", "SHD6", "RONL", "TFLG",
};

/// MFLG: the place of a shadow in its primary's list plus one (1 to 7), 0 on any other row.
inline constexpr int ShadowIndexMask = 0x007;
/// MFLG: the radio scans the memory; SCAN is what a page shows of it.
inline constexpr int ScanFlag = 0x08;
/// MFLG: the row is a primary with shadows.
inline constexpr int ShadowLinkFlag = 0x010;

/// TFLG: the row holds a slot of ZoneSlots.
inline constexpr int ZoneTakenFlag = 0x08;
/// TFLG: the row is selected for sending.
inline constexpr int SEL = 0x01;
/// TFLG: the row is defined; rows without it are skipped by transfers.
inline constexpr int DEF = 0x80;

/// TFLG of a row made in the program.
inline constexpr const char* TflgMade = "A0";
/// TFLG of a row read from a radio.
inline constexpr const char* TflgRead = "C0";
