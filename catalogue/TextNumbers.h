// Numbers that live in cells as text.
#pragma once

#include <wx/string.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// The number that text begins with, in the given base (10 or 16). Leading blanks and a sign
/// are taken, what follows the digits is not looked at. More than 32 bits saturate, so that
/// such a number is out of every range. Without a digit there is no number.
std::optional<int> ReadNumber(const wxString& text, int base = 10);
std::optional<int> ReadNumber(std::wstring_view text, int base = 10);

/// ReadNumber in base 10, and 0 where there is no number.
int ReadDecimal(const wxString& text);

/// ReadNumber in base 16, and 0 where there is no number.
int ReadHex(const wxString& text);

/// A number in decimal digits, with zeros in front at least so many.
wxString DecimalText(std::uint32_t number, int width = 1);

/// A number in upper-case hexadecimal digits, with zeros in front at least so many.
wxString HexadecimalText(std::uint32_t number, int width);

/// A memory or row number as cells hold it: at least three decimal digits.
wxString NumberText(int number);

/// Flags as cells hold them: at least two upper-case hexadecimal digits.
wxString FlagText(int flags);

/// Numbers as a sentence names them: "5, 17, 40". Hundreds of them end in an ellipsis.
wxString NumberList(const std::vector<int>& numbers);
