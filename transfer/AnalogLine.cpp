#include "transfer/AnalogLine.h"

#include "catalogue/RadioCatalogue.h"
#include "catalogue/TextNumbers.h"

#include <algorithm>

using namespace RadioCatalogue;

namespace {

constexpr int MegahertzDigits = 3;
constexpr int FractionDigits = 4;
constexpr int ScanWidth = 5;
constexpr int HighestScanMask = 31;
constexpr int NoTone = 64; // the second "OFF" of ToneList
constexpr size_t NumberWidth = 3;
constexpr size_t FormMark = 45; // position at which the forms differ

bool IsDigits(const wxString& text) {
    return std::all_of(text.begin(), text.end(), [](wxUniChar c) { return c >= '0' && c <= '9'; });
}

/// Replaces "OFF" and "n/a" with a code that sets nothing.
wxString NothingAsZeros(const wxString& text) {
    return text == "OFF" || text == "n/a" ? wxString("000") : text;
}

/// Lines have three digits before the point, cells only as many as needed.
wxString WithoutLeadingZero(const wxString& frequency) {
    return frequency.StartsWith("0") ? frequency.Mid(1) : frequency;
}

/// Returns a field's cell text; no value for a field that the line cut short.
template <typename Reader>
std::optional<wxString> IfWhole(const wxString& field, Reader read) {
    return field.empty() ? std::nullopt : std::optional<wxString>(read(field));
}

/// The module uses either a tone or codes.
bool SetsNoCodes(const wxString& txTone) {
    // Intentional: 64, which is no tone, leaves out the codes as well.
    return ReadDecimal(txTone) >= 1 && ReadDecimal(txTone) <= NoTone;
}

std::span<const AnalogField> FormOf(const wxString& line) {
    if (IsShortAnalogForm(line))
        return ShortAnalogForm;
    return LongAnalogForm;
}

} // namespace

wxString PadFrequency(const wxString& text) {
    wxString megahertz = text.BeforeFirst('.');
    wxString fraction = text.AfterFirst('.').Left(FractionDigits);
    if (megahertz.length() < MegahertzDigits && !text.empty())
        megahertz.Pad(MegahertzDigits - megahertz.length(), '0', false);
    fraction.Pad(FractionDigits - fraction.length(), '0');
    // The columns of the line must keep their positions, whatever a cell contains.
    if (megahertz.length() != MegahertzDigits || !IsDigits(megahertz) || !IsDigits(fraction))
        return "000.0000";
    return megahertz + "." + fraction;
}

wxString ScanMaskToText(const wxString& text) {
    const int mask = ReadDecimal(text);
    if (mask < 1 || mask > HighestScanMask)
        return "LOCK ";
    wxString lists;
    for (int list = 0; list < ScanWidth; ++list)
        lists += static_cast<char>(mask & (1 << list) ? '1' + list : '_');
    return lists;
}

wxString ScanTextToNumber(const wxString& text) {
    int mask = 0;
    if (!text.Contains("LOCK"))
        for (int list = 0; list < ScanWidth; ++list)
            if (text.Mid(static_cast<size_t>(list), 1) == wxUniChar('1' + list))
                mask |= 1 << list;
    return wxString::Format("%d", mask);
}

wxString ToneToText(const wxString& tone) {
    const int index = GetToneIndex(NothingAsZeros(tone));
    return wxString::Format("%02d", index < 1 ? NoTone : index);
}

wxString TextToTone(const wxString& number) {
    return GetToneText(ReadDecimal(number));
}

wxString CodeToText(const wxString& code) {
    const wxString text = NothingAsZeros(code);
    return text.length() == 3 ? PrintableText(text) : wxString("000");
}

wxString TextToCode(const wxString& text, int type) {
    if (text.empty() || text == "000")
        return "OFF";
    return GetCodeText(std::max(CodeIndexForType(text, type), 0), type);
}

wxString DescriptionToText(const wxString& description) {
    const wxString text = PrintableText(description).Trim(true).Trim(false);
    return (text + wxString(' ', 9)).Left(9);
}

wxString ModeToText(const wxString& mode) {
    if (mode.empty() || mode == "n" || mode == "n/a")
        return "N";
    return mode == "w" ? wxString("W") : mode;
}

void AppendAnalogFields(const AnalogTexts& texts, wxString& out) {
    for (const AnalogField& field : std::span(LongAnalogForm).subspan(2)) {
        // Intentional: guards are sent under their numbers, so no line begins with "G"; the test stays
        // nevertheless.
        if (field.notOnGuards && out.StartsWith("G"))
            continue;
        out += field.part == LiteralPart ? wxString(field.literal) : texts[field.part];
    }
}

wxString ClearParity(const wxString& text) {
    wxString plain;
    plain.reserve(text.length());
    for (wxUniChar c : text)
        plain += static_cast<char>(c.GetValue() & 0x7F);
    return plain;
}

wxString PrintableText(const wxString& text) {
    wxString printable;
    printable.reserve(text.length());
    for (wxUniChar c : text)
        printable += c >= ' ' && c <= '~' ? c : wxUniChar(' ');
    return printable;
}

wxString StripParity(const wxString& line) {
    return PrintableText(ClearParity(line));
}

bool HasAnalogNumber(const wxString& line) {
    return line.Mid(NumberWidth, 1) == " ";
}

bool IsShortAnalogForm(const wxString& line) {
    return line.length() > FormMark && line[FormMark] != 'R';
}

AnalogTexts SplitAnalogLine(const wxString& line) {
    AnalogTexts texts;
    size_t restPosition = 0;
    for (const AnalogField& field : FormOf(line)) {
        const size_t position = static_cast<size_t>(field.position);
        const size_t width = static_cast<size_t>(field.width);
        const bool whole = line.length() >= position + width;
        if (field.part == ScanPart)
            restPosition = whole ? position + width : position;
        if (field.part == ModePart)
            texts[ModePart] = line.Mid(restPosition);
        else if (field.part != LiteralPart && (whole || field.part == DescriptionPart))
            texts[field.part] = line.Mid(position, width);
    }
    return texts;
}

AnalogCells ReadAnalogTexts(const AnalogTexts& texts, bool isShort, int type) {
    AnalogCells cells;
    cells.description = texts[DescriptionPart];
    cells.rxFrequency = IfWhole(texts[RxFrequencyPart], WithoutLeadingZero);
    cells.txFrequency = IfWhole(texts[TxFrequencyPart], WithoutLeadingZero);
    cells.txTone = IfWhole(texts[TxTonePart], TextToTone);
    cells.rxTone = isShort ? "n/a" : IfWhole(texts[RxTonePart], TextToTone);
    const auto code = [type](const wxString& text) { return TextToCode(text, type); };
    if (!isShort && type == MDLX && SetsNoCodes(texts[TxTonePart])) {
        cells.rxCode = cells.txCode = "OFF";
    } else {
        cells.rxCode = isShort ? "n/a" : IfWhole(texts[RxCodePart], code);
        cells.txCode = IfWhole(texts[TxCodePart], code);
    }
    cells.scan = ScanTextToNumber(texts[ScanPart]);
    cells.mode = texts[ModePart].Contains("N") ? "n" : "w";
    return cells;
}

AnalogCells ReadAnalogLine(const wxString& line, int type) {
    return ReadAnalogTexts(SplitAnalogLine(line), IsShortAnalogForm(line), type);
}
