#include "transfer/TRecordFields.h"

#include "catalogue/RadioCatalogue.h"
#include "catalogue/TextNumbers.h"
#include "transfer/AnalogLine.h"
#include "transfer/HexText.h"
#include "transfer/TRecord.h"

#include <algorithm>
#include <cstdint>

using namespace RadioCatalogue;

namespace {

constexpr size_t DescriptionLength = 8, FrequencyLength = 8, HertzTextLength = 9;
constexpr int MegahertzDecimals = 6;
constexpr std::uint32_t Megahertz = 1'000'000;
constexpr int LowFlags = 0xFF & ~GuardFlag, HighFlagsShift = 8;
constexpr int ZoneShift = 4;
constexpr int NacMask = 0xFFF, SquelchShift = 12;
constexpr int NoSquelchValue = 0x0A;

// ---- To the radio ----

wxString Trimmed(const wxString& text) {
    return wxString(text).Trim(true).Trim(false);
}

wxUniChar ShownCharacter(wxUniChar c) {
    return c >= ' ' && c <= '~' ? c : wxUniChar(' ');
}

/// Each character as two hexadecimal digits.
wxString CharactersToHex(const wxString& text) {
    wxString hex;
    for (const wxUniChar c : text)
        hex += HexField(ShownCharacter(c).GetValue(), 2);
    return hex;
}

wxString DescriptionToHex(const wxString& cell) {
    return CharactersToHex((Trimmed(cell) + wxString(' ', DescriptionLength)).Left(DescriptionLength));
}

wxString LetterToHex(const wxString& cell, const wxString& defaultCell) {
    const wxString& text = cell.empty() ? defaultCell : cell;
    return CharactersToHex(text.empty() ? wxString(" ") : text.Left(1));
}

wxString FrequencyToHex(const wxString& cell) {
    const wxString text = Trimmed(cell);
    return CharactersToHex(text.length() < FrequencyLength ? PadFrequency(text) : text.Left(FrequencyLength));
}

/// Hertz of a frequency in MHz: its digits read as one number and brought to six decimals. Without a point
/// the number is hertz already; more decimals than six count as they stand.
std::uint32_t FrequencyToHertz(const wxString& cell) {
    const wxString text = Trimmed(cell);
    const auto isDigit = [](wxUniChar c) { return c >= '0' && c <= '9'; };
    if (std::none_of(text.begin(), text.end(), isDigit))
        return 0;
    std::uint32_t number = 0;
    for (const wxUniChar c : text)
        if (c != '.')
            number = number * 10 + (c.GetValue() - '0');
    if (const int point = text.Find('.'); point != wxNOT_FOUND)
        for (int i = point - static_cast<int>(text.length()) + MegahertzDecimals + 1; i > 0; --i)
            number *= 10;
    return number;
}

/// Position of a zone plus 1, 0 for a text that is no zone of pages of that radio type.
int ZoneValue(const wxString& cell, int type) {
    return ZoneNames(type).Index(cell) + 1;
}

int ZoneBits(int zoneValue) {
    return zoneValue == 0 ? 0 : (zoneValue - 1) << ZoneShift;
}

/// A number of a row as V1 knows it, where the guard rows follow the last memory of the first generation.
int GuardNumber(int number, int row) {
    return number - (row > NP25Memories ? NP25GuardShift : 0);
}

int PrimaryOf(const TRecordSource& source) {
    return PrimaryNumber(source.cells[MFLG], source.cells[SHAD], source.cells[PRIM]);
}

int FlagsOf(const TRecordSource& source) {
    return FlagsToSend(source.cells[MFLG], source.cells[SCAN], source.type);
}

wxString FieldText(const TRecordField& field, const TRecordSource& source) {
    if (field.kind == TRecordKind::Literal)
        return field.literal;
    if (field.kind == TRecordKind::Shadows)
        // Meant: a radio learns the links from the shadows' own records.
        return wxString('0', field.width);

    const wxString& cell = source.cells[field.column];
    const auto number = [&field](std::int64_t value) { return HexField(value, field.width); };
    switch (field.kind) {
    case TRecordKind::Literal:
    case TRecordKind::Shadows:
        break;
    case TRecordKind::GuardAddress:
    case TRecordKind::GuardNumber:
        return number(GuardNumber(ReadDecimal(cell), source.row));
    case TRecordKind::GuardPrimary:
        return number(GuardNumber(PrimaryOf(source), source.row));
    case TRecordKind::Primary:
        return number(PrimaryOf(source));
    case TRecordKind::RowAddress:
        return number(source.row);
    case TRecordKind::FlagsLow:
        return number((FlagsOf(source) & LowFlags) |
                      (source.row >= source.gridRows - GuardRowTotal ? GuardFlag : 0));
    case TRecordKind::FlagsHigh:
        return number((FlagsOf(source) & HighRadioFlags) >> HighFlagsShift);
    case TRecordKind::Decimal:
    case TRecordKind::UnitId:
    case TRecordKind::PaddedUnitId:
        return number(ReadDecimal(cell));
    case TRecordKind::ZoneByte:
        // Meant: V1 has its guard memories in the last zone, whatever their ZONE.
        return number(ZoneBits(source.row > NP25Memories ? RP25GuardZone + 1 : ZoneValue(cell, source.type)));
    case TRecordKind::ZoneWord:
        return number(ZoneBits(ZoneValue(cell, source.type)));
    case TRecordKind::Description:
        return DescriptionToHex(cell);
    case TRecordKind::Letter:
        return LetterToHex(cell, source.defaults[field.column]);
    case TRecordKind::FrequencyText:
        return FrequencyToHex(cell);
    case TRecordKind::FrequencyHertz:
        return number(FrequencyToHertz(cell));
    case TRecordKind::Tone:
        return number(GetCtcssIndex(cell) + 1);
    case TRecordKind::PlainCode:
        return number(GetCodeIndex(cell, source.type));
    case TRecordKind::Code:
        return number(GetCodeIndex(cell, source.type) + 1);
    case TRecordKind::Flags:
        return number(FlagsOf(source));
    case TRecordKind::TalkGroup:
    case TRecordKind::Nac:
        return number(ReadHex(cell));
    case TRecordKind::MaskedNac:
        return number(ReadHex(cell) & NacMask);
    case TRecordKind::SquelchNac:
        return number(static_cast<std::int64_t>(ReadDecimal(source.cells[RNSV])) << SquelchShift |
                      ReadHex(cell));
    case TRecordKind::SquelchByte:
        return number(source.type == NP25 ? ReadDecimal(cell) : NoSquelchValue);
    }
    return {};
}

// ---- From the radio ----

wxString HexToCharacters(const wxString& line, size_t position, size_t count) {
    wxString text;
    for (size_t i = 0; i < count; ++i)
        text += ShownCharacter(wxUniChar(HexNumberAt(line, position + 2 * i, 2)));
    return text;
}

/// Meant: cut to nine characters, so that a frequency below 100 MHz has one decimal more than others.
wxString HertzToFrequency(std::uint32_t hertz) {
    return wxString::Format("%u.%06u", hertz / Megahertz, hertz % Megahertz).Left(HertzTextLength);
}

/// The entry of a list at a position that may lie outside it.
std::optional<wxString> EntryAt(const wxArrayString& list, std::int64_t position) {
    if (position < 0 || position >= static_cast<std::int64_t>(list.size()))
        return std::nullopt;
    return list[static_cast<size_t>(position)];
}

/// Takes the fields of one line, in their order, into values.
class Reader {
public:
    Reader(const wxString& line, int radio, int type) : m_line(line), m_radio(radio), m_type(type) {}

    TRecordValues values;

    void Take(const TRecordField& field) {
        const std::uint32_t number = field.width <= 8 ? HexNumberAt(m_line, field.position, field.width) : 0;
        switch (field.kind) {
        case TRecordKind::Literal:
        case TRecordKind::GuardNumber:
            break;
        case TRecordKind::GuardAddress:
            values.row = static_cast<int>(number);
            m_offset = m_radio == Kdrv716B && values.row > RP25Memories ? NP25GuardShift : 0;
            values.row += m_offset;
            Add(field.column, NumberText(values.row));
            break;
        case TRecordKind::RowAddress:
            values.row = static_cast<int>(number);
            break;
        case TRecordKind::FlagsLow:
            values.flags |= static_cast<int>(number) & LowFlags;
            break;
        case TRecordKind::FlagsHigh:
            values.flags |= static_cast<int>(number << HighFlagsShift) & HighRadioFlags;
            break;
        case TRecordKind::Flags:
            values.flags = static_cast<int>(number);
            break;
        case TRecordKind::GuardPrimary:
            values.primary = static_cast<int>(number) + m_offset;
            Add(field.column, NumberText(values.primary));
            break;
        case TRecordKind::Primary:
            values.primary = static_cast<int>(number);
            Add(field.column, wxString::Format("%u", number));
            break;
        case TRecordKind::Decimal:
            Add(field.column, wxString::Format("%u", number));
            break;
        case TRecordKind::ZoneByte:
        case TRecordKind::ZoneWord:
            Add(field.column, EntryAt(ZoneNames(m_type), number >> ZoneShift).value_or(""));
            break;
        case TRecordKind::Description:
            Add(field.column, Trimmed(HexToCharacters(m_line, field.position, DescriptionLength)));
            break;
        case TRecordKind::Letter:
            Add(field.column, HexToCharacters(m_line, field.position, 1));
            break;
        case TRecordKind::FrequencyText:
            Add(field.column, HexToCharacters(m_line, field.position, FrequencyLength));
            break;
        case TRecordKind::FrequencyHertz:
            Add(field.column, HertzToFrequency(number));
            break;
        case TRecordKind::Tone:
            Add(field.column, EntryAt(CtcssList, static_cast<std::int64_t>(number) - 1));
            break;
        case TRecordKind::PlainCode:
        case TRecordKind::Code:
            // Meant: a code that went out with the addition comes back one place further down the list.
            Add(field.column, EntryAt(CodeList, static_cast<std::int64_t>(number) + 1));
            break;
        case TRecordKind::TalkGroup:
            Add(field.column, wxString::Format("%04X", number));
            break;
        case TRecordKind::MaskedNac:
        case TRecordKind::Nac:
            Add(field.column, wxString::Format("%03X", number));
            break;
        case TRecordKind::SquelchNac:
            Add(RNSV, wxString::Format("%u", number >> SquelchShift));
            Add(field.column, wxString::Format("%03X", number & NacMask));
            break;
        case TRecordKind::UnitId:
            Add(field.column, wxString::Format("%u", number));
            break;
        case TRecordKind::PaddedUnitId:
            Add(field.column, wxString::Format("%07u", number));
            break;
        case TRecordKind::Shadows:
            TakeShadows(field);
            break;
        case TRecordKind::SquelchByte:
            // Meant: a value of one digit has a blank before it.
            Add(field.column, wxString::Format("%2u", number & 0x0F));
            break;
        }
    }

private:
    void Add(Column column, const std::optional<wxString>& text) { values.cells.push_back({column, text}); }

    void TakeShadows(const TRecordField& field) {
        constexpr size_t count = SHD6 - SHD0 + 1;
        const size_t width = field.width / count;
        for (size_t i = 0; i < count; ++i) {
            const std::uint32_t number = HexNumberAt(m_line, field.position + i * width, width);
            values.shadows += number != 0;
            Add(static_cast<Column>(SHD0 + i), wxString::Format("%u", number));
        }
    }

    const wxString& m_line;
    int m_radio, m_type;
    int m_offset = 0;
};

} // namespace

int PrimaryNumber(const wxString& flags, const wxString& shad, const wxString& prim) {
    wxString number;
    if ((ReadHex(flags) & ShadowIndexMask) && shad.StartsWith("S-", &number))
        if (const int primary = ReadDecimal(number); primary > 0)
            return primary;
    return ReadDecimal(prim);
}

int FlagsToSend(const wxString& flags, const wxString& scan, int type) {
    const int stored = ReadHex(flags);
    if (!IsP25Type(type) || (stored & LinkFlags))
        return stored;
    return scan == "Y" ? stored | ScanFlag : stored & ~ScanFlag;
}

bool FitsRecordV1(int type, int row) {
    if (type == RP25)
        return row <= RP25Memories + GuardRowTotal;
    return type == NP25 && (row <= RP25Memories || row > NP25Memories);
}

wxString MakeTRecord(std::span<const TRecordField> layout, const TRecordSource& source) {
    wxString line;
    for (const TRecordField& field : layout)
        line += FieldText(field, source);
    return line;
}

TRecordValues ReadTRecord(std::span<const TRecordField> layout, const wxString& line, int radio, int type) {
    Reader reader(line, radio, type);
    for (const TRecordField& field : layout)
        reader.Take(field);
    return reader.values;
}
