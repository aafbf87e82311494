// Conversion of a list's fields into cells.
#include "tests/files/CsvImportTest.h"

TEST_F(CsvImport, PutsEachFieldOfTheTableIntoItsCell) {
    // With the headings RCOD and TTGP no squelch is left empty.
    const struct {
        const char *name, *field;
        Cells changes; ///< compared with a row without such a field
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
        ASSERT_EQ(Import("RCOD,TTGP,MNUM\n,,5\n"), 1);
        const std::vector<std::string> before = RowTexts(5);
        EmptyPageOf("NP25");
        ASSERT_EQ(Import(std::string("RCOD,TTGP,MNUM,") + name + "\n,,5," + field + "\n"), 1);
        EXPECT_EQ(Changes(5, before), changes) << name;
        for (int col = 0; col < ColumnTotal; ++col)
            EXPECT_FALSE(IsPainted(5, col)) << name << ' ' << col;
    }
}

TEST_F(CsvImport, ChecksEachFieldOfTheTable) {
    // A bad text is replaced by the default row's, painted if the column's check paints.
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
        ASSERT_EQ(Import(std::string("RCOD,TTGP,MNUM,") + name + "\n,,5," + quoted + "\n"), 1);
        EXPECT_EQ(Text(5, column), text) << name << ' ' << field;
        EXPECT_EQ(IsPainted(5, column), painted) << name << ' ' << field;
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
        ASSERT_EQ(Import(std::string(heading) + "\n" + line + "\n"), 1);
        EXPECT_EQ(Text(5, RSQL), rsql) << heading << ' ' << line;
        EXPECT_EQ(Text(5, TSQL), tsql) << heading << ' ' << line;
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
        ASSERT_EQ(Import(std::string("MNUM,RTON,TTON\n5,") + field + "," + field), 1);
        for (const int col : {RTON, TTON}) {
            EXPECT_EQ(Text(5, col), text) << type << ' ' << field;
            EXPECT_EQ(IsPainted(5, col), painted) << type << ' ' << field;
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
        ASSERT_EQ(Import(std::string("MNUM,RCOD,TCOD\n5,") + field + "," + field), 1);
        for (const int col : {RCOD, TCOD}) {
            EXPECT_EQ(Text(5, col), text) << type << ' ' << field;
            EXPECT_EQ(IsPainted(5, col), painted) << type << ' ' << field;
        }
    }
}

TEST_F(CsvImport, LeavesTheDefaultTextWhereAFieldIsEmptyOrBlank) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(Import("MNUM,SCAN,DESC,MODE,RFRQ,TFRQ\n5,,\"\",  , ,\n"), 1);
    std::vector<std::string> expected = RowTexts(0);
    expected[MNUM] = "005";
    expected[DESC] = "VHF   005";
    EXPECT_EQ(RowTexts(5), expected);
    EXPECT_FALSE(IsPainted(5, RFRQ));
}

TEST_F(CsvImport, TrimsFields) {
    EmptyPageOf("ANFM");
    ASSERT_EQ(Import(" MNUM , RFRQ,DESC \n 5 , 150.0000 ,\" A,B \"\n"), 1);
    EXPECT_EQ(Text(5, RFRQ), "150.0000");
    EXPECT_EQ(Text(5, DESC), "A B") << "a description has no comma";
}

TEST_F(CsvImport, NumbersTheDescriptionOfRowsThatHaveNone) {
    EmptyPageOf("ANFM");
    SetCell(0, DESC, "MEM001");
    ASSERT_EQ(Import("MNUM,DESC\n5,\n7,TOWER"), 2);
    ExpectTexts(5, {{DESC, "MEM005"}});
    ExpectTexts(7, {{DESC, "TOWER"}});
}

TEST_F(CsvImport, ChecksFrequenciesByTheBandOfTheLine) {
    EmptyPageOf("MDLX");
    ForgetLooks();
    ASSERT_EQ(Import("RFRQ,TFRQ,MNUM,BAND\n300.0000,301.0000,1,AM 225-400\n120.000,55.000,2,AM 108-138\n"
                     "300.0000,31.5000,3,FM 30-50\n31.5000,31.5000,4,FM 99-100\n"),
              4);
    ExpectTexts(1, {{BAND, "AM 225-400"}, {RFRQ, "300.0000"}, {TFRQ, "301.0000"}});
    EXPECT_EQ(Text(2, BAND), "AM 108-138");
    EXPECT_EQ(Text(2, RFRQ), "120.000");
    EXPECT_EQ(Text(2, TFRQ), "55.000") << "never refused in this band";
    EXPECT_EQ(Text(3, BAND), "FM 30-50");
    EXPECT_EQ(Text(3, RFRQ), "31.0000");
    EXPECT_TRUE(IsPainted(3, RFRQ));
    EXPECT_EQ(Text(3, TFRQ), "31.5000");
    EXPECT_EQ(Text(4, BAND), "FM 30-50") << "the default row's";
    EXPECT_TRUE(IsPainted(4, BAND));
    EXPECT_EQ(Text(4, RFRQ), "31.5000");
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
            EXPECT_EQ(Text(0, BAND), kept);
            EXPECT_EQ(IsPainted(0, BAND), painted);
            EXPECT_EQ(Text(5, BAND), "FM 30-50");
            EXPECT_EQ(Text(5, RFRQ), "39.4600");
            EXPECT_EQ(Text(5, TFRQ), "39.4600");
            // Rows without a band of their own, or with an invalid one, follow the default row's.
            for (int row : {6, 7}) {
                EXPECT_EQ(Text(row, BAND), kept) << row;
                EXPECT_EQ(IsPainted(row, BAND), row == 7) << row;
                if (std::string(kept) == "FM 30-50") {
                    EXPECT_EQ(Text(row, RFRQ), "39.4600") << row;
                    EXPECT_EQ(Text(row, TFRQ), "39.4600") << row;
                    EXPECT_FALSE(IsPainted(row, RFRQ)) << row;
                }
            }
        }
}

TEST_F(CsvImport, ReadsScanListsInAllTheirForms) {
    const std::pair<const char*, const char*> cases[] = {
        {"0", "0"}, {"31", "31"}, {"32", "0"}, {"1_3__", "5"}, {"L____", "0"}, {"031", "0"}, {"_____", "0"}};
    for (const auto& [field, text] : cases) {
        EmptyPageOf("ANFM");
        ASSERT_EQ(Import(std::string("MNUM,SCAN\n5,") + field), 1);
        EXPECT_EQ(Text(5, SCAN), text) << field;
    }
}

TEST_F(CsvImport, OfNamesInUtf8AndLatin1KeepsTheirLetters) {
    EmptyPageOf("KDAR");
    ASSERT_EQ(ImportKdar("KDAR-2000\nMemory\n1,K\xC3\xB6ln\n2,K\xF6ln\n"), 2);
    EXPECT_EQ(Text(1, DESC), "K\xC3\xB6ln");
    EXPECT_EQ(Text(2, DESC), "K\xC3\xB6ln");
}

TEST_F(CsvImport, OfADecimalCommaPutsTheDefaultFrequencyAndPaintsIt) {
    EmptyPageOf("ANFM");
    ForgetLooks();
    ASSERT_EQ(Import("MNUM,RFRQ\n5,\"150,0000\"\n"), 1);
    EXPECT_EQ(Text(5, RFRQ), "138.0000");
    EXPECT_TRUE(IsPainted(5, RFRQ));
}
