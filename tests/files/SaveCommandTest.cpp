// Saving as a user does: by menu and dialogs.
#include "tests/files/OpenSaveCommandsTest.h"
#include "tests/support/Keys.h"

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/stdpaths.h>

namespace fs = std::filesystem;
using testbench::DialogKind;
using testbench::DialogScript;

TEST_F(OpenSaveCommands, SaveOfAnEmptyPageSaysSo) {
    CurrentGrid()->ClearGrid();
    SetCell(CurrentParameters().Rows, DESC, "LAST"); // the last row doesn't count
    for (int command : {IdSave, IdSaveAs}) {
        DialogScript script;
        ExpectErrorBox(script, "Error", "Empty Grid - No data to Save");
        Choose(command);
    }
}

TEST_F(OpenSaveCommands, SaveAsksForANameOnceAndThenWritesWithoutAsking) {
    {
        DialogScript script;
        script.ExpectFile("Save .zelk file...", (m_folder / "mine.zelk").string());
        Choose(IdSave);
    }
    EXPECT_EQ(Entries(), std::vector<std::string>{"mine.zelk"});
    EXPECT_EQ(PageStrings[0].FileName, "mine");
    EXPECT_EQ(PageStrings[0].FileDir, FolderText());
    SetCell(0, DESC, "CHANGED");
    Choose(IdSave);
    EXPECT_NE(ReadFromFolder("mine.zelk").find("<DS>CHANGED</DS>"), std::string::npos);
    EXPECT_EQ(CurrentParameters().Flags, 0) << "a save touches no flags";
}

TEST_F(OpenSaveCommands, SaveAfterOpenWritesTheOpenedFile) {
    WriteToFolder("a.zelk", FileOf("ANFM", Memory(5, "<DS>A</DS>")));
    OpenByMenu("a.zelk");
    SetCell(0, DESC, "NEW");
    Choose(IdSave);
    EXPECT_NE(ReadFromFolder("a.zelk").find("<DS>NEW</DS>"), std::string::npos);
}

TEST_F(OpenSaveCommands, SaveAsAlwaysAsksAndStartsFromThePagesFile) {
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = "old";
    DialogScript script;
    script.Expect(DialogKind::File, "Save .zelk file...")
        .Path((m_folder / "new.zelk").string())
        .Set([&](wxDialog* dialog) {
            auto* file = dynamic_cast<wxFileDialog*>(dialog);
            ASSERT_NE(file, nullptr);
            EXPECT_EQ(file->GetWildcard(), "Zelk Files|*.zelk|All files|*.*");
            EXPECT_TRUE(file->HasFlag(wxFD_SAVE));
            EXPECT_FALSE(file->HasFlag(wxFD_OVERWRITE_PROMPT));
        });
    Choose(IdSaveAs);
    EXPECT_EQ(Entries(), std::vector<std::string>{"new.zelk"});
    EXPECT_EQ(PageStrings[0].FileName, "new");
}

TEST_F(OpenSaveCommands, SaveAsOffersThePagesNameAndFolder) {
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = "old";
    DialogScript script;
    script.Expect(DialogKind::File, "Save .zelk file...").Answer(wxID_CANCEL).Set([&](wxDialog* dialog) {
        auto* file = dynamic_cast<wxFileDialog*>(dialog);
        EXPECT_EQ(file->GetFilename(), "old");
        EXPECT_EQ(wxFileName::DirName(file->GetDirectory()), wxFileName::DirName(FolderText()));
    });
    Choose(IdSaveAs);
}

TEST_F(OpenSaveCommands, SaveThatIsCancelledWritesNothing) {
    for (int command : {IdSave, IdSaveAs}) {
        DialogScript script;
        script.Expect(DialogKind::File, "Save .zelk file...").Answer(wxID_CANCEL);
        Choose(command);
    }
    EXPECT_EQ(Entries(), std::vector<std::string>{});
    EXPECT_EQ(PageStrings[0].FileName, "");
    EXPECT_EQ(PageStrings[0].FileDir, "");
}

TEST_F(OpenSaveCommands, SaveMakesTheUsersDataFolderEvenWhenItIsCancelled) {
    const fs::path folder = wxStandardPaths::Get().GetUserDataDir().utf8_string();
    fs::remove_all(folder);
    DialogScript script;
    script.Expect(DialogKind::File, "Save .zelk file...").Answer(wxID_CANCEL);
    Choose(IdSave);
    EXPECT_TRUE(fs::is_directory(folder)) << folder;
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(OpenSaveCommands, SaveGivesEveryNameTheExtension) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        // chosen, name of the page, file
        {"plain", "plain", "plain.zelk"},
        {"given.zelk", "given", "given.zelk"},
        {"a.b.zelk", "a.b", "a.b.zelk"},
        {"a.txt", "a", "a.zelk"},
        {"two.words.txt", "two.words", "two.words.zelk"},
        {"with space.zelk", "with space", "with space.zelk"},
        {"\xC3\xA4.zelk", "\xC3\xA4", "\xC3\xA4.zelk"},
    };
    for (const auto& [chosen, name, file] : cases) {
        SCOPED_TRACE(chosen);
        DialogScript script;
        script.ExpectFile("Save .zelk file...", (m_folder / chosen).string());
        Choose(IdSaveAs);
        EXPECT_EQ(PageStrings[0].FileName, wxString::FromUTF8(name));
        EXPECT_EQ(Entries(), std::vector<std::string>{file});
        fs::remove(m_folder / file);
    }
}

TEST_F(OpenSaveCommands, AFileWithDotsInItsNameIsSavedBackUnderIt) {
    WriteToFolder("a.b.zelk", FileOf("ANFM", ""));
    OpenByMenu("a.b.zelk");
    EXPECT_EQ(PageStrings[0].FileName, "a.b");
    Choose(IdSave);
    EXPECT_EQ(Entries(), std::vector<std::string>{"a.b.zelk"});
    EXPECT_NE(ReadFromFolder("a.b.zelk").find("<MEMORY row=\"0\">"), std::string::npos);
}

TEST_F(OpenSaveCommands, SaveTakesTheTextOfAnOpenEditor) {
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = "a";
    TypeWithoutEnd(0, DESC, "TYPED");
    Choose(IdSave);
    EXPECT_NE(ReadFromFolder("a.zelk").find("<DS>TYPED</DS>"), std::string::npos);
    EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());
}

TEST_F(OpenSaveCommands, SaveKeepsThePageItself) {
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = "a";
    SetCells(5, {{MNUM, "x"}, {RTON, "64"}, {DESC, "A"}});
    Choose(IdSave);
    EXPECT_EQ(Text(5, MNUM), "x") << "conversions are for the file alone";
    EXPECT_EQ(Text(5, RTON), "64");
}
