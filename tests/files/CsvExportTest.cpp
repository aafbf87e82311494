// Exporting as a user does: by menu and file dialog.
#include "files/CsvExport.h"

#include "tests/files/CsvExportTest.h"

#include <wx/filedlg.h>
#include <wx/msgdlg.h>

namespace fs = std::filesystem;
using testbench::DialogKind;
using testbench::DialogScript;

namespace {

/// A row with a text in each of the 32 columns: "c0" to "c31".
void FillWithColumnNames(int row) {
    for (int col = 0; col < ColumnTotal; ++col)
        CurrentGrid()->SetCellValue(row, col, wxString::Format("c%d", col));
}

} // namespace

TEST_F(CsvExportCommand, WritesTheFieldsOfEachTypeOfPage) {
    const struct {
        const char *type, *bytes;
    } cases[] = {
        {"ANFM", "MNUM,SCAN,DESC,MODE,RFRQ,RTON,RCOD,TFRQ,TTON,TCOD,\n"
                 "c1,c5,c7,c8,c9,c12,c13,c16,c18,c19,\n"},
        {"RP25",
         "MNUM,SCAN,ZONE,DESC,MODE,RFRQ,RSQL,RTON,RCOD,RTGP,RNAC,TFRQ,TSQL,TTON,TCOD,TTGP,TNAC,TIDC,\n"
         "c1,c5,c6,c7,c8,c9,c10,c12,c13,c15,c14,c16,c17,c18,c19,c20,c21,c22,\n"},
        {"NP25", "MNUM,SCAN,ZONE,DESC,MODE,RFRQ,RSQL,RNSV,RTON,RCOD,RTGP,RNAC,TFRQ,TSQL,TTON,TCOD,TTGP,TNAC,"
                 "TIDC,\n"
                 "c1,c5,c6,c7,c8,c9,c10,c11,c12,c13,c15,c14,c16,c17,c18,c19,c20,c21,c22,\n"},
        {"MDLX", "MNUM,BAND,SCAN,DESC,MODE,RFRQ,RTON,RCOD,TFRQ,TTON,TCOD,\n"
                 "c1,c4,c5,c7,c8,c9,c12,c13,c16,c18,c19,\n"},
        {"O12", "MNUM,RFRQ,\nc1,c9,\n"},
        {"KDAR", "KDAR-2000,,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n0,c7,c9,c16,No,c30,\n"},
        {"ANAM", "MNUM,SCAN,DESC,MODE,RFRQ,RTON,TFRQ,TTON,\nc1,c5,c7,c8,c9,c12,c16,c18,\n"},
        {"FXAM", "MNUM,SCAN,DESC,MODE,RFRQ,RTON,TFRQ,TTON,\nc1,c5,c7,c8,c9,c12,c16,c18,\n"},
    };
    for (const auto& [type, bytes] : cases) {
        EmptyPageOf(type);
        FillWithColumnNames(3);
        Select({3});
        EXPECT_EQ(Export(), bytes) << type;
        for (int col = 0; col < ColumnTotal; ++col)
            SetCell(3, col, "");
    }
}

TEST_F(CsvExportCommand, WritesAKdarRowInItsOwnWords) {
    EmptyPageOf("KDAR");
    SetCells(1,
             {{MNUM, "001"}, {DESC, "TOWER"}, {RFRQ, "118.000"}, {TFRQ, "121.5"}, {SCAN, "Y"}, {RONL, "N"}});
    SetCells(2, {{MNUM, "020"}, {DESC, "A,\"B\"C"}, {RFRQ, "99.5"}, {TFRQ, ""}, {SCAN, "N"}, {RONL, "Y"}});
    Select({1, 2});
    EXPECT_EQ(Export(), "KDAR-2000,,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n"
                        "1,TOWER,118000,1215,Yes,No,\n"
                        "20,\"A,\"\"B\"\"\",99.5,,No,Yes,\n");
}

TEST_F(CsvExportCommand, OfAKdarPageAsksForAPurgeIfItsFirstRowDoes) {
    EmptyPageOf("KDAR");
    const std::pair<const char*, const char*> cases[] = {{"A0", ","},      {"A2", "Purge,"}, {"02", "Purge,"},
                                                         {"03", "Purge,"}, {"", ","},        {"FD", ","}};
    for (const auto& [flags, option] : cases) {
        SetCell(1, TFLG, flags);
        SetCell(2, TFLG, "A2");
        Select({2});
        EXPECT_EQ(Export().substr(0, 14 + std::string(option).size() - 1),
                  std::string("KDAR-2000,") + option + ",,,")
            << flags;
    }
}

TEST_F(CsvExportCommand, OfAnotherPageKnowsNoPurge) {
    EmptyPageOf("O12");
    SetCells(1, {{MNUM, "001"}, {RFRQ, "121.500"}, {TFLG, "A2"}});
    Select({1});
    EXPECT_EQ(Export(), "MNUM,RFRQ,\n001,121.500,\n");
}

TEST_F(CsvExportCommand, WritesTheSelectedRowsInTheirOrder) {
    EmptyPageOf("O12");
    for (int row = 1; row <= 6; ++row)
        SetCells(row, {{MNUM, "x"}, {RFRQ, std::string(static_cast<size_t>(row), 'r').c_str()}});
    Select({5, 2, 0});
    EXPECT_EQ(Export(), "MNUM,RFRQ,\n0,118.000,\nx,rr,\nx,rrrrr,\n");
    CurrentGrid()->SelectAll();
    EXPECT_EQ(Export(), "MNUM,RFRQ,\n0,118.000,\nx,r,\nx,rr,\nx,rrr,\nx,rrrr,\nx,rrrrr,\nx,rrrrrr,\n");
}

TEST_F(CsvExportCommand, WritesEmptyRowsToo) {
    EmptyPageOf("O12");
    Select({4});
    EXPECT_EQ(Export(), "MNUM,RFRQ,\n,,\n");
}

TEST_F(CsvExportCommand, TakesCellsThatAreSelectedInTheNumberColumnBesideAWholeRow) {
    EmptyPageOf("O12");
    for (int row = 1; row <= 3; ++row)
        SetCells(row, {{MNUM, wxString::Format("%d", row).utf8_string().c_str()}});
    Select({1});
    CurrentGrid()->SelectBlock(2, MNUM, 2, MNUM, true);
    CurrentGrid()->SelectBlock(3, RFRQ, 3, RFRQ, true);
    EXPECT_EQ(Export(), "MNUM,RFRQ,\n1,,\n2,,\n");
}

TEST_F(CsvExportCommand, QuotesOnlyAFieldWithAQuoteAndCutsItBehindTheLast) {
    EmptyPageOf("ANFM");
    SetCells(1, {{MNUM, "001"}, {DESC, "A,B"}});
    SetCells(2, {{MNUM, "002"}, {DESC, "A\"B\"C"}});
    Select({1, 2});
    const std::string bytes = Export();
    EXPECT_NE(bytes.find("\n001,,A,B,,"), std::string::npos);
    EXPECT_NE(bytes.find("\n002,,\"A\"\"B\"\"\",,"), std::string::npos);
}

TEST_F(CsvExportCommand, WritesUtf8) {
    EmptyPageOf("KDAR");
    SetCells(1, {{MNUM, "001"}});
    SetCell(1, DESC, wxString::FromUTF8("K\xC3\xB6ln"));
    Select({1});
    EXPECT_NE(Export().find("\n1,K\xC3\xB6ln,"), std::string::npos);
}

TEST_F(CsvExportCommand, WithoutWholeRowsSelectedSaysSo) {
    EmptyPageOf("ANFM");
    CurrentGrid()->ClearSelection();
    for (const bool cells : {false, true}) {
        if (cells)
            CurrentGrid()->SelectBlock(2, MNUM, 4, RFRQ);
        DialogScript script;
        ExpectErrorBox(script, "Export CSV - Error!", "No data selected!");
        Choose(IdExport);
    }
}

TEST_F(CsvExportCommand, OfAKdarPageLeavesBlankRowsAndTheDefaultRowOutSoThatNoMemoriesAreInvented) {
    EmptyPageOf("KDAR");
    SetCells(2, {{MNUM, "002"}, {DESC, "TOWER"}, {RFRQ, "118.300"}, {TFRQ, "118.300"}, {RONL, "N"}});
    const char* expected = "KDAR-2000,,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n"
                           "2,TOWER,118300,118300,No,No,\n";
    Choose(IdSelectAll);
    EXPECT_EQ(Export(), expected);
    Select({0, 1, 2, 3});
    EXPECT_EQ(Export(), expected);
}

TEST_F(CsvExportCommand, OfAKdarPageWithBlankRowsSelectedOnlySaysThatNothingIs) {
    EmptyPageOf("KDAR");
    SetCells(2, {{MNUM, "002"}});
    for (const auto& rows : {std::initializer_list<int>{0}, {1}, {0, 1, 100}}) {
        Select(rows);
        DialogScript script;
        ExpectErrorBox(script, "Export CSV - Error!", "No data selected!");
        Choose(IdExport);
    }
}

TEST_F(CsvExportCommand, OffersTheRadiosNameAndAsksBeforeItOverwrites) {
    EmptyPageOf("KDAR");
    SetCells(1, {{MNUM, "001"}});
    Select({1});
    DialogScript script;
    script.Expect(DialogKind::File, "Export CSV file").Answer(wxID_CANCEL).Set([](wxDialog* dialog) {
        auto* file = dynamic_cast<wxFileDialog*>(dialog);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(file->GetFilename(), "KDAR-2000.csv");
        const wxString all = wxFileSelectorDefaultWildcardStr;
        EXPECT_EQ(file->GetWildcard(), "CSV files (*.csv)|*.csv|All files (" + all + ")|" + all);
        EXPECT_EQ(file->GetParent(), MainFrame);
        for (const int flag : {wxFD_SAVE, wxFD_OVERWRITE_PROMPT, wxFD_CHANGE_DIR})
            EXPECT_TRUE(file->HasFlag(flag)) << flag;
    });
    Choose(IdExport);
}

TEST_F(CsvExportCommand, ThatIsCancelledWritesNothing) {
    EmptyPageOf("ANFM");
    Select({1});
    DialogScript script;
    script.Expect(DialogKind::File, "Export CSV file").Answer(wxID_CANCEL);
    Choose(IdExport);
    EXPECT_EQ(Entries(), std::vector<std::string>{});
}

TEST_F(CsvExportCommand, ReplacesAFormerFileAndLeavesNothingElse) {
    EmptyPageOf("O12");
    testbench::WriteFile(m_folder / "list.csv", std::string(10000, 'x'));
    Select({1});
    EXPECT_EQ(Export(), "MNUM,RFRQ,\n,,\n");
    EXPECT_EQ(Entries(), std::vector<std::string>{"list.csv"});
}

TEST_F(CsvExportCommand, ThatCannotBeWrittenSaysSo) {
    EmptyPageOf("O12");
    Select({1});
    fs::create_symlink(m_folder / "missing/list.csv", m_folder / "link.csv");
    ExportInVain(m_folder / "link.csv");
    fs::create_directories(m_folder / "folder.csv");
    ExportInVain(m_folder / "folder.csv");
    EXPECT_EQ(Entries(), (std::vector<std::string>{"folder.csv", "link.csv"}));
}

TEST_F(CsvExportCommand, ThatCannotBeWrittenLeavesTheFormerFile) {
    EmptyPageOf("O12");
    Select({1});
    // The name is just short enough for the file, but too long for a new file next to it.
    const std::string name = std::string(251, 'n') + ".csv";
    testbench::WriteFile(m_folder / name, "former");
    ExportInVain(m_folder / name);
    EXPECT_EQ(testbench::ReadFile(m_folder / name), "former");
    EXPECT_EQ(Entries(), std::vector<std::string>{name});
}

TEST_F(CsvExportCommand, WritesUnderTheNameThatWasChosen) {
    EmptyPageOf("O12");
    Select({1});
    Export("plain");
    EXPECT_EQ(Entries(), std::vector<std::string>{"plain"});
    EXPECT_EQ(PageStrings[0].FileName, "") << "an export gives the page no file";
}

TEST_F(CsvExportCommand, TakesTheTextOfAnOpenEditor) {
    EmptyPageOf("ANFM");
    SetCells(1, {{MNUM, "001"}, {TFLG, "A0"}});
    TypeWithoutEnd(1, DESC, "TYPED");
    Select({1});
    EXPECT_NE(Export().find("\n001,,TYPED,"), std::string::npos);
    EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());
}

TEST_F(CsvExportCommand, KeepsPageAndSelection) {
    EmptyPageOf("ANFM");
    SetCells(1, {{MNUM, "x"}, {DESC, "A"}});
    const auto before = RowTexts(1);
    Select({1});
    Export();
    EXPECT_EQ(RowTexts(1), before);
    EXPECT_EQ(CurrentGrid()->GetSelectedRows().size(), 1u);
}

class CsvExportFile : public CsvExportCommand {};

TEST_F(CsvExportFile, IsOpenOnceAndWrittenWhenItIsClosed) {
    EmptyPageOf("O12");
    const wxString path = (m_folder / "a.csv").string();
    testbench::WriteFile(m_folder / "a.csv", "former");
    wxArrayString fields;
    fields.Add("001");
    fields.Add("121.500");
    CsvExport list;
    EXPECT_FALSE(list.WriteCsvLine(fields, 2)) << "no file is open";
    EXPECT_FALSE(list.OpenCsvWrite((m_folder / "missing/a.csv").string(), CurrentParameters().Type));
    EXPECT_TRUE(list.CloseCsv());
    ASSERT_TRUE(list.OpenCsvWrite(path, CurrentParameters().Type));
    EXPECT_FALSE(list.OpenCsvWrite(path, CurrentParameters().Type)) << "it is open already";
    EXPECT_TRUE(list.WriteCsvLine(fields, 2));
    EXPECT_EQ(testbench::ReadFile(m_folder / "a.csv"), "former");
    EXPECT_TRUE(list.CloseCsv());
    EXPECT_EQ(testbench::ReadText(m_folder / "a.csv"), "MNUM,RFRQ,\n001,121.500,\n");
    EXPECT_FALSE(list.WriteCsvLine(fields, 2));
    EXPECT_TRUE(list.OpenCsvWrite(path, CurrentParameters().Type)) << "it can be used again";
}

TEST_F(CsvExportFile, ThatIsNeverClosedLeavesTheFormerOne) {
    EmptyPageOf("O12");
    testbench::WriteFile(m_folder / "a.csv", "former");
    {
        CsvExport list;
        ASSERT_TRUE(list.OpenCsvWrite((m_folder / "a.csv").string(), CurrentParameters().Type));
    }
    EXPECT_EQ(testbench::ReadFile(m_folder / "a.csv"), "former");
    EXPECT_EQ(Entries(), std::vector<std::string>{"a.csv"});
}
