#include "tests/files/FileReplacementTest.h"

namespace fs = std::filesystem;

TEST_F(ReplacedFile, IsMadeWithExactlyTheBytes) {
    const std::string bytes("a\0b\r\n\xFF", 6);
    EXPECT_EQ(Write(m_folder / "a", bytes), "");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a"), bytes);
    EXPECT_EQ(Entries(), std::vector<std::string>{"a"});
}

TEST_F(ReplacedFile, CanBeEmpty) {
    EXPECT_EQ(Write(m_folder / "a", ""), "");
    EXPECT_EQ(fs::file_size(m_folder / "a"), 0u);
}

TEST_F(ReplacedFile, ReplacesAFormerOneAlsoByAShorter) {
    testbench::WriteFile(m_folder / "a", std::string(10000, 'x'));
    EXPECT_EQ(Write(m_folder / "a", "short"), "");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "short");
    EXPECT_EQ(Entries(), std::vector<std::string>{"a"});
}

TEST_F(ReplacedFile, IsNotMadeWhereAFolderStands) {
    fs::create_directory(m_folder / "a");
    EXPECT_EQ(Write(m_folder / "a", "new"), "Is a directory");
    EXPECT_TRUE(fs::is_directory(m_folder / "a"));
    EXPECT_EQ(Entries(), std::vector<std::string>{"a"});
}

TEST_F(ReplacedFile, IsNotMadeInAFolderThatIsMissing) {
    EXPECT_EQ(Write(m_folder / "none/a", "new"), "No such file or directory");
    EXPECT_EQ(Entries(), std::vector<std::string>{});
}

TEST_F(ReplacedFile, LeavesFilesWithNamesLikeItsOwnAlone) {
    testbench::WriteFile(m_folder / "a.new0", "other");
    testbench::WriteFile(m_folder / "a.new1", "other");
    EXPECT_EQ(Write(m_folder / "a", "new"), "");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "new");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a.new0"), "other");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a.new1"), "other");
    EXPECT_EQ(Entries(), (std::vector<std::string>{"a", "a.new0", "a.new1"}));
}

TEST_F(ReplacedFile, MayHaveANameInLettersOfSeveralAlphabets) {
    const std::u8string name = u8"Fün\u03A9 \u0416\u4E2D.zelk";
    const fs::path path = m_folder.Path() / name;
    EXPECT_EQ(Write(path, "old"), "");
    EXPECT_EQ(Write(path, "new"), "");
    EXPECT_EQ(testbench::ReadFile(path), "new");
    EXPECT_EQ(Entries(), (std::vector<std::string>{{name.begin(), name.end()}}));
}
