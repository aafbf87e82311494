// The printed lists of the KDRV-716 family.
#include "tests/files/ImportTest.h"

namespace {

class List716 : public ImportTest {
protected:
    void SetUp() override {
        ImportTest::SetUp();
        RetargetTo("RP25");
    }

    static Record716 Read(const std::string& line, int rows = 233) {
        Record716 record;
        EXPECT_EQ(Read716TextLine(wxString::FromUTF8(line), rows, record), ListLine716::Memory) << line;
        return record;
    }

    int ImportLines(const std::vector<std::string>& lines) { return Import(ListFile(lines)); }
};

std::string PrimaryLine(const std::string& number) {
    return ListLine(number, {{6, "P"}});
}

std::string ShadowLine(const std::string& number, const std::string& primary) {
    return ListLine(number, {{6, "S"}, {8, primary}});
}

std::string ErasedLine(const std::string& number) {
    return Placed({{3, number}, {37, "ERASED"}}, 86);
}

struct ColumnCase {
    size_t position, length;
    Field716 field;
};

} // namespace

TEST_F(List716, FieldsStandInTheirColumns) {
    const ColumnCase cases[] = {
        {3, 3, &Record716::Mnum},  {10, 2, &Record716::Zone}, {13, 8, &Record716::Desc},
        {23, 1, &Record716::Mode}, {25, 8, &Record716::Rfrq}, {35, 1, &Record716::Rsql},
        {37, 5, &Record716::Rton}, {43, 3, &Record716::Rcod}, {47, 4, &Record716::Rtgp},
        {52, 3, &Record716::Rnac}, {56, 8, &Record716::Tfrq}, {66, 1, &Record716::Tsql},
        {68, 5, &Record716::Tton}, {74, 3, &Record716::Tcod}, {78, 3, &Record716::Ttgp},
        {83, 3, &Record716::Tnac},
    };
    for (const ColumnCase& c : cases) {
        // Each character of the field is unique and differs from those around it.
        const std::string text = std::string("abcdefgh").substr(0, c.length);
        std::string line(90, ' ');
        line.replace(c.position, c.length, text);
        EXPECT_EQ(Read(line).*c.field, text) << "at " << c.position;
        line.replace(c.position - 1, 1, "#");
        line.replace(c.position + c.length, 1, "#");
        EXPECT_EQ(Read(line).*c.field, text) << "between others at " << c.position;
    }
}

TEST_F(List716, FieldsLoseTheirBlanks) {
    const Record716 record = Read(ListLine(" 7 ", {{25, " 155.75 "}, {37, "67.0 "}, {10, " 3"}}));
    EXPECT_EQ(record.Mnum, "7");
    EXPECT_EQ(record.Rfrq, "155.75");
    EXPECT_EQ(record.Rton, "67.0");
    EXPECT_EQ(record.Zone, "3");
}

TEST_F(List716, ADescriptionKeepsItsBlanksInFront) {
    EXPECT_EQ(Read(ListLine("007", {{13, "  TAC 1 "}})).Desc, "  TAC 1");
}

TEST_F(List716, WhatALineLacksIsSet) {
    const Record716 record = Read(ListLine("007"));
    EXPECT_EQ(record.Tidc, "0000001");
    EXPECT_EQ(record.Tflg, "A0");
    EXPECT_EQ(record.Mflg, "00");
    EXPECT_EQ(record.Scan, "N");
    EXPECT_EQ(record.Prim, "007");
    for (Field716 shadow : Shadows716)
        EXPECT_EQ(record.*shadow, "0");
}

TEST_F(List716, DefIsNumberZero) {
    EXPECT_EQ(Read(ListLine("DEF")).Mnum, "000");
    EXPECT_EQ(ImportLines({ListLine("DEF", {{13, "DEFAULT "}})}), 1);
    ExpectCells(0, {{MNUM, "000"}, {DESC, "DEFAULT"}});
    EXPECT_EQ(FilledRows(0), Rows({0}));
}

TEST_F(List716, GuardNamesAreTheLastTwoRows) {
    for (const auto& [rows, first, second, zone] :
         {std::tuple(233, "231", "232", "16"), std::tuple(503, "501", "502", "X"),
          std::tuple(234, "232", "233", "X"), std::tuple(103, "101", "102", "16")}) {
        const Record716 guard = Read(ListLine("GD1"), rows);
        EXPECT_EQ(guard.Mnum, first) << rows;
        EXPECT_EQ(guard.Prim, first);
        EXPECT_EQ(guard.Zone, zone) << rows;
        EXPECT_EQ(guard.Mflg, "80");
        EXPECT_EQ(Read(ListLine("GD2"), rows).Mnum, second);
    }
}

TEST_F(List716, MarksGiveFlagsAndPrimary) {
    const std::tuple<const char*, std::string, const char*, const char*, const char*> cases[] = {
        // name, line, flags, primary, scan
        {"plain", ListLine("007"), "00", "007", "N"},
        {"scanned", ListLine("007", {{9, "S"}}), "08", "007", "Y"},
        {"another scan mark", ListLine("007", {{9, "s"}}), "00", "007", "N"},
        {"primary", ListLine("007", {{6, "P"}}), "10", "007", "N"},
        {"primary with a scan mark", ListLine("007", {{6, "P"}, {9, "S"}}), "10", "007", "N"},
        {"shadow", ListLine("007", {{6, "S"}, {8, "005"}}), "01", "005", "N"},
        {"shadow with an S in its number", ListLine("007", {{6, "S"}, {8, "0S5"}}), "01", "0S5", "N"},
        {"guard with a scan mark", ListLine("GD1", {{9, "S"}}), "80", "231", "N"},
        {"guard and primary", ListLine("GD1", {{6, "P"}}), "90", "231", "N"},
        {"guard and shadow", ListLine("GD2", {{6, "S"}, {8, "005"}}), "81", "005", "N"},
    };
    for (const auto& [name, line, flags, primary, scan] : cases) {
        const Record716 record = Read(line);
        EXPECT_EQ(record.Mflg, flags) << name;
        EXPECT_EQ(record.Prim, primary) << name;
        EXPECT_EQ(record.Scan, scan) << name;
    }
}

TEST_F(List716, TheZoneIsReadOnPlainAndPrimaryLinesOnly) {
    EXPECT_EQ(Read(ListLine("007", {{10, "12"}})).Zone, "12");
    EXPECT_EQ(Read(ListLine("007", {{6, "P"}, {10, "12"}})).Zone, "12");
    EXPECT_EQ(Read(ListLine("007", {{6, "S"}, {10, "12"}})).Zone, "");
    EXPECT_EQ(Read(ListLine("GD1", {{10, "12"}})).Zone, "16");
}

TEST_F(List716, LinesWithoutAMemoryLeaveTheRecord) {
    Record716 record;
    record.Desc = "KEPT";
    EXPECT_EQ(Read716TextLine(UndefinedLine("007"), 233, record), ListLine716::NoMemory);
    EXPECT_EQ(Read716TextLine(ErasedLine("007"), 233, record), ListLine716::NoMemory);
    EXPECT_EQ(record.Desc, "KEPT");
    EXPECT_EQ(record.Mnum, "");
    EXPECT_EQ(Read716TextLine(Placed({{35, "UNDEFINED"}}, 86), 233, record), ListLine716::Memory);
    EXPECT_EQ(Read716TextLine(Placed({{36, "ERASED"}}, 86), 233, record), ListLine716::Memory);
}

TEST_F(List716, ALineOfFewerThan50CharactersEndsTheList) {
    Record716 record;
    EXPECT_EQ(Read716TextLine(std::string(49, ' '), 233, record), ListLine716::End);
    EXPECT_EQ(Read716TextLine(std::string(50, ' '), 233, record), ListLine716::Memory);
    EXPECT_EQ(ImportLines({ListLine("007"), "", ListLine("008")}), 1);
    EXPECT_EQ(ImportLines({ListLine("007"), std::string(49, 'x'), ListLine("008")}), 1);
    EXPECT_EQ(FilledRows(0), Rows({0, 7}));
}

TEST_F(List716, ThreeTitleLinesAreSkippedWhateverTheyHold) {
    std::vector<std::string> lines = ListTitles();
    lines[2] = ListLine("006");
    lines.push_back(ListLine("007"));
    EXPECT_EQ(Import(Joined(lines)), 1);
    EXPECT_EQ(FilledRows(0), Rows({0, 7}));
}

TEST_F(List716, EveryFieldReachesItsCell) {
    EXPECT_EQ(ImportLines({ListLine("009", {{9, "S"},
                                            {10, "3 "},
                                            {13, "MAIN    "},
                                            {23, "w"},
                                            {25, "151.1375"},
                                            {35, "c"},
                                            {37, "67.0 "},
                                            {43, "031"},
                                            {47, "12AB"},
                                            {52, "F7E"},
                                            {56, "159.4725"},
                                            {66, "t"},
                                            {68, "71.9 "},
                                            {74, "032"},
                                            {78, "ABC"},
                                            {83, "68A"}})}),
              1);
    ExpectCells(9, {{MFLG, "08"},       {MNUM, "009"},  {PRIM, "009"},  {SHAD, "N"},        {SCAN, "Y"},
                    {ZONE, "3"},        {DESC, "MAIN"}, {MODE, "w"},    {RFRQ, "151.1375"}, {RSQL, "c"},
                    {RTON, "67.0"},     {RCOD, "031"},  {RTGP, "12AB"}, {RNAC, "F7E"},      {TSQL, "t"},
                    {TFRQ, "159.4725"}, {TTON, "71.9"}, {TCOD, "032"},  {TTGP, "0ABC"},     {TNAC, "68A"},
                    {TIDC, "0000001"},  {TFLG, "A8"}});
}

TEST_F(List716, AnUndefinedLineRepeatsTheRecordBeforeIt) {
    EXPECT_EQ(ImportLines({ListLine("007"), UndefinedLine("008"), ErasedLine("009")}), 3);
    EXPECT_EQ(FilledRows(0), Rows({0, 7}));
    EXPECT_EQ(TakenSlots(), 1);
    EXPECT_EQ(Text(7, ZONE), "1");
}

TEST_F(List716, RepeatedRecordsDoNotFillTheirZone) {
    std::vector<std::string> lines = {ListLine("007")};
    for (int i = 0; i < 40; ++i)
        lines.push_back(UndefinedLine("008"));
    EXPECT_EQ(ImportLines(lines), 41);
    EXPECT_EQ(Text(7, ZONE), "1");
    EXPECT_EQ(TakenSlots(), 1);
}

TEST_F(List716, AnUndefinedLineInFrontHasNothingToRepeat) {
    EXPECT_EQ(ImportLines({UndefinedLine("001"), ListLine("007")}), 1);
    EXPECT_EQ(FilledRows(0), Rows({0, 7}));
}

TEST_F(List716, ARepeatedRecordThatHasMovedMovesAgainAndIsDropped) {
    RetargetTo("NP25");
    EXPECT_EQ(ImportLines({ListLine("231"), UndefinedLine("232")}), 1);
    EXPECT_EQ(FilledRows(0), Rows({0, 501}));
    EXPECT_EQ(ImportLines({ListLine("230"), UndefinedLine("231")}), 2);
    EXPECT_EQ(FilledRows(0), Rows({0, 230}));
}

TEST_F(List716, NumbersFrom231OnMoveTo501OnTheLargerRadio) {
    RetargetTo("NP25");
    EXPECT_EQ(ImportLines({ListLine("230"), ListLine("231"), ListLine("232"), ListLine("233")}), 3);
    EXPECT_EQ(FilledRows(0), Rows({0, 230, 501, 502}));
    ExpectCells(502, {{MNUM, "502"}, {PRIM, "502"}, {RNSV, "10"}});
}

TEST_F(List716, GuardsLandInTheGuardRowsOfThePage) {
    for (const auto& [type, first, zone] :
         {std::tuple("RP25", 231, "16"), std::tuple("NP25", 501, "X"), std::tuple("ANFM", 101, "")}) {
        SCOPED_TRACE(type);
        RetargetTo(type);
        EXPECT_EQ(ImportLines({ListLine("GD1", {{13, "GUARD 1 "}}), ListLine("GD2", {{13, "GUARD 2 "}})}), 2);
        EXPECT_EQ(FilledRows(0), Rows({0, first, first + 1}));
        EXPECT_EQ(Text(first, DESC), "GUARD 1");
        EXPECT_EQ(Text(first + 1, DESC), "GUARD 2");
        EXPECT_EQ(Text(first, MNUM), wxString::Format("%d", first));
        EXPECT_EQ(Text(first, ZONE), zone);
        EXPECT_TRUE(CurrentGrid()->IsReadOnly(first, SCAN));
        EXPECT_FALSE(CurrentGrid()->IsReadOnly(0, SCAN)) << "nor is that of row 0";
    }
}

TEST_F(List716, AnUndefinedLineBehindAGuardRepeatsItAsItWas) {
    RetargetTo("NP25");
    EXPECT_EQ(ImportLines({ListLine("GD1"), UndefinedLine("008"), ListLine("GD2")}), 3);
    EXPECT_EQ(FilledRows(0), Rows({0, 501, 502}));
}

TEST_F(List716, GuardsArePassedOverWhereThePageHasNone) {
    for (const char* type : {"MDLX", "KDAR", "O12"}) {
        SCOPED_TRACE(type);
        RetargetTo(type);
        EXPECT_EQ(ImportLines({ListLine("GD1"), UndefinedLine("001"), ListLine("002"), ListLine("GD2")}), 1);
        EXPECT_EQ(FilledRows(0), Rows({0, 2}));
    }
}

TEST_F(List716, NumbersPastTheGridAreDroppedAndNotCounted) {
    EXPECT_EQ(ImportLines({ListLine("233"), ListLine("007"), ListLine("999"), ListLine("-01")}), 1);
    EXPECT_EQ(FilledRows(0), Rows({0, 7}));
}

TEST_F(List716, ALineWithoutANumberIsPassedOver) {
    EXPECT_EQ(ImportLines({ListLine("   "), ListLine("007")}), 1);
    EXPECT_EQ(FilledRows(0), Rows({0, 7}));
    EXPECT_EQ(Text(0, DESC), "VHF  136");
}

TEST_F(List716, ATextThatIsNoNumberIsRowZero) {
    EXPECT_EQ(ImportLines({ListLine("abc", {{13, "HERE    "}})}), 1);
    EXPECT_EQ(Text(0, DESC), "HERE");
}

TEST_F(List716, ScanIsLockedWhereItCannotBeChosen) {
    ImportLines({ListLine("005"), PrimaryLine("006"), ShadowLine("007", "006"), ListLine("GD1")});
    for (const auto& [row, locked] :
         {std::pair(5, false), std::pair(6, true), std::pair(7, true), std::pair(231, true)})
        EXPECT_EQ(CurrentGrid()->IsReadOnly(row, SCAN), locked) << row;
}

TEST_F(List716, ThatMovesAPrimaryLeavesNoLockBehindInTheRowOfItsNumber) {
    RetargetTo("NP25");
    ImportLines({PrimaryLine("231"), PrimaryLine("999")});
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(231, SCAN)) << "a blank row, neither linked nor in zone X";
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(501, SCAN)) << "a primary's own";
}

TEST_F(List716, ShadowsAreLinkedToTheirPrimary) {
    EXPECT_EQ(ImportLines({ListLine("005", {{6, "P"}, {10, "4"}}), ShadowLine("006", "005"),
                           ShadowLine("009", "5  ")}),
              3);
    ExpectCells(
        5, {{SHD0, "6"}, {SHD1, "9"}, {SHD2, "0"}, {SHD6, "0"}, {MFLG, "10"}, {SHAD, "P-2"}, {ZONE, "4"}});
    ExpectCells(6, {{MFLG, "01"}, {SHAD, "S-005"}, {PRIM, "006"}, {ZONE, "4"}});
    ExpectCells(9, {{MFLG, "02"}, {SHAD, "S-5"}, {ZONE, "4"}});
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(6, ZONE));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(9, ZONE));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(5, ZONE));
    EXPECT_EQ(CurrentParameters().Flags, 0x08);
    EXPECT_EQ(TakenSlots(), 1) << "shadows hold no slot";
}

TEST_F(List716, APlainPrimaryBecomesOneByItsShadow) {
    EXPECT_EQ(ImportLines({ListLine("005"), ShadowLine("004", "005")}), 2);
    ExpectCells(5, {{SHD0, "4"}, {MFLG, "10"}, {SHAD, "P-1"}});
    EXPECT_EQ(Text(4, MFLG), "01");
}

TEST_F(List716, AShadowOfAFullPrimaryKeepsItsFlagsAndHasNoSlot) {
    std::vector<std::string> lines = {PrimaryLine("005")};
    for (int i = 0; i < 8; ++i)
        lines.push_back(ShadowLine("01" + std::to_string(i), "005"));
    EXPECT_EQ(ImportLines(lines), 9);
    ExpectCells(5, {{SHD0, "10"}, {SHD6, "16"}, {SHAD, "P-7"}});
    ExpectCells(16, {{MFLG, "07"}, {ZONE, "1"}});
    ExpectCells(17, {{MFLG, "01"}, {SHAD, "S-005"}, {ZONE, ""}});
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(17, ZONE));
}

TEST_F(List716, AShadowWhosePrimaryIsNoRowStaysUnlinked) {
    for (const char* primary : {"000", "GD1", "233", "999", "-05", "abc", "   "}) {
        EXPECT_EQ(ImportLines({ShadowLine("006", primary)}), 1) << primary;
        EXPECT_EQ(FilledRows(0), Rows({0, 6})) << primary;
        EXPECT_EQ(Text(6, MFLG), "01") << primary;
    }
}

TEST_F(List716, ALinkFollowsAPrimaryThatHasMoved) {
    RetargetTo("NP25");
    EXPECT_EQ(ImportLines({PrimaryLine("231"), ShadowLine("006", "231")}), 2);
    ExpectCells(501, {{SHD0, "6"}, {SHAD, "P-1"}});
    EXPECT_EQ(Text(6, ZONE), "X");
}

TEST_F(List716, AShadowThatHasMovedIsLinkedToThePrimaryOfItsLine) {
    RetargetTo("NP25");
    EXPECT_EQ(ImportLines({PrimaryLine("005"), ShadowLine("231", "005")}), 2);
    ExpectCells(5, {{SHD0, "501"}, {SHAD, "P-1"}});
    EXPECT_EQ(Text(501, MFLG), "01");
}

TEST_F(List716, ALastLineNeedsNoEnd) {
    std::string bytes = ListFile({ListLine("007"), ListLine("008")});
    bytes.pop_back();
    EXPECT_EQ(Import(bytes), 2);
    EXPECT_EQ(Text(8, TNAC), "293");
}

TEST_F(List716, LinesMayEndInAnyWay) {
    for (const char* end : {"\n", "\r", "\r\n"})
        EXPECT_EQ(Import(ListFile({ListLine("007"), ListLine("008")}, end)), 2);
}

TEST_F(List716, CharactersBehindThe100thAreDropped) {
    const std::string longLine = ListLine("007", {{86, std::string(1 << 20, '9')}});
    EXPECT_EQ(ImportLines({longLine, ListLine("008")}), 2);
    EXPECT_EQ(Text(7, TNAC), "293");
    EXPECT_EQ(FilledRows(0), Rows({0, 7, 8}));
}

TEST_F(List716, NamesAreUtf8OrLatin1) {
    const auto towns = {"M\xC3\x9CNCHEN", "\xC3\x85RE", "GEN\xC3\x88VE"};
    for (const char* name : {"kdrv-716-towns-latin1.txt", "kdrv-716-towns-utf8.txt"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(Import(SampleFile(name)), 40);
        EXPECT_EQ(Text(4, DESC), "VTAC13");
        EXPECT_EQ(Text(1, RFRQ), "155.7525") << "columns are counted in characters";
    }
    Record716 record;
    const std::string townLine = ListLine("001", {{13, "        "}});
    for (const char* town : towns) {
        wxString line = wxString::FromUTF8(townLine);
        const wxString text = wxString::FromUTF8(town);
        line.replace(13, text.length(), text);
        Read716TextLine(line, 233, record);
        EXPECT_EQ(record.Desc, text);
    }
}

TEST_F(List716, TheSamplesHoldTheirChannels) {
    for (const char* name :
         {"kdrv-716.txt", "kdrv-716-crlf.txt", "kdrv-716-cr.txt", "kdrv-716-no-last-end.txt"}) {
        SCOPED_TRACE(name);
        // Includes the default row and the two numbers without a memory.
        EXPECT_EQ(Import(SampleFile(name)), 41);
        ExpectCells(0, {{DESC, "VHF 136"}, {MNUM, "000"}});
        ExpectCells(1, {{DESC, "VCALL10"}, {SCAN, "Y"}, {RTON, "156.7"}, {ZONE, "1"}});
        ExpectCells(32, {{DESC, "P25 RPT"}, {MODE, "D"}, {RNAC, "68A"}, {RTGP, "2711"}, {TTGP, "0711"}});
        ExpectCells(34, {{SHAD, "P-2"}, {SHD0, "35"}, {SHD1, "36"}});
        ExpectCells(36, {{SHAD, "S-034"}, {MFLG, "02"}, {ZONE, "3"}});
        ExpectCells(232, {{DESC, "AIRGUARD"}, {ZONE, "16"}});
        EXPECT_EQ(FilledRows(0).size(), 39u);
        for (int row : FilledRows(0))
            for (int col = 0; col < ColumnTotal; ++col)
                EXPECT_FALSE(IsPainted(row, col)) << row << " " << ColumnTag[col];
    }
}
