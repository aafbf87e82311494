// Text of files from other programs: bytes to characters, lines, fixed columns.
#pragma once

#include <wx/string.h>

#include <array>
#include <cstddef>
#include <string_view>

class wxFFile;

/// Decodes bytes as UTF-8, or as Latin-1 if they are not valid UTF-8. A zero byte ends the text.
wxString TextFromBytes(std::string_view bytes);

/// Decodes bytes likewise, without the blanks at both ends.
wxString TrimmedTextFromBytes(std::string_view bytes);

/// Field of a line with fixed columns.
struct TextColumns {
    size_t position; ///< of the first character, from 0
    size_t length;   ///< in characters

    /// Returns the field unchanged, shorter or empty if the line ends before.
    wxString Of(const wxString& line) const { return line.Mid(position, length); }

    /// Returns the field without the blanks at both ends.
    wxString TrimmedOf(const wxString& line) const;

    /// True if the field is exactly these ASCII characters; their length replaces the field's.
    bool Is(const wxString& line, std::string_view ascii) const;
};

/// Moves an open file to its first character, after a UTF-8 byte-order mark if it has one.
void RewindText(wxFFile& file);

/// Reads the lines of a file with any line ends: CR, LF or both. Reads ahead, so the file's position is
/// then of no use to others.
class LineReader {
public:
    /// Longest line, in characters; the rest of a longer one is dropped.
    static constexpr size_t LongestLine = 100;

    /// Reads from the current position of file, which must be open and outlive the reader.
    explicit LineReader(wxFFile& file) : m_file(file) {}

    /// Reads the next line without its line end. Returns false, with an empty line, at the end of the
    /// file. The last line needs no line end.
    bool Next(wxString& line);

private:
    int TakeByte();

    wxFFile& m_file;
    std::array<char, 4096> m_block;
    size_t m_size = 0, m_at = 0;
    bool m_afterReturn = false;
};
