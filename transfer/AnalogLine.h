// The fixed-column text line of one analog channel, and what its fields mean, apart from any grid.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <wx/string.h>

/// What a field of the line holds. The first ten are contents of the channel.
enum AnalogPart : int {
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

/// One field of a line. Positions and widths count characters, positions from 0; width 0 reaches to the
/// line's end.
struct AnalogField {
    int position;
    int width;
    AnalogPart part;
    const char* literal = ""; ///< the text of a LiteralPart
    bool notOnGuards = false; ///< left out of a line that begins with the name of a guard
};

// clang-format off
/// The line as the program sends it, and as most radios do.
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

/// What is read from a line of the short form, which only radios send: those without a receive tone and a
/// receive code. Up to position 42 it is the long form.
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

/// The texts of a line's fields, by AnalogPart.
using AnalogTexts = std::array<wxString, AnalogPartTotal>;

/// The cells of a memory row that a line tells, as pages hold them. The number and, on a module, the band
/// are looked up by the caller. No value stands for a field that the line doesn't hold whole: what came of it
/// could pass for a tone, a code or a frequency that the radio never had.
struct AnalogCells {
    std::optional<wxString> rxFrequency, txFrequency, rxTone, txTone, rxCode, txCode;
    wxString description, scan, mode;
};

/// A frequency in MHz as the line has it: three digits, point, four digits. More decimals than four are
/// cut; a text that can't be brought to that form gives "000.0000". Always 8 characters.
wxString PadFrequency(const wxString& text);

/// The scan text, 5 characters, of a SCAN cell: its decimal number read as bits, list 1 in bit 0. "LOCK "
/// for 0 and for numbers outside 0 to 31.
wxString ScanMaskToText(const wxString& text);

/// The decimal number, 0 to 31, of a scan text. Characters that it lacks count as clear.
wxString ScanTextToNumber(const wxString& text);

/// The number of a tone cell's text as the line has it: the position in ToneList in two decimal digits,
/// 64 for no tone and for a text that the list lacks.
wxString ToneToText(const wxString& tone);

/// The tone cell's text of a tone number, decimal; empty past the ends of ToneList.
wxString TextToTone(const wxString& number);

/// A DPL code cell's text as the line has it: three characters, "000" for no code and for a text of any
/// other length.
wxString CodeToText(const wxString& code);

/// The code cell's text of the three characters of a line, on pages of that radio type. "OFF" for "000",
/// for an empty text and for a code that CodeList lacks.
wxString TextToCode(const wxString& text, int type);

/// A description as the line has it, 9 characters: blanks at both ends dropped, padded with blanks or cut.
wxString DescriptionToText(const wxString& description);

/// A MODE cell's text as the line has it. Anything but the two modes and no mode goes out as it stands.
wxString ModeToText(const wxString& mode);

/// Appends to out the fields behind the number and its blank, in the long form. What out begins with says
/// whether the line is a guard's.
void AppendAnalogFields(const AnalogTexts& texts, wxString& out);

/// A text without the parity bit, bit 7, of each character.
wxString ClearParity(const wxString& text);

/// A text of the same length with a blank for each character that can't be printed in ASCII.
wxString PrintableText(const wxString& text);

/// A received line as plain text, whether or not its parity bits have been cleared before: PrintableText of
/// ClearParity.
wxString StripParity(const wxString& line);

/// True if the line holds a number field whole: three characters and the blank behind them.
bool HasAnalogNumber(const wxString& line);

/// True for a line of the short form. A line that ends before the forms part counts as one of the long form.
bool IsShortAnalogForm(const wxString& line);

/// The field texts of a received line. A field that the line doesn't hold whole is empty, but the
/// description, which stands as far as it came. The mode field is the rest of the line; without a whole scan
/// field it begins where that would.
AnalogTexts SplitAnalogLine(const wxString& line);

/// The cells of the field texts of a line, of the short form or not, on a page of that radio type.
AnalogCells ReadAnalogTexts(const AnalogTexts& texts, bool isShort, int type);

/// The cells of a received line, without parity bits, on a page of that radio type.
AnalogCells ReadAnalogLine(const wxString& line, int type);
