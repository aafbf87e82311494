// What kind of foreign file a file is, by what it contains.
#pragma once

#include <wx/string.h>

#include <array>
#include <cstddef>
#include <string_view>

/// Kinds of files that can be imported.
enum FileKind : int {
    UnknownFile,
    Binary716File, ///< memories of a KDRV-716 as its former programming software kept them
    Text716File,   ///< the printed list of the same software
    MultiZELFile,  ///< a list of an analog radio
    CsvFile,
    KdarFile, ///< the list of a KDAR-2000
    FileKindTotal
};

/// Kinds as reports name them.
inline constexpr const char* FileKindWord[FileKindTotal] = {"UNKNOWN",  "716 Binary", "716 Text",
                                                            "MultiZEL", "CSV",        "KDAR"};

/// Bytes in front of the records of a 716 binary file.
inline constexpr size_t HeaderSize716 = 32;

/// True when bytes, the first of a file, are the header of a 716 binary file.
bool Is716Header(std::string_view bytes);

/// The kind of a text file by its first four lines; those that the file lacks are empty.
FileKind KindOfText(const std::array<wxString, 4>& lines);
