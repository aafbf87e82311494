// The status bar's message on an import, shown after its report.
#include "files/ImportOutcome.h"

#include "tests/files/ImportTest.h"

#include <wx/statusbr.h>

namespace {

class ImportOutcome : public ImportTest {
protected:
    /// Imports the bytes by menu, with any report accepted.
    void ImportFile(const std::string& bytes) {
        testbench::WriteFile(m_folder / "list", bytes);
        ImportByMenu("list", testbench::AnyText());
    }

    void ExpectTold(const std::string& verdict, const std::string& story) {
        EXPECT_EQ(Status(0), verdict);
        EXPECT_EQ(ToolTip(), story);
    }
};

const std::string CsvHeading = "MNUM,DESC,RFRQ,TFRQ,RTON,TTON\n";

std::string KdarList(const std::string& lines) {
    return "KDAR-2000,,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n" + lines;
}

} // namespace

TEST_F(ImportOutcome, OfAListThatFitsSaysThatNothingWasReplaced) {
    RetargetTo("ANFM");
    ImportFile(CsvHeading + "5,A,155.0000,155.0000,,\n6,B,155.0000,155.0000,,\n7,C,155.0000,155.0000,,\n");
    ExpectTold("No cell replaced", "No cell replaced");
    ImportFile(BinaryFile({BinaryRecord(5)}));
    ExpectTold("No cell replaced", "No cell replaced");
}

TEST_F(ImportOutcome, CountsTheCellsThatChecksReplaced) {
    RetargetTo("ANFM");
    ImportFile(CsvHeading + "7,A,455.0000,155.0000,,\n5,B,155.0000,99.0000,66.6,\n6,C,155.0000,155.0000,,\n");
    ExpectTold("3 cells replaced from row 5", "3 cells were replaced: row 5 RxTn, TxFreq; row 7 RxFreq");
    ImportFile(BinaryFile({BinaryRecord(5).Text(40, 10, "455.7525"), BinaryRecord(6)}));
    ExpectTold("1 cell replaced, row 5", "1 cell was replaced: row 5 RxFreq");
}

TEST_F(ImportOutcome, CountsCellsOfAMultiZELFileThatCanNotStand) {
    RetargetTo("O12");
    ImportFile(MultiZELFileOf({}));
    ExpectTold("2 cells replaced from row 1", "2 cells were replaced: row 1 Freq; row 2 Freq");
    RetargetTo("ANFM");
    ImportFile(Joined({MultiZELLine("001", {{75, "W"}}), MultiZELLine("002", {{75, "W"}}),
                       MultiZELLine("003", {{14, "455.7525"}, {25, "455.7525"}, {75, "W"}}),
                       MultiZELLine("004"), MultiZELLine("005", {{43, "99"}, {75, "W"}})}));
    ExpectTold("4 cells replaced from row 3",
               "4 cells were replaced: row 3 RxFreq, TxFreq; row 4 Mode; row 5 RxTn");
}

TEST_F(ImportOutcome, CountsFieldsOfACsvFileThatLostCharactersOrGaveWay) {
    RetargetTo("RP25");
    ImportFile("MNUM,DESC,ZONE,RSQL,RFRQ,TTGP\n5,HARBOUR WATCH,3,t,,\n6,a|b,nowhere,,,\n7,Quay,2,,,\n");
    ExpectTold("4 cells replaced from row 5", "4 cells were replaced: row 5 Desc, RxSq; row 6 Zone, Desc");
}

TEST_F(ImportOutcome, OfA716FileTellsAZoneThatThePageHasNot) {
    RetargetTo("RP25");
    ImportFile(BinaryFile({BinaryRecord(5).Word(8, 16 * 40), BinaryRecord(6).Word(8, 16 * 2)}));
    ExpectTold("1 cell replaced, row 5", "1 cell was replaced: row 5 Zone");
}

TEST_F(ImportOutcome, CountsLinesOfACsvFileThatNameNoRow) {
    RetargetTo("ANFM");
    ImportFile(CsvHeading + "5,A,155.0000,155.0000,,\nx,B,155.0000,155.0000,,\n,,,,,\n\n" +
               ",C,155.0000,155.0000,,\n103,D,155.0000,155.0000,,\n6,E,155.0000,155.0000,,\n \n");
    ExpectTold("3 lines skipped", "No cell was replaced.\n3 lines were skipped: 3, 6, 7");
}

TEST_F(ImportOutcome, CountsLinesByEveryKindOfLineEnd) {
    RetargetTo("ANFM");
    for (const std::string end : {"\n", "\r", "\r\n"}) {
        ImportFile(Joined({CsvHeading.substr(0, CsvHeading.size() - 1), "5,A,,,,", "6,B,,,,", "7,B,,,,", "",
                           "x,B,,,,", "", "", "y,B,,,,"},
                          end));
        ExpectTold("2 lines skipped", "No cell was replaced.\n2 lines were skipped: 6, 9");
    }
}

TEST_F(ImportOutcome, CountsLinesBeforeTheHeadingsBehindThePagesEndAndForARowThatIsNamedAgain) {
    RetargetTo("O12");
    ImportFile("a title,,,,,\n" + CsvHeading +
               "1,,121.500,,,\n2,,121.500,,,\n1,,122.500,,,\n1,,123.500,,,\n" +
               "3,,121.500,,,\n4,,121.500,,,\n5,,121.500,,,\n6,,121.500,,,\n");
    ExpectTold("5 lines skipped", "No cell was replaced.\n5 lines were skipped: 1, 3, 5, 9, 10");
}

TEST_F(ImportOutcome, CountsLinesOfAKdarListThatArePassedOver) {
    RetargetTo("KDAR");
    std::string lines = "x,BAD,118300,118300,No,No,\n\n999,FAR,118300,118300,No,No,\n";
    for (int n = 1; n <= 102; ++n)
        lines += "1,CH,118300,118300,No,No,\n";
    ImportFile(KdarList(lines));
    ExpectTold("4 lines skipped", "No cell was replaced.\n4 lines were skipped: 3, 5, 106, 107");
}

TEST_F(ImportOutcome, CountsLinesOfA716ListThatDoNotReachThePage) {
    RetargetTo("O12"); // six rows, no guards
    ImportFile(
        ListFile({ListLine("001"), ListLine("007"), ListLine("GD1"), UndefinedLine("003"),
                  ListLine("001", {{13, "LATER  "}}), "a short line ends the list", "", ListLine("002")}));
    EXPECT_TRUE(Status(0).ends_with("5 lines skipped")) << Status(0);
    EXPECT_TRUE(ToolTip().ends_with("\n5 lines were skipped: 4, 5, 6, 9, 11\n1 line holds no memory"))
        << ToolTip();
}

TEST_F(ImportOutcome, DoesNotCountMemoriesOfA716ListThatWereNeverSet) {
    RetargetTo("RP25");
    ImportFile(ListFile({ListLine("001"), UndefinedLine("002"), UndefinedLine("003"), ListLine("GD1")}));
    ExpectTold("No cell replaced", "No cell was replaced.\n2 lines hold no memory");
}

TEST_F(ImportOutcome, CountsRecordsOfA716FileThatDoNotReachThePage) {
    RetargetTo("RP25");
    ImportFile(BinaryFile({BinaryRecord(5), BinaryRecord(300), BinaryRecord(5), BinaryRecord(6)}));
    ExpectTold("2 lines skipped", "No cell was replaced.\n2 lines were skipped: 1, 2");
}

TEST_F(ImportOutcome, CountsLinesOfAMultiZELFileThatDoNotReachThePage) {
    RetargetTo("ANFM");
    const auto wide = [](const char* number) { return MultiZELLine(number, {{75, "W"}}); };
    ImportFile(Joined({wide("001"), wide("002"), "", "   ", wide("999"), wide("   "), wide("002")}));
    ExpectTold("3 lines skipped", "No cell was replaced.\n3 lines were skipped: 2, 5, 6");
}

TEST_F(ImportOutcome, TellsCellsAndLinesTogether) {
    RetargetTo("ANFM");
    ImportFile(CsvHeading + "7,A,455.0000,155.0000,,\nx,B,155.0000,99.0000,66.6,\n6,C,155.0000,155.0000,,\n");
    ExpectTold("1 cell replaced, row 7; 1 line skipped",
               "1 cell was replaced: row 7 RxFreq\n1 line was skipped: 3");
}

TEST_F(ImportOutcome, OfAFileOfNoKindTellsNothing) {
    ImportFile("something else\n");
    EXPECT_EQ(Status(0), "Select function");
}

TEST_F(ImportOutcome, OfAListWithoutAGoodLineTellsTheLines) {
    RetargetTo("ANFM");
    ImportFile(CsvHeading + "x,A,,,,\ny,B,,,,\nz,C,,,,\n");
    EXPECT_EQ(Status(0), "3 lines skipped");
}

TEST_F(ImportOutcome, FitsItsFieldInAWindowOfDefaultSize) {
    ReplacedCells cells;
    for (int row = 502; row > 100; --row)
        for (int column = 0; column < ColumnTotal; ++column)
            ReplacedCells::Note(row, column);
    SkippedLines lines;
    for (int line = 1; line < 1000; ++line)
        SkippedLines::Note(line);
    TellImport(cells, lines);
    // The page shows ten of the columns; replaced cells of hidden columns don't matter to the user.
    EXPECT_EQ(Status(0), "4020 cells replaced from row 101; 999 lines skipped");
}
