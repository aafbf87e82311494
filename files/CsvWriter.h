// Text of comma-separated memory lists: fields, lines and headings. All bytes are UTF-8, lines end
// with "\n".
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <string>

/// Returns a field as written in a line. Only a text with a double quote is quoted, and only up to
/// its last quote; the rest is not written.
std::string CsvField(const wxString& text);

/// Returns the first count fields, each followed by a comma, and the line end.
std::string CsvLine(const wxArrayString& fields, size_t count);

/// Returns the heading line of the general dialect for a radio type: the names of its fields.
std::string CsvHeadingLine(int type);

/// Returns the number of fields that a radio type has in the general dialect.
size_t CsvFieldCount(int type);

/// Returns the two heading lines of the KDAR dialect. With purge, the list asks the radio to erase
/// its memories.
std::string KdarHeadingLines(bool purge);

/// Returns a memory number (MNUM) without leading zeros.
wxString KdarNumberText(const wxString& number);

/// Returns a frequency (RFRQ, TFRQ) without the point after three MHz digits: "118.000" becomes
/// "118000".
wxString KdarFrequencyText(const wxString& frequency);

/// Returns "Yes" for the SCAN cell "Y", else "No".
wxString KdarScanText(const wxString& scan);

/// Returns "Yes" and "No" for the RONL cells "Y" and "N"; any other text is unchanged.
wxString KdarRxOnlyText(const wxString& receiveOnly);
