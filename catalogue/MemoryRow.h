// The 32 text cells of a memory row and the flags kept in them.
#pragma once

#include <cstdint>

class wxGrid;

/// Column positions, the same on every page. A grid row of these cells is a memory.
enum Column : int {
    MFLG, ///< memory flags of P25 rows, hexadecimal "%02X"; hidden
    MNUM, ///< memory (channel) number, decimal "%03d", unique in the page
    PRIM, ///< P25: MNUM of the row's primary, decimal "%03d"; hidden
    SHAD, ///< P25: "N", "P-" and a digit, or "S-" and the primary's number
    BAND, ///< MDLX: the band of this row; hidden on other pages
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

// Bits of MFLG, the memory flags. Unnamed bits come from a radio and are sent back to it.

/// 1-based place of a shadow in its primary's list (1 to 7), 0 on any other row.
inline constexpr int ShadowIndexMask = 0x007;
/// The radio scans the memory; pages show this as SCAN.
inline constexpr int ScanFlag = 0x008;
/// The row is a primary with shadows.
inline constexpr int ShadowLinkFlag = 0x010;
/// Any of these marks a row as linked, as a primary or as a shadow.
inline constexpr int LinkFlags = ShadowIndexMask | ShadowLinkFlag;
/// Two radio bits that shadows keep when they are linked again.
inline constexpr int RadioFlags = 0x060;
/// The row is a guard row. Records and files of the 716 family have this bit. On a page the position of the
/// row decides, not the bit.
inline constexpr int GuardFlag = 0x080;
/// Two more radio bits; old records have them in a separate byte.
inline constexpr int HighRadioFlags = 0x300;

// Bits of TFLG, the transfer flags.

/// The row is selected for sending.
inline constexpr int SEL = 0x01;
/// Erase the row in the radio; takes precedence over SEL. Set in row 1 of a KDAR page, it makes an exported
/// list request a purge.
inline constexpr int EraseFlag = 0x02;
/// Purge the radio before the row is sent. The program never sets this flag.
inline constexpr int MarkedFlag = 0x04;
/// The row holds a slot of ZoneSlots.
inline constexpr int ZoneTakenFlag = 0x08;
/// The row was created in the program, not read from a radio.
inline constexpr int MadeFlag = 0x20;
/// The radio holds the row.
inline constexpr int InRadioFlag = 0x40;
/// The row is defined; rows without it are skipped by transfers.
inline constexpr int DEF = 0x80;

/// TFLG of a row created in the program: DEF and MadeFlag.
inline constexpr const char* TflgMade = "A0";
/// TFLG of a row read from a radio: DEF and InRadioFlag.
inline constexpr const char* TflgRead = "C0";

/// Operating modes, as bits of OpModes and of a radio's answer.
inline constexpr uint32_t WideMode = 0x40;    ///< MODE "w"
inline constexpr uint32_t NarrowMode = 0x20;  ///< MODE "n"
inline constexpr uint32_t DigitalMode = 0x10; ///< MODE "D"
inline constexpr uint32_t AllModes = WideMode | NarrowMode | DigitalMode;

/// Number in MFLG of a row, 0 for an empty cell.
int MemoryFlags(const wxGrid* grid, int row);

/// Number in TFLG of a row, 0 for an empty cell.
int TransferFlags(const wxGrid* grid, int row);

/// True when MFLG marks the row as a shadow.
bool IsShadow(const wxGrid* grid, int row);

/// True when MFLG marks the row as a primary with shadows.
bool IsPrimary(const wxGrid* grid, int row);
