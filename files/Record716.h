// A memory as files of the KDRV-716 family's former programming software hold it.
#pragma once

#include <wx/string.h>

class wxGrid;

/// The texts of a memory, in the form of grid cells.
struct Record716 {
    wxString Mflg; ///< flags, "%02X", with the bits of MFLG
    wxString Mnum; ///< memory number
    wxString Prim; ///< number of the primary; its own on a memory that is no shadow
    wxString Scan; ///< "Y" or "N"
    wxString Zone;
    wxString Desc;
    wxString Encr; ///< goes no further
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
    wxString Rfrn;                                     ///< goes no further
    wxString Tflg;                                     ///< transfer flags, "%02X"
};

/// A field of a record.
using Field716 = wxString Record716::*;

inline constexpr Field716 Shadows716[] = {
    &Record716::Shd0, &Record716::Shd1, &Record716::Shd2, &Record716::Shd3,
    &Record716::Shd4, &Record716::Shd5, &Record716::Shd6,
};

/// Puts a record into a row (0 to the last) of the current page's grid. The tones, codes and the zone
/// go through their checks; the other cells take the texts as they are, for CheckRow to look at.
void write716ToGrid(wxGrid* grid, int row, const Record716& record);

/// Writes all fields to the log, one a line. Nothing calls it: it is for whoever looks for a fault.
void Dump716Record(const Record716& record);
