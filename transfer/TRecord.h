// Framing of one line of the digital radios' protocol, independent of its content.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <cstdint>

/// Returns the last `digits` characters, at most 8, of a value as "%08X". A wider value loses its high
/// digits; -1 in two digits is "FF".
wxString HexField(int64_t value, size_t digits);

/// Returns the checksum (0 to 255) of a line that lacks it: the one's complement of the byte sum from
/// position 2 to the line's end. Letter and type at positions 0 and 1 don't count.
int TRecordChecksum(const wxString& line);

/// Returns the line with its checksum, ready to be sent except for the carriage return.
wxString WithChecksum(const wxString& line);

/// True if the last two characters of a received line are the checksum of the characters before them. Doesn't
/// compare the count field with the line's length.
bool HasGoodChecksum(const wxString& line);

/// Returns the text of a data record: each pair of hexadecimal digits from position 8 on is one character.
/// Skips pairs that aren't hexadecimal.
wxString HexToText(const wxString& line);

/// Returns a new identity stamp: the local time as 14 decimal digits, "%Y%m%d%H%M%S".
wxString MakeRadioStamp(const wxDateTime& now = wxDateTime::Now());
