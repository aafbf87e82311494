// Rules for the texts that a cell may hold.
#pragma once

#include <wx/string.h>

#include <optional>

/// Returns the scan mask ("0" to "31") of a text in the form of the legacy files: one character for each of
/// five lists, "_" for a list without the channel, any other for one with it. An "L" locks the channel out
/// and returns "0". Characters after the fifth and missing ones don't count.
wxString ScanTextToMask(const wxString& text);

/// True when the radio type (0 to 7) can show the character in a description.
bool IsDescChar(wxUniChar c, int type);

/// Returns text as a description of the radio type: cut to the type's length, in upper case if the radio has
/// no lower case, and with a blank for each character that the radio can't show.
wxString DescriptionText(const wxString& text, int type);

/// Returns the mode letter of text as pages of the radio type write it; nothing if the type has no such mode.
std::optional<wxString> ModeText(const wxString& text, int type);

/// Returns text as a hexadecimal number with the given count of digits, padded with leading zeros; nothing if
/// text is empty or one of its first digits characters is not a hexadecimal digit. Characters after them are
/// neither checked nor removed.
std::optional<wxString> HexDigitsText(const wxString& text, size_t digits);
