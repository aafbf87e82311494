#include "tests/docs/SourceTexts.h"

#include "robot/Files.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <string_view>

namespace fs = std::filesystem;

namespace docstest {

namespace {

enum class Kind { Name, Sign, Text, End };

struct Token {
    Kind kind;
    std::string text;
};

/// Splits C++ into names, single signs and texts; drops comments and #include lines.
class Lexer {
public:
    explicit Lexer(const std::string& source) : m_source(source) {}

    std::vector<Token> All() {
        std::vector<Token> tokens;
        for (Token token = Next(); token.kind != Kind::End; token = Next()) {
            if (token.kind == Kind::Text && !tokens.empty() && tokens.back().kind == Kind::Text)
                tokens.back().text += token.text;
            else
                tokens.push_back(std::move(token));
        }
        return tokens;
    }

private:
    bool At(std::string_view what) const { return m_source.compare(m_at, what.size(), what) == 0; }
    void SkipPast(std::string_view end) {
        m_at = std::min(m_source.find(end, m_at), m_source.size() - end.size()) + end.size();
    }

    void SkipBlanks() {
        while (m_at < m_source.size()) {
            if (std::isspace(static_cast<unsigned char>(m_source[m_at])))
                ++m_at;
            else if (At("//") || At("#include"))
                SkipPast("\n");
            else if (At("/*"))
                SkipPast("*/");
            else
                return;
        }
    }

    Token Next() {
        SkipBlanks();
        if (m_at >= m_source.size())
            return {Kind::End, ""};
        const char c = m_source[m_at];
        if (c == '"')
            return {Kind::Text, Quoted()};
        if (c == '\'') {
            SkipCharacter();
            return {Kind::Sign, "'"};
        }
        if (std::isalnum(static_cast<unsigned char>(c)) || c == '_') {
            const size_t start = m_at;
            // A ' among digits ends the name.
            while (m_at < m_source.size() &&
                   (std::isalnum(static_cast<unsigned char>(m_source[m_at])) || m_source[m_at] == '_'))
                ++m_at;
            return {Kind::Name, m_source.substr(start, m_at - start)};
        }
        ++m_at;
        return {Kind::Sign, std::string(1, c)};
    }

    void SkipCharacter() {
        for (++m_at; m_at < m_source.size() && m_source[m_at] != '\''; ++m_at)
            if (m_source[m_at] == '\\')
                ++m_at;
        ++m_at;
    }

    std::string Quoted() {
        std::string text;
        for (++m_at; m_at < m_source.size() && m_source[m_at] != '"'; ++m_at) {
            if (m_source[m_at] != '\\') {
                text += m_source[m_at];
                continue;
            }
            const char escaped = m_source[++m_at];
            text += escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped;
        }
        ++m_at;
        return text;
    }

    const std::string& m_source;
    size_t m_at = 0;
};

const std::set<std::string> Showing = {
    "wxMessageBox", "wxMessageDialog", "ShowError",   "Refuse",      "SetStatus", "AppendStatus",
    "ShowResult",   "SetStatusText",   "Printf",      "TellOutcome", "SetTitle",  "TellUnimplemented",
    "ShadowDialog", "PortDialog",      "RadioDialog", "BandDialog",  "SetLabel",
};
/// Variables whose text is shown later.
const std::set<std::string> Shown = {"StatusText", "message"};

/// Takes the texts from a token up to the end of the call or statement that starts there.
void TakeUntil(const std::vector<Token>& tokens, size_t at, bool call, std::vector<std::string>& texts) {
    int depth = 0;
    for (; at < tokens.size(); ++at) {
        const Token& token = tokens[at];
        if (token.kind == Kind::Text)
            texts.push_back(token.text);
        else if (token.text == "(")
            ++depth;
        else if (token.text == ")" && --depth == 0 && call)
            return;
        else if (token.text == ";" && !call)
            return;
    }
}

template <class Take>
std::vector<SourceText> OfProgram(const fs::path& folder, Take take) {
    std::vector<SourceText> texts;
    for (const char* room :
         {"catalogue", "commands", "editing", "files", "transfer", "frame", "diagnostics", "resources"}) {
        if (!fs::exists(folder / room))
            continue;
        for (const auto& entry : fs::directory_iterator(folder / room)) {
            const std::string extension = entry.path().extension();
            if (extension != ".cpp" && extension != ".h")
                continue;
            for (std::string& text : take(testbench::ReadFile(entry.path())))
                texts.push_back({entry.path().filename(), std::move(text)});
        }
    }
    return texts;
}

} // namespace

std::vector<std::string> LiteralsOf(const std::string& source) {
    std::vector<std::string> texts;
    for (Token& token : Lexer(source).All())
        if (token.kind == Kind::Text)
            texts.push_back(std::move(token.text));
    return texts;
}

std::vector<std::string> ShownLiteralsOf(const std::string& source) {
    const std::vector<Token> tokens = Lexer(source).All();
    std::vector<std::string> texts;
    for (size_t i = 0; i + 2 < tokens.size(); ++i) {
        if (tokens[i].kind != Kind::Name)
            continue;
        // A call, or a variable of a class that shows its text.
        const size_t open = tokens[i + 1].kind == Kind::Name ? i + 2 : i + 1;
        if (Showing.count(tokens[i].text) && tokens[open].text == "(")
            TakeUntil(tokens, open, true, texts);
        else if (Shown.count(tokens[i].text) && tokens[i + 1].text == "=" && tokens[i + 2].text != "=")
            TakeUntil(tokens, i + 2, false, texts);
        else if (Shown.count(tokens[i].text) && tokens[i + 1].text == "+" && tokens[i + 2].text == "=")
            TakeUntil(tokens, i + 3, false, texts);
    }
    return texts;
}

std::vector<SourceText> LiteralsOfProgram(const fs::path& folder) {
    return OfProgram(folder, LiteralsOf);
}

std::vector<SourceText> ShownLiteralsOfProgram(const fs::path& folder) {
    return OfProgram(folder, ShownLiteralsOf);
}

} // namespace docstest
