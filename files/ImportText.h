// Texts of files that other programs wrote: bytes to characters, lines, fixed columns.
#pragma once

#include <wx/string.h>

#include <array>
#include <cstddef>
#include <string_view>

class wxFFile;

/// The characters of bytes: UTF-8, or Latin-1 where the bytes are no valid UTF-8. A zero byte ends
/// the text.
wxString TextFromBytes(std::string_view bytes);

/// The same without the blanks at both ends.
wxString TrimmedTextFromBytes(std::string_view bytes);

/// A field of a line with fixed columns.
struct TextColumns {
    size_t position; ///< of the first character, from 0
    size_t length;   ///< in characters

    /// The field as it stands in line: shorter or empty where the line ends before.
    wxString Of(const wxString& line) const { return line.Mid(position, length); }

    /// The same without the blanks at both ends.
    wxString TrimmedOf(const wxString& line) const;

    /// True when the field is exactly these ASCII characters; its length is theirs.
    bool Is(const wxString& line, std::string_view ascii) const;
};

/// Places an open file on its first character, behind a byte-order mark of UTF-8 if it has one.
void RewindText(wxFFile& file);

/// The lines of a file, whatever ends them: CR, LF or both. It reads ahead: the file's position is then of
/// no use to others.
class LineReader {
public:
    /// A longer line loses the rest.
    static constexpr size_t LongestLine = 100;

    /// Reads from the position of the file on, which must be open and outlive the reader.
    explicit LineReader(wxFFile& file) : m_file(file) {}

    /// Gives the next line without its end. False, with an empty line, at the end of the file; a
    /// last line needs no end.
    bool Next(wxString& line);

private:
    int TakeByte();

    wxFFile& m_file;
    std::array<char, 4096> m_block;
    size_t m_size = 0, m_at = 0;
    bool m_afterReturn = false;
};
