// Numbers that records carry as pairs of hexadecimal digits.
#pragma once

#include <wx/string.h>

/// Sum of the byte values of the pairs of hexadecimal digits in text, from position 0. A pair that is no
/// number counts 0, and so does a single character at the end.
int HexByteSum(const wxString& text);
