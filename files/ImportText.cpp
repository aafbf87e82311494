#include "files/ImportText.h"

#include "catalogue/AsciiText.h"

#include <wx/ffile.h>

#include <cstdio>
#include <string>

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// No character of UTF-8 has more bytes.
constexpr size_t LongestCharacter = 4;

bool ContinuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Takes away what may be the beginning of a character whose other bytes are missing.
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
    wxString text = wxString::FromUTF8(bytes.data(), bytes.size());
    if (text.empty() && !bytes.empty())
        text = wxString(bytes.data(), wxConvISO8859_1, bytes.size());
    return text;
}

bool TextColumns::Is(const wxString& line, std::string_view ascii) const {
    return IsText(line.Mid(position, ascii.size()), ascii);
}

void RewindText(wxFFile& file) {
    file.Seek(0);
    char first[ByteOrderMark.size()];
    if (file.Read(first, sizeof first) != sizeof first ||
        std::string_view(first, sizeof first) != ByteOrderMark)
        file.Seek(0);
}

bool LineReader::Next(wxString& line) {
    // One character more than is kept: cutting the bytes may cut the last one.
    constexpr size_t limit = (LongestLine + 1) * LongestCharacter;
    std::FILE* const stream = m_file.fp();
    std::string bytes;
    bool cut = false;
    int byte = std::getc(stream);
    if (m_afterReturn && byte == '\n')
        byte = std::getc(stream);
    m_afterReturn = false;
    const bool found = byte != EOF;
    for (; byte != EOF && byte != '\n' && byte != '\r'; byte = std::getc(stream)) {
        if (bytes.size() < limit)
            bytes += static_cast<char>(byte);
        else
            cut = true;
    }
    m_afterReturn = byte == '\r';
    if (cut)
        DropLastCharacter(bytes);
    line = TextFromBytes(bytes).Left(LongestLine);
    return found;
}
