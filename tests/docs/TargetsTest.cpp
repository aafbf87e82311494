// Comparison of the sources in the tree with those that CMake's files list.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

namespace {

const fs::path Tree = ZELK_SOURCE_DIR;

bool IsSource(const fs::path& file) {
    return file.extension() == ".cpp" || file.extension() == ".h";
}

/// The paths of the files that a CMakeLists.txt names, relative to its folder. Those of the build folder
/// are left out.
std::set<fs::path> FilesListedIn(const fs::path& list) {
    std::set<fs::path> files;
    std::ifstream in(list);
    for (std::string line; std::getline(in, line);) {
        std::string code = line.substr(0, line.find('#'));
        std::replace_if(
            code.begin(), code.end(), [](char c) { return c == '(' || c == ')'; }, ' ');
        std::istringstream words(code);
        for (std::string word; words >> word;) {
            const fs::path file = word;
            if (IsSource(file) && word.find('$') == std::string::npos)
                files.insert(file);
        }
    }
    return files;
}

/// The closest CMakeLists.txt above a file.
fs::path ListOf(const fs::path& file) {
    fs::path folder = file.parent_path();
    while (!fs::exists(folder / "CMakeLists.txt"))
        folder = folder.parent_path();
    return folder / "CMakeLists.txt";
}

/// Whether a path is in a folder that git doesn't keep or that holds no sources.
bool IsElsewhere(const fs::path& path) {
    const std::string name = path.filename().string();
    return name.starts_with(".") || (path.parent_path() == Tree && name.starts_with("build"));
}

std::set<fs::path> FilesOfTheTree() {
    std::set<fs::path> files;
    for (auto entry = fs::recursive_directory_iterator(Tree); entry != fs::end(entry); ++entry) {
        if (entry->is_directory() && IsElsewhere(entry->path()))
            entry.disable_recursion_pending();
        else if (entry->is_regular_file())
            files.insert(entry->path());
    }
    return files;
}

} // namespace

TEST(Targets, HaveEverySourceAndHeader) {
    size_t sources = 0;
    for (const fs::path& file : FilesOfTheTree()) {
        if (!IsSource(file))
            continue;
        const fs::path list = ListOf(file);
        EXPECT_TRUE(FilesListedIn(list).count(file.lexically_relative(list.parent_path())))
            << fs::relative(file, Tree) << " is in no target of " << fs::relative(list, Tree);
        ++sources;
    }
    EXPECT_GT(sources, 600u);
}

TEST(Targets, NameNoFileThatIsGone) {
    for (const fs::path& list : FilesOfTheTree()) {
        if (list.filename() != "CMakeLists.txt")
            continue;
        for (const fs::path& file : FilesListedIn(list))
            EXPECT_TRUE(fs::exists(list.parent_path() / file)) << fs::relative(list, Tree) << ": " << file;
    }
}

TEST(Targets, DependOnNoFileThatMayBeMissing) {
    for (const fs::path& list : FilesOfTheTree()) {
        if (list.filename() != "CMakeLists.txt" && list.extension() != ".cmake")
            continue;
        std::ifstream in(list);
        for (std::string line; std::getline(in, line);) {
            EXPECT_FALSE(line.find("include(") != std::string::npos &&
                         line.find("OPTIONAL") != std::string::npos)
                << fs::relative(list, Tree) << ": " << line;
            EXPECT_EQ(line.find("EXISTS"), std::string::npos) << fs::relative(list, Tree) << ": " << line;
        }
    }
}
