// Opening and saving as a person does: by menu and dialogs.
#include "tests/files/ChannelFileTest.h"
#include "tests/files/FileSizeLimit.h"
#include "tests/support/Keys.h"

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/notebook.h>
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

    /// Saves by the menu; file is the one that the question is about, and answer is given.
    static void SaveOver(const std::string& file, int answer, int command = IdSave) {
        DialogScript script;
        ExpectReplaceQuestion(script, file, answer);
        Choose(command);
    }

    static void ExpectReplaceQuestion(DialogScript& script, const std::string& file, int answer) {
        script.Expect(DialogKind::Message, "Replace file?")
            .Message(file + " exists and was not opened on this page!")
            .Style(wxOK | wxCANCEL)
            .Answer(answer);
    }

    /// Saves under a name by the menu and the file dialog.
    void SaveAs(const std::string& name) {
        DialogScript script;
        script.ExpectFile("Save .zelk file...", (m_folder / name).string());
        Choose(IdSaveAs);
    }

    void NamePage(const std::string& name) {
        PageStrings[CurrentPage].FileDir = FolderText();
        PageStrings[CurrentPage].FileName = name;
    }

    /// A page of the radio, which becomes the current one.
    static void AddPageOf(int page, int radio) {
        SetPageParameters(MainFrame, page, radio, 0);
        CreateNewPage(MainFrame, page);
        UpdateStatus(MainFrame, page);
    }

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
    SetPageParameters(MainFrame, 1, Krv214, 0);
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

TEST_F(OpenSaveCommands, SaveTellsThatItWasDone) {
    NamePage("a");
    for (int command : {IdSave, IdSaveAs}) {
        if (command == IdSaveAs)
            SaveAs("b.zelk");
        else
            Choose(command);
        const std::string file = command == IdSave ? "a.zelk" : "b.zelk";
        EXPECT_EQ("Saved " + file, Status(0));
        EXPECT_EQ("Saved " + file, ToolTip());
    }
}

TEST_F(OpenSaveCommands, SaveTellsHowManyRowsItLeftOutAndWhich) {
    NamePage("a");
    SetCell(3, DESC, "A");
    Choose(IdSave);
    EXPECT_EQ("1 row NOT SAVED: a.zelk", Status(0));
    EXPECT_EQ("Saved a.zelk; 1 row is incomplete and was not saved: 3", ToolTip());
    SetCell(4, DESC, "A");
    SetCell(CurrentParameters().Rows, RFRQ, "67.0000");
    Choose(IdSave);
    EXPECT_EQ("3 rows NOT SAVED: a.zelk", Status(0));
    EXPECT_EQ("Saved a.zelk; 3 rows are incomplete and were not saved: 3, 4, " +
                  std::to_string(CurrentParameters().Rows),
              ToolTip());
    for (int row : {3, 4, CurrentParameters().Rows})
        EmptyRow(row);
    Choose(IdSave);
    EXPECT_EQ("Saved a.zelk", Status(0)) << "what an earlier save told is no longer so";
}

TEST_F(OpenSaveCommands, SaveNamesADefaultRowThatItLeftOutInTheToolTip) {
    NamePage("a");
    FillRowsFromDefault({5});
    SetCell(0, RFRQ, "");
    Choose(IdSave);
    EXPECT_EQ("Saved a.zelk", Status(0)) << "the default row is no memory";
    EXPECT_EQ("Saved a.zelk; the default row is incomplete and was not saved", ToolTip());
    SetCell(6, DESC, "A");
    Choose(IdSave);
    EXPECT_EQ("1 row NOT SAVED: a.zelk", Status(0));
    EXPECT_EQ("Saved a.zelk; 1 row is incomplete and was not saved: 6; the default row is incomplete and was "
              "not saved",
              ToolTip());
    EmptyRow(0);
    EmptyRow(6);
    Choose(IdSave);
    EXPECT_EQ("Saved a.zelk", ToolTip()) << "a blank one had nothing to lose";
}

TEST_F(OpenSaveCommands, TheDefaultRowOfAFreshPageOfEveryTypeIsSaved) {
    for (const TypedTarget& target : Targets) {
        SCOPED_TRACE(target.type);
        RetargetTo(target.type);
        SaveAs(std::string(target.type) + ".zelk");
        EXPECT_EQ(std::string("Saved ") + target.type + ".zelk", ToolTip());
    }
}

TEST_F(OpenSaveCommands, SaveShowsALongNameInAShortForm) {
    const std::string name = "A list of all channels of the harbour and its ships, winter";
    NamePage(name);
    for (int row = 1; row <= CurrentParameters().Rows; ++row)
        SetCell(row, DESC, "A");
    Choose(IdSave);
    EXPECT_TRUE(
        Status(0).starts_with(std::to_string(CurrentParameters().Rows) + " rows NOT SAVED: A list of"))
        << Status(0);
    EXPECT_TRUE(Status(0).ends_with("winter.zelk")) << Status(0);
    EXPECT_TRUE(ToolTip().starts_with("Saved " + name + ".zelk; ")) << ToolTip();
}

TEST_F(OpenSaveCommands, OutcomeOfASaveGoesWithThePage) {
    AddPageOf(1, 3);
    NamePage("a");
    Choose(IdSave);
    EXPECT_EQ("Saved a.zelk", Status(0));
    MainFrame->m_notebook->SetSelection(0);
    EXPECT_EQ("Select function", Status(0));
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
    EXPECT_EQ("NOT SAVED: folder not found", Status(0));
    EXPECT_EQ("NOT SAVED: " + FolderText() + "missing/a.zelk: No such file or directory", ToolTip());
    EXPECT_EQ(std::vector<std::string>{}, Entries());

    fs::create_directories(m_folder / "a.zelk/inside");
    PageStrings[0].FileDir = FolderText();
    Choose(IdSave);
    EXPECT_EQ("NOT SAVED: a folder has this name", Status(0));
    EXPECT_EQ("NOT SAVED: " + FolderText() + "a.zelk: Is a directory", ToolTip());
    EXPECT_TRUE(fs::exists(m_folder / "a.zelk/inside"));

    PageStrings[0].FileName = "b";
    Choose(IdSave);
    EXPECT_EQ("Saved b.zelk", Status(0));
    EXPECT_EQ((std::vector<std::string>{"a.zelk", "b.zelk"}), Entries());
}

TEST_F(OpenSaveCommands, SaveThatFailsLeavesTheFormerFileAndThePagesName) {
    // A name just short enough for the file, but not for a new one beside it.
    const std::string name(250, 'n');
    WriteToFolder(name + ".zelk", "former");
    NamePage(name);
    SaveOver(name + ".zelk", wxID_OK);
    EXPECT_EQ("NOT SAVED: name too long", Status(0));
    EXPECT_EQ("NOT SAVED: " + FolderText() + name + ".zelk: File name too long", ToolTip());
    EXPECT_EQ("former", ReadFromFolder(name + ".zelk"));
    EXPECT_EQ(name, PageStrings[0].FileName);
}

TEST_F(OpenSaveCommands, SaveOnAFullDiskLeavesTheFormerFile) {
    NamePage("a");
    Choose(IdSave);
    const std::string former = ReadFromFolder("a.zelk");
    SetCell(0, DESC, "NEW");
    {
        const FileSizeLimit full(100);
        Choose(IdSave);
    }
    EXPECT_EQ("NOT SAVED: File too large", Status(0));
    EXPECT_EQ(former, ReadFromFolder("a.zelk"));
    EXPECT_EQ(std::vector<std::string>{"a.zelk"}, Entries());
}

TEST_F(OpenSaveCommands, SaveAsksBeforeItReplacesAFileThatThePageDoesNotKnow) {
    WriteToFolder("a.zelk", "other");
    NamePage("a");
    SaveOver("a.zelk", wxID_CANCEL);
    EXPECT_EQ("other", ReadFromFolder("a.zelk"));
    EXPECT_EQ("Select function", Status(0));
    SaveOver("a.zelk", wxID_OK);
    EXPECT_NE(std::string::npos, ReadFromFolder("a.zelk").find("<ZelkMem>"));
    EXPECT_EQ("Saved a.zelk", Status(0));
    Choose(IdSave); // it is the page's own now
}

TEST_F(OpenSaveCommands, SaveAsAsksBeforeItReplacesAFileThatThePageDoesNotKnow) {
    WriteToFolder("other.zelk", "other");
    NamePage("mine");
    Choose(IdSave);
    for (const int answer : {wxID_CANCEL, wxID_OK}) {
        DialogScript script;
        script.ExpectFile("Save .zelk file...", (m_folder / "other.txt").string());
        ExpectReplaceQuestion(script, "other.zelk", answer);
        Choose(IdSaveAs);
        EXPECT_EQ(answer == wxID_CANCEL, ReadFromFolder("other.zelk") == "other");
        EXPECT_EQ(answer == wxID_CANCEL ? "mine" : "other", PageStrings[0].FileName);
        EXPECT_EQ(FolderText(), PageStrings[0].FileDir);
    }
    // Both are the page's own now.
    SaveAs("mine.zelk");
    SaveAs("other.zelk");
}

TEST_F(OpenSaveCommands, SaveThatIsCancelledAtTheQuestionLeavesAPageWithoutANameWithoutOne) {
    WriteToFolder("other.zelk", "other");
    DialogScript script;
    script.ExpectFile("Save .zelk file...", (m_folder / "other.zelk").string());
    ExpectReplaceQuestion(script, "other.zelk", wxID_CANCEL);
    Choose(IdSave);
    EXPECT_EQ("", PageStrings[0].FileName);
    EXPECT_EQ("", PageStrings[0].FileDir);
}

TEST_F(OpenSaveCommands, SaveOverTheOpenedFileAsksNothingAndOverAnotherOneDoes) {
    WriteToFolder("a.zelk", FileOf("ANFM", Memory(5, "<DS>A</DS>")));
    WriteToFolder("b.xml", FileOf("ANFM", Memory(5, "<DS>B</DS>")));
    WriteToFolder("b.zelk", "other");
    OpenByMenu("a.zelk");
    Choose(IdSave);
    SaveAs("a.zelk");
    OpenByMenu("b.xml");
    SaveOver("b.zelk", wxID_CANCEL);
    EXPECT_EQ("other", ReadFromFolder("b.zelk")) << "b.xml is another file";
}

TEST_F(OpenSaveCommands, AFileIsKnownUnderEveryNameThatItHas) {
    fs::create_directory(m_folder / "real");
    fs::create_directory_symlink("real", m_folder / "link");
    NamePage("a");
    PageStrings[0].FileDir = FolderText() + "real/";
    Choose(IdSave);
    PageStrings[0].FileDir = FolderText() + "link/../link/";
    Choose(IdSave);
    EXPECT_EQ("Saved a.zelk", Status(0));
}

TEST_F(OpenSaveCommands, AFileOfAnotherPageIsAskedAbout) {
    NamePage("a");
    Choose(IdSave);
    AddPageOf(1, 3);
    NamePage("a");
    SaveOver("a.zelk", wxID_CANCEL);
}

TEST_F(OpenSaveCommands, FilesStayWithTheirPageWhenAPageBeforeItIsDeleted) {
    NamePage("first");
    Choose(IdSave);
    AddPageOf(1, 3);
    NamePage("second");
    Choose(IdSave);
    MainFrame->m_notebook->SetSelection(0);
    {
        DialogScript script;
        script.ExpectMessage("Delete Page?", "This will delete ALL data on this page! Continue?");
        Choose(IdPageDelete);
    }
    ASSERT_EQ("second", PageStrings[0].FileName);
    Choose(IdSave);
    EXPECT_EQ("Saved second.zelk", Status(0));
    NamePage("first");
    SaveOver("first.zelk", wxID_CANCEL);
    // A page that is made anew in a former page's place knows none of its files.
    AddPageOf(1, 3);
    NamePage("second");
    SaveOver("second.zelk", wxID_CANCEL);
}

TEST_F(OpenSaveCommands, FilesAreForgottenWithTheTarget) {
    NamePage("a");
    Choose(IdSave);
    RetargetTo("KDAR");
    EXPECT_EQ("", PageStrings[0].FileName);
    DialogScript script;
    script.ExpectFile("Save .zelk file...", (m_folder / "a.zelk").string());
    ExpectReplaceQuestion(script, "a.zelk", wxID_CANCEL);
    Choose(IdSave);
}

TEST_F(OpenSaveCommands, AFileThatCouldNotBeSavedIsNotThePagesOwn) {
    WriteToFolder("a.zelk", "other");
    NamePage("a");
    {
        const FileSizeLimit full(10);
        SaveOver("a.zelk", wxID_OK);
    }
    EXPECT_EQ("other", ReadFromFolder("a.zelk"));
    SaveOver("a.zelk", wxID_CANCEL);
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
    SetPageParameters(MainFrame, 1, Krv214, 0);
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
