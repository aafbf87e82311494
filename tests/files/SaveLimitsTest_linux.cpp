// Saving on a full disk.
#include "tests/files/FileSizeLimit.h"
#include "tests/files/OpenSaveCommandsTest.h"

TEST_F(OpenSaveCommands, SaveOnAFullDiskLeavesTheFormerFile) {
    NamePage("a");
    Choose(IdSave);
    const std::string former = ReadFromFolder("a.zelk");
    SetCell(0, DESC, "NEW");
    {
        const FileSizeLimit full(100);
        Choose(IdSave);
    }
    EXPECT_EQ(Status(0), "NOT SAVED: File too large");
    EXPECT_EQ(ReadFromFolder("a.zelk"), former);
    EXPECT_EQ(Entries(), std::vector<std::string>{"a.zelk"});
}

TEST_F(OpenSaveCommands, AFileThatCouldNotBeSavedIsNotThePagesOwn) {
    WriteToFolder("a.zelk", "other");
    NamePage("a");
    {
        const FileSizeLimit full(10);
        SaveOver("a.zelk", wxID_OK);
    }
    EXPECT_EQ(ReadFromFolder("a.zelk"), "other");
    SaveOver("a.zelk", wxID_CANCEL);
}
