// The two layouts of the digital radios' memory record, field by field, independent of any grid.
#pragma once

#include "catalogue/MemoryRow.h"
#include "catalogue/NumberedArray.h"

#include <wx/string.h>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// Content of a field: how it is written from the cell of its column, and how it is read.
enum class TRecordKind {
    Literal,       ///< a fixed text; not read
    GuardAddress,  ///< MNUM, minus 270 for a guard row; read as the grid row
    RowAddress,    ///< the grid row
    FlagsLow,      ///< MFLG bits 0 to 6; bit 7 marks the page's last two rows and isn't read
    FlagsHigh,     ///< MFLG bits 8 and 9
    Flags,         ///< MFLG; the scan flag is taken from SCAN, as in FlagsLow
    GuardPrimary,  ///< PrimaryNumber, minus 270 for a guard row; read as "%03d"
    GuardNumber,   ///< decimal, minus 270 for a guard row; not read
    Primary,       ///< PrimaryNumber; read as "%d"
    Decimal,       ///< decimal; read as "%d"
    ZoneByte,      ///< position in ZoneNames times 16, F0 for a guard row; the high digit is read
    ZoneWord,      ///< position in ZoneNames times 16
    Description,   ///< 8 characters
    Letter,        ///< one character
    FrequencyText, ///< MHz in 8 characters
    FrequencyHertz,
    Tone,         ///< position in CtcssList plus 1
    PlainCode,    ///< CodeIndexForType; read like Code
    Code,         ///< CodeIndexForType plus 1; read as the entry one place further down the list
    TalkGroup,    ///< hexadecimal; read as "%04X"
    MaskedNac,    ///< hexadecimal, 12 bits; read as "%03X"
    Nac,          ///< hexadecimal; read as "%03X"
    SquelchNac,   ///< one digit for RNSV and three for RNAC
    UnitId,       ///< decimal; read as "%d"
    PaddedUnitId, ///< decimal; read as "%07d"
    Shadows,      ///< SHD0 to SHD6 in equal parts; written as zeros, read as "%d"
    SquelchByte,  ///< RNSV, 0x0A on pages without it; the low digit is read as "%2d"
};

/// One field. Position (from 0) and width are in characters of the line.
struct TRecordField {
    size_t position;
    size_t width;
    TRecordKind kind;
    Column column = ColumnTotal; ///< the cell that the field carries, or the first of several
    const char* literal = "";    ///< the characters of a Literal
};

// clang-format off
/// Memory record V1.
inline constexpr TRecordField TRecordV1[] = {
    {  0,  4, TRecordKind::Literal, ColumnTotal, "T143"},
    {  4,  4, TRecordKind::GuardAddress, MNUM}, // Intentional: written as the memory's number, read as a row
    {  8,  2, TRecordKind::FlagsLow, MFLG}, // Intentional: bit 7 isn't MFLG's, and is only written
    { 10,  2, TRecordKind::GuardPrimary, PRIM},
    { 12,  2, TRecordKind::GuardNumber, MNUM}, // Intentional: not read, the number comes from the address
    { 14,  2, TRecordKind::ZoneByte, ZONE}, // Intentional: a zone after the 16th loses its high bit
    { 16, 16, TRecordKind::Description, DESC},
    { 32,  2, TRecordKind::Literal, ColumnTotal, "20"},
    { 34,  2, TRecordKind::Letter, MODE},
    { 36, 16, TRecordKind::FrequencyText, RFRQ},
    { 52,  2, TRecordKind::Literal, ColumnTotal, "52"}, // "R"
    { 54,  2, TRecordKind::Letter, RSQL},
    { 56,  4, TRecordKind::TalkGroup, RTGP},
    { 60,  2, TRecordKind::Tone, RTON},
    { 62,  2, TRecordKind::PlainCode, RCOD}, // Intentional: only the transmit code has 1 added
    { 64,  4, TRecordKind::MaskedNac, RNAC},
    { 68, 16, TRecordKind::FrequencyText, TFRQ},
    { 84,  2, TRecordKind::Literal, ColumnTotal, "54"}, // "T"
    { 86,  2, TRecordKind::Letter, TSQL},
    { 88,  4, TRecordKind::TalkGroup, TTGP},
    { 92,  2, TRecordKind::Tone, TTON},
    { 94,  2, TRecordKind::Code, TCOD},
    { 96,  4, TRecordKind::Nac, TNAC}, // Intentional: unlike the receive NAC it keeps its high digit
    {100,  8, TRecordKind::UnitId, TIDC},
    {108, 14, TRecordKind::Shadows, SHD0},
    {122,  2, TRecordKind::SquelchByte, RNSV}, // Intentional: read on every page, even on those without RNSV
    {124,  4, TRecordKind::Literal, ColumnTotal, "0000"},
    {128,  2, TRecordKind::FlagsHigh, MFLG},
    {130,  6, TRecordKind::Literal, ColumnTotal, "000000"},
};

/// Memory record V2.
inline constexpr TRecordField TRecordV2[] = {
    {  0,  4, TRecordKind::Literal, ColumnTotal, "T143"},
    {  4,  4, TRecordKind::RowAddress, MNUM}, // Intentional: the row, regardless of its MNUM
    {  8,  4, TRecordKind::Flags, MFLG}, // Intentional: no mark on the last two rows, and bit 7 is read
    { 12,  4, TRecordKind::Primary, PRIM},
    { 16,  4, TRecordKind::Decimal, MNUM}, // Intentional: read without leading zeros, like PRIM
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
    { 92,  8, TRecordKind::PaddedUnitId, TIDC}, // Intentional: padded, unlike in V1
    {100, 28, TRecordKind::Shadows, SHD0},
    {128,  4, TRecordKind::Literal, ColumnTotal, "0000"},
    {132,  4, TRecordKind::Literal, ColumnTotal, "0000"},
};
// clang-format on

/// A memory row to be sent.
struct TRecordSource {
    NumberedArray<wxString, ColumnTotal> cells; ///< its 32 texts
    NumberedArray<wxString, ColumnTotal>
        defaults;     ///< 32 texts of the default row; only used for letters whose cell is empty
    int row = 0;      ///< grid row; 0 is the default row
    int gridRows = 0; ///< rows of the grid, including the default row
    int type = 0;     ///< radio type of the page
};

/// A cell as read from a record.
struct TRecordCell {
    Column column;
    std::optional<wxString> text; ///< no value for a tone or code that isn't in the lists
};

/// Values read from a record.
struct TRecordValues {
    int row = 0;                    ///< the grid row; may be past the grid's last
    int flags = 0;                  ///< as in MFLG
    int primary = 0;                ///< as in PRIM
    int shadows = 0;                ///< shadow fields that aren't zero
    std::vector<TRecordCell> cells; ///< all cells read, in the order of the record; ZONE is empty for a zone
                                    ///< that the page's type doesn't have
};

/// Returns the number of a row's primary, from the texts of MFLG, SHAD and PRIM; 0 if neither SHAD nor PRIM
/// holds a number. For a shadow, a number in SHAD ("S-010") comes first: a check of the page sets PRIM of
/// every row to the row's own number, and with that the radio would lose the link.
int PrimaryNumber(const wxString& flags, const wxString& shad, const wxString& prim);

/// Returns the flags of a row to send to a radio, from the texts of MFLG and SCAN on a page of that radio
/// type. On a P25 page SCAN decides whether the memory is scanned, except for primaries and shadows: they
/// never are.
int FlagsToSend(const wxString& flags, const wxString& scan, int type);

/// True if a V1 radio of the type has a memory for the row.
bool FitsRecordV1(int type, int row);

/// Returns the line of a row, without its checksum. Characters that the radio can't show become blanks.
wxString MakeTRecord(std::span<const TRecordField> layout, const TRecordSource& source);

/// Reads a line without its checksum, for a page of that radio index and radio type. Missing and invalid
/// digits count as 0; characters that can't be shown become blanks.
TRecordValues ReadTRecord(std::span<const TRecordField> layout, const wxString& line, int radio, int type);
