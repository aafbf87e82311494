// Importing lists into the page: the rows that they fill, and files that aren't lists.
#include "tests/files/CsvImportTest.h"

using testbench::DialogScript;

TEST_F(CsvImport, FillsARowFromTheDefaultRowAndNumbersIt) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(Import("MNUM\n5\n"), 1);
    std::vector<std::string> expected = RowTexts(0);
    expected[MNUM] = "005";
    expected[DESC] = "VHF   005";
    EXPECT_EQ(RowTexts(5), expected);
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 5}));
}

TEST_F(CsvImport, GivesRowsTheFlagsOfRowsMadeInTheProgram) {
    for (const TypedTarget& target : Targets) {
        EmptyPageOf(target.type);
        ASSERT_EQ(Import("MNUM\n5"), 1);
        EXPECT_EQ(Text(5, TFLG), "A0") << target.type;
    }
}

TEST_F(CsvImport, AddressesTheDefaultRowAndTheLastTwoByName) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(Import("MNUM,DESC\nGD2,TWO\nGD1,ONE\nDEF,NEW\n"), 3);
    ExpectTexts(0, {{MNUM, "000"}, {DESC, "NEW"}});
    ExpectTexts(101, {{MNUM, "101"}, {DESC, "ONE"}});
    ExpectTexts(102, {{MNUM, "102"}, {DESC, "TWO"}});
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 101, 102}));
}

TEST_F(CsvImport, OfADefaultRowIsWhatLaterLinesAreFilledFrom) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(Import("MNUM,MODE,RFRQ\n4\nDEF,W,150.0000\n5\n"), 3);
    ExpectTexts(4, {{MODE, "N"}, {RFRQ, "138.0000"}});
    ExpectTexts(5, {{MODE, "W"}, {RFRQ, "150.0000"}});
    EXPECT_EQ(Text(0, TFRQ), "174.0000") << "a default row keeps what the line doesn't name";
}

TEST_F(CsvImport, PassesLinesOverThatNameNoRow) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(Import("MNUM,DESC\n5,A\n103,B\n+6,C\n-7,D\nx,E\n,F\n8.,G\n9,H\n"), 2);
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 5, 9}));
}

TEST_F(CsvImport, LosesLinesBehindThePagesRowCount) {
    EmptyPageOf("O12");
    ASSERT_EQ(
        Import("MNUM,RFRQ\nDEF,120.000\n1,121.000\n2,122.000\n3,123.000\n4,124.000\n5,125.000\n6,126.000"),
        6);
    EXPECT_EQ(Text(5, RFRQ), "125.000");
    EXPECT_EQ(Text(6, RFRQ), "") << "the seventh line";
    EmptyPageOf("O12");
    ASSERT_EQ(Import("MNUM\n1\n1\n1\n1\n1\n1\n2\n"), 6) << "lines count, not rows";
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 1}));
}

TEST_F(CsvImport, OfARowTwiceLeavesTheLaterOne) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(Import("MNUM,DESC,MODE\n5,A,W\n5,B\n"), 2);
    EXPECT_EQ(Text(5, DESC), "B");
    EXPECT_EQ(Text(5, MODE), "N") << "nothing of the former line stays";
}

TEST_F(CsvImport, FillsOnlyTheRowsThatItNames) {
    EmptyPageOf("ANFM");
    SetCell(7, DESC, "KEPT");
    Select({7, 8});
    ASSERT_EQ(Import("MNUM,DESC\n5,A"), 1);
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 5, 7}));
    EXPECT_EQ(Text(7, MNUM), "");
    EXPECT_FALSE(CurrentGrid()->IsSelection());
}

TEST_F(CsvImport, TellsANumberThatAnotherRowHasAndLeavesItOut) {
    EmptyPageOf("ANFM");
    SetCell(9, MNUM, "5");
    DialogScript script;
    script.ExpectMessage("Error", "Number already used at row: 009");
    ASSERT_EQ(Import("MNUM,DESC\n5,A\n6,B\n"), 2);
    EXPECT_EQ(Text(5, MNUM), "");
    EXPECT_EQ(Text(6, MNUM), "006");
}

TEST_F(CsvImport, TakesANumberBackThatTheListItselfHasFreed) {
    EmptyPageOf("ANFM");
    SetCell(9, MNUM, "5");
    ASSERT_EQ(Import("MNUM,DESC\n9,B\n5,A\n"), 2);
    EXPECT_EQ(Text(5, MNUM), "005");
    EXPECT_EQ(Text(9, MNUM), "009");
}

TEST_F(CsvImport, GivesARowTheZoneOfItsLineAndOneSlot) {
    EmptyPageOf("NP25");
    ASSERT_EQ(Import("MNUM,ZONE\n5,C\n6,\n7,nowhere\n8,C\n5,E\n"), 5);
    EXPECT_EQ(Text(5, ZONE), "E");
    EXPECT_EQ(Text(6, ZONE), "1");
    EXPECT_EQ(Text(7, ZONE), "1") << "the first one with room";
    EXPECT_EQ(Text(8, ZONE), "C");
    EXPECT_EQ(TakenSlots(), 4);
    EXPECT_EQ(CountTakenSlotsOf("1"), 2);
    EXPECT_EQ(CountTakenSlotsOf("C"), 1);
    EXPECT_EQ(CountTakenSlotsOf("E"), 1);
}

TEST_F(CsvImport, OfRowsThatThePageHeldLeavesThemOneSlot) {
    RetargetTo("RP25");
    ASSERT_EQ(TakenSlots(), 3);
    ASSERT_EQ(Import("MNUM,ZONE\n1,4\n231,2\nGD2,2\n"), 3);
    EXPECT_EQ(Text(1, ZONE), "4");
    EXPECT_EQ(Text(231, ZONE), "16") << "guard rows belong to the last zone";
    EXPECT_EQ(Text(232, ZONE), "16");
    EXPECT_EQ(TakenSlots(), 3);
}

TEST_F(CsvImport, IntoAFullZoneLeavesItsNameWithoutASlot) {
    EmptyPageOf("RP25");
    std::string list = "MNUM,ZONE\n";
    for (int row = 1; row <= 18; ++row)
        list += std::to_string(row) + ",3\n";
    ASSERT_EQ(Import(list + "17,5\n"), 19);
    EXPECT_EQ(CountTakenSlotsOf("3"), 16);
    EXPECT_EQ(Text(17, ZONE), "5");
    EXPECT_EQ(Text(18, ZONE), "3");
    EXPECT_EQ(TakenSlots(), 17) << "row 17 gave back nothing that it didn't hold";
}

TEST_F(CsvImport, OfZonesOnAnotherPageLeavesThemEmpty) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(Import("MNUM,ZONE,RTGP\n5,3,1234"), 1);
    EXPECT_EQ(Text(5, ZONE), "");
    EXPECT_EQ(Text(5, RTGP), "");
    EXPECT_EQ(TakenSlots(), 0);
}

TEST_F(CsvImport, OfAFullPageGivesEachRowItsSlot) {
    EmptyPageOf("NP25");
    std::string list = "MNUM,ZONE\n";
    for (int row = 1; row <= 502; ++row)
        list += std::to_string(row) + "\n";
    ASSERT_EQ(Import(list), 502);
    EXPECT_EQ(TakenSlots(), 502);
    EXPECT_EQ(Text(501, ZONE), "X");
}

TEST_F(CsvImport, LeavesGuardRowsWhatTheyMayHold) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(Import("MNUM,SCAN,RTON,RCOD,TTON,TCOD\nGD1,7,71.9,023,74.4,025\n"), 1);
    ExpectTexts(101, {{SCAN, "0"}, {RTON, "n/a"}, {RCOD, "n/a"}, {TTON, "74.4"}, {TCOD, "025"}});
}

TEST_F(CsvImport, ReadsAListInAnyForm) {
    const std::string bom = "\xEF\xBB\xBF";
    const struct {
        const char* name;
        std::string bytes;
        const char* desc;
    } cases[] = {
        {"plain", "MNUM,DESC\n5,TOWER\n", "TOWER"},
        {"lower case", "mnum,desc\n5,tower\n", "TOWER"},
        {"other order and more columns", "x,DESC,y,MNUM,z\n1,TOWER,2,5,3\n", "TOWER"},
        {"commas at the end", "MNUM,DESC,\n5,TOWER,\n", "TOWER"},
        {"quotes everywhere", "\"MNUM\",\"DESC\"\n\"5\",\"TOWER\"\n", "TOWER"},
        {"a quote in the middle", "MNUM,DESC\n5,TO\"W\"ER\n", "TOWER"},
        {"doubled quotes", "MNUM,DESC\n5,\"TO\"\"ER\"\n", "TO ER"},
        {"CR", "MNUM,DESC\r5,TOWER\r", "TOWER"},
        {"CRLF", "MNUM,DESC\r\n5,TOWER\r\n", "TOWER"},
        {"blank lines", "\n\nMNUM,DESC\n\n\n5,TOWER\n\n", "TOWER"},
        {"no last line end", "MNUM,DESC\n5,TOWER", "TOWER"},
        {"byte-order mark", bom + "MNUM,DESC\n5,TOWER\n", "TOWER"},
        {"text before the heading", "Channels of 2026,,\nMNUM,DESC\n5,TOWER\n", "TOWER"},
        {"a quote that stays open", "MNUM,DESC\n5,\"TOWER\n6,B\n", "TOWER"},
        {"Latin-1", "MNUM,DESC\n5,T\xD6WER\n", "T WER"},
        {"UTF-8", "MNUM,DESC\n5,T\xC3\x96WER\n", "T WER"},
        {"zero bytes", std::string("MNUM,DESC\n5,T\0WER\0\n", 18), "T WER"},
        {"semicolons are no separators", "MNUM,DESC;x,DESC\n5,1;2,TOWER\n", "TOWER"},
    };
    for (const auto& [name, bytes, desc] : cases) {
        EmptyPageOf("ANFM");
        EXPECT_LE(1, Import(bytes)) << name;
        EXPECT_EQ(Text(5, DESC), desc) << name;
    }
}

TEST_F(CsvImport, WithoutAHeadingSaysSoAndLeavesThePage) {
    EmptyPageOf("ANFM");
    SetCell(5, DESC, "KEPT");
    for (const char* bytes : {"", "\n\n\n", "1,2,3,4,5,6\n", "MNUM;DESC\n5;A\n", "KDAR-2000,,,,,\n"}) {
        DialogScript script;
        ExpectErrorBox(script, "Import CSV", HeaderMissing);
        EXPECT_EQ(Import(bytes), 0) << bytes;
    }
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 5}));
}

TEST_F(CsvImport, WithoutANumberColumnWritesNothing) {
    EmptyPageOf("ANFM");
    EXPECT_EQ(Import("DESC,MODE\nA,W\nB,N\n"), 0);
    EXPECT_EQ(FilledRows(0), std::vector<int>{0});
}

TEST_F(CsvImport, WorksOnThePageThatIsSelected) {
    EmptyPageOf("ANFM");
    SetPageParameters(MainFrame, 1, Krv214, 0);
    CreateNewPage(MainFrame, 1);
    ASSERT_EQ(Import("MNUM,DESC\n5,A"), 1);
    EXPECT_EQ(PageGrid[1]->GetCellValue(5, DESC), "A");
    EXPECT_EQ(PageGrid[0]->GetCellValue(5, DESC), "");
}
