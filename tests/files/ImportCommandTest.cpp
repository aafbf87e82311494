// The import as a user does it: by menu and dialogs.
#include "tests/files/ImportTest.h"

#include <wx/filedlg.h>

using testbench::DialogKind;
using testbench::DialogScript;

namespace {

constexpr const char* UnknownType = "Error: Unknown File Type.";

class ImportCommand : public ImportTest {
protected:
    void WriteToFolder(const std::string& name, const std::string& bytes) {
        testbench::WriteFile(m_folder / name, bytes);
    }

    std::string PathOf(const std::string& name) const { return (m_folder / name).string(); }
};

/// What a page of a type does with 155.7525 MHz.
struct PageCase {
    const char* type;
    const char* checked;     ///< in the 716 files and comma-separated lists
    bool isPainted;          ///< because it was replaced
    const char* checkedTone; ///< of 156.7
    const char* replaced;    ///< in a MultiZEL file
};

constexpr PageCase PageCases[] = {
    {"ANFM", "155.7525", false, "156.7", "155.7525"}, {"RP25", "155.7525", false, "156.7", "155.7525"},
    {"NP25", "155.7525", false, "156.7", "155.7525"}, {"MDLX", "31.0000", true, "156.7", "31.0000"},
    {"O12", "118.000", true, "", "118.0000"},         {"KDAR", "118.000", true, "", "118.0000"},
    {"ANAM", "225.0000", true, "", "225.0000"},       {"FXAM", "225.0000", true, "", "225.0000"},
};

/// An importer that fails to open the lines of a file.
class FailingImporter : public FileImporter {
public:
    bool OpenLines(const wxString&) override { return false; }
};

} // namespace

TEST_F(ImportCommand, PutsA716BinaryFileIntoPagesOfEveryType) {
    WriteToFolder("list.716", BinaryFile({BinaryRecord(5), BinaryRecord(6).Text(10, 8, "SECOND")}));
    for (const PageCase& page : PageCases) {
        SCOPED_TRACE(page.type);
        RetargetTo(page.type);
        SetCell(4, DESC, "FORMER");
        ImportByMenu("list.716", "Imported 2 Lines from 716 Binary file.");
        EXPECT_EQ(FilledRows(0), Rows({0, 5, 6}));
        ExpectCells(5, {{MNUM, "005"}, {DESC, "VCALL10"}, {RFRQ, page.checked}, {RTON, page.checkedTone}});
        ExpectCells(6, {{MNUM, "006"}, {DESC, "SECOND"}});
        EXPECT_EQ(IsPainted(5, RFRQ), page.isPainted);
        EXPECT_EQ(CurrentParameters().Flags, 0x02);
    }
}

TEST_F(ImportCommand, PutsA716ListIntoPagesOfEveryType) {
    WriteToFolder("list.txt", ListFile({ListLine("005"), ListLine("006", {{13, "SECOND  "}})}));
    for (const PageCase& page : PageCases) {
        SCOPED_TRACE(page.type);
        RetargetTo(page.type);
        ImportByMenu("list.txt", "Imported 2 Lines from 716 Text file.");
        EXPECT_EQ(FilledRows(0), Rows({0, 5, 6}));
        ExpectCells(5, {{MNUM, "005"}, {DESC, "VCALL10"}, {RFRQ, page.checked}, {RTON, page.checkedTone}});
        ExpectCells(6, {{MNUM, "006"}, {DESC, "SECOND"}});
        EXPECT_EQ(IsPainted(5, RFRQ), page.isPainted);
        EXPECT_EQ(CurrentParameters().Flags, 0x02);
    }
}

TEST_F(ImportCommand, PutsAMultiZELFileIntoPagesOfEveryType) {
    WriteToFolder("list.630", MultiZELFileOf({MultiZELLine("006", {{4, "SECOND   "}})}));
    for (const PageCase& page : PageCases) {
        SCOPED_TRACE(page.type);
        RetargetTo(page.type);
        ImportByMenu("list.630", "Imported 3 Lines from MultiZEL file.");
        EXPECT_EQ(FilledRows(0), Rows({0, 1, 2, 6}));
        ExpectCells(6, {{MNUM, "006"}, {DESC, "SECOND   "}, {RFRQ, page.replaced}, {RTON, page.checkedTone}});
        EXPECT_FALSE(IsPainted(6, RFRQ));
        EXPECT_EQ(CurrentParameters().Flags, 0x02);
    }
}

TEST_F(ImportCommand, PutsACsvFileIntoPagesOfEveryType) {
    WriteToFolder("list.csv",
                  "MNUM,DESC,RFRQ,TFRQ,RTON,TTON\n005,FIRST,155.7525,155.7525,156.7,156.7\n"
                  "006,SECOND,155.7525,155.7525,156.7,156.7\n003,THIRD,155.7525,155.7525,156.7,156.7\n");
    for (const PageCase& page : PageCases) {
        SCOPED_TRACE(page.type);
        RetargetTo(page.type);
        ImportByMenu("list.csv", "Imported 3 Lines from CSV file.");
        EXPECT_EQ(FilledRows(0), Rows({0, 3, 5, 6}));
        ExpectCells(5, {{MNUM, "005"}, {DESC, "FIRST"}, {RFRQ, page.checked}});
        EXPECT_EQ(IsPainted(5, RFRQ), page.isPainted);
    }
}

TEST_F(ImportCommand, PutsAKdarListIntoPagesOfEveryType) {
    WriteToFolder("list.csv", "KDAR-2000,,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n"
                              "1,GUARD,121.500,121.500,Y,N,\n2,AIR-AIR,122.750,122.750,N,N,\n");
    for (const PageCase& page : PageCases) {
        SCOPED_TRACE(page.type);
        RetargetTo(page.type);
        ImportByMenu("list.csv", "Imported 2 Lines from KDAR file.");
        EXPECT_EQ(FilledRows(0), Rows({0, 1, 2}));
        EXPECT_EQ(Text(1, DESC), "GUARD");
    }
}

TEST_F(ImportCommand, OffersEveryKindOfFileAlsoWithANameInCapitals) {
    DialogScript script;
    script.Expect(DialogKind::File, "Import file").Answer(wxID_CANCEL).Set([](wxDialog* dialog) {
        auto* file = dynamic_cast<wxFileDialog*>(dialog);
        ASSERT_NE(file, nullptr);
        const wxString all = wxFileSelectorDefaultWildcardStr;
        EXPECT_EQ(file->GetWildcard(),
                  "ZEL716 Binary files (*.716)|*.716|ZEL716 List files (*.txt)|*.txt;*.TXT|"
                  "MultiZEL files (*.210;*.220;*.610;*.630;*.650;*.666;*.840)|"
                  "*.210;*.220;*.610;*.630;*.650;*.666;*.840|CSV files (*.csv)|*.csv;*.CSV|All files (" +
                      all + ")|" + all);
        EXPECT_EQ(file->GetFilename(), "");
        EXPECT_TRUE(file->HasFlag(wxFD_OPEN));
        EXPECT_TRUE(file->HasFlag(wxFD_FILE_MUST_EXIST));
        EXPECT_TRUE(file->HasFlag(wxFD_CHANGE_DIR));
        EXPECT_EQ(file->GetParent(), MainFrame);
    });
    Choose(IdImport);
}

TEST_F(ImportCommand, LeavesThePageWhenNoFileIsChosen) {
    SetCell(5, DESC, "KEPT");
    PageStrings[0].FileName = "kept";
    CurrentParameters().Flags = PageHasMarks;
    DialogScript script;
    script.Expect(DialogKind::File, "Import file").Answer(wxID_CANCEL);
    Choose(IdImport);
    EXPECT_EQ(Text(5, DESC), "KEPT");
    EXPECT_EQ(PageStrings[0].FileName, "kept");
    EXPECT_EQ(CurrentParameters().Flags, PageHasMarks);
}

TEST_F(ImportCommand, ClearsThePageForAFileOfNoKind) {
    for (const PageCase& page : PageCases) {
        SCOPED_TRACE(page.type);
        RetargetTo(page.type);
        SetCell(5, DESC, "FORMER");
        SetCell(0, DESC, "FORMER");
        CurrentGrid()->SetCellBackgroundColour(5, RFRQ, FailColour);
        CurrentParameters().Flags = PageHasMarks;
        WriteToFolder("file.716", "something else\n");
        ImportByMenu("file.716", UnknownType);
        EXPECT_EQ(FilledRows(0), Rows({0}));
        EXPECT_NE(Text(0, DESC), "FORMER");
        EXPECT_FALSE(IsPainted(5, RFRQ));
        EXPECT_EQ(TakenSlots(), 0);
        EXPECT_EQ(CurrentParameters().Flags, 0x02);
    }
}

TEST_F(ImportCommand, ClearsThePageForAFileThatIsNotThere) {
    SetCell(5, DESC, "FORMER");
    WriteToFolder("list.716", BinaryFile({BinaryRecord(5)}));
    DialogScript script;
    script.Expect(DialogKind::File, "Import file").Path(PathOf("list.716")).Set([&](wxDialog*) {
        std::filesystem::remove(PathOf("list.716"));
    });
    script.ExpectMessage("Import File", UnknownType);
    Choose(IdImport);
    EXPECT_EQ(FilledRows(0), Rows({0}));
}

TEST_F(ImportCommand, SaysTheSameOfAKindThatHoldsNothing) {
    for (const auto& [name, bytes] : {std::pair("a.716", BinaryHeader()), std::pair("a.txt", ListFile({}))}) {
        SCOPED_TRACE(name);
        SetCell(5, DESC, "FORMER");
        WriteToFolder(name, bytes);
        ImportByMenu(name, UnknownType);
        EXPECT_EQ(FilledRows(0), Rows({0}));
    }
}

TEST_F(ImportCommand, TellsALineFileThatCannotBeOpenedAndLeavesThePage) {
    SetCell(5, DESC, "KEPT");
    WriteToFolder("list.630", MultiZELFileOf({}));
    MainFrame->m_importer = std::make_unique<FailingImporter>();
    for (int again = 0; again < 2; ++again) {
        DialogScript script;
        script.ExpectFile("Import file", PathOf("list.630"));
        ExpectErrorBox(script, "File Open Error", PathOf("list.630"));
        Choose(IdImport);
        EXPECT_EQ(Text(5, DESC), "KEPT");
        EXPECT_EQ(PageStrings[0].FileName, "");
        EXPECT_EQ(CurrentParameters().Flags, 0);
    }
    // Only this kind is read line by line.
    WriteToFolder("list.716", BinaryFile({BinaryRecord(5)}));
    ImportByMenu("list.716", "Imported 1 Lines from 716 Binary file.");
}

TEST_F(ImportCommand, LinesOfAFileThatIsNotThereCannotBeOpened) {
    FileImporter importer;
    EXPECT_FALSE(importer.OpenLines(PathOf("missing.630")));
}

TEST_F(ImportCommand, NamesThePageAfterTheFileSoThatSaveCanWriteIt) {
    PageStrings[0].FileDir = "former/";
    PageStrings[0].FileName = "former";
    const wxString title = MainFrame->GetTitle();
    WriteToFolder("list.of.716", BinaryFile({BinaryRecord(5)}));
    ImportByMenu("list.of.716", "Imported 1 Lines from 716 Binary file.");
    EXPECT_EQ(PageStrings[0].FileName, "list.of");
    EXPECT_EQ(PageStrings[0].FileDir, m_folder.File(""));
    EXPECT_EQ(MainFrame->GetTitle(), title);
    EXPECT_EQ(Status(1), "KRV-47");
}

TEST_F(ImportCommand, OfNothingLeavesThePageWithoutANameSoThatNoFileOfFormerMemoriesIsReplaced) {
    for (const auto& [name, bytes] :
         {std::pair<std::string, std::string>("file.716", "something else\n"), {"a.716", BinaryHeader()}}) {
        PageStrings[0].FileDir = m_folder.Path().string() + "/";
        PageStrings[0].FileName = "former";
        WriteToFolder(name, bytes);
        ImportByMenu(name, UnknownType);
        EXPECT_EQ(PageStrings[0].FileName, "");
        DialogScript script;
        script.Expect(DialogKind::File, "Save .zelk file...").Answer(wxID_CANCEL);
        Choose(IdSave);
    }
}

TEST_F(ImportCommand, OfAPageThatHasAFolderIsSavedBesideTheImportedFile) {
    RetargetTo("RP25");
    std::filesystem::create_directory(m_folder / "other");
    PageStrings[0].FileDir = (m_folder / "other/").string();
    PageStrings[0].FileName = "former";
    WriteToFolder("list.716", BinaryFile({BinaryRecord(5)}));
    ImportByMenu("list.716", "Imported 1 Lines from 716 Binary file.");
    Choose(IdSave);
    EXPECT_EQ(Status(0), "Saved list.zelk");
    EXPECT_NE(testbench::ReadFile(m_folder / "list.zelk").find("<DS>VCALL10</DS>"), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_empty(m_folder / "other"));
}

TEST_F(ImportCommand, IsNotSavedOverAChannelFileOfTheSameNameWithoutAQuestion) {
    RetargetTo("RP25");
    WriteToFolder("list.716", BinaryFile({BinaryRecord(5)}));
    WriteToFolder("list.zelk", "edited for hours");
    ImportByMenu("list.716", "Imported 1 Lines from 716 Binary file.");
    {
        DialogScript script;
        script.ExpectMessage("Replace file?", "list.zelk exists and was not opened on this page!",
                             wxID_CANCEL);
        Choose(IdSave);
    }
    EXPECT_EQ(testbench::ReadFile(m_folder / "list.zelk"), "edited for hours");
    DialogScript script;
    script.ExpectMessage("Replace file?", "list.zelk exists and was not opened on this page!");
    Choose(IdSave);
    EXPECT_EQ(Status(0), "Saved list.zelk");
}

TEST_F(ImportCommand, ADigitalPageHoldsNoRowsButTheFiles) {
    for (const char* type : {"RP25", "NP25"}) {
        RetargetTo(type);
        WriteToFolder("list.716", BinaryFile({BinaryRecord(5)}));
        ImportByMenu("list.716", "Imported 1 Lines from 716 Binary file.");
        EXPECT_EQ(FilledRows(0), Rows({0, 5})) << type;
        EXPECT_EQ(TakenSlots(), 1) << type;
    }
}

TEST_F(ImportCommand, TellsThatAPageHoldsPrimaries) {
    RetargetTo("RP25");
    WriteToFolder("list.716", BinaryFile({BinaryRecord(5).Word(2, 0x10).Word(88, 6)}));
    ImportByMenu("list.716", "Imported 1 Lines from 716 Binary file.");
    EXPECT_EQ(CurrentParameters().Flags, 0x02 | 0x08);
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(5, SCAN)) << "also when the editors have been set up";
}

TEST_F(ImportCommand, SetsTheEditorsUp) {
    RetargetTo("ANFM");
    WriteToFolder("list.txt", ListFile({ListLine("005", {{6, "P"}}), ListLine("GD1")}));
    ImportByMenu("list.txt", "Imported 2 Lines from 716 Text file.");
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(5, SCAN)) << "an analog page has no primaries";
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(101, SCAN));
}

TEST_F(ImportCommand, TakesTheTextOfAnOpenEditorFirst) {
    TypeWithoutEnd(0, DESC, "TYPED");
    DialogScript script;
    script.Expect(DialogKind::File, "Import file").Answer(wxID_CANCEL);
    Choose(IdImport);
    EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());
    EXPECT_EQ(Text(0, DESC), "TYPED");
}

TEST_F(ImportCommand, SkipsItsEvent) {
    WriteToFolder("list.716", BinaryFile({BinaryRecord(5)}));
    DialogScript script;
    script.ExpectFile("Import file", PathOf("list.716"));
    script.ExpectMessage("Import File", "Imported 1 Lines from 716 Binary file.");
    wxCommandEvent event(wxEVT_MENU, IdImport);
    MainFrame->OnImport(event);
    EXPECT_TRUE(event.GetSkipped());
}

TEST_F(ImportCommand, WorksOnTheSelectedPageOnly) {
    SetCell(5, DESC, "FIRST");
    SetPageParameters(MainFrame, 1, Kdrv716, 0);
    CreateNewPage(MainFrame, 1);
    UpdateStatus(MainFrame, 1);
    WriteToFolder("list.716", BinaryFile({BinaryRecord(5)}));
    ImportByMenu("list.716", "Imported 1 Lines from 716 Binary file.");
    EXPECT_EQ(Text(5, DESC), "VCALL10");
    EXPECT_EQ(PageGrid[0]->GetCellValue(5, DESC), "FIRST");
    EXPECT_EQ(PageStrings[0].FileName, "");
    EXPECT_EQ(PageStrings[1].FileName, "list");
}

TEST_F(ImportCommand, ReadsAFileByItsContentsWhateverItsName) {
    RetargetTo("RP25");
    WriteToFolder("list.csv", BinaryFile({BinaryRecord(5)}));
    ImportByMenu("list.csv", "Imported 1 Lines from 716 Binary file.");
    WriteToFolder("list.716", ListFile({ListLine("006")}));
    ImportByMenu("list.716", "Imported 1 Lines from 716 Text file.");
    EXPECT_EQ(FilledRows(0), Rows({0, 6})) << "the memories of the former file are gone";
}
