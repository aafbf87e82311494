// The project's Markdown pages, split into parts that tests compare with the tree.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace docstest {

struct Page {
    std::filesystem::path path; ///< relative to the tree's folder
    std::string text;
};

/// The page at a path relative to the tree's folder. Its text is empty if there is none.
Page PageAt(const std::filesystem::path& tree, const std::filesystem::path& path);

/// All pages of the tree: those in its own folder, in docs/ and in examples/.
std::vector<Page> PagesOf(const std::filesystem::path& tree);

/// The texts between backticks outside of blocks. Both backticks must be on the same line.
std::vector<std::string> QuotedTexts(const std::string& text);

/// The lines of blocks: indented by four blanks, or between fences.
std::vector<std::string> BlockLines(const std::string& text);

/// The targets of links and pictures.
std::vector<std::string> LinkTargets(const std::string& text);

/// The bullets of the first level, each as one line, with the heading above it.
struct Bullet {
    std::string heading;
    std::string text;
};
std::vector<Bullet> Bullets(const std::string& text);

/// The cells of the first table after a heading, row by row, without its head. Empty if there is none.
std::vector<std::vector<std::string>> TableBelow(const std::string& text, const std::string& heading);

} // namespace docstest
