#include "transfer/TRecordFields.h"

#include "catalogue/RadioCatalogue.h"
#include "catalogue/TextNumbers.h"
#include "transfer/AnalogLine.h"
#include "transfer/HexText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

using namespace RadioCatalogue;

namespace {

constexpr size_t DescriptionLength = 8, FrequencyLength = 8, HertzTextLength = 9;
constexpr int MegahertzDecimals = 6;
constexpr int LowFlags = 0xFF & ~GuardFlag, HighFlagsShift = 8;
constexpr int ZoneShift = 4;
constexpr int NacMask = 0xFFF, SquelchShift = 12;
constexpr int NoSquelchValue = 0x0A;

// Cells and lines are read in place, and digits are written into one buffer: a string for each field would
// take most of the time of a record.

std::wstring_view CharactersOf(const wxString& text) {
    return text.ToStdWstring();
}

wxString TextOf(std::wstring_view characters) {
    return wxString(characters.data(), characters.length());
}

std::wstring_view Trimmed(std::wstring_view text) {
    const auto isBlank = [](wchar_t c) { return c == L' ' || (c >= L'\t' && c <= L'\r'); };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

wchar_t ShownCharacter(wchar_t c) {
    return c >= L' ' && c <= L'~' ? c : L' ';
}

// ---- To the radio ----

/// Returns a frequency in MHz as hertz: its digits read as one number and filled up to six decimals. Without
/// a point the number is already in hertz; decimals after the sixth stay digits of the number.
uint32_t FrequencyToHertz(const wxString& cell) {
    const std::wstring_view text = Trimmed(CharactersOf(cell));
    if (std::none_of(text.begin(), text.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; }))
        return 0;
    uint32_t number = 0;
    for (const wchar_t c : text)
        if (c != L'.')
            number = number * 10 + (static_cast<uint32_t>(c) - L'0');
    if (const size_t point = text.find(L'.'); point != text.npos)
        for (size_t decimals = text.length() - point - 1; decimals < MegahertzDecimals; ++decimals)
            number *= 10;
    return number;
}

/// Returns the position of a zone plus 1, or 0 if pages of that radio type have no such zone.
int ZoneValue(const wxString& cell, int type) {
    return ZoneNames(type).Index(cell) + 1;
}

int ZoneBits(int zoneValue) {
    return zoneValue == 0 ? 0 : (zoneValue - 1) << ZoneShift;
}

/// Returns a row's number for V1, where the guard rows follow the last memory of the first generation.
int GuardNumber(int number, int row) {
    return number - (row > NP25Memories ? NP25GuardShift : 0);
}

int PrimaryOf(const TRecordSource& source) {
    return PrimaryNumber(source.cells[MFLG], source.cells[SHAD], source.cells[PRIM]);
}

int FlagsOf(const TRecordSource& source) {
    return FlagsToSend(source.cells[MFLG], source.cells[SCAN], source.type);
}

/// Writes the fields of a row into its line.
class Writer {
public:
    Writer(const TRecordSource& source, size_t length) : m_source(source), m_line(length, L'0') {}

    wxString Line() const { return TextOf(m_line); }

    void Put(const TRecordField& field) {
        if (field.kind == TRecordKind::Literal)
            return PutLiteral(field);
        if (field.kind == TRecordKind::Shadows)
            // Intentional: the field stays zero. A radio learns the links from the shadows' own records.
            return;

        const wxString& cell = m_source.cells[field.column];
        const auto number = [&](int64_t value) {
            WriteHex(&m_line[field.position], field.width, static_cast<uint32_t>(value));
        };
        switch (field.kind) {
        case TRecordKind::Literal:
        case TRecordKind::Shadows:
            break;
        case TRecordKind::GuardAddress:
        case TRecordKind::GuardNumber:
            return number(GuardNumber(ReadDecimal(cell), m_source.row));
        case TRecordKind::GuardPrimary:
            return number(GuardNumber(PrimaryOf(m_source), m_source.row));
        case TRecordKind::Primary:
            return number(PrimaryOf(m_source));
        case TRecordKind::RowAddress:
            return number(m_source.row);
        case TRecordKind::FlagsLow:
            return number((FlagsOf(m_source) & LowFlags) |
                          (m_source.row >= m_source.gridRows - GuardRowTotal ? GuardFlag : 0));
        case TRecordKind::FlagsHigh:
            return number((FlagsOf(m_source) & HighRadioFlags) >> HighFlagsShift);
        case TRecordKind::Decimal:
        case TRecordKind::UnitId:
        case TRecordKind::PaddedUnitId:
            return number(ReadDecimal(cell));
        case TRecordKind::ZoneByte:
            // Intentional: V1 has its guard memories in the last zone, regardless of ZONE.
            return number(
                ZoneBits(m_source.row > NP25Memories ? RP25GuardZone + 1 : ZoneValue(cell, m_source.type)));
        case TRecordKind::ZoneWord:
            return number(ZoneBits(ZoneValue(cell, m_source.type)));
        case TRecordKind::Description:
            return PutCharacters(field, Trimmed(CharactersOf(cell)));
        case TRecordKind::Letter:
            return PutCharacters(field, CharactersOf(cell.empty() ? m_source.defaults[field.column] : cell));
        case TRecordKind::FrequencyText:
            return PutFrequency(field, Trimmed(CharactersOf(cell)));
        case TRecordKind::FrequencyHertz:
            return number(FrequencyToHertz(cell));
        case TRecordKind::Tone:
            return number(GetCtcssIndex(cell) + 1);
        case TRecordKind::PlainCode:
            return number(CodeIndexForType(cell, m_source.type));
        case TRecordKind::Code:
            return number(CodeIndexForType(cell, m_source.type) + 1);
        case TRecordKind::Flags:
            return number(FlagsOf(m_source));
        case TRecordKind::TalkGroup:
        case TRecordKind::Nac:
            return number(ReadHex(cell));
        case TRecordKind::MaskedNac:
            return number(ReadHex(cell) & NacMask);
        case TRecordKind::SquelchNac:
            return number(static_cast<int64_t>(ReadDecimal(m_source.cells[RNSV])) << SquelchShift |
                          ReadHex(cell));
        case TRecordKind::SquelchByte:
            return number(m_source.type == NP25 ? ReadDecimal(cell) : NoSquelchValue);
        }
    }

private:
    void PutLiteral(const TRecordField& field) {
        std::copy_n(field.literal, field.width, m_line.begin() + static_cast<ptrdiff_t>(field.position));
    }

    /// Writes each character as two digits. Cuts the text, or fills it with blanks, to the field's width.
    void PutCharacters(const TRecordField& field, std::wstring_view text) {
        for (size_t i = 0; i < field.width / 2; ++i) {
            const wchar_t c = i < text.length() ? ShownCharacter(text[i]) : L' ';
            WriteHex(&m_line[field.position + 2 * i], 2, static_cast<uint32_t>(c));
        }
    }

    void PutFrequency(const TRecordField& field, std::wstring_view text) {
        if (text.length() >= field.width / 2)
            return PutCharacters(field, text);
        const wxString padded = PadFrequency(TextOf(text));
        PutCharacters(field, CharactersOf(padded));
    }

    const TRecordSource& m_source;
    std::wstring m_line;
};

// ---- From the radio ----

/// The characters encoded in the pairs of digits from a position on.
template <size_t count>
class Characters {
public:
    Characters(std::wstring_view line, size_t position) {
        for (size_t i = 0; i < count; ++i)
            m_text[i] = ShownCharacter(static_cast<wchar_t>(HexNumberAt(line, position + 2 * i, 2)));
    }
    std::wstring_view Text() const { return {m_text.data(), count}; }

private:
    std::array<wchar_t, count> m_text;
};

/// Intentional: cut to nine characters, so that a frequency below 100 MHz has one decimal more than others.
wxString HertzToFrequency(uint32_t hertz) {
    wxString text = DecimalText(hertz, MegahertzDecimals + 1);
    text.insert(text.length() - MegahertzDecimals, 1, '.');
    return text.Left(HertzTextLength);
}

/// Returns an entry of a list, or null if the position is outside of it.
const wxString* EntryAt(const wxArrayString& list, int64_t position) {
    if (position < 0 || position >= static_cast<int64_t>(list.size()))
        return nullptr;
    return &list[static_cast<size_t>(position)];
}

/// Reads the fields of one line, in their order, into values.
class Reader {
public:
    Reader(const wxString& line, int radio, int type)
        : m_line(CharactersOf(line)), m_radio(radio), m_type(type) {
        values.cells.reserve(ColumnTotal);
    }

    TRecordValues values;

    void Take(const TRecordField& field) {
        const uint32_t number = field.width <= 8 ? HexNumberAt(m_line, field.position, field.width) : 0;
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
            Add(field.column, DecimalText(number));
            break;
        case TRecordKind::Decimal:
            Add(field.column, DecimalText(number));
            break;
        case TRecordKind::ZoneByte:
        case TRecordKind::ZoneWord:
            AddZone(field.column, EntryAt(ZoneNames(m_type), number >> ZoneShift));
            break;
        case TRecordKind::Description:
            Add(field.column, TextOf(Trimmed(Characters<DescriptionLength>(m_line, field.position).Text())));
            break;
        case TRecordKind::Letter:
            Add(field.column, TextOf(Characters<1>(m_line, field.position).Text()));
            break;
        case TRecordKind::FrequencyText:
            Add(field.column, TextOf(Characters<FrequencyLength>(m_line, field.position).Text()));
            break;
        case TRecordKind::FrequencyHertz:
            Add(field.column, HertzToFrequency(number));
            break;
        case TRecordKind::Tone:
            AddEntry(field.column, EntryAt(CtcssList, static_cast<int64_t>(number) - 1));
            break;
        case TRecordKind::PlainCode:
        case TRecordKind::Code:
            // Intentional: a code that was sent with 1 added is read back one place further down the list.
            AddEntry(field.column, EntryAt(CodeList, static_cast<int64_t>(number) + 1));
            break;
        case TRecordKind::TalkGroup:
            Add(field.column, HexadecimalText(number, 4));
            break;
        case TRecordKind::MaskedNac:
        case TRecordKind::Nac:
            Add(field.column, HexadecimalText(number, 3));
            break;
        case TRecordKind::SquelchNac:
            Add(RNSV, DecimalText(number >> SquelchShift));
            Add(field.column, HexadecimalText(number & NacMask, 3));
            break;
        case TRecordKind::UnitId:
            Add(field.column, DecimalText(number));
            break;
        case TRecordKind::PaddedUnitId:
            Add(field.column, DecimalText(number, 7));
            break;
        case TRecordKind::Shadows:
            TakeShadows(field);
            break;
        case TRecordKind::SquelchByte:
            AddSquelchValue(field.column, number & 0x0F);
            break;
        }
    }

private:
    /// Adds a cell and moves the text into it.
    void Add(Column column, wxString text) {
        values.cells.push_back({column, std::make_optional<wxString>()});
        values.cells.back().text->swap(text);
    }

    void AddEntry(Column column, const wxString* entry) {
        values.cells.push_back({column, std::nullopt});
        if (entry)
            values.cells.back().text = *entry;
    }

    void AddZone(Column column, const wxString* name) { Add(column, name ? *name : wxString()); }

    /// Intentional: a value of one digit gets a leading blank.
    void AddSquelchValue(Column column, uint32_t value) {
        Add(column, (value < 10 ? " " : "") + DecimalText(value));
    }

    void TakeShadows(const TRecordField& field) {
        constexpr size_t count = SHD6 - SHD0 + 1;
        const size_t width = field.width / count;
        for (size_t i = 0; i < count; ++i) {
            const uint32_t number = HexNumberAt(m_line, field.position + i * width, width);
            values.shadows += number != 0;
            Add(static_cast<Column>(SHD0 + i), DecimalText(number));
        }
    }

    std::wstring_view m_line;
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
    Writer writer(source, layout.back().position + layout.back().width);
    for (const TRecordField& field : layout)
        writer.Put(field);
    return writer.Line();
}

TRecordValues ReadTRecord(std::span<const TRecordField> layout, const wxString& line, int radio, int type) {
    Reader reader(line, radio, type);
    for (const TRecordField& field : layout)
        reader.Take(field);
    return reader.values;
}
