// The version number is defined in CMakeLists.txt only; everything else takes it from there.
#include "catalogue/Version.h"

#include "robot/Files.h"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

const fs::path Tree = ZELK_SOURCE_DIR;
const std::string Number = ZELK_PROJECT_VERSION;

/// Whether the text contains the number, not as part of a longer one such as an address.
bool HasNumber(const std::string& text) {
    const auto isPart = [&](size_t at) {
        return at < text.size() && (std::isdigit(static_cast<unsigned char>(text[at])) || text[at] == '.');
    };
    for (size_t at = text.find(Number); at != text.npos; at = text.find(Number, at + 1)) {
        const size_t end = at + Number.size();
        const bool endsASentence = end < text.size() && text[end] == '.' && !isPart(end + 1);
        if (!(at > 0 && isPart(at - 1)) && (!isPart(end) || endsASentence))
            return true;
    }
    return false;
}

/// Change logs name versions, channel files hold the version that wrote them, and tests contain expected
/// values.
bool MayHaveNumber(const fs::path& path) {
    const std::string name = path.string();
    return name == "CMakeLists.txt" || name == "CHANGELOG.md" || path.extension() == ".zelk" ||
           name.starts_with("tests/") || name.starts_with("fuzz/corpus/");
}

std::vector<fs::path> FilesOfTree() {
    std::vector<fs::path> files;
    for (auto entry = fs::recursive_directory_iterator(Tree); entry != fs::recursive_directory_iterator();
         ++entry) {
        const std::string name = entry->path().filename().string();
        if (entry.depth() == 0 && (name.starts_with("build") || name == ".git"))
            entry.disable_recursion_pending();
        else if (entry->is_regular_file())
            files.push_back(fs::relative(entry->path(), Tree));
    }
    return files;
}

} // namespace

TEST(VersionNumber, IsThatOfTheProject) {
    EXPECT_EQ(ProgramVersion, Number);
}

TEST(VersionNumber, IsWrittenOnceOutsideOfHistoriesAndTests) {
    const std::vector<fs::path> files = FilesOfTree();
    EXPECT_GT(files.size(), 400u);
    EXPECT_TRUE(HasNumber(testbench::ReadFile(Tree / "CMakeLists.txt")));
    for (const fs::path& file : files)
        EXPECT_TRUE(MayHaveNumber(file) || !HasNumber(testbench::ReadFile(Tree / file))) << file;
}

TEST(VersionNumber, IsInWhatIsInstalledAndInTheChanges) {
    const fs::path packaging = fs::path(ZELK_BUILD_DIR) / "packaging";
    EXPECT_TRUE(testbench::ReadFile(packaging / "changelog").starts_with("zelk (" + Number + ") "));
    EXPECT_NE(testbench::ReadFile(packaging / "local.zelk.zelk.metainfo.xml")
                  .find("<release version=\"" + Number + '"'),
              std::string::npos);
    EXPECT_NE(testbench::ReadFile(packaging / "zelk.1").find("\"Zelk " + Number + '"'), std::string::npos);
    EXPECT_NE(testbench::ReadFile(Tree / "CHANGELOG.md").find("\n## " + Number + '\n'), std::string::npos);
}
