// The log of a transfer, written after its file has been put in place.
#include "tests/transfer/TransferLogTest.h"

#include "robot/Files.h"

#include <filesystem>

using namespace testbench;
using namespace transfertest;

namespace {

namespace fs = std::filesystem;

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
    EXPECT_EQ(ReadText(LogPath()), ">T201000000\n<\xC3\xA4\n\nTransfer Complete.\n");
}

TEST_F(TransferLogTest, OfAFolderNamedWithASeparatorAtItsEndIsTheSame) {
    WriteFile(LogPath(), "");
    WriteWholeLog(Folder() + "/");
    EXPECT_EQ(ReadText(LogPath()), ">ID\n");
}

TEST_F(TransferLogTest, WithoutAFolderIsThatOfTheWorkingDirectory) {
    const fs::path before = fs::current_path();
    fs::current_path(m_folder.Path());
    WriteFile(LogPath(), "old");
    WriteWholeLog("");
    fs::current_path(before);
    EXPECT_EQ(ReadText(LogPath()), ">ID\n");
}

TEST_F(TransferLogTest, IsReplacedByTheNextTransfer) {
    WriteFile(LogPath(), "");
    wxFFile file;
    OpenTransferLog(file, Folder());
    WriteTransferLog(file, "first");
    OpenTransferLog(file, Folder());
    WriteTransferLog(file, "second");
    CloseTransferLog(file);
    EXPECT_EQ(ReadText(LogPath()), "second\n");
}

TEST_F(TransferLogTest, OfThatNameThatIsAFolderIsLeftAlone) {
    fs::create_directory(LogPath());
    WriteWholeLog(Folder());
    EXPECT_TRUE(fs::is_directory(LogPath()));
}

} // namespace
