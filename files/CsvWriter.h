// Comma-separated memory lists as text: fields, lines and headings. All bytes are UTF-8, lines end
// with "\n".
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <string>

/// A field as it stands in a line. Only a text with a double quote is quoted, and only up to its
/// last one: what comes behind that is not written.
std::string CsvField(const wxString& text);

/// The first count of the fields, each with a comma behind it, and the line end.
std::string CsvLine(const wxArrayString& fields, size_t count);

/// The heading line of the general dialect for a radio type: the names of the fields that it has.
std::string CsvHeadingLine(int type);

/// How many fields of the general dialect a radio type has.
size_t CsvFieldCount(int type);

/// The two heading lines of the KDAR dialect. With purge the list asks the radio to forget what it
/// holds.
std::string KdarHeadingLines(bool purge);

/// A memory number (MNUM) without zeros before it.
wxString KdarNumberText(const wxString& number);

/// A frequency (RFRQ, TFRQ) without the point behind three digits of MHz: "118.000" is "118000".
wxString KdarFrequencyText(const wxString& frequency);

/// "Yes" for the SCAN cell "Y", else "No".
wxString KdarScanText(const wxString& scan);

/// "Yes" and "No" for the RONL cells "Y" and "N"; any other as it stands.
wxString KdarRxOnlyText(const wxString& receiveOnly);
