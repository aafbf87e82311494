// Elements of a channel file.
#pragma once

#include "catalogue/RadioCatalogue.h"

namespace ChannelFile {

inline constexpr const char* RootName = "ZelkMem";
inline constexpr const char* MemoryName = "MEMORY";
inline constexpr const char* RowAttribute = "row";
inline constexpr const char* ScanAttribute = "type";

/// Children of the root before the memories, in the order of the file.
enum HeaderField : int { FieldVersion, FieldDate, FieldTime, FieldType, FieldRadio, FieldBand, FieldTotal };

/// Names of an element: the name written, and the name in earlier files, which is also read.
struct ElementNames {
    const char* name;
    const char* formerName;
};

inline constexpr ElementNames HeaderNames[FieldTotal] = {
    {"Version", "Version"}, {"Date", "Date"},        {"Time", "Time"},
    {"FType", "FileType"},  {"FRadio", "FileRadio"}, {"FBand", "FileBand"},
};

/// Texts by which a file names its radio type.
struct TypeTexts {
    const char* fileType;   ///< FType
    const char* scanFamily; ///< attribute of the scan element
};

/// Indexed by radio type.
/// Intentional: two types have no text.
inline constexpr TypeTexts TypeTextsOf[RadioCatalogue::TypeTotal] = {
    {"ANFM", "ANFM"}, // ANFM
    {"RP25", "RP25"}, // RP25
    {"NP25", "RP25"}, // NP25
    {"MDLX", "ANFM"}, // MDLX
    {"", ""},         // O12
    {"KDAR", "RP25"}, // KDAR
    {"ANAM", "ANFM"}, // ANAM
    {"", ""},         // FXAM
};

/// Pages on which a cell is written.
enum class Written { Shown, P25, Kdar };

/// Files from which a cell is read.
enum class Read { Always, P25, NP25, Mdlx, Kdar };

struct CellElement {
    ElementNames names;
    int column;
    Written written;
    Read read;
};

constexpr int CellTotal = 31;

/// Children of a memory element, in the order of the file.
inline constexpr CellElement CellElements[CellTotal] = {
    {{"MF", "MFLG"}, MFLG, Written::P25, Read::P25},
    {{"MN", "MNUM"}, MNUM, Written::Shown, Read::Always},
    {{"PR", "PRIM"}, PRIM, Written::P25, Read::P25},
    {{"SH", "SHAD"}, SHAD, Written::Shown, Read::P25},
    {{"BD", "BAND"}, BAND, Written::Shown, Read::Mdlx},
    {{"SC", "SCAN"}, SCAN, Written::Shown, Read::Always},
    {{"ZN", "ZONE"}, ZONE, Written::Shown, Read::P25},
    {{"DS", "DESC"}, DESC, Written::Shown, Read::Always},
    {{"MD", "MODE"}, MODE, Written::Shown, Read::Always},
    {{"RF", "RFRQ"}, RFRQ, Written::Shown, Read::Always},
    {{"RS", "RSQL"}, RSQL, Written::Shown, Read::P25},
    {{"RV", "RNSV"}, RNSV, Written::Shown, Read::NP25},
    {{"RT", "RTON"}, RTON, Written::Shown, Read::Always},
    {{"RC", "RCOD"}, RCOD, Written::Shown, Read::Always},
    {{"RG", "RTGP"}, RTGP, Written::Shown, Read::P25},
    {{"RN", "RNAC"}, RNAC, Written::Shown, Read::P25},
    {{"TF", "TFRQ"}, TFRQ, Written::Shown, Read::Always},
    {{"TS", "TSQL"}, TSQL, Written::Shown, Read::P25},
    {{"TT", "TTON"}, TTON, Written::Shown, Read::Always},
    {{"TC", "TCOD"}, TCOD, Written::Shown, Read::Always},
    {{"TG", "TTGP"}, TTGP, Written::Shown, Read::P25},
    {{"TN", "TNAC"}, TNAC, Written::Shown, Read::P25},
    {{"TI", "TIDC"}, TIDC, Written::Shown, Read::P25},
    {{"S0", "SHD0"}, SHD0, Written::P25, Read::P25},
    {{"S1", "SHD1"}, SHD1, Written::P25, Read::P25},
    {{"S2", "SHD2"}, SHD2, Written::P25, Read::P25},
    {{"S3", "SHD3"}, SHD3, Written::P25, Read::P25},
    {{"S4", "SHD4"}, SHD4, Written::P25, Read::P25},
    {{"S5", "SHD5"}, SHD5, Written::P25, Read::P25},
    {{"S6", "SHD6"}, SHD6, Written::P25, Read::P25},
    {{"RY", "RONL"}, RONL, Written::Kdar, Read::Kdar},
};

/// True if a page of the radio type (0 to 7) writes the cell to its file.
constexpr bool IsWritten(const CellElement& cell, int type) {
    switch (cell.written) {
    case Written::P25:
        return RadioCatalogue::IsP25Type(type);
    case Written::Kdar:
        return type == RadioCatalogue::KDAR;
    case Written::Shown:
        break;
    }
    return RadioCatalogue::ColumnWidth[type][cell.column] != 0;
}

/// True if the cell is read from a file of the radio type (0 to 7).
constexpr bool IsRead(const CellElement& cell, int type) {
    switch (cell.read) {
    case Read::P25:
        return RadioCatalogue::IsP25Type(type);
    case Read::NP25:
        return type == RadioCatalogue::NP25;
    case Read::Mdlx:
        return type == RadioCatalogue::MDLX;
    case Read::Kdar:
        return type == RadioCatalogue::KDAR;
    case Read::Always:
        break;
    }
    return true;
}

} // namespace ChannelFile
