// Replaced files that are protected or in use, and on a full disk.
#include "tests/files/FileReplacementTest.h"

#include <windows.h>

#include <cstdlib>

namespace fs = std::filesystem;

namespace {

/// Opens a file like a program that shares it with nobody who writes.
class InUse {
public:
    explicit InUse(const fs::path& file)
        : m_handle(
              CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~InUse() { CloseHandle(m_handle); }
    InUse(const InUse&) = delete;
    InUse& operator=(const InUse&) = delete;

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }

private:
    HANDLE m_handle;
};

} // namespace

TEST_F(ReplacedFile, StandsAsItWasWhileAnotherProgramReadsIt) {
    testbench::WriteFile(m_folder / "a", "old");
    {
        const InUse reader(m_folder / "a");
        ASSERT_TRUE(reader.IsOpen());
        EXPECT_NE(Write(m_folder / "a", "new"), "");
        EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "old");
        EXPECT_EQ(Entries(), std::vector<std::string>{"a"});
    }
    EXPECT_EQ(Write(m_folder / "a", "new"), "");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "new");
}

TEST_F(ReplacedFile, StandsAsItWasIfItMayOnlyBeRead) {
    testbench::WriteFile(m_folder / "a", "old");
    ASSERT_TRUE(SetFileAttributesW((m_folder / "a").c_str(), FILE_ATTRIBUTE_READONLY));
    const HANDLE opened =
        CreateFileW((m_folder / "a").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (opened != INVALID_HANDLE_VALUE) {
        CloseHandle(opened);
        GTEST_SKIP() << "this system lets this user write it all the same";
    }
    EXPECT_EQ(Write(m_folder / "a", "new"), "Permission denied");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "old");
    EXPECT_EQ(Entries(), std::vector<std::string>{"a"});
    SetFileAttributesW((m_folder / "a").c_str(), FILE_ATTRIBUTE_NORMAL);
}

// Windows has no limit for a program's files: whoever sets ZELK_FILE_LIMIT starts this program under one of
// the host.
TEST_F(ReplacedFile, StandsAsItWasWhenWritingFailsHalfWay) {
    const char* const limit = std::getenv("ZELK_FILE_LIMIT");
    if (!limit)
        GTEST_SKIP() << "the disk is not full";
    const size_t room = static_cast<size_t>(std::atoi(limit));
    ASSERT_GE(room, 3u);
    testbench::WriteFile(m_folder / "a", "old");
    for (const size_t size : {room + 1, 2 * room, 100 * room}) {
        EXPECT_NE(Write(m_folder / "a", std::string(size, 'n')), "") << size;
        EXPECT_EQ(testbench::ReadFile(m_folder / "a"), "old") << size;
        EXPECT_EQ(Entries(), std::vector<std::string>{"a"}) << size;
    }
    EXPECT_EQ(Write(m_folder / "a", std::string(room, 'n')), "");
    EXPECT_EQ(testbench::ReadFile(m_folder / "a"), std::string(room, 'n'));
}
