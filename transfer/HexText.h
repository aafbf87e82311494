// Numbers that records carry as pairs of hexadecimal digits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <wx/arrstr.h>
#include <wx/string.h>

/// Sum of the byte values of the pairs of hexadecimal digits in text, from position 0. A pair that is no
/// number counts 0, and so does a single character at the end.
int HexByteSum(const wxString& text);

/// The number in up to 8 hexadecimal digits of text, from a position (0-based) on. A character that is no
/// such digit counts 0, and so does one behind the text's end.
std::uint32_t HexNumberAt(const wxString& text, std::size_t position, std::size_t digits);
std::uint32_t HexNumberAt(std::wstring_view text, std::size_t position, std::size_t digits);

/// True for a character that HexNumberAt takes as a digit.
bool IsHexDigit(wchar_t c);

/// Writes the last `digits` hexadecimal digits of a number, in upper case. In more than 8, zeros stand in
/// front.
void WriteHex(wchar_t* to, std::size_t digits, std::uint32_t number);

/// True when a configuration text, split into its fields, has a good checksum: the bytes of its fields 2 to
/// 5, of those that it has, and one more add up to a multiple of 256.
bool HasConfigChecksum(const wxArrayString& fields);
