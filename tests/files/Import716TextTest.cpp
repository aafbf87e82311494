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
        EXPECT_EQ(ListLine716::Memory, Read716TextLine(wxString::FromUTF8(line), rows, record)) << line;
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
        // Every character of the field is its own, and those around it are others.
        const std::string text = std::string("abcdefgh").substr(0, c.length);
        std::string line(90, ' ');
        line.replace(c.position, c.length, text);
        EXPECT_EQ(text, Read(line).*c.field) << "at " << c.position;
        line.replace(c.position - 1, 1, "#");
        line.replace(c.position + c.length, 1, "#");
        EXPECT_EQ(text, Read(line).*c.field) << "between others at " << c.position;
    }
}

TEST_F(List716, FieldsLoseTheirBlanks) {
    const Record716 record = Read(ListLine(" 7 ", {{25, " 155.75 "}, {37, "67.0 "}, {10, " 3"}}));
    EXPECT_EQ("7", record.Mnum);
    EXPECT_EQ("155.75", record.Rfrq);
    EXPECT_EQ("67.0", record.Rton);
    EXPECT_EQ("3", record.Zone);
}

TEST_F(List716, ADescriptionKeepsItsBlanksInFront) {
    EXPECT_EQ("  TAC 1", Read(ListLine("007", {{13, "  TAC 1 "}})).Desc);
}

TEST_F(List716, WhatALineLacksIsSet) {
    const Record716 record = Read(ListLine("007"));
    EXPECT_EQ("0000001", record.Tidc);
    EXPECT_EQ("A0", record.Tflg);
    EXPECT_EQ("00", record.Mflg);
    EXPECT_EQ("N", record.Scan);
    EXPECT_EQ("007", record.Prim);
    for (Field716 shadow : Shadows716)
        EXPECT_EQ("0", record.*shadow);
}

TEST_F(List716, DefIsNumberZero) {
    EXPECT_EQ("000", Read(ListLine("DEF")).Mnum);
    EXPECT_EQ(1, ImportLines({ListLine("DEF", {{13, "DEFAULT "}})}));
    ExpectCells(0, {{MNUM, "000"}, {DESC, "DEFAULT"}});
    EXPECT_EQ(Rows({0}), FilledRows(0));
}

TEST_F(List716, GuardNamesAreTheLastTwoRows) {
    for (const auto& [rows, first, second, zone] :
         {std::tuple(233, "231", "232", "16"), std::tuple(503, "501", "502", "X"),
          std::tuple(234, "232", "233", "X"), std::tuple(103, "101", "102", "16")}) {
        const Record716 guard = Read(ListLine("GD1"), rows);
        EXPECT_EQ(first, guard.Mnum) << rows;
        EXPECT_EQ(first, guard.Prim);
        EXPECT_EQ(zone, guard.Zone) << rows;
        EXPECT_EQ("80", guard.Mflg);
        EXPECT_EQ(second, Read(ListLine("GD2"), rows).Mnum);
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
        EXPECT_EQ(flags, record.Mflg) << name;
        EXPECT_EQ(primary, record.Prim) << name;
        EXPECT_EQ(scan, record.Scan) << name;
    }
}

TEST_F(List716, TheZoneIsReadOnPlainAndPrimaryLinesOnly) {
    EXPECT_EQ("12", Read(ListLine("007", {{10, "12"}})).Zone);
    EXPECT_EQ("12", Read(ListLine("007", {{6, "P"}, {10, "12"}})).Zone);
    EXPECT_EQ("", Read(ListLine("007", {{6, "S"}, {10, "12"}})).Zone);
    EXPECT_EQ("16", Read(ListLine("GD1", {{10, "12"}})).Zone);
}

TEST_F(List716, LinesWithoutAMemoryLeaveTheRecord) {
    Record716 record;
    record.Desc = "KEPT";
    EXPECT_EQ(ListLine716::NoMemory, Read716TextLine(UndefinedLine("007"), 233, record));
    EXPECT_EQ(ListLine716::NoMemory, Read716TextLine(ErasedLine("007"), 233, record));
    EXPECT_EQ("KEPT", record.Desc);
    EXPECT_EQ("", record.Mnum);
    EXPECT_EQ(ListLine716::Memory, Read716TextLine(Placed({{35, "UNDEFINED"}}, 86), 233, record));
    EXPECT_EQ(ListLine716::Memory, Read716TextLine(Placed({{36, "ERASED"}}, 86), 233, record));
}

TEST_F(List716, ALineOfFewerThan50CharactersEndsTheList) {
    Record716 record;
    EXPECT_EQ(ListLine716::End, Read716TextLine(std::string(49, ' '), 233, record));
    EXPECT_EQ(ListLine716::Memory, Read716TextLine(std::string(50, ' '), 233, record));
    EXPECT_EQ(1, ImportLines({ListLine("007"), "", ListLine("008")}));
    EXPECT_EQ(1, ImportLines({ListLine("007"), std::string(49, 'x'), ListLine("008")}));
    EXPECT_EQ(Rows({0, 7}), FilledRows(0));
}

TEST_F(List716, ThreeTitleLinesAreSkippedWhateverTheyHold) {
    std::vector<std::string> lines = ListTitles();
    lines[2] = ListLine("006");
    lines.push_back(ListLine("007"));
    EXPECT_EQ(1, Import(Joined(lines)));
    EXPECT_EQ(Rows({0, 7}), FilledRows(0));
}

TEST_F(List716, EveryFieldReachesItsCell) {
    EXPECT_EQ(1, ImportLines({ListLine("009", {{9, "S"},
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
                                               {83, "68A"}})}));
    ExpectCells(9, {{MFLG, "08"},       {MNUM, "009"},  {PRIM, "009"},  {SHAD, "N"},        {SCAN, "Y"},
                    {ZONE, "3"},        {DESC, "MAIN"}, {MODE, "w"},    {RFRQ, "151.1375"}, {RSQL, "c"},
                    {RTON, "67.0"},     {RCOD, "031"},  {RTGP, "12AB"}, {RNAC, "F7E"},      {TSQL, "t"},
                    {TFRQ, "159.4725"}, {TTON, "71.9"}, {TCOD, "032"},  {TTGP, "0ABC"},     {TNAC, "68A"},
                    {TIDC, "0000001"},  {TFLG, "A8"}});
}

TEST_F(List716, AnUndefinedLineRepeatsTheRecordBeforeIt) {
    EXPECT_EQ(3, ImportLines({ListLine("007"), UndefinedLine("008"), ErasedLine("009")}));
    EXPECT_EQ(Rows({0, 7}), FilledRows(0));
    EXPECT_EQ(1, TakenSlots());
    EXPECT_EQ("1", Text(7, ZONE));
}

TEST_F(List716, RepeatedRecordsDoNotFillTheirZone) {
    std::vector<std::string> lines = {ListLine("007")};
    for (int i = 0; i < 40; ++i)
        lines.push_back(UndefinedLine("008"));
    EXPECT_EQ(41, ImportLines(lines));
    EXPECT_EQ("1", Text(7, ZONE));
    EXPECT_EQ(1, TakenSlots());
}

TEST_F(List716, AnUndefinedLineInFrontHasNothingToRepeat) {
    EXPECT_EQ(1, ImportLines({UndefinedLine("001"), ListLine("007")}));
    EXPECT_EQ(Rows({0, 7}), FilledRows(0));
}

TEST_F(List716, ARepeatedRecordThatHasMovedMovesAgainAndIsDropped) {
    RetargetTo("NP25");
    EXPECT_EQ(1, ImportLines({ListLine("231"), UndefinedLine("232")}));
    EXPECT_EQ(Rows({0, 501}), FilledRows(0));
    EXPECT_EQ(2, ImportLines({ListLine("230"), UndefinedLine("231")}));
    EXPECT_EQ(Rows({0, 230}), FilledRows(0));
}

TEST_F(List716, NumbersFrom231OnMoveTo501OnTheLargerRadio) {
    RetargetTo("NP25");
    EXPECT_EQ(3, ImportLines({ListLine("230"), ListLine("231"), ListLine("232"), ListLine("233")}));
    EXPECT_EQ(Rows({0, 230, 501, 502}), FilledRows(0));
    ExpectCells(502, {{MNUM, "502"}, {PRIM, "502"}, {RNSV, "10"}});
}

TEST_F(List716, GuardsLandInTheGuardRowsOfThePage) {
    for (const auto& [type, first, zone] :
         {std::tuple("RP25", 231, "16"), std::tuple("NP25", 501, "X"), std::tuple("ANFM", 101, "")}) {
        SCOPED_TRACE(type);
        RetargetTo(type);
        EXPECT_EQ(2, ImportLines({ListLine("GD1", {{13, "GUARD 1 "}}), ListLine("GD2", {{13, "GUARD 2 "}})}));
        EXPECT_EQ(Rows({0, first, first + 1}), FilledRows(0));
        EXPECT_EQ("GUARD 1", Text(first, DESC));
        EXPECT_EQ("GUARD 2", Text(first + 1, DESC));
        EXPECT_EQ(wxString::Format("%d", first), Text(first, MNUM));
        EXPECT_EQ(zone, Text(first, ZONE));
        EXPECT_TRUE(CurrentGrid()->IsReadOnly(first, SCAN));
        EXPECT_FALSE(CurrentGrid()->IsReadOnly(0, SCAN)) << "nor is that of row 0";
    }
}

TEST_F(List716, AnUndefinedLineBehindAGuardRepeatsItAsItWas) {
    RetargetTo("NP25");
    EXPECT_EQ(3, ImportLines({ListLine("GD1"), UndefinedLine("008"), ListLine("GD2")}));
    EXPECT_EQ(Rows({0, 501, 502}), FilledRows(0));
}

TEST_F(List716, GuardsArePassedOverWhereThePageHasNone) {
    for (const char* type : {"MDLX", "KDAR", "O12"}) {
        SCOPED_TRACE(type);
        RetargetTo(type);
        EXPECT_EQ(1, ImportLines({ListLine("GD1"), UndefinedLine("001"), ListLine("002"), ListLine("GD2")}));
        EXPECT_EQ(Rows({0, 2}), FilledRows(0));
    }
}

TEST_F(List716, NumbersPastTheGridAreDroppedAndNotCounted) {
    EXPECT_EQ(1, ImportLines({ListLine("233"), ListLine("007"), ListLine("999"), ListLine("-01")}));
    EXPECT_EQ(Rows({0, 7}), FilledRows(0));
}

TEST_F(List716, ALineWithoutANumberIsPassedOver) {
    EXPECT_EQ(1, ImportLines({ListLine("   "), ListLine("007")}));
    EXPECT_EQ(Rows({0, 7}), FilledRows(0));
    EXPECT_EQ("VHF  136", Text(0, DESC));
}

TEST_F(List716, ATextThatIsNoNumberIsRowZero) {
    EXPECT_EQ(1, ImportLines({ListLine("abc", {{13, "HERE    "}})}));
    EXPECT_EQ("HERE", Text(0, DESC));
}

TEST_F(List716, ScanIsLockedWhereItCannotBeChosen) {
    ImportLines({ListLine("005"), PrimaryLine("006"), ShadowLine("007", "006"), ListLine("GD1")});
    for (const auto& [row, locked] :
         {std::pair(5, false), std::pair(6, true), std::pair(7, true), std::pair(231, true)})
        EXPECT_EQ(locked, CurrentGrid()->IsReadOnly(row, SCAN)) << row;
}

TEST_F(List716, ThatMovesAPrimaryLeavesNoLockBehindInTheRowOfItsNumber) {
    RetargetTo("NP25");
    ImportLines({PrimaryLine("231"), PrimaryLine("999")});
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(231, SCAN)) << "a blank row, neither linked nor in zone X";
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(501, SCAN)) << "a primary's own";
}

TEST_F(List716, ShadowsAreLinkedToTheirPrimary) {
    EXPECT_EQ(3, ImportLines({ListLine("005", {{6, "P"}, {10, "4"}}), ShadowLine("006", "005"),
                              ShadowLine("009", "5  ")}));
    ExpectCells(
        5, {{SHD0, "6"}, {SHD1, "9"}, {SHD2, "0"}, {SHD6, "0"}, {MFLG, "10"}, {SHAD, "P-2"}, {ZONE, "4"}});
    ExpectCells(6, {{MFLG, "01"}, {SHAD, "S-005"}, {PRIM, "006"}, {ZONE, "4"}});
    ExpectCells(9, {{MFLG, "02"}, {SHAD, "S-5"}, {ZONE, "4"}});
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(6, ZONE));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(9, ZONE));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(5, ZONE));
    EXPECT_EQ(0x08, CurrentParameters().Flags);
    EXPECT_EQ(1, TakenSlots()) << "shadows hold no slot";
}

TEST_F(List716, APlainPrimaryBecomesOneByItsShadow) {
    EXPECT_EQ(2, ImportLines({ListLine("005"), ShadowLine("004", "005")}));
    ExpectCells(5, {{SHD0, "4"}, {MFLG, "10"}, {SHAD, "P-1"}});
    EXPECT_EQ("01", Text(4, MFLG));
}

TEST_F(List716, AShadowOfAFullPrimaryKeepsItsFlagsAndHasNoSlot) {
    std::vector<std::string> lines = {PrimaryLine("005")};
    for (int i = 0; i < 8; ++i)
        lines.push_back(ShadowLine("01" + std::to_string(i), "005"));
    EXPECT_EQ(9, ImportLines(lines));
    ExpectCells(5, {{SHD0, "10"}, {SHD6, "16"}, {SHAD, "P-7"}});
    ExpectCells(16, {{MFLG, "07"}, {ZONE, "1"}});
    ExpectCells(17, {{MFLG, "01"}, {SHAD, "S-005"}, {ZONE, ""}});
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(17, ZONE));
}

TEST_F(List716, AShadowWhosePrimaryIsNoRowStaysUnlinked) {
    for (const char* primary : {"000", "GD1", "233", "999", "-05", "abc", "   "}) {
        EXPECT_EQ(1, ImportLines({ShadowLine("006", primary)})) << primary;
        EXPECT_EQ(Rows({0, 6}), FilledRows(0)) << primary;
        EXPECT_EQ("01", Text(6, MFLG)) << primary;
    }
}

TEST_F(List716, ALinkFollowsAPrimaryThatHasMoved) {
    RetargetTo("NP25");
    EXPECT_EQ(2, ImportLines({PrimaryLine("231"), ShadowLine("006", "231")}));
    ExpectCells(501, {{SHD0, "6"}, {SHAD, "P-1"}});
    EXPECT_EQ("X", Text(6, ZONE));
}

TEST_F(List716, AShadowThatHasMovedIsLinkedToThePrimaryOfItsLine) {
    RetargetTo("NP25");
    EXPECT_EQ(2, ImportLines({PrimaryLine("005"), ShadowLine("231", "005")}));
    ExpectCells(5, {{SHD0, "501"}, {SHAD, "P-1"}});
    EXPECT_EQ("01", Text(501, MFLG));
}

TEST_F(List716, ALastLineNeedsNoEnd) {
    std::string bytes = ListFile({ListLine("007"), ListLine("008")});
    bytes.pop_back();
    EXPECT_EQ(2, Import(bytes));
    EXPECT_EQ("293", Text(8, TNAC));
}

TEST_F(List716, LinesMayEndInAnyWay) {
    for (const char* end : {"\n", "\r", "\r\n"})
        EXPECT_EQ(2, Import(ListFile({ListLine("007"), ListLine("008")}, end)));
}

TEST_F(List716, CharactersBehindThe100thAreDropped) {
    const std::string longLine = ListLine("007", {{86, std::string(1 << 20, '9')}});
    EXPECT_EQ(2, ImportLines({longLine, ListLine("008")}));
    EXPECT_EQ("293", Text(7, TNAC));
    EXPECT_EQ(Rows({0, 7, 8}), FilledRows(0));
}

TEST_F(List716, NamesAreUtf8OrLatin1) {
    const auto towns = {"M\xC3\x9CNCHEN", "\xC3\x85RE", "GEN\xC3\x88VE"};
    for (const char* name : {"kdrv-716-towns-latin1.txt", "kdrv-716-towns-utf8.txt"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(40, Import(SampleFile(name)));
        EXPECT_EQ("VTAC13", Text(4, DESC));
        EXPECT_EQ("155.7525", Text(1, RFRQ)) << "columns are counted in characters";
    }
    Record716 record;
    const std::string townLine = ListLine("001", {{13, "        "}});
    for (const char* town : towns) {
        wxString line = wxString::FromUTF8(townLine);
        const wxString text = wxString::FromUTF8(town);
        line.replace(13, text.length(), text);
        Read716TextLine(line, 233, record);
        EXPECT_EQ(text, record.Desc);
    }
}

TEST_F(List716, TheSamplesHoldTheirChannels) {
    for (const char* name :
         {"kdrv-716.txt", "kdrv-716-crlf.txt", "kdrv-716-cr.txt", "kdrv-716-no-last-end.txt"}) {
        SCOPED_TRACE(name);
        // With the default row and the two numbers without a memory.
        EXPECT_EQ(41, Import(SampleFile(name)));
        ExpectCells(0, {{DESC, "VHF 136"}, {MNUM, "000"}});
        ExpectCells(1, {{DESC, "VCALL10"}, {SCAN, "Y"}, {RTON, "156.7"}, {ZONE, "1"}});
        ExpectCells(32, {{DESC, "P25 RPT"}, {MODE, "D"}, {RNAC, "68A"}, {RTGP, "2711"}, {TTGP, "0711"}});
        ExpectCells(34, {{SHAD, "P-2"}, {SHD0, "35"}, {SHD1, "36"}});
        ExpectCells(36, {{SHAD, "S-034"}, {MFLG, "02"}, {ZONE, "3"}});
        ExpectCells(232, {{DESC, "AIRGUARD"}, {ZONE, "16"}});
        EXPECT_EQ(39u, FilledRows(0).size());
        for (int row : FilledRows(0))
            for (int col = 0; col < ColumnTotal; ++col)
                EXPECT_FALSE(IsPainted(row, col)) << row << " " << ColumnTag[col];
    }
}
