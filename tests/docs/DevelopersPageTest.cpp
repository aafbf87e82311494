// The developer's page names files: they must be there.
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

/// The texts between backticks that name a source file, such as "files/FileKind.cpp" or "TRecord.h".
std::vector<std::string> NamedSources(const std::string& page) {
    std::vector<std::string> names;
    std::istringstream in(page);
    bool quoted = false;
    for (std::string part; std::getline(in, part, '`'); quoted = !quoted) {
        const fs::path name(part);
        if (quoted && part.find(' ') == part.npos && (name.extension() == ".cpp" || name.extension() == ".h"))
            names.push_back(part);
    }
    return names;
}

/// Paths of all sources below the rooms, each also by its ends: "a/b/C.h", "b/C.h" and "C.h".
std::set<std::string> Sources() {
    std::set<std::string> names;
    for (const auto& room : fs::directory_iterator(ZELK_SOURCE_DIR)) {
        if (!room.is_directory() || room.path().filename() == "build" || room.path().filename() == ".git")
            continue;
        for (const auto& file : fs::recursive_directory_iterator(room.path())) {
            fs::path end;
            for (fs::path whole = fs::relative(file.path(), ZELK_SOURCE_DIR); !whole.empty();
                 whole = whole.parent_path()) {
                end = end.empty() ? whole.filename() : whole.filename() / end;
                names.insert(end.string());
            }
        }
    }
    return names;
}

} // namespace

TEST(DevelopersPage, NamesSourcesThatExist) {
    std::ifstream file(ZELK_SOURCE_DIR "/docs/DEVELOPING.md");
    const std::string page{std::istreambuf_iterator<char>(file), {}};
    const std::vector<std::string> named = NamedSources(page);
    EXPECT_GT(named.size(), 40u);
    const std::set<std::string> sources = Sources();
    for (const std::string& name : named)
        EXPECT_TRUE(sources.count(name)) << name;
}
