// Fields of the comma-separated dialects, and the columns of the general one.
#pragma once

#include "catalogue/CsvTables.h"
#include "catalogue/MemoryRow.h"

/// Columns for one position of CsvHeader.
struct CsvFieldCells {
    Column written; ///< the cell that an export writes
    Column read;    ///< the cell that an import fills
};

// clang-format off
inline constexpr CsvFieldCells CsvFieldTable[RadioCatalogue::CsvFieldTotal] = {
    {MNUM, MNUM},
    {BAND, BAND},
    {SCAN, SCAN},
    {ZONE, ZONE},
    {DESC, DESC},
    {MODE, MODE},
    {RFRQ, RFRQ},
    {RSQL, RSQL},
    {RNSV, RNSV},
    {RTON, RTON},
    {RCOD, RCOD},
    {RNAC, RTGP}, // Intentional: talk group and NAC of the receive side
    {RTGP, RNAC}, // are swapped on export, and only there.
    {TFRQ, TFRQ},
    {TSQL, TSQL},
    {TTON, TTON},
    {TCOD, TCOD},
    {TTGP, TTGP},
    {TNAC, TNAC},
    {TIDC, TIDC},
};
// clang-format on

/// Fields of a line of the KDAR dialect, in order.
enum KdarField : int {
    KdarMemory,
    KdarName,
    KdarReceive,
    KdarTransmit,
    KdarScan,
    KdarRxOnly,
    KdarFieldTotal
};
