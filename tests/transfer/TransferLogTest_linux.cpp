// The log of a transfer whose disk is full, or whose folder belongs to another user.
#include "robot/Files.h"
#include "tests/transfer/TransferLogTest.h"

#include <unistd.h>

using namespace testbench;
using namespace transfertest;

namespace {

namespace fs = std::filesystem;

TEST_F(TransferLogTest, ThatCannotBeWrittenTellsNobody) {
    wxFFile file("/dev/full", "w");
    ASSERT_TRUE(file.IsOpened());
    const wxString line('x', 100000);
    WriteTransferLog(file, line);
    WriteTransferLog(file, line);
    CloseTransferLog(file);
    EXPECT_FALSE(file.IsOpened());
}

TEST_F(TransferLogTest, ThatCannotBeReplacedStaysAsItIs) {
    WriteFile(LogPath(), "old");
    fs::permissions(m_folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
    const bool superuser = geteuid() == 0;
    if (superuser)
        fs::permissions(m_folder.Path(), fs::perms::others_read | fs::perms::others_exec,
                        fs::perm_options::add);
    constexpr uid_t nobody = 65534;
    ASSERT_EQ(superuser ? seteuid(nobody) : 0, 0);
    WriteWholeLog(Folder());
    ASSERT_EQ(superuser ? seteuid(0) : 0, 0);
    fs::permissions(m_folder.Path(), fs::perms::owner_all);
    EXPECT_EQ(ReadFile(LogPath()), "old");
}

} // namespace
