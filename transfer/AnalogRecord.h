// Conversion between analog channel lines and the rows of a grid.
#pragma once

#include "transfer/AnalogLine.h"

class wxGrid;
struct TransferContext;

/// Makes the line of a memory row (1-based) of the current page's grid, without its carriage return.
///
/// @param out receives the line. If the row's MNUM, a number or the name of a guard, isn't from 1 to the
///            page's Rows, the fields are appended to the former content of out, without a number.
/// @return the number of errors, 0 for a good line
int encodeAnalogRecord(TransferContext& context, wxGrid* grid, int row, wxString& out);

/// Writes the row that a received line names. "GD1" and "GD2" name the last two rows. The cell of an
/// incomplete field gets the default row's text and is painted; SCAN then gets "0".
///
/// @param context Work1 receives the row
/// @param line    without its carriage return, with or without parity bits
/// @return 1, or 0 if the line names no row from 1 to the grid's last or ends within its number; the grid is
///         then unchanged
int decodeAnalogRecord(TransferContext& context, wxGrid* grid, const wxString& line);

/// Same as decodeAnalogRecord, for a line with cleared parity bits and with blanks for unprintable
/// characters.
int TakePlainAnalogRecord(TransferContext& context, wxGrid* grid, const wxString& line);

/// Returns ToneToText of a cell: two decimal digits.
wxString ToneToCode(wxGrid* grid, int row, int column);
