// Memory as stored in files of the KDRV-716 family's former programming software.
#pragma once

#include <wx/string.h>

class wxGrid;

/// Texts of a memory, in the form of grid cells.
struct Record716 {
    wxString Mflg; ///< flags, "%02X", with the bits of MFLG
    wxString Mnum; ///< memory number
    wxString Prim; ///< number of the primary; its own unless the memory is a shadow
    wxString Scan; ///< "Y" or "N"
    wxString Zone;
    wxString Desc;
    wxString Encr; ///< never written to the grid
    wxString Mode;
    wxString Rsql;
    wxString Rtgp;
    wxString Rton;
    wxString Rcod;
    wxString Rnac;
    wxString Rfrq;
    wxString Tsql;
    wxString Ttgp;
    wxString Tton;
    wxString Tcod;
    wxString Tnac;
    wxString Tfrq;
    wxString Tidc;
    wxString Shd0, Shd1, Shd2, Shd3, Shd4, Shd5, Shd6; ///< numbers of a primary's shadows
    wxString Rfrn;                                     ///< never written to the grid
    wxString Tflg;                                     ///< transfer flags, "%02X"
};

/// Field of a record.
using Field716 = wxString Record716::*;

inline constexpr Field716 Shadows716[] = {
    &Record716::Shd0, &Record716::Shd1, &Record716::Shd2, &Record716::Shd3,
    &Record716::Shd4, &Record716::Shd5, &Record716::Shd6,
};

/// Writes a record to a row (0 to the last) of the current page's grid. Tones, codes and the zone are
/// checked; the other cells take their texts unchanged, for CheckRow to check.
void write716ToGrid(wxGrid* grid, int row, const Record716& record);

/// Writes all fields to the log, one per line. Nothing calls it; it is an aid for debugging.
void Dump716Record(const Record716& record);
