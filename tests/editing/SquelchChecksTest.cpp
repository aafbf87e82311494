// The checks of squelch letters, tones, codes, talk groups and NACs.
#include "tests/editing/ColumnCheckTest.h"

namespace {

class SquelchChecks : public ColumnCheckTest {};

} // namespace

TEST_F(SquelchChecks, SquelchLettersFollowTheMode) {
    for (const char* mode : {"w", "n", ""})
        ExpectAll(P25Pages, {{{RSQL, TSQL}, "x", "x", Plain, "", MODE, mode},
                             {{RSQL, TSQL}, "t", "t", Plain, "", MODE, mode},
                             {{RSQL, TSQL}, "c", "c", Plain, "", MODE, mode},
                             {{TSQL}, "-", "-", Plain, "", MODE, mode},
                             {{RSQL}, "-", "dflt", Painted, "", MODE, mode},
                             {{RSQL, TSQL}, "m", "dflt", Painted, "", MODE, mode},
                             {{RSQL, TSQL}, "g", "dflt", Painted, "", MODE, mode},
                             {{RSQL, TSQL}, "X", "dflt", Painted, "", MODE, mode},
                             {{RSQL, TSQL}, "", "dflt", Painted, "", MODE, mode}});
    ExpectAll(P25Pages, {{{RSQL}, "m", "m", Plain, "", MODE, "D"},
                         {{RSQL}, "n", "n", Plain, "", MODE, "D"},
                         {{RSQL}, "g", "g", Plain, "", MODE, "D"},
                         {{RSQL}, "i", "dflt", Painted, "", MODE, "D"},
                         {{TSQL}, "g", "g", Plain, "", MODE, "D"},
                         {{TSQL}, "i", "i", Plain, "", MODE, "D"},
                         {{TSQL}, "-", "-", Plain, "", MODE, "D"},
                         {{TSQL}, "m", "dflt", Painted, "", MODE, "D"},
                         {{RSQL, TSQL}, "x", "dflt", Painted, "", MODE, "D"},
                         {{RSQL, TSQL}, "", "dflt", Painted, "", MODE, "D"}});
    ExpectAll(AnalogPages, {{{RSQL, TSQL}, "x", ""}, {{RSQL, TSQL}, "", ""}, {{RSQL, TSQL}, "junk", ""}});
}

TEST_F(SquelchChecks, TonesOfFmPagesAreThoseOfTheList) {
    const std::vector<int> both{RTON, TTON};
    ExpectAll({Anfm, Mdlx}, {{both, "OFF", "OFF"},
                             {both, "67.0", "67.0"},
                             {both, "250.3", "250.3"},
                             {both, "67.0", "67.0", Plain, "t"},
                             {both, "67.0", "OFF", Plain, "c"},
                             {both, "67.0", "OFF", Plain, "x"},
                             {both, "junk", "OFF", Plain, "x"},
                             {both, "254.8", "dflt", Painted},
                             {both, "67", "dflt", Painted},
                             {both, "off", "dflt", Painted},
                             {both, "", "dflt", Painted},
                             {both, "", "dflt", Painted, "t"},
                             {both, "n/a", "dflt", Painted},
                             {both, "67.0", "n/a", Plain, "", BAND, "AM 108-138"},
                             {both, "junk", "n/a", Plain, "", BAND, "AM 108-138"},
                             {both, "67.0", "67.0", Plain, "", BAND, "AM 225-400"}});
}

TEST_F(SquelchChecks, TonesOfP25PagesAreThoseOfTheirOwnList) {
    const std::vector<int> both{RTON, TTON};
    ExpectAll(P25Pages, {{both, "67.0", "67.0", Plain, "t"},
                         {both, "254.8", "254.8", Plain, "x"},
                         {both, "67.0", "67.0", Plain, "c"},
                         {both, "67.0", "67.0"},
                         {both, "OFF", "dflt", Painted},
                         {both, "OFF", "dflt", Painted, "t"},
                         {both, "33.0", "dflt", Painted, "t"},
                         {both, "", "dflt", Painted, "t"},
                         {both, "n/a", "dflt", Painted}});
}

TEST_F(SquelchChecks, TonesOfOtherPagesGo) {
    ExpectAll({O12Page, KdarPage, Anam, Fxam}, {{{RTON, TTON}, "67.0", ""},
                                                {{RTON, TTON}, "", ""},
                                                {{RTON, TTON}, "junk", ""},
                                                {{RTON, TTON}, "67.0", "", Plain, "t"}});
}

TEST_F(SquelchChecks, CodesOfFmPagesAreThoseOfTheList) {
    const std::vector<int> both{RCOD, TCOD};
    ExpectAll({Anfm, Mdlx}, {{both, "OFF", "OFF"},
                             {both, "000", "OFF"},
                             {both, "023", "023"},
                             {both, "754", "754"},
                             {both, "023", "023", Plain, "c"},
                             {both, "023", "OFF", Plain, "t"},
                             {both, "junk", "OFF", Plain, "x"},
                             {both, "23", "dflt", Painted},
                             {both, "777", "dflt", Painted},
                             {both, "", "dflt", Painted},
                             {both, "n/a", "dflt", Painted}});
}

TEST_F(SquelchChecks, CodesOfTheModuleAreAbsentInAmRows) {
    for (const char* band : {"AM 108-138", "AM 225-400", "AM 118-138"})
        ExpectAll({Mdlx}, {{{RCOD, TCOD}, "023", "n/a", Plain, "", BAND, band},
                           {{RCOD, TCOD}, "junk", "n/a", Plain, "c", BAND, band}});
    ExpectAll({Mdlx}, {{{RCOD, TCOD}, "023", "023", Plain, "", BAND, "FM 30-50"}});
}

TEST_F(SquelchChecks, CodesOfP25PagesAreNeverOff) {
    const std::vector<int> both{RCOD, TCOD};
    ExpectAll(P25Pages, {{both, "023", "023", Plain, "c"},
                         {both, "754", "754", Plain, "x"},
                         {both, "023", "023"},
                         {both, "OFF", "dflt", Painted},
                         {both, "000", "dflt", Painted},
                         {both, "OFF", "dflt", Painted, "c"},
                         {both, "junk", "dflt", Painted, "c"},
                         {both, "", "dflt", Painted, "c"}});
}

TEST_F(SquelchChecks, CodesOfAmPagesAreAbsent) {
    ExpectAll(
        {O12Page, KdarPage, Anam},
        {{{RCOD, TCOD}, "023", "n/a"}, {{RCOD, TCOD}, "", "n/a"}, {{RCOD, TCOD}, "junk", "n/a", Plain, "c"}});
}

TEST_F(SquelchChecks, CodesOfFxamPagesStand) {
    ExpectAll(
        {Fxam},
        {{{RCOD, TCOD}, "023", "023"}, {{RCOD, TCOD}, "junk", "junk", Plain, "t"}, {{RCOD, TCOD}, "", ""}});
}

TEST_F(SquelchChecks, AToneOrCodeSetsAnEmptySquelchOfAP25Row) {
    struct Line {
        int column;
        const char* text;
        int squelchColumn;
        const char* expected;
    };
    Become(Rp25);
    for (const Line& line : std::initializer_list<Line>{{RTON, "67.0", RSQL, "t"},
                                                        {RTON, "junk", RSQL, "t"},
                                                        {RTON, "OFF", RSQL, "was"},
                                                        {TTON, "67.0", TSQL, "t"},
                                                        {RCOD, "023", RSQL, "c"},
                                                        {RCOD, "junk", RSQL, "c"},
                                                        {RCOD, "OFF", RSQL, "was"},
                                                        {RCOD, "000", RSQL, "was"},
                                                        {TCOD, "023", TSQL, "c"}}) {
        const int other = line.squelchColumn == RSQL ? TSQL : RSQL;
        SetCell(row, line.squelchColumn, "was");
        SetCell(row, other, "other");
        Check(line.column, line.text, "");
        EXPECT_EQ(Cell(row, line.squelchColumn).utf8_string(), line.expected)
            << ColumnTag[line.column] << " " << line.text;
        EXPECT_EQ(Cell(row, other), "other") << ColumnTag[line.column] << " " << line.text;
        SetCell(row, line.squelchColumn, "was");
        Check(line.column, line.text, "x");
        EXPECT_EQ(Cell(row, line.squelchColumn), "was") << ColumnTag[line.column] << " " << line.text;
    }
}

TEST_F(SquelchChecks, ReceiveToneAndCodeOfAnalogGuardRowsAreAbsent) {
    for (int guard : {GD1, GD2}) {
        CheckTone(CurrentGrid(), guard, RTON, "67.0", "x");
        CheckCode(CurrentGrid(), guard, RCOD, "023", "x");
        CheckTone(CurrentGrid(), guard, TTON, "67.0", "");
        CheckCode(CurrentGrid(), guard, TCOD, "023", "");
        EXPECT_EQ(Cell(guard, RTON), "n/a");
        EXPECT_EQ(Cell(guard, RCOD), "n/a");
        EXPECT_EQ(Cell(guard, TTON), "67.0");
        EXPECT_EQ(Cell(guard, TCOD), "023");
        EXPECT_FALSE(IsPainted(RTON, guard));
        EXPECT_FALSE(IsPainted(RCOD, guard));
    }
    Become(Np25);
    CheckTone(CurrentGrid(), GD1, RTON, "67.0", "t");
    EXPECT_EQ(Cell(GD1, RTON), "67.0");
}

TEST_F(SquelchChecks, TalkGroupsAreFourHexadecimalDigits) {
    ExpectAll(P25Pages, {{{RTGP, TTGP}, "0001", "0001"},
                         {{RTGP, TTGP}, "FFFF", "FFFF"},
                         {{RTGP, TTGP}, "abcd", "abcd"},
                         {{RTGP, TTGP}, "1", "0001"},
                         {{RTGP, TTGP}, "1aB", "01aB"},
                         {{RTGP, TTGP}, "0001Z", "0001Z"},
                         {{RTGP, TTGP}, "", "dflt"},
                         {{RTGP, TTGP}, "000G", "dflt"},
                         {{RTGP, TTGP}, "G000", "dflt"},
                         {{RTGP, TTGP}, " 001", "dflt"},
                         {{RTGP, TTGP}, "-1", "dflt"},
                         {{RTGP, TTGP}, "\xC2\xB9", "dflt"}});
    ExpectAll(AnalogPages, {{{RTGP, TTGP}, "0001", ""}, {{RTGP, TTGP}, "", ""}});
}

TEST_F(SquelchChecks, NacsAreThreeHexadecimalDigits) {
    ExpectAll(P25Pages, {{{RNAC, TNAC}, "293", "293"},
                         {{RNAC, TNAC}, "FFF", "FFF"},
                         {{RNAC, TNAC}, "3", "003"},
                         {{RNAC, TNAC}, "F7", "0F7"},
                         {{RNAC, TNAC}, "2934", "2934"},
                         {{RNAC, TNAC}, "", "dflt"},
                         {{RNAC, TNAC}, "29x", "dflt"},
                         {{RNAC, TNAC}, "x", "dflt"}});
    ExpectAll(AnalogPages, {{{RNAC, TNAC}, "293", ""}, {{RNAC, TNAC}, "", ""}});
}

TEST_F(SquelchChecks, CodesOfOtherPagesDoNotDependOnTheirRowsBand) {
    ExpectAll({Anfm}, {{{RCOD, TCOD}, "023", "023", Plain, "", BAND, "AM 225-400"}});
    ExpectAll({O12Page, KdarPage, Anam}, {{{RCOD, TCOD}, "023", "n/a", Plain, "", BAND, "FM 30-50"}});
}
