// The two layouts of the memory record of the digital radios, field by field, apart from any grid.
#pragma once

#include "catalogue/MemoryRow.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>
#include <wx/arrstr.h>
#include <wx/string.h>

/// What a field holds: how it is made from the cell of its column, and how it comes back.
enum class TRecordKind {
    Literal,       ///< a fixed text; not read
    GuardAddress,  ///< MNUM, of a guard row less 270; read as the grid row
    RowAddress,    ///< the grid row
    FlagsLow,      ///< MFLG bits 0 to 6, and bit 7 to mark the page's last two rows; bit 7 isn't read
    FlagsHigh,     ///< MFLG bits 8 and 9
    Flags,         ///< MFLG, with the scan flag as SCAN tells it, as in FlagsLow
    GuardPrimary,  ///< PrimaryNumber, of a guard row less 270; read as "%03d"
    GuardNumber,   ///< decimal, of a guard row less 270; not read
    Primary,       ///< PrimaryNumber; read as "%d"
    Decimal,       ///< decimal; read as "%d"
    ZoneByte,      ///< position in ZoneNames times 16, F0 for a guard row; the high digit is read
    ZoneWord,      ///< position in ZoneNames times 16
    Description,   ///< 8 characters
    Letter,        ///< one character
    FrequencyText, ///< MHz in 8 characters
    FrequencyHertz,
    Tone,         ///< position in CtcssList plus 1
    PlainCode,    ///< GetCodeIndex; read like Code
    Code,         ///< GetCodeIndex plus 1; read as the place behind it
    TalkGroup,    ///< hexadecimal; read as "%04X"
    MaskedNac,    ///< hexadecimal, 12 bits; read as "%03X"
    Nac,          ///< hexadecimal; read as "%03X"
    SquelchNac,   ///< the digit of RNSV and the three of RNAC
    UnitId,       ///< decimal; read as "%d"
    PaddedUnitId, ///< decimal; read as "%07d"
    Shadows,      ///< SHD0 to SHD6 in equal parts; zeros to the radio, read as "%d"
    SquelchByte,  ///< RNSV, 0x0A on pages without it; the low digit is read as "%2d"
};

/// One field. Positions and widths count characters of the line, positions from 0.
struct TRecordField {
    size_t position;
    size_t width;
    TRecordKind kind;
    Column column = ColumnTotal; ///< the cell, or the first of the cells, that the field carries
    const char* literal = "";    ///< the characters of a Literal
};

// clang-format off
/// Memory record V1.
inline constexpr TRecordField TRecordV1[] = {
    {  0,  4, TRecordKind::Literal, ColumnTotal, "T143"},
    {  4,  4, TRecordKind::GuardAddress, MNUM}, // intentional: the memory's number goes out, a row comes in
    {  8,  2, TRecordKind::FlagsLow, MFLG}, // intentional: bit 7 isn't MFLG's, and only goes out
    { 10,  2, TRecordKind::GuardPrimary, PRIM},
    { 12,  2, TRecordKind::GuardNumber, MNUM}, // intentional: not read, the address tells the number
    { 14,  2, TRecordKind::ZoneByte, ZONE}, // intentional: a zone behind the 16th loses its high bit
    { 16, 16, TRecordKind::Description, DESC},
    { 32,  2, TRecordKind::Literal, ColumnTotal, "20"},
    { 34,  2, TRecordKind::Letter, MODE},
    { 36, 16, TRecordKind::FrequencyText, RFRQ},
    { 52,  2, TRecordKind::Literal, ColumnTotal, "52"}, // "R"
    { 54,  2, TRecordKind::Letter, RSQL},
    { 56,  4, TRecordKind::TalkGroup, RTGP},
    { 60,  2, TRecordKind::Tone, RTON},
    { 62,  2, TRecordKind::PlainCode, RCOD}, // intentional: only the transmit code has the addition
    { 64,  4, TRecordKind::MaskedNac, RNAC},
    { 68, 16, TRecordKind::FrequencyText, TFRQ},
    { 84,  2, TRecordKind::Literal, ColumnTotal, "54"}, // "T"
    { 86,  2, TRecordKind::Letter, TSQL},
    { 88,  4, TRecordKind::TalkGroup, TTGP},
    { 92,  2, TRecordKind::Tone, TTON},
    { 94,  2, TRecordKind::Code, TCOD},
    { 96,  4, TRecordKind::Nac, TNAC}, // intentional: unlike the receive NAC it keeps its high digit
    {100,  8, TRecordKind::UnitId, TIDC},
    {108, 14, TRecordKind::Shadows, SHD0},
    {122,  2, TRecordKind::SquelchByte, RNSV}, // intentional: read on every page, also on those without it
    {124,  4, TRecordKind::Literal, ColumnTotal, "0000"},
    {128,  2, TRecordKind::FlagsHigh, MFLG},
    {130,  6, TRecordKind::Literal, ColumnTotal, "000000"},
};

/// Memory record V2.
inline constexpr TRecordField TRecordV2[] = {
    {  0,  4, TRecordKind::Literal, ColumnTotal, "T143"},
    {  4,  4, TRecordKind::RowAddress, MNUM}, // intentional: the row, whatever its MNUM
    {  8,  4, TRecordKind::Flags, MFLG}, // intentional: no mark on the last two rows, and bit 7 is read
    { 12,  4, TRecordKind::Primary, PRIM},
    { 16,  4, TRecordKind::Decimal, MNUM}, // intentional: read without leading zeros, and so is PRIM
    { 20,  4, TRecordKind::ZoneWord, ZONE},
    { 24, 16, TRecordKind::Description, DESC},
    { 40,  2, TRecordKind::Literal, ColumnTotal, "20"},
    { 42,  2, TRecordKind::Letter, MODE},
    { 44,  8, TRecordKind::FrequencyHertz, RFRQ},
    { 52,  2, TRecordKind::Literal, ColumnTotal, "52"}, // "R"
    { 54,  2, TRecordKind::Letter, RSQL},
    { 56,  2, TRecordKind::Tone, RTON},
    { 58,  2, TRecordKind::Code, RCOD},
    { 60,  4, TRecordKind::SquelchNac, RNAC},
    { 64,  4, TRecordKind::TalkGroup, RTGP},
    { 68,  8, TRecordKind::FrequencyHertz, TFRQ},
    { 76,  2, TRecordKind::Literal, ColumnTotal, "54"}, // "T"
    { 78,  2, TRecordKind::Letter, TSQL},
    { 80,  2, TRecordKind::Tone, TTON},
    { 82,  2, TRecordKind::Code, TCOD},
    { 84,  4, TRecordKind::Nac, TNAC},
    { 88,  4, TRecordKind::TalkGroup, TTGP},
    { 92,  8, TRecordKind::PaddedUnitId, TIDC}, // intentional: V1 doesn't pad it
    {100, 28, TRecordKind::Shadows, SHD0},
    {128,  4, TRecordKind::Literal, ColumnTotal, "0000"},
    {132,  4, TRecordKind::Literal, ColumnTotal, "0000"},
};
// clang-format on

/// A memory row to be sent.
struct TRecordSource {
    wxArrayString cells;    ///< its 32 texts
    wxArrayString defaults; ///< as many of the default row; the texts of letters count where a cell is empty
    int row = 0;            ///< grid row, 0 being the default row
    int gridRows = 0;       ///< rows of the grid, the default row among them
    int type = 0;           ///< radio type of the page
};

/// A cell that a record tells.
struct TRecordCell {
    Column column;
    std::optional<wxString> text; ///< nothing for a tone or code that the lists don't hold
};

/// What a record tells.
struct TRecordValues {
    int row = 0;                    ///< the grid row; may lie behind the grid's last
    int flags = 0;                  ///< as in MFLG
    int primary = 0;                ///< as in PRIM
    int shadows = 0;                ///< shadow fields that aren't zero
    std::vector<TRecordCell> cells; ///< all others, in the order of the record; ZONE is empty for a zone
                                    ///< that the page's type doesn't have
};

/// The number of a row's primary, from the texts of MFLG, SHAD and PRIM. A shadow's is the one in SHAD
/// ("S-010"), where SHAD names one: a check of the page lets every row name itself in PRIM, and the radio
/// would lose the link. 0 where neither cell holds a number.
int PrimaryNumber(const wxString& flags, const wxString& shad, const wxString& prim);

/// The flags of a row that go to a radio, from the texts of MFLG and SCAN on a page of that radio type. On a
/// P25 page SCAN tells whether the memory is scanned, but for primaries and shadows, which never are.
int FlagsToSend(const wxString& flags, const wxString& scan, int type);

/// True if a V1 radio of the type has a place for the row.
bool FitsRecordV1(int type, int row);

/// The line, without its checksum, of a row. Characters that the radio can't show become blanks.
wxString MakeTRecord(std::span<const TRecordField> layout, const TRecordSource& source);

/// What a line without its checksum tells on a page of that radio index and radio type. Digits that are
/// missing or no digits count 0, characters that can't be shown are blanks.
TRecordValues ReadTRecord(std::span<const TRecordField> layout, const wxString& line, int radio, int type);
