#include "files/XmlFile.h"

#include <wx/file.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/mstream.h>
#include <wx/xml/xml.h>

#include <algorithm>
#include <string>

namespace {

// A channel file nests three levels deep, and a full page takes less than half a megabyte.
constexpr wxFileOffset LongestFile = 16 * 1024 * 1024;
constexpr int DeepestElement = 64;
constexpr int MostAttributes = 64;
// The parser restarts a piece of markup with each kilobyte of it that it gets.
constexpr size_t LongestPiece = 64 * 1024;
// Each of these breaks costs a copy of the text before it.
constexpr int MostTextBreaks = 64;

constexpr size_t npos = std::string_view::npos;

/// Walks from one piece of markup to the next. Malformed markup is for the parser to refuse; up to
/// there both see the same pieces.
class MarkupScan {
public:
    explicit MarkupScan(std::string_view text) : m_text(text) {}

    bool IsHarmless() {
        while (m_at < m_text.size()) {
            const size_t markup = std::min(m_text.find('<', m_at), m_text.size());
            if (!IsShortText(m_text.substr(m_at, markup - m_at)))
                return false;
            m_at = markup;
            if (m_at < m_text.size() && !TakeMarkup())
                return false;
        }
        return true;
    }

private:
    static bool IsShortText(std::string_view text) {
        if (text.size() > LongestPiece)
            return false;
        int breaks = 0;
        // Leading white space does not count as text.
        for (size_t i = text.find_first_not_of(" \t\r\n"); i < text.size(); ++i)
            breaks += text[i] == '\n' || text[i] == '\r' || text[i] == '&';
        return breaks <= MostTextBreaks;
    }

    bool TakeMarkup() {
        const std::string_view rest = m_text.substr(m_at);
        if (rest.starts_with("<!--"))
            return TakeUntil("-->", 4);
        if (rest.starts_with("<?"))
            return TakeUntil("?>", 2);
        if (rest.starts_with("<![CDATA[")) {
            const size_t start = m_at + 9;
            return TakeUntil("]]>", 9) && IsShortText(m_text.substr(start, m_at - start));
        }
        return TakeTag();
    }

    bool TakeUntil(std::string_view mark, size_t skip) {
        const size_t start = m_at;
        const size_t end = m_text.find(mark, m_at + skip);
        m_at = end == npos ? m_text.size() : end + mark.size();
        return m_at - start <= LongestPiece;
    }

    bool TakeTag() {
        const size_t start = m_at;
        int attributes = 0;
        size_t end = m_text.find_first_of("\"'>[", start);
        while (end != npos && m_text[end] != '>') {
            if (m_text[end] == '[' && m_text[start + 1] == '!')
                return false;
            if (m_text[end] != '[') {
                ++attributes;
                end = m_text.find(m_text[end], end + 1);
            }
            if (end != npos)
                end = m_text.find_first_of("\"'>[", end + 1);
        }
        m_at = end == npos ? m_text.size() : end + 1;
        if (m_at - start > LongestPiece || attributes > MostAttributes)
            return false;
        if (end != npos)
            CountDepth(m_text[start + 1], m_text[end - 1]);
        return m_depth <= DeepestElement;
    }

    /// first and last are the first and last characters inside the brackets of a tag.
    void CountDepth(char first, char last) {
        if (first == '/')
            --m_depth;
        else if (first != '!' && last != '/')
            ++m_depth;
    }

    std::string_view m_text;
    size_t m_at = 0;
    int m_depth = 0;
};

/// Reduces the units of UTF-16 to single bytes. In all other encodings of the parser, markup is
/// ASCII. The parser recognizes UTF-16 by a zero or a byte-order mark in the first two bytes.
std::string NarrowUtf16(std::string_view bytes, size_t lowByte) {
    std::string text;
    text.reserve(bytes.size() / 2);
    for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const char low = bytes[i + lowByte];
        const char high = bytes[i + 1 - lowByte];
        text += high == 0 ? low : '?';
    }
    return text;
}

bool ReadBytes(const wxString& path, std::string& bytes) {
    // Opening a pipe would block until its other end opens.
    if (!wxFileName::FileExists(path))
        return false;
    wxFile file(path);
    if (!file.IsOpened() || file.Length() > LongestFile)
        return false;
    bytes.resize(static_cast<size_t>(file.Length()));
    return file.Read(bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

} // namespace

bool IsHarmlessMarkup(std::string_view bytes) {
    if (bytes.size() < 2)
        return true;
    if (bytes.starts_with("\xFF\xFE") || bytes[1] == 0)
        return MarkupScan(NarrowUtf16(bytes, 0)).IsHarmless();
    if (bytes.starts_with("\xFE\xFF") || bytes[0] == 0)
        return MarkupScan(NarrowUtf16(bytes, 1)).IsHarmless();
    return MarkupScan(bytes).IsHarmless();
}

bool LoadXmlFile(const wxString& path, wxXmlDocument& document) {
    const wxLogNull quiet;
    std::string bytes;
    if (!ReadBytes(path, bytes) || !IsHarmlessMarkup(bytes))
        return false;
    wxMemoryInputStream stream(bytes.data(), bytes.size());
    return document.Load(stream, "UTF-8", wxXMLDOC_NONE);
}
