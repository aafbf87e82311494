// The status bar's report of a save, including a failed one.
#include "tests/files/OpenSaveCommandsTest.h"

#include <wx/notebook.h>

namespace fs = std::filesystem;
using testbench::DialogKind;
using testbench::DialogScript;

TEST_F(OpenSaveCommands, SaveTellsThatItWasDone) {
    NamePage("a");
    for (int command : {IdSave, IdSaveAs}) {
        if (command == IdSaveAs)
            SaveAs("b.zelk");
        else
            Choose(command);
        const std::string file = command == IdSave ? "a.zelk" : "b.zelk";
        EXPECT_EQ(Status(0), "Saved " + file);
        EXPECT_EQ(ToolTip(), "Saved " + file);
    }
}

TEST_F(OpenSaveCommands, SaveTellsHowManyRowsItLeftOutAndWhich) {
    NamePage("a");
    SetCell(3, DESC, "A");
    Choose(IdSave);
    EXPECT_EQ(Status(0), "1 row NOT SAVED: a.zelk");
    EXPECT_EQ(ToolTip(), "Saved a.zelk; 1 row is incomplete and was not saved: 3");
    SetCell(4, DESC, "A");
    SetCell(CurrentParameters().Rows, RFRQ, "67.0000");
    Choose(IdSave);
    EXPECT_EQ(Status(0), "3 rows NOT SAVED: a.zelk");
    EXPECT_EQ(ToolTip(), "Saved a.zelk; 3 rows are incomplete and were not saved: 3, 4, " +
                             std::to_string(CurrentParameters().Rows));
    for (int row : {3, 4, CurrentParameters().Rows})
        EmptyRow(row);
    Choose(IdSave);
    EXPECT_EQ(Status(0), "Saved a.zelk") << "the report of an earlier save is out of date";
}

TEST_F(OpenSaveCommands, SaveNamesADefaultRowThatItLeftOutInTheToolTip) {
    NamePage("a");
    FillRowsFromDefault({5});
    SetCell(0, RFRQ, "");
    Choose(IdSave);
    EXPECT_EQ(Status(0), "Saved a.zelk") << "the default row is no memory";
    EXPECT_EQ(ToolTip(), "Saved a.zelk; the default row is incomplete and was not saved");
    SetCell(6, DESC, "A");
    Choose(IdSave);
    EXPECT_EQ(Status(0), "1 row NOT SAVED: a.zelk");
    EXPECT_EQ(ToolTip(),
              "Saved a.zelk; 1 row is incomplete and was not saved: 6; the default row is incomplete and was "
              "not saved");
    EmptyRow(0);
    EmptyRow(6);
    Choose(IdSave);
    EXPECT_EQ(ToolTip(), "Saved a.zelk") << "a blank one had nothing to lose";
}

TEST_F(OpenSaveCommands, TheDefaultRowOfAFreshPageOfEveryTypeIsSaved) {
    for (const TypedTarget& target : Targets) {
        SCOPED_TRACE(target.type);
        RetargetTo(target.type);
        SaveAs(std::string(target.type) + ".zelk");
        EXPECT_EQ(ToolTip(), std::string("Saved ") + target.type + ".zelk");
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
    AddPageOf(1, Krv214);
    NamePage("a");
    Choose(IdSave);
    EXPECT_EQ(Status(0), "Saved a.zelk");
    MainFrame->m_notebook->SetSelection(0);
    EXPECT_EQ(Status(0), "Select function");
}

TEST_F(OpenSaveCommands, SaveThatIsCancelledTellsNothingOfRows) {
    SetCell(3, DESC, "A");
    DialogScript script;
    script.Expect(DialogKind::File, "Save .zelk file...").Answer(wxID_CANCEL);
    Choose(IdSave);
    EXPECT_EQ(Status(0), "Select function");
}

TEST_F(OpenSaveCommands, SaveThatFailsOpensNoBoxButTellsItInTheStatusBar) {
    PageStrings[0].FileDir = FolderText() + "missing/";
    PageStrings[0].FileName = "a";
    Choose(IdSave);
    EXPECT_EQ(Status(0), "NOT SAVED: folder not found");
    EXPECT_EQ(ToolTip(), "NOT SAVED: " + FolderText() + "missing/a.zelk: No such file or directory");
    EXPECT_EQ(Entries(), std::vector<std::string>{});

    fs::create_directories(m_folder / "a.zelk/inside");
    PageStrings[0].FileDir = FolderText();
    Choose(IdSave);
    EXPECT_EQ(Status(0), "NOT SAVED: a folder has this name");
    EXPECT_EQ(ToolTip(), "NOT SAVED: " + FolderText() + "a.zelk: Is a directory");
    EXPECT_TRUE(fs::exists(m_folder / "a.zelk/inside"));

    PageStrings[0].FileName = "b";
    Choose(IdSave);
    EXPECT_EQ(Status(0), "Saved b.zelk");
    EXPECT_EQ(Entries(), (std::vector<std::string>{"a.zelk", "b.zelk"}));
}

TEST_F(OpenSaveCommands, SaveThatFailsLeavesTheFormerFileAndThePagesName) {
    // The name is just short enough for the file, but too long for a new file next to it.
    const std::string name(250, 'n');
    WriteToFolder(name + ".zelk", "former");
    NamePage(name);
    SaveOver(name + ".zelk", wxID_OK);
    EXPECT_EQ(Status(0), "NOT SAVED: name too long");
    EXPECT_EQ(ToolTip(), "NOT SAVED: " + FolderText() + name + ".zelk: File name too long");
    EXPECT_EQ(ReadFromFolder(name + ".zelk"), "former");
    EXPECT_EQ(PageStrings[0].FileName, name);
}
