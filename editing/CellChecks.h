// What a cell may hold, as rules of texts.
#pragma once

#include <wx/string.h>

#include <optional>

/// The scan mask ("0" to "31") of a text in the form of the legacy files: one character for each of
/// five lists, "_" for a list without the channel, any other for one with it. An "L" locks the channel
/// out and gives "0". Characters behind the fifth don't count, nor do missing ones.
wxString ScanTextToMask(const wxString& text);

/// True when the radio type (0 to 7) can show the character in a description.
bool IsDescChar(wxUniChar c, int type);

/// text as a description of the radio type: cut to the type's length, in upper case where the radio
/// knows no other, and with a blank for each character that the radio can't show.
wxString DescriptionText(const wxString& text, int type);

/// The mode letter of text as pages of the radio type write it; nothing when the type has no such
/// mode.
std::optional<wxString> ModeText(const wxString& text, int type);

/// text as a number of that many hexadecimal digits, zeros put before a shorter one; nothing when
/// text is empty or one of its first digits characters is no hexadecimal digit. What stands behind
/// them is not looked at and stays.
std::optional<wxString> HexDigitsText(const wxString& text, size_t digits);
