// Numbers that records carry as pairs of hexadecimal digits.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Returns the sum of the bytes written as pairs of hexadecimal digits in text, from position 0. A pair that
/// isn't a number counts as 0, and so does a single character at the end.
int HexByteSum(const wxString& text);

/// Returns the number in up to 8 hexadecimal digits of text, starting at a 0-based position. A character that
/// isn't such a digit counts as 0, and so does one past the end of the text.
uint32_t HexNumberAt(const wxString& text, size_t position, size_t digits);
uint32_t HexNumberAt(std::wstring_view text, size_t position, size_t digits);

/// True for a character that HexNumberAt accepts as a digit.
bool IsHexDigit(wchar_t c);

/// Writes the last `digits` hexadecimal digits of a number, in upper case. More than 8 digits get leading
/// zeros.
void WriteHex(wchar_t* to, size_t digits, uint32_t number);

/// True if a configuration text, split into its fields, has a good checksum: the bytes of its fields 2 to 5,
/// if present, plus one add up to a multiple of 256.
bool HasConfigChecksum(const wxArrayString& fields);
