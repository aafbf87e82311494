// Memory rows and configuration texts to and from the records of the digital radios.
#pragma once

#include <wx/string.h>

class wxGrid;
struct TRecordContext;

// Rows are grid rows, 0 being the default row; records are without their checksums.

/// The record of a row in the layout of context.RecordVersion: V2 for 2, V1 for any other value.
///
/// @param out receives the record; empty when the layout can't carry the row
void encodeTrecord(TRecordContext& context, wxGrid* grid, int row, wxString& out);

/// Writes the row that a record names, in the layout of context.RecordVersion: V1 for 1, V2 for any other
/// value.
///
/// @return 1, or 0 if the row isn't from 0 to the grid's last; the grid is then unchanged
int decodeTrecord(TRecordContext& context, wxGrid* grid, const wxString& line);

/// Memory record V1. Empty unless the page is RP25 and the row below 233, or NP25 and the row below 231 or
/// above 500.
void encodeTrecordV1(wxGrid* grid, int row, wxString& out);

/// Memory record V2, for any row of any page.
void encodeTrecordV2(wxGrid* grid, int row, wxString& out);

/// The reverse of encodeTrecordV1; result as of decodeTrecord.
int decodeTrecordV1(wxGrid* grid, const wxString& line);

/// The reverse of encodeTrecordV2; result as of decodeTrecord.
int decodeTrecordV2(wxGrid* grid, const wxString& line);

/// The message that erases a memory; empty for a row that the radio doesn't let be erased: row 1 and those
/// above 500, and those above 230 in V1.
void encodeEraseRecord(TRecordContext& context, int row, wxString& out);

/// The record of one line of configuration text.
void encodeConfigRecord(TRecordContext& context, const wxString& text, wxString& out);

/// True when a configuration text, its fields parted by ":", is whole: the byte sums of its hexadecimal
/// fields 2 to 5 and 1 add up to a multiple of 256.
bool IsGoodConfigText(const wxString& text);

/// Sets bits in the TFLG cell of a row.
void SetTFlag(wxGrid* grid, int row, int bits);
