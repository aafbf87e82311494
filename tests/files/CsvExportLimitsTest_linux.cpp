// Exporting on a full disk, and into a folder that may not be written.
#include "tests/files/AsAnyUser.h"
#include "tests/files/CsvExportTest.h"
#include "tests/files/FileSizeLimit.h"

#include <sys/stat.h>

TEST_F(CsvExportCommand, ThatEndsOnAFullDiskSaysSoAndLeavesTheFormerFile) {
    EmptyPageOf("ANFM");
    testbench::WriteFile(m_folder / "list.csv", "former");
    CurrentGrid()->SelectAll();
    const FileSizeLimit full(1000);
    ExportInVain(m_folder / "list.csv");
    EXPECT_EQ(testbench::ReadFile(m_folder / "list.csv"), "former");
    EXPECT_EQ(Entries(), std::vector<std::string>{"list.csv"});
}

TEST_F(CsvExportCommand, OverwritesAFileThatMayBeWrittenInAFolderThatMayNot) {
    EmptyPageOf("O12");
    Select({1});
    testbench::WriteFile(m_folder / "list.csv", std::string(10000, 'x'));
    ASSERT_EQ(chmod((m_folder / "list.csv").c_str(), 0666), 0);
    ASSERT_EQ(chmod(m_folder.Path().c_str(), 0555), 0);
    std::string bytes;
    {
        const AsAnyUser user;
        bytes = Export();
    }
    ASSERT_EQ(chmod(m_folder.Path().c_str(), 0755), 0);
    EXPECT_EQ(bytes, "MNUM,RFRQ,\n,,\n");
    EXPECT_EQ(Entries(), std::vector<std::string>{"list.csv"});
}
