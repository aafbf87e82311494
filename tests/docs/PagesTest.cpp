// Files, folders, commands, functions and tests that the project's pages name: they must exist.
#include "robot/Files.h"
#include "tests/docs/Markdown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace docstest;
namespace fs = std::filesystem;

namespace {

const fs::path Tree = ZELK_SOURCE_DIR;

bool IsBuilt(const fs::path& folder) {
    const std::string name = folder.filename().string();
    return name.starts_with("build") || name == ".git";
}

/// Paths of all files of the tree, each also in its shorter forms: "a/b/C.h", "b/C.h" and "C.h".
std::set<std::string> FileNames() {
    std::set<std::string> names;
    for (const auto& room : fs::directory_iterator(Tree)) {
        if (room.is_regular_file())
            names.insert(room.path().filename().string());
        if (!room.is_directory() || IsBuilt(room.path()))
            continue;
        for (const auto& file : fs::recursive_directory_iterator(room.path())) {
            fs::path end;
            for (fs::path whole = fs::relative(file.path(), Tree); !whole.empty();
                 whole = whole.parent_path()) {
                end = end.empty() ? whole.filename() : whole.filename() / end;
                names.insert(end.string());
            }
        }
    }
    return names;
}

/// "Suite.Name" of every test below tests/.
std::set<std::string> TestNames() {
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(Tree / "tests")) {
        if (entry.path().extension() != ".cpp")
            continue;
        for (const std::string& line : testbench::ReadLines(entry.path())) {
            const auto open = line.find('('), comma = line.find(", "), close = line.find(')');
            if (line.starts_with("TEST") && open < comma && comma < close && close != line.npos)
                names.insert(line.substr(open + 1, comma - open - 1) + '.' +
                             line.substr(comma + 2, close - comma - 2));
        }
    }
    return names;
}

/// Calls take(word) for each word of a text.
template <class Take>
void EachWord(const std::string& text, Take take) {
    const auto isPart = [](unsigned char c) { return std::isalnum(c) || c == '_'; };
    for (auto begin = text.begin(); begin != text.end();) {
        const auto end = std::find_if_not(begin, text.end(), isPart);
        if (begin != end)
            take(std::string(begin, end));
        begin = std::find_if(end, text.end(), isPart);
    }
}

/// Adds the words of a file, apart from pages, the guide and the comments of sources.
void AddWords(const fs::path& file, std::set<std::string>& words) {
    const fs::path extension = file.extension();
    if (extension == ".md" || extension == ".adoc")
        return;
    const bool hasComments = extension == ".cpp" || extension == ".h";
    for (const std::string& line : testbench::ReadLines(file))
        EachWord(hasComments ? line.substr(0, line.find("//")) : line,
                 [&](const std::string& word) { words.insert(word); });
}

/// The words of all files of the tree, with the exceptions of AddWords.
std::set<std::string> SourceWords() {
    std::set<std::string> words;
    for (const auto& entry : fs::directory_iterator(Tree)) {
        if (entry.is_regular_file())
            AddWords(entry.path(), words);
        if (!entry.is_directory() || IsBuilt(entry.path()))
            continue;
        for (const auto& file : fs::recursive_directory_iterator(entry.path()))
            if (file.is_regular_file())
                AddWords(file.path(), words);
    }
    return words;
}

/// Whether the text is the name of a file of a kind that the tree holds, with or without its folders.
bool IsFileName(const std::string& text) {
    static const std::set<std::string> kinds{".adoc", ".cmake", ".cpp", ".csv", ".h", ".md", ".txt", ".yml"};
    return text.find(' ') == text.npos && kinds.count(fs::path(text).extension().string());
}

bool IsWord(const std::string& text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isalnum(c) || c == '_'; });
}

/// Whether the text has the form "Suite.Name", with a capital in both parts.
bool IsTestName(const std::string& text) {
    const auto point = text.find('.');
    return point != text.npos && IsWord(text.substr(0, point)) && IsWord(text.substr(point + 1)) &&
           std::isupper(static_cast<unsigned char>(text[0])) &&
           std::isupper(static_cast<unsigned char>(text[point + 1]));
}

/// Whether the text is the name of something in the sources: "name", "Class::name" or "name()".
bool IsName(const std::string& text) {
    std::string name = text.ends_with("()") ? text.substr(0, text.size() - 2) : text;
    for (auto colons = name.find("::"); colons != name.npos; colons = name.find("::"))
        name.replace(colons, 2, "_");
    return IsWord(name) && !std::isdigit(static_cast<unsigned char>(name[0]));
}

/// Whether the sources have the word. One that ends in "_", as "m_" does, stands for all that begin so.
bool IsIn(const std::set<std::string>& words, const std::string& word) {
    const auto found = words.lower_bound(word);
    return found != words.end() && (*found == word || (word.ends_with('_') && found->starts_with(word)));
}

/// The words of a text that look like paths of the tree: with a separator, not from the root, and not in
/// a build.
std::vector<std::string> Paths(const std::string& text) {
    std::vector<std::string> paths;
    std::istringstream in(text);
    for (std::string word; in >> word;) {
        if (word.starts_with("./"))
            word.erase(0, 2);
        else if (word.find('/') == word.npos)
            continue;
        const bool plain = std::all_of(word.begin(), word.end(), [](unsigned char c) {
            return std::isalnum(c) || c == '_' || c == '-' || c == '.' || c == '/';
        });
        if (plain && std::isalnum(static_cast<unsigned char>(word[0])) && !word.starts_with("build/"))
            paths.push_back(word);
    }
    return paths;
}

bool IsThere(const std::string& path, const Page& page) {
    return fs::exists(Tree / path) || fs::exists(Tree / page.path.parent_path() / path);
}

} // namespace

TEST(MarkdownPages, AreFound) {
    std::set<std::string> names;
    for (const Page& page : PagesOf(Tree)) {
        names.insert(page.path.lexically_normal().string());
        EXPECT_FALSE(page.text.empty()) << page.path;
    }
    for (const char* name : {"README.md", "CONTRIBUTING.md", "CHANGELOG.md", "docs/DEVELOPING.md",
                             "docs/where.md", "docs/decisions.md", "docs/recipes.md", "docs/testing.md",
                             "docs/zelk-radio.md", "docs/guide/README.md"})
        EXPECT_TRUE(names.count(name)) << name;
}

TEST(MarkdownPages, NameFilesThatExist) {
    const std::set<std::string> files = FileNames();
    size_t named = 0;
    for (const Page& page : PagesOf(Tree))
        for (const std::string& text : QuotedTexts(page.text)) {
            if (!IsFileName(text))
                continue;
            ++named;
            EXPECT_TRUE(files.count(text)) << page.path << ": " << text;
        }
    EXPECT_GT(named, 60u);
}

TEST(MarkdownPages, NameFoldersAndCommandsThatExist) {
    const std::set<std::string> files = FileNames();
    size_t named = 0;
    for (const Page& page : PagesOf(Tree)) {
        std::vector<std::string> texts = QuotedTexts(page.text);
        const std::vector<std::string> blocks = BlockLines(page.text);
        texts.insert(texts.end(), blocks.begin(), blocks.end());
        for (const std::string& text : texts)
            for (const std::string& path : Paths(text)) {
                ++named;
                EXPECT_TRUE(IsThere(path, page) || files.count(path)) << page.path << ": " << path;
            }
    }
    EXPECT_GT(named, 60u);
}

TEST(MarkdownPages, NameWhatTheSourcesHave) {
    const std::set<std::string> words = SourceWords();
    EXPECT_GT(words.size(), 10'000u);
    size_t named = 0;
    for (const Page& page : PagesOf(Tree))
        for (const std::string& text : QuotedTexts(page.text)) {
            if (!IsName(text))
                continue;
            ++named;
            EachWord(text, [&](const std::string& word) {
                EXPECT_TRUE(IsIn(words, word)) << page.path << ": " << text;
            });
        }
    EXPECT_GT(named, 200u);
}

TEST(MarkdownPages, LinkToFilesThatExist) {
    size_t links = 0;
    for (const Page& page : PagesOf(Tree))
        for (const std::string& target : LinkTargets(page.text)) {
            ++links;
            EXPECT_TRUE(fs::exists(Tree / page.path.parent_path() / target)) << page.path << ": " << target;
        }
    EXPECT_GT(links, 10u);
}

TEST(MarkdownPages, NameTestsThatExist) {
    const std::set<std::string> tests = TestNames();
    EXPECT_GT(tests.size(), 2000u);
    size_t named = 0;
    for (const Page& page : PagesOf(Tree))
        for (const std::string& text : QuotedTexts(page.text)) {
            if (!IsTestName(text))
                continue;
            ++named;
            EXPECT_TRUE(tests.count(text)) << page.path << ": " << text;
        }
    EXPECT_GT(named, 100u);
}

TEST(Decisions, EndWithTheTestsThatShowThemOrSayThatThereIsNone) {
    const std::vector<Bullet> bullets = Bullets(PageAt(Tree, "docs/decisions.md").text);
    EXPECT_GT(bullets.size(), 80u);
    for (const Bullet& bullet : bullets) {
        const auto shown = std::max(bullet.text.rfind(" Test: `") + 1, bullet.text.rfind(" Tests: `") + 1);
        EXPECT_TRUE(shown > 0 || bullet.text.ends_with(" No test.")) << bullet.heading << ": " << bullet.text;
    }
}
