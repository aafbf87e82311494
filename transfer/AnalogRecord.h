// Analog channel lines to and from the rows of a grid.
#pragma once

#include "transfer/AnalogLine.h"

class wxGrid;
struct TransferContext;

/// Makes the line of a memory row (1-based) of the current page's grid, without its carriage return.
///
/// @param out receives the line. If the row's MNUM, a number or the name of a guard, isn't from 1 to the
///            page's Rows, the fields are appended to what it held, without a number.
/// @return the number of errors, 0 for a good line
int encodeAnalogRecord(TransferContext& context, wxGrid* grid, int row, wxString& out);

/// Writes the row that a received line names. "GD1" and "GD2" name the last two rows. A cell whose field the
/// line doesn't hold whole gets the default row's text, painted; SCAN then gets "0".
///
/// @param context Work1 receives the row
/// @param line    without its carriage return, with or without parity bits
/// @return 1, or 0 if the line names no row of 1 to the grid's last, or breaks off in its number; the grid is
///         then unchanged
int decodeAnalogRecord(TransferContext& context, wxGrid* grid, const wxString& line);

/// The same for a line whose parity bits are cleared and in which blanks stand for unprintable characters.
int TakePlainAnalogRecord(TransferContext& context, wxGrid* grid, const wxString& line);

/// ToneToText of a cell: two decimal digits.
wxString ToneToCode(wxGrid* grid, int row, int column);
