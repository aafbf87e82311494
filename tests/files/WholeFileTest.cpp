#include "files/WholeFile.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/files/AsAnyUser.h"
#include "tests/files/FileSizeLimit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

class WholeFile : public ::testing::Test {
protected:
    std::string Write(const fs::path& path, const std::string& bytes) {
        FileReplacement file;
        std::error_code error = file.Open(path.string());
        if (!error)
            error = file.Finish(bytes);
        EXPECT_FALSE(file.FormerIsDamaged());
        return error ? error.message() : "";
    }

    /// Writes as a user who may not write to the folder, however full the disk is.
    std::string WriteInClosedFolder(const std::string& name, const std::string& bytes,
                                    rlim_t room = RLIM_INFINITY) {
        EXPECT_EQ(0, chmod(m_folder.Path().c_str(), 0555));
        std::string problem;
        {
            const AsAnyUser user;
            const FileSizeLimit full(room);
            problem = Write(m_folder / name, bytes);
        }
        EXPECT_EQ(0, chmod(m_folder.Path().c_str(), 0755));
        return problem;
    }

    std::vector<std::string> Entries() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_folder.Path()))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

    testbench::TempFolder m_folder{"zelk-whole-file"};
};

} // namespace

TEST_F(WholeFile, IsMadeWithExactlyTheBytes) {
    const std::string bytes("a\0b\r\n\xFF", 6);
    EXPECT_EQ("", Write(m_folder / "a", bytes));
    EXPECT_EQ(bytes, testbench::ReadFile(m_folder / "a"));
    EXPECT_EQ(std::vector<std::string>{"a"}, Entries());
}

TEST_F(WholeFile, CanBeEmpty) {
    EXPECT_EQ("", Write(m_folder / "a", ""));
    EXPECT_EQ(0u, fs::file_size(m_folder / "a"));
}

TEST_F(WholeFile, ReplacesAFormerOneAlsoByAShorter) {
    testbench::WriteFile(m_folder / "a", std::string(10000, 'x'));
    EXPECT_EQ("", Write(m_folder / "a", "short"));
    EXPECT_EQ("short", testbench::ReadFile(m_folder / "a"));
    EXPECT_EQ(std::vector<std::string>{"a"}, Entries());
}

TEST_F(WholeFile, KeepsThePermissionsOfTheFormerOne) {
    for (const mode_t mode : {0600, 0640, 0664, 0755}) {
        testbench::WriteFile(m_folder / "a", "old");
        ASSERT_EQ(0, chmod((m_folder / "a").c_str(), mode));
        EXPECT_EQ("", Write(m_folder / "a", "new"));
        EXPECT_EQ(static_cast<fs::perms>(mode), fs::status(m_folder / "a").permissions());
    }
}

TEST_F(WholeFile, IsMadeWithTheUsersUsualPermissions) {
    const mode_t before = umask(027);
    EXPECT_EQ("", Write(m_folder / "a", "new"));
    umask(before);
    EXPECT_EQ(static_cast<fs::perms>(0640), fs::status(m_folder / "a").permissions());
}

TEST_F(WholeFile, BehindLinksIsReplacedAndTheLinksStay) {
    fs::create_directory(m_folder / "far");
    testbench::WriteFile(m_folder / "far/real", "old");
    fs::create_symlink("far/real", m_folder / "near");
    fs::create_symlink(m_folder / "near", m_folder / "link");
    EXPECT_EQ("", Write(m_folder / "link", "new"));
    EXPECT_EQ("new", testbench::ReadFile(m_folder / "far/real"));
    EXPECT_TRUE(fs::is_symlink(m_folder / "link"));
    EXPECT_TRUE(fs::is_symlink(m_folder / "near"));
    EXPECT_EQ((std::vector<std::string>{"far", "link", "near"}), Entries());
}

TEST_F(WholeFile, IsMadeWhereALinkPointsToNothing) {
    fs::create_symlink("real", m_folder / "link");
    EXPECT_EQ("", Write(m_folder / "link", "new"));
    EXPECT_EQ("new", testbench::ReadFile(m_folder / "real"));
    EXPECT_TRUE(fs::is_symlink(m_folder / "link"));
}

TEST_F(WholeFile, BehindACircleOfLinksIsRefused) {
    fs::create_symlink("b", m_folder / "a");
    fs::create_symlink("a", m_folder / "b");
    EXPECT_NE("", Write(m_folder / "a", "new"));
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), Entries());
}

TEST_F(WholeFile, StandsAsItWasWhenWritingFailsHalfWay) {
    testbench::WriteFile(m_folder / "a", "old");
    for (const rlim_t limit : {0u, 1u, 4096u, 99999u}) {
        std::string problem;
        {
            const FileSizeLimit full(limit);
            errno = 0; // a former error must not tell this one
            problem = Write(m_folder / "a", std::string(100000, 'n'));
        }
        EXPECT_EQ("File too large", problem) << limit;
        EXPECT_EQ("old", testbench::ReadFile(m_folder / "a")) << limit;
        EXPECT_EQ(std::vector<std::string>{"a"}, Entries()) << limit;
    }
    const FileSizeLimit enough(100000);
    EXPECT_EQ("", Write(m_folder / "a", std::string(100000, 'n')));
}

TEST_F(WholeFile, IsNotMadeWhereAFolderStands) {
    fs::create_directory(m_folder / "a");
    EXPECT_EQ("Is a directory", Write(m_folder / "a", "new"));
    EXPECT_TRUE(fs::is_directory(m_folder / "a"));
    EXPECT_EQ(std::vector<std::string>{"a"}, Entries());
}

TEST_F(WholeFile, IsNotMadeWhereAPipeStands) {
    ASSERT_EQ(0, mkfifo((m_folder / "a").c_str(), 0600));
    EXPECT_NE("", Write(m_folder / "a", "new"));
    EXPECT_TRUE(fs::is_fifo(m_folder / "a"));
}

TEST_F(WholeFile, IsNotReplacedWhenTheUserMayNotWriteIt) {
    testbench::WriteFile(m_folder / "a", "old");
    ASSERT_EQ(0, chmod((m_folder / "a").c_str(), 0444));
    ASSERT_EQ(0, chmod(m_folder.Path().c_str(), 0777));
    std::string problem;
    {
        const AsAnyUser user;
        problem = Write(m_folder / "a", "new");
    }
    EXPECT_EQ("Permission denied", problem);
    EXPECT_EQ("old", testbench::ReadFile(m_folder / "a"));
    EXPECT_EQ(std::vector<std::string>{"a"}, Entries());
}

TEST_F(WholeFile, IsNotMadeInAFolderThatTheUserMayNotWriteTo) {
    EXPECT_EQ("Permission denied", WriteInClosedFolder("a", "new"));
    EXPECT_EQ(std::vector<std::string>{}, Entries());
}

TEST_F(WholeFile, IsOverwrittenWhereItStandsInAFolderThatTheUserMayNotWriteTo) {
    for (const std::string former : {"", "old", "a former file that is longer"}) {
        testbench::WriteFile(m_folder / "a", former);
        ASSERT_EQ(0, chmod((m_folder / "a").c_str(), 0666));
        EXPECT_EQ("", WriteInClosedFolder("a", "new bytes"));
        EXPECT_EQ("new bytes", testbench::ReadFile(m_folder / "a"));
        EXPECT_EQ(std::vector<std::string>{"a"}, Entries());
        EXPECT_EQ(static_cast<fs::perms>(0666), fs::status(m_folder / "a").permissions());
    }
}

TEST_F(WholeFile, ThatCanNotBeOverwrittenInSuchAFolderKeepsItsFormerBytes) {
    const std::string former(5000, 'o'), longer(100000, 'n'), shorter(4000, 'n');
    testbench::WriteFile(m_folder / "a", former);
    ASSERT_EQ(0, chmod((m_folder / "a").c_str(), 0666));
    for (const rlim_t room : {0u, 1000u, 4096u, 5000u, 99999u}) {
        EXPECT_EQ("File too large", WriteInClosedFolder("a", longer, room)) << room;
        EXPECT_EQ(former, testbench::ReadFile(m_folder / "a")) << room;
    }
    for (const rlim_t room : {0u, 1000u, 3999u}) {
        EXPECT_EQ("File too large", WriteInClosedFolder("a", shorter, room)) << room;
        EXPECT_EQ(former, testbench::ReadFile(m_folder / "a")) << room;
    }
    EXPECT_EQ("", WriteInClosedFolder("a", longer, 100000));
    EXPECT_EQ(longer, testbench::ReadFile(m_folder / "a"));
}

TEST_F(WholeFile, OfAnotherUserIsOverwrittenInAFolderThatProtectsTheFilesOfOthers) {
    if (getuid() != 0)
        GTEST_SKIP() << "only root can make a file of another user";
    testbench::WriteFile(m_folder / "a", "old");
    ASSERT_EQ(0, chmod((m_folder / "a").c_str(), 0666));
    ASSERT_EQ(0, chmod(m_folder.Path().c_str(), 01777));
    std::string problem;
    {
        const AsAnyUser user;
        problem = Write(m_folder / "a", "new");
    }
    EXPECT_EQ("", problem);
    EXPECT_EQ("new", testbench::ReadFile(m_folder / "a"));
    EXPECT_EQ(std::vector<std::string>{"a"}, Entries());
}

TEST_F(WholeFile, IsNotMadeInAFolderThatIsMissing) {
    EXPECT_EQ("No such file or directory", Write(m_folder / "none/a", "new"));
    EXPECT_EQ(std::vector<std::string>{}, Entries());
}

TEST_F(WholeFile, LeavesFilesWithNamesLikeItsOwnAlone) {
    testbench::WriteFile(m_folder / "a.new0", "other");
    testbench::WriteFile(m_folder / "a.new1", "other");
    EXPECT_EQ("", Write(m_folder / "a", "new"));
    EXPECT_EQ("new", testbench::ReadFile(m_folder / "a"));
    EXPECT_EQ("other", testbench::ReadFile(m_folder / "a.new0"));
    EXPECT_EQ("other", testbench::ReadFile(m_folder / "a.new1"));
    EXPECT_EQ((std::vector<std::string>{"a", "a.new0", "a.new1"}), Entries());
}
