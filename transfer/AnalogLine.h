// Fixed-column text line of one analog channel and the meaning of its fields, independent of any grid.
#pragma once

#include <wx/string.h>

#include <array>
#include <optional>
#include <span>

/// Content of a field of the line. The first ten are contents of the channel.
enum AnalogPart : size_t {
    NumberPart,
    DescriptionPart,
    RxFrequencyPart,
    TxFrequencyPart,
    RxTonePart,
    TxTonePart,
    RxCodePart,
    TxCodePart,
    ScanPart,
    ModePart,
    AnalogPartTotal,
    LiteralPart = AnalogPartTotal ///< a fixed text
};

/// One field of a line. Positions and widths count characters, positions from 0; width 0 means up to the end
/// of the line.
struct AnalogField {
    int position;
    int width;
    AnalogPart part;
    const char* literal = ""; ///< text of a LiteralPart
    bool notOnGuards = false; ///< omitted from a line that begins with the name of a guard
};

// clang-format off
/// Line form that the program and most radios send.
inline constexpr AnalogField LongAnalogForm[] = {
    {0, 3, NumberPart},
    {3, 1, LiteralPart, " "},
    {4, 9, DescriptionPart},
    {13, 1, LiteralPart, " "},
    {14, 8, RxFrequencyPart},
    {22, 3, LiteralPart, "RX "},
    {25, 8, TxFrequencyPart},
    {33, 10, LiteralPart, "TX CTCSS: "},
    {43, 2, RxTonePart, "", true},
    {45, 3, LiteralPart, "RX ", true},
    {48, 2, TxTonePart},
    {50, 8, LiteralPart, "TX DPL: "},
    {58, 3, RxCodePart, "", true},
    {61, 3, LiteralPart, "RX ", true},
    {64, 3, TxCodePart},
    {67, 3, LiteralPart, "TX "},
    {70, 5, ScanPart, "", true},
    {75, 1, ModePart},
};

/// Fields read from a line of the short form. Only radios without a receive tone and a receive code send it;
/// the program never does. Identical to the long form up to position 42.
inline constexpr AnalogField ShortAnalogForm[] = {
    {0, 3, NumberPart},
    {4, 9, DescriptionPart},
    {14, 8, RxFrequencyPart},
    {25, 8, TxFrequencyPart},
    {43, 2, TxTonePart},
    {53, 3, TxCodePart},
    {59, 5, ScanPart},
    {64, 0, ModePart},
};
// clang-format on

/// Texts of a line's fields, indexed by AnalogPart.
using AnalogTexts = std::array<wxString, AnalogPartTotal>;

/// Cell texts of a memory row taken from a line, in the form that pages hold. The caller looks up the number
/// and, on a module, the band. A missing or incomplete field has no value: its remains could pass for a tone,
/// code or frequency that the radio never had.
struct AnalogCells {
    std::optional<wxString> rxFrequency, txFrequency, rxTone, txTone, rxCode, txCode;
    wxString description, scan, mode;
};

/// Returns a frequency in MHz in the form of the line: three digits, point, four digits. Further decimals are
/// cut off. "000.0000" for a text that doesn't fit this form. Always 8 characters.
wxString PadFrequency(const wxString& text);

/// Returns the scan text, 5 characters, of a SCAN cell, whose decimal number is a bit mask with list 1 in bit
/// 0. "LOCK " for 0 and for numbers outside 0 to 31.
wxString ScanMaskToText(const wxString& text);

/// Returns the decimal number, 0 to 31, of a scan text. Missing characters count as clear.
wxString ScanTextToNumber(const wxString& text);

/// Returns the tone number of a tone cell's text in the form of the line: the position in ToneList as two
/// decimal digits, 64 for no tone and for a text not in the list.
wxString ToneToText(const wxString& tone);

/// Returns the tone cell's text of a decimal tone number; empty outside ToneList.
wxString TextToTone(const wxString& number);

/// Returns a DPL code cell's text in the form of the line: three characters, "000" for no code and for a text
/// of any other length.
wxString CodeToText(const wxString& code);

/// Returns the code cell's text of a line's three characters, on pages of that radio type. "OFF" for "000",
/// for an empty text and for a code not in CodeList.
wxString TextToCode(const wxString& text, int type);

/// Returns a description in the form of the line, 9 characters: blanks at both ends removed, then padded with
/// blanks or cut off.
wxString DescriptionToText(const wxString& description);

/// Returns a MODE cell's text in the form of the line. Anything except the two modes and no mode is returned
/// unchanged.
wxString ModeToText(const wxString& mode);

/// Appends to out the fields after the number and its blank, in the long form. The beginning of out decides
/// whether the line is a guard's.
void AppendAnalogFields(const AnalogTexts& texts, wxString& out);

/// Returns the text with the parity bit, bit 7, of each character cleared.
wxString ClearParity(const wxString& text);

/// Returns a text of the same length with a blank for each character that isn't printable ASCII.
wxString PrintableText(const wxString& text);

/// Returns a received line as plain text, whether or not its parity bits have been cleared before:
/// PrintableText of ClearParity.
wxString StripParity(const wxString& line);

/// True if the line has a complete number field: three characters and the blank after them.
bool HasAnalogNumber(const wxString& line);

/// True for a line of the short form. A line that ends before the forms differ counts as one of the long
/// form.
bool IsShortAnalogForm(const wxString& line);

/// Returns the field texts of a received line. An incomplete field is empty, except the description, which
/// keeps the characters received. The mode field is the rest of the line; without a complete scan field it
/// begins where the scan field would.
AnalogTexts SplitAnalogLine(const wxString& line);

/// Returns the cells for the field texts of a line, of the short form or not, on a page of that radio type.
AnalogCells ReadAnalogTexts(const AnalogTexts& texts, bool isShort, int type);

/// Returns the cells for a received line, without parity bits, on a page of that radio type.
AnalogCells ReadAnalogLine(const wxString& line, int type);
