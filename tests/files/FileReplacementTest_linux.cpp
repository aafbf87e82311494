// Replaced files with permissions, links and pipes, and on a full disk.
#include "tests/files/AsAnyUser.h"
#include "tests/files/FileReplacementTest.h"
#include "tests/files/FileSizeLimit.h"

#include <sys/stat.h>

#include <cerrno>

namespace fs = std::filesystem;

namespace {

/// Calls `write` as a user who may not write to the folder, with the disk's room limited.
template <typename Writer>
std::string InClosedFolder(const testbench::TempFolder& folder, Writer write, rlim_t room = RLIM_INFINITY) {
    EXPECT_EQ(chmod(folder.Path().c_str(), 0555), 0);
    std::string problem;
    {
        const AsAnyUser user;
        const FileSizeLimit full(room);
        problem = write();
    }
    EXPECT_EQ(chmod(folder.Path().c_str(), 0755), 0);
    return problem;
}

} // namespace

TEST_F(ReplacedFile, KeepsThePermissionsOfTheFormerOne) {
    for (const mode_t mode : {0600u, 0640u, 0664u, 0755u}) {
        testbench::WriteFile(m_folder / "a", "old");
        ASSERT_EQ(chmod((m_folder / "a").c_str(), mode), 0);
        EXPECT_EQ(Write(m_folder / "a", "new"), "");
        EXPECT_EQ(fs::status(m_folder / "a").permissions(), static_cast<fs::perms>(mode));
    }
}

TEST_F(ReplacedFile, IsMadeWithTheUsersUsualPermissions) {
    const mode_t before = umask(027);
    EXPECT_EQ(Write(m_folder / "a", "new"), "");
    umask(before);
    EXPECT_EQ(fs::status(m_folder / "a").permissions(), static_cast<fs::perms>(0640));
}

TEST_F(ReplacedFile, BehindLinksIsReplacedAndTheLinksStay) {
    fs::create_directory(m_folder / "far");
    testbench::WriteFile(m_folder / "far/real", "old");
    fs::create_symlink("far/real", m_folder / "near");
    fs::create_symlink(m_folder / "near", m_folder / "link");
    EXPECT_EQ(Write(m_folder / "link", "new"), "");
    EXPECT_EQ(testbench::ReadFile(m_folder / "far/real"), "new");
    EXPECT_TRUE(fs::is_symlink(m_folder / "link"));
    EXPECT_TRUE(fs::is_symlink(m_folder / "near"));
    EXPECT_EQ(Entries(), (std::vector<std::string>{"far", "link", "near"}));
}

TEST_F(ReplacedFile, IsMadeWhereALinkPointsToNothing) {
    fs::create_symlink("real", m_folder / "link");
    EXPECT_EQ(Write(m_folder / "link", "new"), "");
    EXPECT_EQ(testbench::ReadFile(m_folder / "real"), "new");
    EXPECT_TRUE(fs::is_symlink(m_folder / "link"));
}

TEST_F(ReplacedFile, BehindACircleOfLinksIsRefused) {
    fs::create_symlink("b", m_folder / "a");
    fs::create_symlink("a", m_folder / "b");
    EXPECT_NE(Write(m_folder / "a", "new"), "");
    EXPECT_EQ(Entries(), (std::vector<std::string>{"a", "b"}));
}

TEST_F(ReplacedFile, StandsAsItWasWhenWritingFailsHalfWay) {
    testbench::WriteFile(m_folder / "a", "old");
    for (const rlim_t limit : {0u, 1u, 4096u, 99999u}) {
        std::string problem;
        {
            const FileSizeLimit full(limit);
            errno = 0; // a former error must not be reported
            problem = Write(m_folder / "a", std::string(100000, 'n'));
        }
        EXPECT_EQ(problem, "File too large") << limit;
        EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "old") << limit;
        EXPECT_EQ(Entries(), std::vector<std::string>{"a"}) << limit;
    }
    const FileSizeLimit enough(100000);
    EXPECT_EQ(Write(m_folder / "a", std::string(100000, 'n')), "");
}

TEST_F(ReplacedFile, IsNotMadeWhereAPipeStands) {
    ASSERT_EQ(mkfifo((m_folder / "a").c_str(), 0600), 0);
    EXPECT_NE(Write(m_folder / "a", "new"), "");
    EXPECT_TRUE(fs::is_fifo(m_folder / "a"));
}

TEST_F(ReplacedFile, IsNotReplacedWhenTheUserMayNotWriteIt) {
    testbench::WriteFile(m_folder / "a", "old");
    ASSERT_EQ(chmod((m_folder / "a").c_str(), 0444), 0);
    ASSERT_EQ(chmod(m_folder.Path().c_str(), 0777), 0);
    std::string problem;
    {
        const AsAnyUser user;
        problem = Write(m_folder / "a", "new");
    }
    EXPECT_EQ(problem, "Permission denied");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "old");
    EXPECT_EQ(Entries(), std::vector<std::string>{"a"});
}

TEST_F(ReplacedFile, IsNotMadeInAFolderThatTheUserMayNotWriteTo) {
    EXPECT_EQ(InClosedFolder(m_folder, [&] { return Write(m_folder / "a", "new"); }), "Permission denied");
    EXPECT_EQ(Entries(), std::vector<std::string>{});
}

TEST_F(ReplacedFile, IsOverwrittenWhereItStandsInAFolderThatTheUserMayNotWriteTo) {
    for (const std::string former : {"", "old", "a former file that is longer"}) {
        testbench::WriteFile(m_folder / "a", former);
        ASSERT_EQ(chmod((m_folder / "a").c_str(), 0666), 0);
        EXPECT_EQ(InClosedFolder(m_folder, [&] { return Write(m_folder / "a", "new bytes"); }), "");
        EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "new bytes");
        EXPECT_EQ(Entries(), std::vector<std::string>{"a"});
        EXPECT_EQ(fs::status(m_folder / "a").permissions(), static_cast<fs::perms>(0666));
    }
}

TEST_F(ReplacedFile, ThatCanNotBeOverwrittenInSuchAFolderKeepsItsFormerBytes) {
    const std::string former(5000, 'o'), longer(100000, 'n'), shorter(4000, 'n');
    testbench::WriteFile(m_folder / "a", former);
    ASSERT_EQ(chmod((m_folder / "a").c_str(), 0666), 0);
    for (const rlim_t room : {0u, 1000u, 4096u, 5000u, 99999u}) {
        EXPECT_EQ(InClosedFolder(
                      m_folder, [&] { return Write(m_folder / "a", longer); }, room),
                  "File too large")
            << room;
        EXPECT_EQ(testbench::ReadFile(m_folder / "a"), former) << room;
    }
    for (const rlim_t room : {0u, 1000u, 3999u}) {
        EXPECT_EQ(InClosedFolder(
                      m_folder, [&] { return Write(m_folder / "a", shorter); }, room),
                  "File too large")
            << room;
        EXPECT_EQ(testbench::ReadFile(m_folder / "a"), former) << room;
    }
    EXPECT_EQ(InClosedFolder(
                  m_folder, [&] { return Write(m_folder / "a", longer); }, 100000),
              "");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a"), longer);
}

TEST_F(ReplacedFile, OfAnotherUserIsOverwrittenInAFolderThatProtectsTheFilesOfOthers) {
    if (getuid() != 0)
        GTEST_SKIP() << "only root can make a file of another user";
    testbench::WriteFile(m_folder / "a", "old");
    ASSERT_EQ(chmod((m_folder / "a").c_str(), 0666), 0);
    ASSERT_EQ(chmod(m_folder.Path().c_str(), 01777), 0);
    std::string problem;
    {
        const AsAnyUser user;
        problem = Write(m_folder / "a", "new");
    }
    EXPECT_EQ(problem, "");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "new");
    EXPECT_EQ(Entries(), std::vector<std::string>{"a"});
}
