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
constexpr std::size_t FormMark = 45;

bool IsDigits(const wxString& text) {
    return std::all_of(text.begin(), text.end(), [](wxUniChar c) { return c >= '0' && c <= '9'; });
}

wxString Printable(const wxString& text) {
    wxString printable;
    printable.reserve(text.length());
    for (wxUniChar c : text)
        printable += c >= ' ' && c <= '~' ? c : wxUniChar(' ');
    return printable;
}

/// "OFF" and "n/a" read as a code that sets nothing.
wxString NothingAsZeros(const wxString& text) {
    return text == "OFF" || text == "n/a" ? wxString("000") : text;
}

/// Lines have three digits before the point, cells no more than needed.
wxString WithoutLeadingZero(const wxString& frequency) {
    return frequency.StartsWith("0") ? frequency.Mid(1) : frequency;
}

} // namespace

wxString PadFrequency(const wxString& text) {
    wxString megahertz = text.BeforeFirst('.');
    wxString fraction = text.AfterFirst('.').Left(FractionDigits);
    if (megahertz.length() < MegahertzDigits && !text.empty())
        megahertz.Pad(MegahertzDigits - megahertz.length(), '0', false);
    fraction.Pad(FractionDigits - fraction.length(), '0');
    // The columns of the line must hold, whatever a cell says.
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
            if (text.Mid(list, 1) == wxUniChar('1' + list))
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
    return text.length() == 3 ? Printable(text) : wxString("000");
}

wxString TextToCode(const wxString& text, int type) {
    if (text.empty() || text == "000")
        return "OFF";
    return GetCodeText(std::max(GetCodeIndex(text, type), 0), type);
}

wxString DescriptionToText(const wxString& description) {
    const wxString text = Printable(description).Trim(true).Trim(false);
    return (text + wxString(' ', 9)).Left(9);
}

wxString ModeToText(const wxString& mode) {
    if (mode.empty() || mode == "n" || mode == "n/a")
        return "N";
    return mode == "w" ? wxString("W") : mode;
}

void AppendAnalogFields(const AnalogTexts& texts, wxString& out) {
    for (const AnalogField& field : std::span(LongAnalogForm).subspan(2)) {
        // Guards go out under their numbers, so no line begins with their letter; the test is meant to stay.
        if (field.notOnGuards && out.StartsWith("G"))
            continue;
        out += field.part == LiteralPart ? wxString(field.literal) : texts[field.part];
    }
}

wxString StripParity(const wxString& line) {
    wxString plain;
    plain.reserve(line.length());
    for (wxUniChar c : line)
        plain += static_cast<char>(c.GetValue() & 0x7F);
    return Printable(plain);
}

bool IsShortAnalogForm(const wxString& line) {
    return line.Mid(FormMark, 1) != "R";
}

AnalogTexts SplitAnalogLine(const wxString& line) {
    AnalogTexts texts;
    const std::span<const AnalogField> form = IsShortAnalogForm(line)
                                                  ? std::span<const AnalogField>(ShortAnalogForm)
                                                  : std::span<const AnalogField>(LongAnalogForm);
    std::size_t scanPosition = 0;
    bool hasScan = false;
    for (const AnalogField& field : form) {
        const std::size_t position = static_cast<std::size_t>(field.position);
        if (field.part == ScanPart) {
            scanPosition = position;
            hasScan = line.length() >= position + ScanWidth;
        }
        if (field.part == ModePart)
            texts[ModePart] = line.Mid(hasScan ? position : scanPosition);
        else if (field.part != LiteralPart && (field.part != ScanPart || hasScan))
            texts[field.part] = line.Mid(position, static_cast<std::size_t>(field.width));
    }
    return texts;
}

AnalogCells ReadAnalogLine(const wxString& line, int type) {
    const AnalogTexts texts = SplitAnalogLine(line);
    AnalogCells cells;
    cells.description = texts[DescriptionPart];
    cells.rxFrequency = WithoutLeadingZero(texts[RxFrequencyPart]);
    cells.txFrequency = WithoutLeadingZero(texts[TxFrequencyPart]);
    cells.txTone = TextToTone(texts[TxTonePart]);
    const int txTone = ReadDecimal(texts[TxTonePart]);
    if (IsShortAnalogForm(line)) {
        cells.rxTone = cells.rxCode = "n/a";
        cells.txCode = TextToCode(texts[TxCodePart], type);
    } else if (type == MDLX && txTone >= 1 && txTone <= NoTone) {
        // The module has tone or code; 64, which is no tone, is meant to leave out the codes as well.
        cells.rxTone = TextToTone(texts[RxTonePart]);
        cells.rxCode = cells.txCode = "OFF";
    } else {
        cells.rxTone = TextToTone(texts[RxTonePart]);
        cells.rxCode = TextToCode(texts[RxCodePart], type);
        cells.txCode = TextToCode(texts[TxCodePart], type);
    }
    cells.scan = ScanTextToNumber(texts[ScanPart]);
    cells.mode = texts[ModePart].Contains("N") ? "n" : "w";
    return cells;
}
