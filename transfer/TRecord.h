// One line of the protocol of the digital radios: how it is framed, apart from what it says.
#pragma once

#include <cstdint>
#include <wx/string.h>

/// The last digits characters, at most 8, of a value as "%08X": a wider value loses its high digits, and
/// -1 in two digits is "FF".
wxString HexField(std::int64_t value, size_t digits);

/// Checksum (0 to 255) of a line without its checksum: the one's complement of the byte sum from position
/// 2 to the line's end. Letter and type at positions 0 and 1 don't count.
int TRecordChecksum(const wxString& line);

/// The line with its checksum, ready to be sent but for the carriage return.
wxString WithChecksum(const wxString& line);

/// True when the last two characters of a received line are the checksum of what stands before them. The
/// count field isn't held against the line's length.
bool HasGoodChecksum(const wxString& line);

/// The text of a data record: each pair of hexadecimal digits from position 8 on is one character. A pair
/// that is no number gives no character.
wxString HexToText(const wxString& line);

/// An identity stamp: the local time as 14 decimal digits, "%Y%m%d%H%M%S".
wxString MakeRadioStamp();
