// What the headings of columns are short for.
#pragma once

#include "catalogue/ColumnTables.h"

namespace RadioCatalogue {

/// Full terms by column, with their units; empty for columns that no page shows.
inline constexpr const char* ColumnTerms[ColumnTotal] = {
    /* MFLG */ "",
    /* MNUM */ "Channel or memory number",
    /* PRIM */ "",
    /* SHAD */ "Shadow: N none, P a primary and its shadows, S a shadow and its primary",
    /* BAND */ "Band in MHz",
    /* SCAN */ "Scan: whether the radio scans it, or its scan lists",
    /* ZONE */ "Zone",
    /* DESC */ "Description",
    /* MODE */ "Mode: W wide, N narrow, D digital",
    /* RFRQ */ "Receive frequency in MHz",
    /* RSQL */ "Receive squelch",
    /* RNSV */ "Numeric squelch value, 0 to 15",
    /* RTON */ "Receive CTCSS tone in Hz",
    /* RCOD */ "Receive DPL code",
    /* RTGP */ "Receive talk group, hexadecimal",
    /* RNAC */ "Receive network access code (NAC), hexadecimal",
    /* TFRQ */ "Transmit frequency in MHz",
    /* TSQL */ "Transmit squelch",
    /* TTON */ "Transmit CTCSS tone in Hz",
    /* TCOD */ "Transmit DPL code",
    /* TTGP */ "Transmit talk group, hexadecimal",
    /* TNAC */ "Transmit network access code (NAC), hexadecimal",
    /* TIDC */ "Transmit unit identity, 0 to 9999999",
    /* SHD0 */ "",
    /* SHD1 */ "",
    /* SHD2 */ "",
    /* SHD3 */ "",
    /* SHD4 */ "",
    /* SHD5 */ "",
    /* SHD6 */ "",
    /* RONL */ "Receive only",
    /* TFLG */ "",
};

/// Returns the full term of a column's heading on pages of a type; empty for a column without a heading.
constexpr const char* ColumnTerm(int type, int col) {
    return *ColumnHeading[type][col] ? ColumnTerms[col] : "";
}

} // namespace RadioCatalogue
