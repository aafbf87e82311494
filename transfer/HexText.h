// Numbers that records carry as pairs of hexadecimal digits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <wx/string.h>

/// Sum of the byte values of the pairs of hexadecimal digits in text, from position 0. A pair that is no
/// number counts 0, and so does a single character at the end.
int HexByteSum(const wxString& text);

/// The number in up to 8 hexadecimal digits of text, from a position (0-based) on. A character that is no
/// such digit counts 0, and so does one behind the text's end.
std::uint32_t HexNumberAt(const wxString& text, std::size_t position, std::size_t digits);
