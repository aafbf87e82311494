// Conversion of memory rows and configuration texts to and from the records of the digital radios.
#pragma once

#include <wx/string.h>

class wxGrid;
struct TRecordContext;

// Rows are grid rows, row 0 is the default row. Records have no checksums here.

/// Makes the record of a row in the layout of context.RecordVersion: V2 for 2, V1 for any other value.
///
/// @param out receives the record; empty when the layout can't carry the row
void encodeTrecord(TRecordContext& context, wxGrid* grid, int row, wxString& out);

/// Writes a record into the row that it names. The layout is that of context.RecordVersion: V1 for 1, V2 for
/// any other value.
///
/// @return 1, or 0 if the row isn't from 0 to the grid's last; the grid is then unchanged
int decodeTrecord(TRecordContext& context, wxGrid* grid, const wxString& line);

/// Makes memory record V1. Empty unless the page is RP25 and the row below 233, or NP25 and the row below 231
/// or above 500.
void encodeTrecordV1(wxGrid* grid, int row, wxString& out);

/// Makes memory record V2, for any row of any page.
void encodeTrecordV2(wxGrid* grid, int row, wxString& out);

/// The reverse of encodeTrecordV1. Returns the same as decodeTrecord.
int decodeTrecordV1(wxGrid* grid, const wxString& line);

/// The reverse of encodeTrecordV2. Returns the same as decodeTrecord.
int decodeTrecordV2(wxGrid* grid, const wxString& line);

/// Makes the message that erases a memory. Empty for rows that the radio can't erase: those below 2, those
/// above 500, and in V1 those above 230.
void encodeEraseRecord(TRecordContext& context, int row, wxString& out);

/// Makes the record of one line of configuration text.
void encodeConfigRecord(TRecordContext& context, const wxString& text, wxString& out);

/// True if a configuration text, its fields separated by ":", is intact: the byte sums of its hexadecimal
/// fields 2 to 5 and 1 add up to a multiple of 256.
bool IsGoodConfigText(const wxString& text);

/// Sets bits in the TFLG cell of a row.
void SetTFlag(wxGrid* grid, int row, int bits);
