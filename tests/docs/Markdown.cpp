#include "tests/docs/Markdown.h"

#include "robot/Files.h"

#include <algorithm>
#include <sstream>

namespace fs = std::filesystem;

namespace docstest {

namespace {

struct Line {
    std::string text;
    bool inBlock = false;
};

std::vector<Line> Lines(const std::string& text) {
    std::vector<Line> lines;
    std::istringstream in(text);
    bool fenced = false;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("```"))
            fenced = !fenced;
        else
            lines.push_back({line, fenced || line.starts_with("    ")});
    }
    return lines;
}

std::string Trimmed(const std::string& text) {
    const auto begin = text.find_first_not_of(' ');
    return begin == text.npos ? "" : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

/// Splits "| a | b |" into {"a", "b"}.
std::vector<std::string> Cells(const std::string& row) {
    std::vector<std::string> cells;
    std::istringstream in(row.substr(1));
    for (std::string cell; std::getline(in, cell, '|');)
        cells.push_back(Trimmed(cell));
    return cells;
}

void AddPagesIn(const fs::path& tree, const fs::path& folder, std::vector<Page>& pages) {
    for (const auto& file : fs::directory_iterator(tree / folder))
        if (file.path().extension() == ".md")
            pages.push_back(PageAt(tree, fs::relative(file.path(), tree)));
}

} // namespace

Page PageAt(const fs::path& tree, const fs::path& path) {
    return {path, testbench::ReadFile(tree / path)};
}

std::vector<Page> PagesOf(const fs::path& tree) {
    std::vector<Page> pages;
    for (const char* folder : {".", "docs", "docs/guide", "examples"})
        AddPagesIn(tree, folder, pages);
    return pages;
}

std::vector<std::string> QuotedTexts(const std::string& text) {
    std::vector<std::string> texts;
    for (const Line& line : Lines(text)) {
        if (line.inBlock)
            continue;
        std::istringstream in(line.text);
        bool quoted = false;
        for (std::string part; std::getline(in, part, '`'); quoted = !quoted)
            if (quoted)
                texts.push_back(part);
    }
    return texts;
}

std::vector<std::string> BlockLines(const std::string& text) {
    std::vector<std::string> lines;
    for (const Line& line : Lines(text))
        if (line.inBlock)
            lines.push_back(Trimmed(line.text));
    return lines;
}

std::vector<std::string> LinkTargets(const std::string& text) {
    std::vector<std::string> targets;
    const std::string open = "](";
    for (auto at = text.find(open); at != text.npos; at = text.find(open, at)) {
        at += open.size();
        targets.push_back(text.substr(at, text.find(')', at) - at));
    }
    return targets;
}

std::vector<Bullet> Bullets(const std::string& text) {
    std::vector<Bullet> bullets;
    std::string heading;
    bool inBullet = false;
    for (const Line& line : Lines(text)) {
        if (line.text.starts_with("#"))
            heading = Trimmed(line.text.substr(line.text.find_first_not_of('#')));
        if (line.text.starts_with("- "))
            bullets.push_back({heading, line.text.substr(2)});
        else if (inBullet && line.text.starts_with("  "))
            bullets.back().text += ' ' + Trimmed(line.text);
        inBullet = line.text.starts_with("- ") || (inBullet && line.text.starts_with("  "));
    }
    return bullets;
}

std::vector<std::vector<std::string>> TableBelow(const std::string& text, const std::string& heading) {
    const std::vector<Line> lines = Lines(text);
    const auto isHeading = [&](const Line& line) {
        return line.text.starts_with("#") && line.text.ends_with("# " + heading);
    };
    const auto isRow = [](const Line& line) { return line.text.starts_with("|"); };
    const auto begin = std::find_if(std::find_if(lines.begin(), lines.end(), isHeading), lines.end(), isRow);
    std::vector<std::vector<std::string>> rows;
    for (auto line = begin; line != lines.end() && isRow(*line); ++line)
        if (line - begin >= 2)
            rows.push_back(Cells(line->text));
    return rows;
}

} // namespace docstest
