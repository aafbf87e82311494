#include "tests/docs/GuideSource.h"

#include "robot/Files.h"

#include <regex>
#include <sstream>

namespace fs = std::filesystem;

namespace docstest {

namespace {

void ReplaceAll(std::string& text, const std::string& what, const std::string& by) {
    for (size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
}

/// Converts a message to a regular expression: signs match themselves, placeholders any text.
std::string ExpressionOf(const std::string& message) {
    static const std::regex Sign(R"([.^$|()\[\]{}*+?\\])");
    static const std::regex Placeholder("%[0-9]*[a-zA-Z]");
    return std::regex_replace(std::regex_replace(Squeezed(message), Sign, R"(\$&)"), Placeholder, ".+");
}

} // namespace

std::string GuideSource(const fs::path& folder) {
    std::istringstream lines(testbench::ReadFile(folder / "ZelkUserGuide.adoc"));
    const std::string include = "include::";
    std::string all;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(include))
            all += testbench::ReadFile(folder / line.substr(include.size(), line.find('[') - include.size()));
        all += line + '\n';
    }
    return all;
}

std::string Squeezed(const std::string& text) {
    std::istringstream words(text);
    std::string all;
    for (std::string word; words >> word;)
        all += (all.empty() ? "" : " ") + word;
    return all;
}

std::string PlainText(const std::string& source) {
    std::string text = source;
    ReplaceAll(text, " +\n", " ");
    ReplaceAll(text, "`+", "");
    ReplaceAll(text, "+`", "");
    ReplaceAll(text, "`", "");
    ReplaceAll(text, "\\|", "|");
    return Squeezed(text);
}

std::vector<std::string> MessageCells(const std::string& source) {
    const size_t table = source.find("|===", source.find("[#status-texts]"));
    const size_t end = source.find("|===", table + 4);
    std::vector<std::string> cells;
    // Blank lines separate rows; cells begin at the starts of lines.
    for (size_t at = source.find("\n\n|", table); at + 2 < end; at = source.find("\n\n|", at + 3))
        cells.push_back(PlainText(source.substr(at + 3, source.find("\n|", at + 3) - at - 3)));
    return cells;
}

bool CellHasMessage(const std::string& cell, const std::string& message) {
    return std::regex_match(cell, std::regex("(.* )?" + ExpressionOf(message) + "( .*)?"));
}

} // namespace docstest
