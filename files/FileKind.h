// Identifies foreign files by their contents.
#pragma once

#include <wx/string.h>

#include <array>
#include <cstddef>
#include <string_view>

/// Kinds of files that can be imported.
enum FileKind : int {
    UnknownFile,
    Binary716File, ///< memories of a KDRV-716 as stored by its former programming software
    Text716File,   ///< printed list of the same software
    MultiZELFile,  ///< list of an analog radio
    CsvFile,
    KdarFile, ///< list of a KDAR-2000
    FileKindTotal
};

/// Names of the kinds in reports.
inline constexpr const char* FileKindWord[FileKindTotal] = {"UNKNOWN",  "716 Binary", "716 Text",
                                                            "MultiZEL", "CSV",        "KDAR"};

/// Size in bytes of the header before the records of a 716 binary file.
inline constexpr size_t HeaderSize716 = 32;

/// True if bytes, the first of a file, are the header of a 716 binary file.
bool Is716Header(std::string_view bytes);

/// Returns the kind of a text file by its first four lines; lines that the file lacks are empty.
FileKind KindOfText(const std::array<wxString, 4>& lines);
