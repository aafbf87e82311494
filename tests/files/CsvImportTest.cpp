// Lists into the page, cell by cell.
#include "tests/files/CsvTest.h"

#include "tests/files/HangLimit.h"

#include <map>

using testbench::DialogKind;
using testbench::DialogScript;

namespace {

constexpr const char* HeaderMissing =
    "Unable to import the selected file\n\nPlease check that the file is correctly formatted\n"
    "and contains a column header line.";

class CsvImport : public CsvTest {
protected:
    using Cells = std::map<int, std::string>;

    /// Columns of a row whose text is another than before.
    static Cells Changes(int row, const std::vector<std::string>& before) {
        Cells changes;
        const std::vector<std::string> now = RowTexts(row);
        for (int col = 0; col < ColumnTotal; ++col)
            if (now[static_cast<size_t>(col)] != before[static_cast<size_t>(col)])
                changes[col] = now[static_cast<size_t>(col)];
        return changes;
    }

    static int CountTakenSlotsOf(const std::string& zone) { return ZoneSlotsOf(CurrentPage)[FindZone(zone)]; }
};

class KdarImport : public CsvImport {
protected:
    /// Imports the lines behind their heading.
    int ImportLines(const std::string& lines, const std::string& banner = "KDAR-2000,,,,,") {
        return ImportKdar(banner + "\nMemory,Name,Receive,Transmit,Scan,Rx Only\n" + lines);
    }
};

} // namespace

TEST_F(CsvImport, FillsARowFromTheDefaultRowAndNumbersIt) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(1, Import("MNUM\n5\n"));
    std::vector<std::string> expected = RowTexts(0);
    expected[MNUM] = "005";
    expected[DESC] = "VHF   005";
    EXPECT_EQ(expected, RowTexts(5));
    EXPECT_EQ((std::vector<int>{0, 5}), FilledRows(0));
}

TEST_F(CsvImport, PutsEachFieldOfTheTableIntoItsCell) {
    // With the headings RCOD and TTGP no squelch is emptied.
    const struct {
        const char *name, *field;
        Cells changes; ///< against a row that has no such field
    } cases[] = {
        {"BAND", "FM 30-50", {{4, ""}}},
        {"SCAN", "Yes", {{5, "Y"}}},
        {"ZONE", "C", {{6, "C"}}},
        {"DESC", "ALPHA TWO", {{7, "ALPHA TW"}}},
        {"MODE", "D", {{8, "D"}}},
        {"RFRQ", "150.0000", {{9, "150.0000"}}},
        {"RSQL", "t", {{10, "t"}}},
        {"RNSV", "7", {{11, "7"}}},
        {"RTON", "71.9", {{12, "71.9"}}},
        {"RCOD", "025", {{13, "025"}}},
        {"RTGP", "00AB", {{14, "00AB"}}},
        {"RNAC", "12C", {{15, "12C"}}},
        {"TFRQ", "151.0000", {{16, "151.0000"}}},
        {"TSQL", "c", {{17, "c"}}},
        {"TTON", "74.4", {{18, "74.4"}}},
        {"TCOD", "026", {{19, "026"}}},
        {"TTGP", "1234", {{20, "1234"}}},
        {"TNAC", "ABC", {{21, "ABC"}}},
        {"TIDC", "42", {{22, "42"}}},
    };
    for (const auto& [name, field, changes] : cases) {
        EmptyPageOf("NP25");
        ASSERT_EQ(1, Import("RCOD,TTGP,MNUM\n,,5\n"));
        const std::vector<std::string> before = RowTexts(5);
        EmptyPageOf("NP25");
        ASSERT_EQ(1, Import(std::string("RCOD,TTGP,MNUM,") + name + "\n,,5," + field + "\n"));
        EXPECT_EQ(changes, Changes(5, before)) << name;
        for (int col = 0; col < ColumnTotal; ++col)
            EXPECT_FALSE(IsPainted(5, col)) << name << ' ' << col;
    }
}

TEST_F(CsvImport, ChecksEachFieldOfTheTable) {
    // A bad text gives the default row's text, painted where the check of the column paints.
    const struct {
        const char *name, *field;
        int column;
        const char* text;
        bool painted;
    } cases[] = {
        {"SCAN", "x", 5, "N", false},
        {"DESC", "\xC3\xB6l", 7, " l", false},
        {"MODE", "x", 8, "n", true},
        {"RFRQ", "99.0000", 9, "136.0000", true},
        {"RFRQ", "150,0", 9, "136.0000", true},
        {"RSQL", "m", 10, "x", true},
        {"RNSV", "99", 11, "99", false},
        {"RTON", "66.6", 12, "67.0", true},
        {"RCOD", "999", 13, "023", true},
        {"RCOD", "OFF", 13, "023", true},
        {"RTGP", "xyz", 14, "0001", false},
        {"RTGP", "A", 14, "000A", false},
        {"RNAC", "x", 15, "293", false},
        {"RNAC", "1", 15, "001", false},
        {"TFRQ", "1", 16, "174.0000", true},
        {"TSQL", "m", 17, "x", true},
        {"TTON", "254.8", 18, "67.0", true},
        {"TCOD", "1", 19, "023", true},
        {"TTGP", "g", 20, "0001", false},
        {"TNAC", "12G", 21, "293", false},
        {"TIDC", "x", 22, "x", false},
    };
    for (const auto& [name, field, column, text, painted] : cases) {
        EmptyPageOf("NP25");
        ForgetLooks();
        const std::string quoted = std::string("\"") + field + '"';
        ASSERT_EQ(1, Import(std::string("RCOD,TTGP,MNUM,") + name + "\n,,5," + quoted + "\n"));
        EXPECT_EQ(text, Text(5, column)) << name << ' ' << field;
        EXPECT_EQ(painted, IsPainted(5, column)) << name << ' ' << field;
    }
}

TEST_F(CsvImport, WithoutRcodEmptiesRsqlAndWithoutTtgpEmptiesTsql) {
    const struct {
        const char *heading, *line, *rsql, *tsql;
    } cases[] = {
        {"MNUM", "5", "", ""},
        {"MNUM,RSQL,TSQL", "5,t,c", "", ""},
        {"MNUM,RCOD", "5,", "x", ""},
        {"MNUM,TTGP", "5,", "", "x"},
        {"MNUM,RCOD,TTGP", "5,,", "x", "x"},
        {"MNUM,RCOD,TTGP", "5", "x", "x"},
        {"MNUM,TCOD,RTGP", "5,,", "", ""},
    };
    for (const auto& [heading, line, rsql, tsql] : cases) {
        EmptyPageOf("RP25");
        ASSERT_EQ(1, Import(std::string(heading) + "\n" + line + "\n"));
        EXPECT_EQ(rsql, Text(5, RSQL)) << heading << ' ' << line;
        EXPECT_EQ(tsql, Text(5, TSQL)) << heading << ' ' << line;
    }
}

TEST_F(CsvImport, LooksTonesUpInTheListOfTheOtherKindOfPage) {
    const struct {
        const char *type, *field, *text;
        bool painted;
    } cases[] = {
        {"ANFM", "100.0", "100.0", false}, {"ANFM", "OFF", "OFF", true},      {"ANFM", "150.0", "OFF", true},
        {"ANFM", "69.3", "69.3", false},   {"RP25", "100.0", "100.0", false}, {"RP25", "254.8", "67.0", true},
        {"RP25", "OFF", "67.0", true},     {"RP25", "150.0", "67.0", true},
    };
    for (const auto& [type, field, text, painted] : cases) {
        EmptyPageOf(type);
        ForgetLooks();
        ASSERT_EQ(1, Import(std::string("MNUM,RTON,TTON\n5,") + field + "," + field));
        for (const int col : {RTON, TTON}) {
            EXPECT_EQ(text, Text(5, col)) << type << ' ' << field;
            EXPECT_EQ(painted, IsPainted(5, col)) << type << ' ' << field;
        }
    }
}

TEST_F(CsvImport, LooksCodesUpInTheListOfThePage) {
    const struct {
        const char *type, *field, *text;
        bool painted;
    } cases[] = {
        {"ANFM", "023", "023", false}, {"ANFM", "OFF", "OFF", false}, {"ANFM", "000", "OFF", true},
        {"ANFM", "754", "754", false}, {"RP25", "754", "754", false}, {"RP25", "OFF", "023", true},
        {"RP25", "24", "023", true},   {"KDAR", "023", "n/a", false},
    };
    for (const auto& [type, field, text, painted] : cases) {
        EmptyPageOf(type);
        ForgetLooks();
        ASSERT_EQ(1, Import(std::string("MNUM,RCOD,TCOD\n5,") + field + "," + field));
        for (const int col : {RCOD, TCOD}) {
            EXPECT_EQ(text, Text(5, col)) << type << ' ' << field;
            EXPECT_EQ(painted, IsPainted(5, col)) << type << ' ' << field;
        }
    }
}

TEST_F(CsvImport, LeavesTheDefaultTextWhereAFieldIsEmptyOrBlank) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(1, Import("MNUM,SCAN,DESC,MODE,RFRQ,TFRQ\n5,,\"\",  , ,\n"));
    std::vector<std::string> expected = RowTexts(0);
    expected[MNUM] = "005";
    expected[DESC] = "VHF   005";
    EXPECT_EQ(expected, RowTexts(5));
    EXPECT_FALSE(IsPainted(5, RFRQ));
}

TEST_F(CsvImport, TrimsFields) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(1, Import(" MNUM , RFRQ,DESC \n 5 , 150.0000 ,\" A,B \"\n"));
    EXPECT_EQ("150.0000", Text(5, RFRQ));
    EXPECT_EQ("A B", Text(5, DESC)) << "a description has no comma";
}

TEST_F(CsvImport, NumbersTheDescriptionOfRowsThatHaveNone) {
    EmptyPageOf("ANFM");
    SetCell(0, DESC, "MEM001");
    ASSERT_EQ(2, Import("MNUM,DESC\n5,\n7,TOWER"));
    EXPECT_EQ("MEM005", Text(5, DESC));
    EXPECT_EQ("TOWER", Text(7, DESC));
}

TEST_F(CsvImport, GivesRowsTheFlagsOfRowsMadeInTheProgram) {
    for (const TypedTarget& target : Targets) {
        EmptyPageOf(target.type);
        ASSERT_EQ(1, Import("MNUM\n5"));
        EXPECT_EQ("A0", Text(5, TFLG)) << target.type;
    }
}

TEST_F(CsvImport, AddressesTheDefaultRowAndTheLastTwoByName) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(3, Import("MNUM,DESC\nGD2,TWO\nGD1,ONE\nDEF,NEW\n"));
    EXPECT_EQ("NEW", Text(0, DESC));
    EXPECT_EQ("000", Text(0, MNUM));
    EXPECT_EQ("ONE", Text(101, DESC));
    EXPECT_EQ("101", Text(101, MNUM));
    EXPECT_EQ("TWO", Text(102, DESC));
    EXPECT_EQ("102", Text(102, MNUM));
    EXPECT_EQ((std::vector<int>{0, 101, 102}), FilledRows(0));
}

TEST_F(CsvImport, OfADefaultRowIsWhatLaterLinesAreFilledFrom) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(3, Import("MNUM,MODE,RFRQ\n4\nDEF,W,150.0000\n5\n"));
    EXPECT_EQ("N", Text(4, MODE));
    EXPECT_EQ("138.0000", Text(4, RFRQ));
    EXPECT_EQ("W", Text(5, MODE));
    EXPECT_EQ("150.0000", Text(5, RFRQ));
    EXPECT_EQ("174.0000", Text(0, TFRQ)) << "a default row keeps what the line doesn't name";
}

TEST_F(CsvImport, PassesLinesOverThatNameNoRow) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(2, Import("MNUM,DESC\n5,A\n103,B\n+6,C\n-7,D\nx,E\n,F\n8.,G\n9,H\n"));
    EXPECT_EQ((std::vector<int>{0, 5, 9}), FilledRows(0));
}

TEST_F(CsvImport, LosesLinesBehindThePagesRowCount) {
    EmptyPageOf("O12");
    ASSERT_EQ(
        6,
        Import("MNUM,RFRQ\nDEF,120.000\n1,121.000\n2,122.000\n3,123.000\n4,124.000\n5,125.000\n6,126.000"));
    EXPECT_EQ("125.000", Text(5, RFRQ));
    EXPECT_EQ("", Text(6, RFRQ)) << "the seventh line";
    EmptyPageOf("O12");
    ASSERT_EQ(6, Import("MNUM\n1\n1\n1\n1\n1\n1\n2\n")) << "lines count, not rows";
    EXPECT_EQ((std::vector<int>{0, 1}), FilledRows(0));
}

TEST_F(CsvImport, OfARowTwiceLeavesTheLaterOne) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(2, Import("MNUM,DESC,MODE\n5,A,W\n5,B\n"));
    EXPECT_EQ("B", Text(5, DESC));
    EXPECT_EQ("N", Text(5, MODE)) << "nothing of the former line stays";
}

TEST_F(CsvImport, FillsOnlyTheRowsThatItNames) {
    EmptyPageOf("ANFM");
    SetCell(7, DESC, "KEPT");
    Select({7, 8});
    ASSERT_EQ(1, Import("MNUM,DESC\n5,A"));
    EXPECT_EQ((std::vector<int>{0, 5, 7}), FilledRows(0));
    EXPECT_EQ("", Text(7, MNUM));
    EXPECT_FALSE(CurrentGrid()->IsSelection());
}

TEST_F(CsvImport, TellsANumberThatAnotherRowHasAndLeavesItOut) {
    EmptyPageOf("ANFM");
    SetCell(9, MNUM, "5");
    DialogScript script;
    script.ExpectMessage("Error", "Number already used at row: 009");
    ASSERT_EQ(2, Import("MNUM,DESC\n5,A\n6,B\n"));
    EXPECT_EQ("", Text(5, MNUM));
    EXPECT_EQ("006", Text(6, MNUM));
}

TEST_F(CsvImport, TakesANumberBackThatTheListItselfHasFreed) {
    EmptyPageOf("ANFM");
    SetCell(9, MNUM, "5");
    ASSERT_EQ(2, Import("MNUM,DESC\n9,B\n5,A\n"));
    EXPECT_EQ("005", Text(5, MNUM));
    EXPECT_EQ("009", Text(9, MNUM));
}

TEST_F(CsvImport, ChecksFrequenciesByTheBandOfTheLine) {
    EmptyPageOf("MDLX");
    ForgetLooks();
    ASSERT_EQ(4, Import("RFRQ,TFRQ,MNUM,BAND\n300.0000,301.0000,1,AM 225-400\n120.000,55.000,2,AM 108-138\n"
                        "300.0000,31.5000,3,FM 30-50\n31.5000,31.5000,4,FM 99-100\n"));
    EXPECT_EQ("AM 225-400", Text(1, BAND));
    EXPECT_EQ("300.0000", Text(1, RFRQ));
    EXPECT_EQ("301.0000", Text(1, TFRQ));
    EXPECT_EQ("AM 108-138", Text(2, BAND));
    EXPECT_EQ("120.000", Text(2, RFRQ));
    EXPECT_EQ("55.000", Text(2, TFRQ)) << "never refused in this band";
    EXPECT_EQ("FM 30-50", Text(3, BAND));
    EXPECT_EQ("31.0000", Text(3, RFRQ));
    EXPECT_TRUE(IsPainted(3, RFRQ));
    EXPECT_EQ("31.5000", Text(3, TFRQ));
    EXPECT_EQ("FM 30-50", Text(4, BAND)) << "the default row's";
    EXPECT_TRUE(IsPainted(4, BAND));
    EXPECT_EQ("31.5000", Text(4, RFRQ));
}

TEST_F(CsvImport, OfABandThatCanNotBeTheDefaultKeepsTheDefaultRowsBandSoThatOtherRowsKeepTheirFrequencies) {
    const struct {
        const char *band, *kept;
        bool painted;
    } cases[] = {
        {"AM 225-400", "AM 225-400", false}, {"AM 108-138", "AM 108-138", false},
        {"FM 30-50", "FM 30-50", false},     {"FM 99-100", "FM 30-50", true},
        {"fm 30-50", "FM 30-50", true},      {"am 225-400", "FM 30-50", true},
        {"FM 138-174", "FM 30-50", true},    {"nonsense", "FM 30-50", true},
    };
    for (const char* key : {"DEF", "0", "000"})
        for (const auto& [band, kept, painted] : cases) {
            SCOPED_TRACE(std::string(key) + ' ' + band);
            RetargetTo("MDLX");
            testbench::WriteFile(m_folder / "list.csv",
                                 std::string("MNUM,BAND,DESC,RFRQ,TFRQ,MODE\n") + key + ',' + band +
                                     ",,,,\n5,FM 30-50,A,39.4600,39.4600,N\n6,,B,39.4600,39.4600,N\n"
                                     "7,FM 99-100,C,39.4600,39.4600,N\n");
            ImportByMenu("list.csv", "Imported 4 Lines from CSV file.");
            EXPECT_EQ(kept, Text(0, BAND));
            EXPECT_EQ(painted, IsPainted(0, BAND));
            EXPECT_EQ("FM 30-50", Text(5, BAND));
            EXPECT_EQ("39.4600", Text(5, RFRQ));
            EXPECT_EQ("39.4600", Text(5, TFRQ));
            // Rows without a band of their own, or with one that can't stand, go by the default row's.
            for (int row : {6, 7}) {
                EXPECT_EQ(kept, Text(row, BAND)) << row;
                EXPECT_EQ(row == 7, IsPainted(row, BAND)) << row;
                if (std::string(kept) == "FM 30-50") {
                    EXPECT_EQ("39.4600", Text(row, RFRQ)) << row;
                    EXPECT_EQ("39.4600", Text(row, TFRQ)) << row;
                    EXPECT_FALSE(IsPainted(row, RFRQ)) << row;
                }
            }
        }
}

TEST_F(CsvImport, GivesARowTheZoneOfItsLineAndOneSlot) {
    EmptyPageOf("NP25");
    ASSERT_EQ(5, Import("MNUM,ZONE\n5,C\n6,\n7,nowhere\n8,C\n5,E\n"));
    EXPECT_EQ("E", Text(5, ZONE));
    EXPECT_EQ("1", Text(6, ZONE));
    EXPECT_EQ("1", Text(7, ZONE)) << "the first one with room";
    EXPECT_EQ("C", Text(8, ZONE));
    EXPECT_EQ(4, TakenSlots());
    EXPECT_EQ(2, CountTakenSlotsOf("1"));
    EXPECT_EQ(1, CountTakenSlotsOf("C"));
    EXPECT_EQ(1, CountTakenSlotsOf("E"));
}

TEST_F(CsvImport, OfRowsThatThePageHeldLeavesThemOneSlot) {
    RetargetTo("RP25");
    ASSERT_EQ(3, TakenSlots());
    ASSERT_EQ(3, Import("MNUM,ZONE\n1,4\n231,2\nGD2,2\n"));
    EXPECT_EQ("4", Text(1, ZONE));
    EXPECT_EQ("16", Text(231, ZONE)) << "guard rows belong to the last zone";
    EXPECT_EQ("16", Text(232, ZONE));
    EXPECT_EQ(3, TakenSlots());
}

TEST_F(CsvImport, IntoAFullZoneLeavesItsNameWithoutASlot) {
    EmptyPageOf("RP25");
    std::string list = "MNUM,ZONE\n";
    for (int row = 1; row <= 18; ++row)
        list += std::to_string(row) + ",3\n";
    ASSERT_EQ(19, Import(list + "17,5\n"));
    EXPECT_EQ(16, CountTakenSlotsOf("3"));
    EXPECT_EQ("5", Text(17, ZONE));
    EXPECT_EQ("3", Text(18, ZONE));
    EXPECT_EQ(17, TakenSlots()) << "row 17 gave back nothing that it didn't hold";
}

TEST_F(CsvImport, OfZonesOnAnotherPageLeavesThemEmpty) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(1, Import("MNUM,ZONE,RTGP\n5,3,1234"));
    EXPECT_EQ("", Text(5, ZONE));
    EXPECT_EQ("", Text(5, RTGP));
    EXPECT_EQ(0, TakenSlots());
}

TEST_F(CsvImport, OfAFullPageGivesEachRowItsSlot) {
    EmptyPageOf("NP25");
    std::string list = "MNUM,ZONE\n";
    for (int row = 1; row <= 502; ++row)
        list += std::to_string(row) + "\n";
    ASSERT_EQ(502, Import(list));
    EXPECT_EQ(502, TakenSlots());
    EXPECT_EQ("X", Text(501, ZONE));
}

TEST_F(CsvImport, LeavesGuardRowsWhatTheyMayHold) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(1, Import("MNUM,SCAN,RTON,RCOD,TTON,TCOD\nGD1,7,71.9,023,74.4,025\n"));
    EXPECT_EQ("0", Text(101, SCAN));
    EXPECT_EQ("n/a", Text(101, RTON));
    EXPECT_EQ("n/a", Text(101, RCOD));
    EXPECT_EQ("74.4", Text(101, TTON));
    EXPECT_EQ("025", Text(101, TCOD));
}

TEST_F(CsvImport, ReadsScanListsInAllTheirForms) {
    const std::pair<const char*, const char*> cases[] = {
        {"0", "0"}, {"31", "31"}, {"32", "0"}, {"1_3__", "5"}, {"L____", "0"}, {"031", "0"}, {"_____", "0"}};
    for (const auto& [field, text] : cases) {
        EmptyPageOf("ANFM");
        ASSERT_EQ(1, Import(std::string("MNUM,SCAN\n5,") + field));
        EXPECT_EQ(text, Text(5, SCAN)) << field;
    }
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
        EXPECT_EQ(desc, Text(5, DESC)) << name;
    }
}

TEST_F(CsvImport, OfNamesInUtf8AndLatin1KeepsTheirLetters) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(2, ImportKdar("KDAR-2000\nMemory\n1,K\xC3\xB6ln\n2,K\xF6ln\n"));
    EXPECT_EQ("K\xC3\xB6ln", Text(1, DESC));
    EXPECT_EQ("K\xC3\xB6ln", Text(2, DESC));
}

TEST_F(CsvImport, OfADecimalCommaPutsTheDefaultFrequencyAndPaintsIt) {
    EmptyPageOf("ANFM");
    ForgetLooks();
    ASSERT_EQ(1, Import("MNUM,RFRQ\n5,\"150,0000\"\n"));
    EXPECT_EQ("138.0000", Text(5, RFRQ));
    EXPECT_TRUE(IsPainted(5, RFRQ));
}

TEST_F(CsvImport, WithoutAHeadingSaysSoAndLeavesThePage) {
    EmptyPageOf("ANFM");
    SetCell(5, DESC, "KEPT");
    for (const char* bytes : {"", "\n\n\n", "1,2,3,4,5,6\n", "MNUM;DESC\n5;A\n", "KDAR-2000,,,,,\n"}) {
        DialogScript script;
        script.Expect(DialogKind::Message, "Import CSV")
            .Message(HeaderMissing)
            .Style(wxOK | wxCENTRE | wxICON_ERROR);
        EXPECT_EQ(0, Import(bytes)) << bytes;
    }
    EXPECT_EQ((std::vector<int>{0, 5}), FilledRows(0));
}

TEST_F(CsvImport, WithoutANumberColumnWritesNothing) {
    EmptyPageOf("ANFM");
    EXPECT_EQ(0, Import("DESC,MODE\nA,W\nB,N\n"));
    EXPECT_EQ(std::vector<int>{0}, FilledRows(0));
}

TEST_F(CsvImport, WorksOnThePageThatIsSelected) {
    EmptyPageOf("ANFM");
    SetPageParameters(MainFrame, 1, Krv214, 0);
    CreateNewPage(MainFrame, 1);
    ASSERT_EQ(1, Import("MNUM,DESC\n5,A"));
    EXPECT_EQ("A", PageGrid[1]->GetCellValue(5, DESC));
    EXPECT_EQ("", PageGrid[0]->GetCellValue(5, DESC));
}

TEST_F(KdarImport, PutsEachFieldIntoItsCell) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(1, ImportLines("1,TOWER,121500,122000,Yes,Yes,\n"));
    const std::map<int, const char*> shown = {{MNUM, "001"},     {DESC, "TOWER"}, {RFRQ, "121.500"},
                                              {TFRQ, "122.000"}, {SCAN, "Y"},     {RONL, "Y"},
                                              {TFLG, "A0"}};
    for (const auto& [col, text] : shown)
        EXPECT_EQ(text, Text(1, col)) << col;
    EXPECT_EQ((std::vector<int>{0, 1}), FilledRows(0));
}

TEST_F(KdarImport, FillsThePageFromItsFirstMemoryWhateverTheNumbers) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(3, ImportLines("7,A\nDEF,B\n007,C"));
    for (const auto& [row, name] : {std::pair(1, "A"), {2, "B"}, {3, "C"}}) {
        EXPECT_EQ(name, Text(row, DESC));
        EXPECT_EQ("00" + std::to_string(row), Text(row, MNUM));
    }
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3}), FilledRows(0));
}

TEST_F(KdarImport, PassesLinesOverWithoutUsingUpARow) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(2, ImportLines("1,A\nx,B\n101,C\n-1,D\n2,E\n"));
    EXPECT_EQ("A", Text(1, DESC));
    EXPECT_EQ("E", Text(2, DESC));
    EXPECT_EQ((std::vector<int>{0, 1, 2}), FilledRows(0));
}

TEST_F(KdarImport, OfALineWithoutANumberTakesTheRowsNumberAway) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(2, ImportLines(",A\n1,B\n"));
    EXPECT_EQ("", Text(1, MNUM));
    EXPECT_EQ("A", Text(1, DESC));
    EXPECT_EQ("002", Text(2, MNUM));
}

TEST_F(KdarImport, LosesLinesBehindTheLastRow) {
    EmptyPageOf("KDAR");
    EXPECT_EQ(100, ImportLines(Repeat("1,A\n", 130)));
    EXPECT_EQ("100", Text(100, MNUM));
}

TEST_F(KdarImport, PutsAPointBehindThreeDigitsWhereThereIsNone) {
    const struct {
        const char *receive, *transmit, *rfrq, *tfrq;
    } cases[] = {
        {"118000", "119000", "118.000", "119.000"},
        {"118.000", "119.000", "118.000", "119.000"},
        {"118000", "", "118.000", "118.000"},
        {"", "119000", "118.000", "119.000"},
        {"", "", "118.000", "138.000"},
        {" 118500 ", " ", "118.500", "118.500"},
        {"118", "12", "118.", "12"},
        {"99.5", "1185", "99.5", "118.5"},
        {"\"118,5\"", "n/a", "118.,5", "n/a."},
    };
    for (const auto& [receive, transmit, rfrq, tfrq] : cases) {
        EmptyPageOf("KDAR");
        ASSERT_EQ(1, ImportLines(std::string("1,A,") + receive + "," + transmit + ",No,No,"));
        EXPECT_EQ(rfrq, Text(1, RFRQ)) << receive << " / " << transmit;
        EXPECT_EQ(tfrq, Text(1, TFRQ)) << receive << " / " << transmit;
    }
}

TEST_F(KdarImport, ReadsScanAndReceiveOnly) {
    const struct {
        const char *scan, *rxOnly, *scanCell, *ronl;
    } cases[] = {
        {"Yes", "Yes", "Y", "Y"}, {"No", "No", "N", "N"}, {"Y", "Y", "Y", "N"}, {"yes", "yes", "N", "N"},
        {"1", "1", "Y", "N"},     {"", "", "N", "N"},     {"x", "x", "N", "N"},
    };
    for (const auto& [scan, rxOnly, scanCell, ronl] : cases) {
        EmptyPageOf("KDAR");
        ASSERT_EQ(1, ImportLines(std::string("1,A,118000,118000,") + scan + "," + rxOnly));
        EXPECT_EQ(scanCell, Text(1, SCAN)) << scan;
        EXPECT_EQ(ronl, Text(1, RONL)) << rxOnly;
    }
}

TEST_F(KdarImport, OfEmptyFieldsKeepsTheDefaultTexts) {
    EmptyPageOf("KDAR");
    SetCell(0, SCAN, "Y");
    SetCell(0, RONL, "Y");
    ASSERT_EQ(1, ImportLines("1,,,,,"));
    std::vector<std::string> expected = RowTexts(0);
    expected[MNUM] = "001";
    expected[DESC] = "VHFAM001";
    EXPECT_EQ(expected, RowTexts(1));
}

TEST_F(KdarImport, OfAPurgeListMarksItsRowsForErasing) {
    const std::pair<const char*, const char*> cases[] = {
        {"KDAR-2000,Purge,,,,", "A2"}, {"KDAR-2000,,,,,", "A0"},   {"KDAR-2000", "A0"},
        {"KDAR-2000,purge", "A0"},     {"KDAR-2000,,Purge", "A0"}, {"KDAR-2000, \"Purge\" ,", "A2"},
    };
    for (const auto& [banner, flags] : cases) {
        EmptyPageOf("KDAR");
        ASSERT_EQ(2, ImportLines("1,A\n2,B", banner));
        EXPECT_EQ(flags, Text(1, TFLG)) << banner;
        EXPECT_EQ(flags, Text(2, TFLG)) << banner;
    }
}

TEST_F(KdarImport, WithoutASecondLineSaysSoAndLeavesThePage) {
    EmptyPageOf("KDAR");
    for (const char* bytes : {"", "KDAR-2000,,,,,", "KDAR-2000,Purge,,,,\n\n,,,,,\n"}) {
        DialogScript script;
        script.Expect(DialogKind::Message, "Import CSV")
            .Message(HeaderMissing)
            .Style(wxOK | wxCENTRE | wxICON_ERROR);
        EXPECT_EQ(0, ImportKdar(bytes)) << bytes;
    }
    EXPECT_EQ(std::vector<int>{0}, FilledRows(0));
}

TEST_F(KdarImport, TakesAnyLineForTheHeading) {
    EmptyPageOf("KDAR");
    EXPECT_EQ(1, ImportKdar("KDAR-2000,,,,,\n1,A,118000\n2,B,119000\n")) << "a list without it loses a line";
    EXPECT_EQ("B", Text(1, DESC));
}

TEST_F(KdarImport, FillsOnlyItsRows) {
    EmptyPageOf("KDAR");
    SetCell(9, DESC, "KEPT");
    Select({9});
    ASSERT_EQ(1, ImportLines("1,A"));
    EXPECT_EQ((std::vector<int>{0, 1, 9}), FilledRows(0));
    EXPECT_EQ("", Text(9, MNUM));
}
