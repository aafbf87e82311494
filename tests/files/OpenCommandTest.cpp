// Opening as a user does: by menu and dialogs.
#include "tests/files/OpenSaveCommandsTest.h"

#include <wx/filedlg.h>
#include <wx/filename.h>

namespace fs = std::filesystem;
using testbench::DialogKind;
using testbench::DialogScript;

TEST_F(OpenSaveCommands, OpenReadsTheChosenFile) {
    WriteToFolder("a.zelk", FileOf("KDAR", Memory(7, "<MN>007</MN><DS>TOWER</DS>")));
    OpenByMenu("a.zelk");
    EXPECT_EQ(Text(7, DESC), "TOWER");
    EXPECT_EQ(Status(1), "KDAR-2000");
    EXPECT_EQ(PageStrings[0].FileName, "a");
    EXPECT_EQ(PageStrings[0].FileDir, FolderText());
    EXPECT_EQ(CurrentParameters().Flags, 0x02);
}

TEST_F(OpenSaveCommands, AFileNamedByTheCommandLineBelongsToItsFolderWhateverTheWorkingFolderIs) {
    WriteToFolder("a.zelk", FileOf("KDAR", Memory(7, "<MN>007</MN><DS>TOWER</DS>")));
    const fs::path workingFolder = fs::current_path();
    fs::current_path(m_folder.Path());
    EXPECT_TRUE(OpenChannelFile("a.zelk"));
    fs::current_path(workingFolder);
    EXPECT_EQ(Text(7, DESC), "TOWER");
    EXPECT_EQ(PageStrings[0].FileName, "a");
    EXPECT_EQ(PageStrings[0].FileDir, FolderText());
    EXPECT_EQ(CurrentParameters().Flags, 0x02);
}

TEST_F(OpenSaveCommands, AFileNamedByTheCommandLineThatCanNotBeReadIsToldLikeAnyOther) {
    WriteToFolder("empty.zelk", "<ZelkMem/>");
    DialogScript script;
    script.ExpectMessage("Error", "Not valid XML Document");
    script.ExpectMessage("Error", testbench::Matching("Open File returned: 1[0-9]+"));
    EXPECT_FALSE(OpenChannelFile((m_folder / "missing.zelk").string()));
    EXPECT_FALSE(OpenChannelFile((m_folder / "empty.zelk").string()));
    EXPECT_EQ(PageStrings[0].FileName, "");
    EXPECT_EQ(CurrentParameters().Flags, 0);
}

TEST_F(OpenSaveCommands, OpenAsksFirstAndLeavesThePageWhenThePersonDoesNotWantTo) {
    SetCell(5, DESC, "KEPT");
    DialogScript script;
    script.Expect(DialogKind::Message, "Open File?")
        .Message(OpenQuestion)
        .Style(wxOK | wxCANCEL)
        .Answer(wxID_CANCEL);
    Choose(IdOpen);
    EXPECT_EQ(Text(5, DESC), "KEPT");
}

TEST_F(OpenSaveCommands, OpenLeavesThePageWhenNoFileIsChosen) {
    SetCell(5, DESC, "KEPT");
    DialogScript script;
    script.ExpectMessage("Open File?", OpenQuestion);
    script.Expect(DialogKind::File, "Select Zelk file").Answer(wxID_CANCEL);
    Choose(IdOpen);
    EXPECT_EQ(Text(5, DESC), "KEPT");
    EXPECT_EQ(PageStrings[0].FileName, "");
}

TEST_F(OpenSaveCommands, OpenOffersChannelFiles) {
    DialogScript script;
    script.ExpectMessage("Open File?", OpenQuestion);
    script.Expect(DialogKind::File, "Select Zelk file").Answer(wxID_CANCEL).Set([](wxDialog* dialog) {
        auto* file = dynamic_cast<wxFileDialog*>(dialog);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(file->GetWildcard(), "Zelk files|*.zelk|All files|*.*");
        EXPECT_EQ(file->GetFilename(), "");
        EXPECT_TRUE(file->HasFlag(wxFD_OPEN));
        EXPECT_EQ(file->GetParent(), MainFrame);
    });
    Choose(IdOpen);
}

TEST_F(OpenSaveCommands, OpenBeginsInTheFolderOfThePageOrElseOfTheFirstPage) {
    fs::create_directories(m_folder / "first");
    fs::create_directories(m_folder / "second");
    SetPageParameters(MainFrame, 1, Krv214, 0);
    CreateNewPage(MainFrame, 1);
    ASSERT_EQ(CurrentPage, 1);
    PageStrings[0].FileDir = FolderText() + "first/";
    for (const std::string own : {"", "second"}) {
        PageStrings[1].FileDir = own.empty() ? "" : FolderText() + own + "/";
        DialogScript script;
        script.ExpectMessage("Open File?", OpenQuestion);
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
    script.ExpectMessage("Open File?", OpenQuestion);
    script.ExpectFile("Select Zelk file", (m_folder / "bad.zelk").string());
    ExpectErrorBox(script, "Error", "Not valid XML Document");
    Choose(IdOpen);
    EXPECT_EQ(Text(5, DESC), "KEPT");
    EXPECT_EQ(PageStrings[0].FileName, "");
}

TEST_F(OpenSaveCommands, OpenTellsTheCodeOfWhatAFileLacks) {
    PageStrings[0].FileName = "former";
    WriteToFolder("lacks.zelk", Document(""));
    DialogScript script;
    script.ExpectMessage("Open File?", OpenQuestion);
    script.ExpectFile("Select Zelk file", (m_folder / "lacks.zelk").string());
    // The toolkit adds its icon.
    script.Expect(DialogKind::Message, "Error")
        .Message("Open File returned: 103")
        .Style(wxOK | wxCENTRE | wxICON_INFORMATION);
    Choose(IdOpen);
    EXPECT_EQ(PageStrings[0].FileName, "former") << "the page keeps its file";
    EXPECT_EQ(PageStrings[0].FileDir, "");
    EXPECT_EQ(CurrentParameters().Flags, 0);
}

TEST_F(OpenSaveCommands, OpenKeepsTheRowsBeforeAnElementThatIsNoMemory) {
    WriteToFolder("other.zelk", FileOf("ANFM", Memory(5, "<DS>READ</DS>") + "<Other/>"));
    OpenByMenu("other.zelk", "Open File returned: 109");
    EXPECT_EQ(Text(5, DESC), "READ");
    EXPECT_EQ(PageStrings[0].FileName, "");
}

TEST_F(OpenSaveCommands, OpenForgetsTheFormerFlagsOfThePage) {
    CurrentParameters().Flags = PageHasMarks;
    WriteToFolder("a.zelk", FileOf("RP25", Memory(5, "<MF>10</MF>")));
    OpenByMenu("a.zelk");
    EXPECT_EQ(CurrentParameters().Flags, 0x02 | 0x08);
}

TEST_F(OpenSaveCommands, OpenWorksOnTheSelectedPageOnly) {
    SetCell(5, DESC, "FIRST");
    SetPageParameters(MainFrame, 1, Krv214, 0);
    CreateNewPage(MainFrame, 1);
    UpdateStatus(MainFrame, 1);
    WriteToFolder("a.zelk", FileOf("KDAR", Memory(7, "<DS>TOWER</DS>")));
    OpenByMenu("a.zelk");
    EXPECT_EQ(Text(7, DESC), "TOWER");
    EXPECT_EQ(PageGrid[0]->GetCellValue(5, DESC), "FIRST");
    EXPECT_EQ(PageStrings[0].RadioName, "KRV-47");
    EXPECT_EQ(PageStrings[1].FileName, "a");
    EXPECT_EQ(PageStrings[0].FileName, "");
}
