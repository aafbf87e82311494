// Files that a save asks about before it replaces them.
#include "tests/files/OpenSaveCommandsTest.h"

#include <wx/notebook.h>

namespace fs = std::filesystem;
using testbench::DialogScript;

TEST_F(OpenSaveCommands, SaveAsksBeforeItReplacesAFileThatThePageDoesNotKnow) {
    WriteToFolder("a.zelk", "other");
    NamePage("a");
    SaveOver("a.zelk", wxID_CANCEL);
    EXPECT_EQ(ReadFromFolder("a.zelk"), "other");
    EXPECT_EQ(Status(0), "Select function");
    SaveOver("a.zelk", wxID_OK);
    EXPECT_NE(ReadFromFolder("a.zelk").find("<ZelkMem>"), std::string::npos);
    EXPECT_EQ(Status(0), "Saved a.zelk");
    Choose(IdSave); // it now belongs to the page
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
        EXPECT_EQ(ReadFromFolder("other.zelk") == "other", answer == wxID_CANCEL);
        EXPECT_EQ(PageStrings[0].FileName, answer == wxID_CANCEL ? "mine" : "other");
        EXPECT_EQ(PageStrings[0].FileDir, FolderText());
    }
    // Both now belong to the page.
    SaveAs("mine.zelk");
    SaveAs("other.zelk");
}

TEST_F(OpenSaveCommands, SaveThatIsCancelledAtTheQuestionLeavesAPageWithoutANameWithoutOne) {
    WriteToFolder("other.zelk", "other");
    DialogScript script;
    script.ExpectFile("Save .zelk file...", (m_folder / "other.zelk").string());
    ExpectReplaceQuestion(script, "other.zelk", wxID_CANCEL);
    Choose(IdSave);
    EXPECT_EQ(PageStrings[0].FileName, "");
    EXPECT_EQ(PageStrings[0].FileDir, "");
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
    EXPECT_EQ(ReadFromFolder("b.zelk"), "other") << "b.xml is another file";
}

TEST_F(OpenSaveCommands, AFileIsKnownUnderEveryNameThatItHas) {
    fs::create_directory(m_folder / "real");
    fs::create_directory_symlink("real", m_folder / "link");
    NamePage("a");
    PageStrings[0].FileDir = FolderText() + "real/";
    Choose(IdSave);
    PageStrings[0].FileDir = FolderText() + "link/../link/";
    Choose(IdSave);
    EXPECT_EQ(Status(0), "Saved a.zelk");
}

TEST_F(OpenSaveCommands, AFileOfAnotherPageIsAskedAbout) {
    NamePage("a");
    Choose(IdSave);
    AddPageOf(1, Krv214);
    NamePage("a");
    SaveOver("a.zelk", wxID_CANCEL);
}

TEST_F(OpenSaveCommands, FilesStayWithTheirPageWhenAPageBeforeItIsDeleted) {
    NamePage("first");
    Choose(IdSave);
    AddPageOf(1, Krv214);
    NamePage("second");
    Choose(IdSave);
    MainFrame->m_notebook->SetSelection(0);
    {
        DialogScript script;
        script.ExpectMessage("Delete Page?", "This will delete ALL data on this page! Continue?");
        Choose(IdPageDelete);
    }
    ASSERT_EQ(PageStrings[0].FileName, "second");
    Choose(IdSave);
    EXPECT_EQ(Status(0), "Saved second.zelk");
    NamePage("first");
    SaveOver("first.zelk", wxID_CANCEL);
    // A new page in a former page's place knows none of its files.
    AddPageOf(1, Krv214);
    NamePage("second");
    SaveOver("second.zelk", wxID_CANCEL);
}

TEST_F(OpenSaveCommands, FilesAreForgottenWithTheTarget) {
    NamePage("a");
    Choose(IdSave);
    RetargetTo("KDAR");
    EXPECT_EQ(PageStrings[0].FileName, "");
    DialogScript script;
    script.ExpectFile("Save .zelk file...", (m_folder / "a.zelk").string());
    ExpectReplaceQuestion(script, "a.zelk", wxID_CANCEL);
    Choose(IdSave);
}
