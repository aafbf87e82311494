#include "files/ImportText.h"

#include "catalogue/AsciiText.h"

#include <wx/ffile.h>

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// Returns text without blanks at both ends; blanks are the characters that the toolkit trims too.
template <class Character>
std::basic_string_view<Character> Trimmed(std::basic_string_view<Character> text) {
    const auto isBlank = [](Character c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Most bytes in one character of UTF-8.
constexpr size_t LongestCharacter = 4;

bool ContinuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Drops the last character, which may lack some of its bytes.
void DropLastCharacter(std::string& bytes) {
    for (size_t length = 1; length < LongestCharacter && bytes.size() > 1 && ContinuesCharacter(bytes.back());
         ++length)
        bytes.pop_back();
    if (!bytes.empty())
        bytes.pop_back();
}

} // namespace

wxString TextFromBytes(std::string_view bytes) {
    bytes = bytes.substr(0, bytes.find('\0'));
    if (IsAscii(bytes))
        return TextOfAscii(bytes);
    wxString text = wxString::FromUTF8(bytes.data(), bytes.size());
    if (text.empty() && !bytes.empty())
        text = wxString(bytes.data(), wxConvISO8859_1, bytes.size());
    return text;
}

wxString TrimmedTextFromBytes(std::string_view bytes) {
    return TextFromBytes(Trimmed(bytes.substr(0, bytes.find('\0'))));
}

wxString TextColumns::TrimmedOf(const wxString& line) const {
    const std::wstring& wide = line.ToStdWstring();
    const std::wstring_view field =
        Trimmed(std::wstring_view(wide).substr(std::min(position, wide.size()), length));
    return wxString(field.data(), field.size());
}

bool TextColumns::Is(const wxString& line, std::string_view ascii) const {
    const std::wstring& wide = line.ToStdWstring();
    if (wide.size() < position + ascii.size())
        return false;
    const auto at = wide.begin() + static_cast<ptrdiff_t>(position);
    return std::equal(ascii.begin(), ascii.end(), at,
                      [](char a, wchar_t b) { return static_cast<wchar_t>(a) == b; });
}

void RewindText(wxFFile& file) {
    file.Seek(0);
    char first[ByteOrderMark.size()];
    if (file.Read(first, sizeof first) != sizeof first ||
        std::string_view(first, sizeof first) != ByteOrderMark)
        file.Seek(0);
}

/// Returns the file's next byte, EOF at its end.
int LineReader::TakeByte() {
    if (m_at == m_size) {
        m_size = m_file.Read(m_block.data(), m_block.size());
        m_at = 0;
        if (m_size == 0)
            return EOF;
    }
    return static_cast<unsigned char>(m_block[m_at++]);
}

bool LineReader::Next(wxString& line) {
    // One character more than is kept, because cutting the bytes may cut the last one.
    constexpr size_t limit = (LongestLine + 1) * LongestCharacter;
    std::string bytes;
    bool cut = false;
    int code = TakeByte();
    if (m_afterReturn && code == '\n')
        code = TakeByte();
    m_afterReturn = false;
    const bool found = code != EOF;
    for (; code != EOF && code != '\n' && code != '\r'; code = TakeByte()) {
        if (bytes.size() < limit)
            bytes += static_cast<char>(code);
        else
            cut = true;
    }
    m_afterReturn = code == '\r';
    if (cut)
        DropLastCharacter(bytes);
    line = TextFromBytes(bytes);
    line.Truncate(LongestLine);
    return found;
}
