// The log of a transfer, written after its file has been put in place.
#include "transfer/TransferLog.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"

#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/log.h>

#include <unistd.h>

#include <filesystem>

using namespace testbench;

namespace {

namespace fs = std::filesystem;

// Fails the test on any message to the user.
class NothingIsTold : public wxLog {
public:
    NothingIsTold() : m_former(wxLog::SetActiveTarget(this)) {}
    ~NothingIsTold() override { wxLog::SetActiveTarget(m_former); }

protected:
    void DoLogRecord(wxLogLevel, const wxString& text, const wxLogRecordInfo&) override {
        ADD_FAILURE() << "showed the user: " << text;
    }

private:
    wxLog* m_former;
};

void WriteWholeLog(const wxString& directory) {
    wxFFile file;
    OpenTransferLog(file, directory);
    WriteTransferLog(file, ">ID");
    CloseTransferLog(file);
}

class TransferLogTest : public ::testing::Test {
protected:
    fs::path LogPath() const { return m_folder / "Zelk.log"; }
    wxString Folder() const { return m_folder.Path().string(); }

    TempFolder m_folder;
    NothingIsTold m_nothingIsTold;
};

TEST_F(TransferLogTest, IsNotWrittenWhereNoFileIs) {
    wxFFile file;
    OpenTransferLog(file, Folder());
    EXPECT_FALSE(file.IsOpened());
    WriteTransferLog(file, ">ID");
    CloseTransferLog(file);
    EXPECT_TRUE(fs::is_empty(m_folder.Path()));
    WriteWholeLog(Folder() + "/no such folder");
    EXPECT_TRUE(fs::is_empty(m_folder.Path()));
}

TEST_F(TransferLogTest, ReplacesTheFileAndHoldsOneItemALine) {
    WriteFile(LogPath(), "the log of a former transfer, longer than the new one\n");
    wxFFile file;
    OpenTransferLog(file, Folder());
    ASSERT_TRUE(file.IsOpened());
    WriteTransferLog(file, ">T201000000");
    WriteTransferLog(file, wxString("<") + wxUniChar(0xE4));
    WriteTransferLog(file, "");
    WriteTransferLog(file, "Transfer Complete.");
    CloseTransferLog(file);
    EXPECT_FALSE(file.IsOpened());
    EXPECT_EQ(ReadFile(LogPath()), ">T201000000\n<\xC3\xA4\n\nTransfer Complete.\n");
}

TEST_F(TransferLogTest, OfAFolderNamedWithASeparatorAtItsEndIsTheSame) {
    WriteFile(LogPath(), "");
    WriteWholeLog(Folder() + "/");
    EXPECT_EQ(ReadFile(LogPath()), ">ID\n");
}

TEST_F(TransferLogTest, WithoutAFolderIsThatOfTheWorkingDirectory) {
    const fs::path before = fs::current_path();
    fs::current_path(m_folder.Path());
    WriteFile(LogPath(), "old");
    WriteWholeLog("");
    fs::current_path(before);
    EXPECT_EQ(ReadFile(LogPath()), ">ID\n");
}

TEST_F(TransferLogTest, IsReplacedByTheNextTransfer) {
    WriteFile(LogPath(), "");
    wxFFile file;
    OpenTransferLog(file, Folder());
    WriteTransferLog(file, "first");
    OpenTransferLog(file, Folder());
    WriteTransferLog(file, "second");
    CloseTransferLog(file);
    EXPECT_EQ(ReadFile(LogPath()), "second\n");
}

TEST_F(TransferLogTest, OfThatNameThatIsAFolderIsLeftAlone) {
    fs::create_directory(LogPath());
    WriteWholeLog(Folder());
    EXPECT_TRUE(fs::is_directory(LogPath()));
}

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
