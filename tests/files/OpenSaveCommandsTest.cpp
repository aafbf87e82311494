// Opening and saving as a person does: by menu and dialogs.
#include "tests/files/ChannelFileTest.h"
#include "tests/support/Keys.h"

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/stdpaths.h>

namespace fs = std::filesystem;
using testbench::DialogKind;
using testbench::DialogScript;

namespace {

constexpr const char* Question = "This will overwrite all data on this page! Continue?";

class OpenSaveCommands : public ChannelFileTest {
protected:
    /// Opens a file of the folder by the menu; box is the message expected behind the file dialog.
    void OpenByMenu(const std::string& name, const std::string& box = "") {
        DialogScript script;
        script.ExpectMessage("Open File?", Question);
        script.ExpectFile("Select Zelk file", (m_folder / name).string());
        if (!box.empty())
            script.ExpectMessage("Error", box);
        Choose(IdOpen);
    }

    void WriteToFolder(const std::string& name, const std::string& bytes) {
        testbench::WriteFile(m_folder / name, bytes);
    }

    std::string ReadFromFolder(const std::string& name) const { return testbench::ReadFile(m_folder / name); }

    std::string FolderText() const { return m_folder.Path().string() + "/"; }

    std::vector<std::string> Entries() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_folder.Path()))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }
};

} // namespace

TEST_F(OpenSaveCommands, OpenReadsTheChosenFile) {
    WriteToFolder("a.zelk", FileOf("KDAR", Memory(7, "<MN>007</MN><DS>TOWER</DS>")));
    OpenByMenu("a.zelk");
    EXPECT_EQ("TOWER", Text(7, DESC));
    EXPECT_EQ("KDAR-2000", Status(1));
    EXPECT_EQ("a", PageStrings[0].FileName);
    EXPECT_EQ(FolderText(), PageStrings[0].FileDir);
    EXPECT_EQ(0x02, CurrentParameters().Flags);
}

TEST_F(OpenSaveCommands, AFileNamedByTheCommandLineBelongsToItsFolderWhateverTheWorkingFolderIs) {
    WriteToFolder("a.zelk", FileOf("KDAR", Memory(7, "<MN>007</MN><DS>TOWER</DS>")));
    const fs::path workingFolder = fs::current_path();
    fs::current_path(m_folder.Path());
    EXPECT_TRUE(OpenChannelFile("a.zelk"));
    fs::current_path(workingFolder);
    EXPECT_EQ("TOWER", Text(7, DESC));
    EXPECT_EQ("a", PageStrings[0].FileName);
    EXPECT_EQ(FolderText(), PageStrings[0].FileDir);
    EXPECT_EQ(0x02, CurrentParameters().Flags);
}

TEST_F(OpenSaveCommands, AFileNamedByTheCommandLineThatCanNotBeReadIsToldLikeAnyOther) {
    WriteToFolder("empty.zelk", "<ZelkMem/>");
    DialogScript script;
    script.ExpectMessage("Error", "Not valid XML Document");
    script.ExpectMessage("Error", testbench::Matching("Open File returned: 1[0-9]+"));
    EXPECT_FALSE(OpenChannelFile((m_folder / "missing.zelk").string()));
    EXPECT_FALSE(OpenChannelFile((m_folder / "empty.zelk").string()));
    EXPECT_EQ("", PageStrings[0].FileName);
    EXPECT_EQ(0, CurrentParameters().Flags);
}

TEST_F(OpenSaveCommands, OpenAsksFirstAndLeavesThePageWhenThePersonDoesNotWantTo) {
    SetCell(5, DESC, "KEPT");
    DialogScript script;
    script.Expect(DialogKind::Message, "Open File?")
        .Message(Question)
        .Style(wxOK | wxCANCEL)
        .Answer(wxID_CANCEL);
    Choose(IdOpen);
    EXPECT_EQ("KEPT", Text(5, DESC));
}

TEST_F(OpenSaveCommands, OpenLeavesThePageWhenNoFileIsChosen) {
    SetCell(5, DESC, "KEPT");
    DialogScript script;
    script.ExpectMessage("Open File?", Question);
    script.Expect(DialogKind::File, "Select Zelk file").Answer(wxID_CANCEL);
    Choose(IdOpen);
    EXPECT_EQ("KEPT", Text(5, DESC));
    EXPECT_EQ("", PageStrings[0].FileName);
}

TEST_F(OpenSaveCommands, OpenOffersChannelFiles) {
    DialogScript script;
    script.ExpectMessage("Open File?", Question);
    script.Expect(DialogKind::File, "Select Zelk file").Answer(wxID_CANCEL).Set([](wxDialog* dialog) {
        auto* file = dynamic_cast<wxFileDialog*>(dialog);
        ASSERT_NE(nullptr, file);
        EXPECT_EQ("Zelk files|*.zelk|All files|*.*", file->GetWildcard());
        EXPECT_EQ("", file->GetFilename());
        EXPECT_TRUE(file->HasFlag(wxFD_OPEN));
        EXPECT_EQ(MainFrame, file->GetParent());
    });
    Choose(IdOpen);
}

TEST_F(OpenSaveCommands, OpenBeginsInTheFolderOfThePageOrElseOfTheFirstPage) {
    fs::create_directories(m_folder / "first");
    fs::create_directories(m_folder / "second");
    SetPageParameters(MainFrame, 1, 3, 0);
    CreateNewPage(MainFrame, 1);
    ASSERT_EQ(1, CurrentPage);
    PageStrings[0].FileDir = FolderText() + "first/";
    for (const std::string own : {"", "second"}) {
        PageStrings[1].FileDir = own.empty() ? "" : FolderText() + own + "/";
        DialogScript script;
        script.ExpectMessage("Open File?", Question);
        script.Expect(DialogKind::File, "Select Zelk file").Answer(wxID_CANCEL).Set([&](wxDialog* dialog) {
            auto* file = dynamic_cast<wxFileDialog*>(dialog);
            const std::string expected = (m_folder / (own.empty() ? "first" : own)).string();
            EXPECT_TRUE(testbench::PumpUntil([&] {
                return wxFileName::DirName(file->GetDirectory()) == wxFileName::DirName(expected);
            })) << file->GetDirectory()
                << " instead of " << expected;
        });
        Choose(IdOpen);
    }
}

TEST_F(OpenSaveCommands, OpenTellsWhatIsNoDocumentAndLeavesThePage) {
    SetCell(5, DESC, "KEPT");
    WriteToFolder("bad.zelk", "no xml");
    DialogScript script;
    script.ExpectMessage("Open File?", Question);
    script.ExpectFile("Select Zelk file", (m_folder / "bad.zelk").string());
    script.Expect(DialogKind::Message, "Error")
        .Message("Not valid XML Document")
        .Style(wxOK | wxCENTRE | wxICON_ERROR);
    Choose(IdOpen);
    EXPECT_EQ("KEPT", Text(5, DESC));
    EXPECT_EQ("", PageStrings[0].FileName);
}

TEST_F(OpenSaveCommands, OpenTellsTheCodeOfWhatAFileLacks) {
    PageStrings[0].FileName = "former";
    WriteToFolder("lacks.zelk", Document(""));
    DialogScript script;
    script.ExpectMessage("Open File?", Question);
    script.ExpectFile("Select Zelk file", (m_folder / "lacks.zelk").string());
    // The toolkit adds its icon.
    script.Expect(DialogKind::Message, "Error")
        .Message("Open File returned: 103")
        .Style(wxOK | wxCENTRE | wxICON_INFORMATION);
    Choose(IdOpen);
    EXPECT_EQ("former", PageStrings[0].FileName) << "the page keeps its file";
    EXPECT_EQ("", PageStrings[0].FileDir);
    EXPECT_EQ(0, CurrentParameters().Flags);
}

TEST_F(OpenSaveCommands, OpenKeepsTheRowsBeforeAnElementThatIsNoMemory) {
    WriteToFolder("other.zelk", FileOf("ANFM", Memory(5, "<DS>READ</DS>") + "<Other/>"));
    OpenByMenu("other.zelk", "Open File returned: 109");
    EXPECT_EQ("READ", Text(5, DESC));
    EXPECT_EQ("", PageStrings[0].FileName);
}

TEST_F(OpenSaveCommands, OpenForgetsTheFormerFlagsOfThePage) {
    CurrentParameters().Flags = PageHasMarks;
    WriteToFolder("a.zelk", FileOf("RP25", Memory(5, "<MF>10</MF>")));
    OpenByMenu("a.zelk");
    EXPECT_EQ(0x02 | 0x08, CurrentParameters().Flags);
}

TEST_F(OpenSaveCommands, SaveOfAnEmptyPageSaysSo) {
    CurrentGrid()->ClearGrid();
    SetCell(CurrentParameters().Rows, DESC, "LAST"); // the last row doesn't count
    for (int command : {IdSave, IdSaveAs}) {
        DialogScript script;
        script.Expect(DialogKind::Message, "Error")
            .Message("Empty Grid - No data to Save")
            .Style(wxOK | wxCENTRE | wxICON_ERROR);
        Choose(command);
    }
}

TEST_F(OpenSaveCommands, SaveAsksForANameOnceAndThenWritesWithoutAsking) {
    {
        DialogScript script;
        script.ExpectFile("Save .zelk file...", (m_folder / "mine.zelk").string());
        Choose(IdSave);
    }
    EXPECT_EQ(std::vector<std::string>{"mine.zelk"}, Entries());
    EXPECT_EQ("mine", PageStrings[0].FileName);
    EXPECT_EQ(FolderText(), PageStrings[0].FileDir);
    SetCell(0, DESC, "CHANGED");
    Choose(IdSave);
    EXPECT_NE(std::string::npos, ReadFromFolder("mine.zelk").find("<DS>CHANGED</DS>"));
    EXPECT_EQ(0, CurrentParameters().Flags) << "a save touches no flags";
}

TEST_F(OpenSaveCommands, SaveAfterOpenWritesTheOpenedFile) {
    WriteToFolder("a.zelk", FileOf("ANFM", Memory(5, "<DS>A</DS>")));
    OpenByMenu("a.zelk");
    SetCell(0, DESC, "NEW");
    Choose(IdSave);
    EXPECT_NE(std::string::npos, ReadFromFolder("a.zelk").find("<DS>NEW</DS>"));
}

TEST_F(OpenSaveCommands, SaveAsAlwaysAsksAndStartsFromThePagesFile) {
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = "old";
    DialogScript script;
    script.Expect(DialogKind::File, "Save .zelk file...")
        .Path((m_folder / "new.zelk").string())
        .Set([&](wxDialog* dialog) {
            auto* file = dynamic_cast<wxFileDialog*>(dialog);
            ASSERT_NE(nullptr, file);
            EXPECT_EQ("Zelk Files|*.zelk|All files|*.*", file->GetWildcard());
            EXPECT_TRUE(file->HasFlag(wxFD_SAVE));
            EXPECT_FALSE(file->HasFlag(wxFD_OVERWRITE_PROMPT));
        });
    Choose(IdSaveAs);
    EXPECT_EQ(std::vector<std::string>{"new.zelk"}, Entries());
    EXPECT_EQ("new", PageStrings[0].FileName);
}

TEST_F(OpenSaveCommands, SaveAsOffersThePagesNameAndFolder) {
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = "old";
    DialogScript script;
    script.Expect(DialogKind::File, "Save .zelk file...").Answer(wxID_CANCEL).Set([&](wxDialog* dialog) {
        auto* file = dynamic_cast<wxFileDialog*>(dialog);
        EXPECT_EQ("old", file->GetFilename());
        EXPECT_EQ(wxFileName::DirName(FolderText()), wxFileName::DirName(file->GetDirectory()));
    });
    Choose(IdSaveAs);
}

TEST_F(OpenSaveCommands, SaveThatIsCancelledWritesNothing) {
    for (int command : {IdSave, IdSaveAs}) {
        DialogScript script;
        script.Expect(DialogKind::File, "Save .zelk file...").Answer(wxID_CANCEL);
        Choose(command);
    }
    EXPECT_EQ(std::vector<std::string>{}, Entries());
    EXPECT_EQ("", PageStrings[0].FileName);
    EXPECT_EQ("", PageStrings[0].FileDir);
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
        EXPECT_EQ(wxString::FromUTF8(name), PageStrings[0].FileName);
        EXPECT_EQ(std::vector<std::string>{file}, Entries());
        fs::remove(m_folder / file);
    }
}

TEST_F(OpenSaveCommands, AFileWithDotsInItsNameIsSavedBackUnderIt) {
    WriteToFolder("a.b.zelk", FileOf("ANFM", ""));
    OpenByMenu("a.b.zelk");
    EXPECT_EQ("a.b", PageStrings[0].FileName);
    Choose(IdSave);
    EXPECT_EQ(std::vector<std::string>{"a.b.zelk"}, Entries());
    EXPECT_NE(std::string::npos, ReadFromFolder("a.b.zelk").find("<MEMORY row=\"0\">"));
}

TEST_F(OpenSaveCommands, AnImportedNameIsUsedAsItStands) {
    PageStrings[0].FileName = FolderText() + "list.716";
    Choose(IdSave);
    EXPECT_EQ(std::vector<std::string>{"list.716.zelk"}, Entries());
}

TEST_F(OpenSaveCommands, SaveTakesTheTextOfAnOpenEditor) {
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = "a";
    wxGrid* grid = CurrentGrid();
    testbench::ShowAndFocus(*MainFrame);
    grid->GoToCell(0, DESC);
    grid->SetFocus();
    testbench::PumpUntilIdle();
    testbench::TypeText("TYPED");
    ASSERT_TRUE(grid->IsCellEditControlShown());
    Choose(IdSave);
    EXPECT_NE(std::string::npos, ReadFromFolder("a.zelk").find("<DS>TYPED</DS>"));
    EXPECT_FALSE(grid->IsCellEditControlShown());
}

TEST_F(OpenSaveCommands, SaveTellsHowManyRowsItLeftOut) {
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = "a";
    SetCell(3, DESC, "A");
    Choose(IdSave);
    EXPECT_EQ("1 row is incomplete and was not saved", Status(0));
    SetCell(4, DESC, "A");
    SetCell(CurrentParameters().Rows, RFRQ, "67.0000");
    SetCell(0, RFRQ, ""); // the default row doesn't count
    Choose(IdSave);
    EXPECT_EQ("3 rows are incomplete and were not saved", Status(0));
    for (int row : {3, 4, CurrentParameters().Rows})
        EmptyRow(row);
    Choose(IdSave);
    EXPECT_EQ("Select function", Status(0)) << "what an earlier save told is no longer so";
}

TEST_F(OpenSaveCommands, SaveThatIsCancelledTellsNothingOfRows) {
    SetCell(3, DESC, "A");
    DialogScript script;
    script.Expect(DialogKind::File, "Save .zelk file...").Answer(wxID_CANCEL);
    Choose(IdSave);
    EXPECT_EQ("Select function", Status(0));
}

TEST_F(OpenSaveCommands, SaveThatFailsOpensNoBoxButTellsItInTheStatusBar) {
    PageStrings[0].FileDir = FolderText() + "missing/";
    PageStrings[0].FileName = "a";
    Choose(IdSave);
    EXPECT_EQ("File was not saved: No such file or directory", Status(0));
    EXPECT_EQ(std::vector<std::string>{}, Entries());

    fs::create_directories(m_folder / "a.zelk/inside");
    PageStrings[0].FileDir = FolderText();
    Choose(IdSave);
    EXPECT_EQ("File was not saved: Is a directory", Status(0));
    EXPECT_TRUE(fs::exists(m_folder / "a.zelk/inside"));

    PageStrings[0].FileName = "b";
    Choose(IdSave);
    EXPECT_EQ("Select function", Status(0));
    EXPECT_EQ((std::vector<std::string>{"a.zelk", "b.zelk"}), Entries());
}

TEST_F(OpenSaveCommands, SaveThatFailsLeavesTheFormerFileAndThePagesName) {
    // A name just short enough for the file, but not for a new one beside it.
    const std::string name(250, 'n');
    WriteToFolder(name + ".zelk", "former");
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = name;
    Choose(IdSave);
    EXPECT_EQ("File was not saved: File name too long", Status(0));
    EXPECT_EQ("former", ReadFromFolder(name + ".zelk"));
    EXPECT_EQ(name, PageStrings[0].FileName);
}

TEST_F(OpenSaveCommands, SaveKeepsThePageItself) {
    PageStrings[0].FileDir = FolderText();
    PageStrings[0].FileName = "a";
    FillRow(5, {{MNUM, "x"}, {RTON, "64"}, {DESC, "A"}});
    Choose(IdSave);
    EXPECT_EQ("x", Text(5, MNUM)) << "conversions are for the file alone";
    EXPECT_EQ("64", Text(5, RTON));
}

TEST_F(OpenSaveCommands, OpenWorksOnTheSelectedPageOnly) {
    SetCell(5, DESC, "FIRST");
    SetPageParameters(MainFrame, 1, 3, 0);
    CreateNewPage(MainFrame, 1);
    UpdateStatus(MainFrame, 1);
    WriteToFolder("a.zelk", FileOf("KDAR", Memory(7, "<DS>TOWER</DS>")));
    OpenByMenu("a.zelk");
    EXPECT_EQ("TOWER", Text(7, DESC));
    EXPECT_EQ("FIRST", PageGrid[0]->GetCellValue(5, DESC));
    EXPECT_EQ("KRV-47", PageStrings[0].RadioName);
    EXPECT_EQ("a", PageStrings[1].FileName);
    EXPECT_EQ("", PageStrings[0].FileName);
}
