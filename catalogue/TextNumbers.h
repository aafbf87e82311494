// Numbers stored in cells as text.
#pragma once

#include <wx/string.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// Number at the beginning of text, in the given base (10 or 16). Accepts leading blanks and a sign; ignores
/// everything after the digits. Values beyond 32 bits saturate, so that they are out of every range. Returns
/// nothing when there is no digit.
std::optional<int> ReadNumber(const wxString& text, int base = 10);
std::optional<int> ReadNumber(std::wstring_view text, int base = 10);

/// ReadNumber in base 10, 0 if there is no number.
int ReadDecimal(const wxString& text);

/// ReadNumber in base 16, 0 if there is no number.
int ReadHex(const wxString& text);

/// Returns the number of a text of nothing but digits if it is in the range from min to max (both part of
/// it).
std::optional<int> WholeNumber(const wxString& text, int min, int max);

/// Brings a decimal text to one form for each value: "154.45250" and "0154,4525" both become "154.4525".
/// Accepts digits with at most one point or comma. Returns nothing for any other text.
std::optional<wxString> PlainDecimal(const wxString& text);

/// A number in decimal, padded with leading zeros to at least width digits.
wxString DecimalText(uint32_t number, int width = 1);

/// A number in upper-case hexadecimal, padded with leading zeros to at least width digits.
wxString HexadecimalText(uint32_t number, int width);

/// A memory or row number as cells hold it: at least three decimal digits.
wxString NumberText(int number);

/// Flags as cells hold them: at least two upper-case hexadecimal digits.
wxString FlagText(int flags);

/// Numbers as a list for a sentence: "5, 17, 40". A list of hundreds is cut and ends in an ellipsis.
wxString NumberList(const std::vector<int>& numbers);
