// What each column's check makes of a text, on a page of each of the eight radio types.
#include "editing/ColumnChecks.h"

#include "tests/catalogue/PageTest.h"
#include "tests/support/Modals.h"

#include <map>

namespace {

enum Page { Anfm, Rp25, Np25, Mdlx, O12Page, KdarPage, Anam, Fxam };
using Pages = std::vector<Page>;

const Pages allPages{Anfm, Rp25, Np25, Mdlx, O12Page, KdarPage, Anam, Fxam};
const Pages p25Pages{Rp25, Np25};
const Pages analogPages{Anfm, Mdlx, O12Page, KdarPage, Anam, Fxam};
const Pages maskPages{Anfm, Mdlx, O12Page, Anam, Fxam};

/// One text under one column's check, in row 5, where the default row holds "dflt".
struct Case {
    std::vector<int> columns;
    const char* text;
    const char* expected;
    bool painted = false;
    const char* squelch = "";
    int withColumn = -1; ///< a cell of the row that the check looks at, and its text
    const char* withText = "";
};

constexpr bool Painted = true;
constexpr bool Plain = false;

class ColumnChecks : public PageTest {
protected:
    static constexpr int row = 5;

    static void Become(Page page) {
        static constexpr int targets[][2] = {{1, 0}, {6, 0}, {7, 0},  {17, 5},
                                             {2, 0}, {8, 0}, {10, 1}, {1, 0}};
        Retarget(targets[page][0], targets[page][1]);
        if (page == Fxam) // no radio has it, files may
            CurrentParameters().Type = RadioCatalogue::FXAM;
        ASSERT_EQ(page, CurrentParameters().Type);
    }

    static void Check(int column, const wxString& text, const wxString& squelch) {
        wxGrid* grid = CurrentGrid();
        switch (column) {
        case MNUM:
            CheckMNum(grid, row, text);
            break;
        case PRIM:
            CheckPrim(grid, row, text);
            break;
        case SHAD:
            CheckShad(grid, row, text);
            break;
        case BAND:
            CheckBand(grid, row, text);
            break;
        case SCAN:
            CheckScan(grid, row, text);
            break;
        case ZONE:
            CheckZone(grid, row, text);
            break;
        case DESC:
            CheckDesc(grid, row, text);
            break;
        case MODE:
            CheckMode(grid, row, text);
            break;
        case RFRQ:
        case TFRQ:
            CheckFreq(grid, row, column, text);
            break;
        case RSQL:
        case TSQL:
            CheckSquelch(grid, row, column, text);
            break;
        case RNSV:
            CheckRnsv(grid, row, text);
            break;
        case RTON:
        case TTON:
            CheckTone(grid, row, column, text, squelch);
            break;
        case RCOD:
        case TCOD:
            CheckCode(grid, row, column, text, squelch);
            break;
        case RTGP:
        case TTGP:
            CheckTalkGroup(grid, row, column, text);
            break;
        case RNAC:
        case TNAC:
            CheckNac(grid, row, column, text);
            break;
        case TIDC:
            CheckTidc(grid, row, text);
            break;
        case RONL:
            CheckRonl(grid, row, text);
            break;
        default:
            FAIL() << "no check for column " << column;
        }
    }

    static bool IsPainted(int column, int ofRow = row) {
        return CurrentGrid()->GetCellBackgroundColour(ofRow, column) == wxColour(235, 125, 50);
    }

    static void Expect(const Case& c, int column) {
        wxGrid* grid = CurrentGrid();
        for (int col = 0; col < 32; ++col)
            SetCell(row, col, "");
        SetCell(0, column, "dflt");
        SetCell(row, column, "before");
        if (c.withColumn >= 0)
            SetCell(row, c.withColumn, c.withText);
        grid->SetCellBackgroundColour(row, column, grid->GetDefaultCellBackgroundColour());
        const wxString text = wxString::FromUTF8(c.text);
        Check(column, text, c.squelch);
        const std::string what = std::string("page ") +
                                 RadioCatalogue::RadioTypeName[CurrentParameters().Type] + ", " +
                                 ColumnTag[column] + " \"" + c.text + "\"";
        EXPECT_EQ(c.expected, Cell(row, column).utf8_string()) << what;
        EXPECT_EQ(c.painted, IsPainted(column)) << what;
    }

    static void ExpectAll(const Pages& pages, const std::vector<Case>& cases) {
        for (Page page : pages) {
            Become(page);
            for (const Case& c : cases)
                for (int column : c.columns)
                    Expect(c, column);
        }
    }

    static wxString LongText() { return wxString('A', 5000); }
};

} // namespace

TEST_F(ColumnChecks, NumbersGetThreeDigits) {
    ExpectAll(allPages, {{{MNUM}, "", ""},
                         {{MNUM}, "3", "003"},
                         {{MNUM}, "005", "005"},
                         {{MNUM}, "0", "000"},
                         {{MNUM}, " 4", "004"},
                         {{MNUM}, "4x", "004"},
                         {{MNUM}, "abc", "000"},
                         {{MNUM}, "-5", "-05"}});
}

TEST_F(ColumnChecks, ANumberAboveThePagesRowsGoes) {
    ExpectAll(allPages, {{{MNUM}, "9999", ""}, {{MNUM}, "503", ""}, {{MNUM}, "99999999999999999999", ""}});
    for (const auto& [page, rows] :
         std::map<Page, int>{{Anfm, 122}, {Rp25, 232}, {Mdlx, 500}, {O12Page, 6}}) {
        Become(page);
        SetCell(rows, MNUM, "");
        CheckMNum(CurrentGrid(), row, wxString::Format("%d", rows));
        EXPECT_EQ(wxString::Format("%03d", rows), Cell(row, MNUM)) << "page " << page;
        CheckMNum(CurrentGrid(), row, wxString::Format("%d", rows + 1));
        EXPECT_EQ("", Cell(row, MNUM)) << "page " << page;
    }
}

TEST_F(ColumnChecks, ANumberThatAnotherRowHoldsIsToldAndGoes) {
    SetCell(12, MNUM, "7");
    {
        testbench::DialogScript dialogs;
        dialogs.ExpectMessage("Error", "Number already used at row: 012")
            .Style(wxOK | wxCENTRE | wxICON_INFORMATION);
        EXPECT_EQ(-1, CheckMNum(CurrentGrid(), row, "007"));
    }
    EXPECT_EQ("", Cell(row, MNUM));
    EXPECT_FALSE(IsPainted(MNUM));
    EXPECT_EQ("7", Cell(12, MNUM)) << "the other row keeps its number";
    EXPECT_EQ(0, CheckMNum(CurrentGrid(), 12, "7")) << "a row is no rival to itself";
}

TEST_F(ColumnChecks, ANumberAboveTheRowsIsStillSearchedFor) {
    SetCell(12, MNUM, "9999");
    testbench::DialogScript dialogs;
    dialogs.ExpectMessage("Error", "Number already used at row: 012");
    EXPECT_EQ(-1, CheckMNum(CurrentGrid(), row, "9999"));
    EXPECT_EQ("", Cell(row, MNUM));
}

TEST_F(ColumnChecks, ThePrimaryIsTheRowsOwnNumber) {
    for (const char* text : {"", "003", "junk"}) {
        ExpectAll(p25Pages, {{{PRIM}, text, "042", Plain, "", MNUM, "042"}, {{PRIM}, text, ""}});
        ExpectAll(analogPages, {{{PRIM}, text, "", Plain, "", MNUM, "042"}});
    }
}

TEST_F(ColumnChecks, ShadowTextsArePlainPrimaryOrShadow) {
    ExpectAll(p25Pages, {{{SHAD}, "N", "N"},
                         {{SHAD}, "P-2", "P-2"},
                         {{SHAD}, "S-007", "S-007"},
                         {{SHAD}, "P-", "P-"},
                         {{SHAD}, "S-anything", "S-anything"},
                         {{SHAD}, "", "N"},
                         {{SHAD}, "n", "N"},
                         {{SHAD}, "Y", "N"},
                         {{SHAD}, "p-1", "N"},
                         {{SHAD}, "S", "N"},
                         {{SHAD}, " P-1", "N"},
                         {{SHAD}, "NN", "N"}});
    ExpectAll(analogPages, {{{SHAD}, "N", ""}, {{SHAD}, "P-2", ""}, {{SHAD}, "", ""}});
}

TEST_F(ColumnChecks, ShadowTextsAnswerWhatTheyAre) {
    Become(Rp25);
    EXPECT_EQ(0, CheckShad(CurrentGrid(), row, "N"));
    EXPECT_EQ(0, CheckShad(CurrentGrid(), row, "P-1"));
    EXPECT_EQ(-1, CheckShad(CurrentGrid(), row, "Q"));
    Become(Anfm);
    EXPECT_EQ(-2, CheckShad(CurrentGrid(), row, "N"));
}

TEST_F(ColumnChecks, BandsBelongToTheModule) {
    ExpectAll({Anfm, Rp25, Np25, O12Page, KdarPage, Anam, Fxam},
              {{{BAND}, "FM 30-50", ""}, {{BAND}, "", ""}, {{BAND}, "junk", ""}});
    ExpectAll({Mdlx}, {{{BAND}, "FM 30-50", "before"},
                       {{BAND}, "AM 108-138", "before"},
                       {{BAND}, "AM 225-400", "before"},
                       {{BAND}, "FM 66-88", "dflt", Painted},
                       {{BAND}, "", "dflt", Painted},
                       {{BAND}, "fm 30-50", "dflt", Painted}});
}

TEST_F(ColumnChecks, ScanIsYesOrNoOnP25AndKdarPages) {
    ExpectAll({Rp25, Np25, KdarPage}, {{{SCAN}, "1", "Y"},
                                       {{SCAN}, "Y", "Y"},
                                       {{SCAN}, "Yes", "Y"},
                                       {{SCAN}, "N", "N"},
                                       {{SCAN}, "", "N"},
                                       {{SCAN}, "y", "N"},
                                       {{SCAN}, "yes", "N"},
                                       {{SCAN}, "0", "N"},
                                       {{SCAN}, "01", "N"},
                                       {{SCAN}, "31", "N"},
                                       {{SCAN}, "Yes ", "N"},
                                       {{SCAN}, "1_3__", "N"}});
}

TEST_F(ColumnChecks, ScanIsAMaskOnOtherPages) {
    ExpectAll(maskPages, {{{SCAN}, "0", "0"},
                          {{SCAN}, "7", "7"},
                          {{SCAN}, "07", "07"},
                          {{SCAN}, "31", "31"},
                          {{SCAN}, "", ""},
                          {{SCAN}, "Y", "Y"},
                          {{SCAN}, "32", "dflt", Painted},
                          {{SCAN}, "99", "dflt", Painted},
                          {{SCAN}, "-1", "dflt", Painted},
                          {{SCAN}, "1_3__", "5"},
                          {{SCAN}, "12345", "31"},
                          {{SCAN}, "_____", "0"},
                          {{SCAN}, "L", "L"},
                          {{SCAN}, "L2345", "0"},
                          {{SCAN}, "1_3_", "5"},
                          {{SCAN}, "1234", "15"},
                          {{SCAN}, "123456", "dflt", Painted}});
}

TEST_F(ColumnChecks, ScanOfThreeCharactersFallsBackToTheDefault) {
    ExpectAll(maskPages, {{{SCAN}, "031", "dflt", Painted}, {{SCAN}, "1_3", "dflt", Painted}});
}

TEST_F(ColumnChecks, ScanOfAGuardRowIsTheDefaultUnpainted) {
    for (Page page : {Anfm, Rp25, Np25}) {
        Become(page);
        SetCell(0, SCAN, "dflt");
        for (int guard : {GD1, GD2})
            for (const char* text : {"Y", "7", "1_3__", "", "junk"}) {
                CheckScan(CurrentGrid(), guard, text);
                EXPECT_EQ("dflt", Cell(guard, SCAN)) << "page " << page << ", " << text;
                EXPECT_FALSE(IsPainted(SCAN, guard)) << "page " << page << ", " << text;
            }
    }
}

TEST_F(ColumnChecks, ZonesBelongToP25Pages) {
    ExpectAll(analogPages, {{{ZONE}, "3", ""}, {{ZONE}, "", ""}});
    ExpectAll(p25Pages, {{{ZONE}, "3", "3"}, {{ZONE}, "16", "16"}, {{ZONE}, "junk", "1"}, {{ZONE}, "", "1"}});
    ExpectAll({Rp25}, {{{ZONE}, "X", "1"}});
    ExpectAll({Np25}, {{{ZONE}, "X", "X"}});
}

TEST_F(ColumnChecks, DescriptionsAreUpperCaseOnAnfmPages) {
    ExpectAll({Anfm}, {{{DESC}, "Tower 1", "TOWER 1"},
                       {{DESC}, "abcdefghijk", "ABCDEFGHI"},
                       {{DESC}, "a!b\"c#d", "A B C D"},
                       {{DESC}, "", ""},
                       {{DESC}, "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x93\xBBx", "   X"},
                       {{DESC}, "a\tb\nc\x7F", "A B C "}});
}

TEST_F(ColumnChecks, DescriptionsKeepTheirCaseOnOtherPages) {
    ExpectAll({Mdlx},
              {{{DESC}, "Tower 1", "Tower 1"}, {{DESC}, "abcdefghijk", "abcdefghi"}, {{DESC}, "a!b", "a b"}});
    ExpectAll({O12Page, KdarPage, Anam, Fxam}, {{{DESC}, "Tower 1", "Tower 1"},
                                                {{DESC}, "abcdefghijklmno", "abcdefghijklmno"},
                                                {{DESC}, "a!b~", "a b "}});
}

TEST_F(ColumnChecks, DescriptionsOfP25HaveEightCharacters) {
    ExpectAll(p25Pages, {{{DESC}, "Tower 1", "Tower 1"},
                         {{DESC}, "abcdefghijk", "abcdefgh"},
                         {{DESC}, "a!b\"c#d", "a!b\"c#d"},
                         {{DESC}, "{|}~z", "    z"},
                         {{DESC}, "", ""},
                         {{DESC}, "\xC3\xA4z", " z"}});
}

TEST_F(ColumnChecks, ModesGetThePagesCase) {
    ExpectAll(p25Pages, {{{MODE}, "w", "w"},
                         {{MODE}, "W", "w"},
                         {{MODE}, "n", "n"},
                         {{MODE}, "N", "n"},
                         {{MODE}, "D", "D"},
                         {{MODE}, "d", "dflt", Painted},
                         {{MODE}, "", "dflt", Painted},
                         {{MODE}, "Wide", "dflt", Painted}});
    ExpectAll(analogPages, {{{MODE}, "w", "W"},
                            {{MODE}, "W", "W"},
                            {{MODE}, "n", "N"},
                            {{MODE}, "N", "N"},
                            {{MODE}, "D", "dflt", Painted},
                            {{MODE}, "", "dflt", Painted},
                            {{MODE}, " W", "dflt", Painted}});
}

TEST_F(ColumnChecks, FrequenciesLieWithinThePagesBand) {
    const std::vector<int> both{RFRQ, TFRQ};
    ExpectAll({Anfm, Fxam}, {{both, "66.0000", "66.0000"},
                             {both, "70.1", "70.1"},
                             {both, "70.12345", "70.12345"},
                             {both, "88.0000", "88.0000"},
                             {both, "88.0001", "dflt", Painted},
                             {both, "65.9999", "dflt", Painted},
                             {both, "", "dflt", Painted},
                             {both, "70", "dflt", Painted},
                             {both, "n/a", "dflt", Painted},
                             {both, "70.1.2", "dflt", Painted},
                             {both, "0070.1", "dflt", Painted},
                             {both, "70.123456", "dflt", Painted},
                             {both, ".5", "dflt", Painted},
                             {both, "-70.1", "dflt", Painted}});
    ExpectAll(p25Pages, {{both, "136.0000", "136.0000"},
                         {both, "174.0000", "174.0000"},
                         {both, "174.0001", "dflt", Painted},
                         {both, "135.9999", "dflt", Painted},
                         {both, "", "dflt", Painted}});
    ExpectAll(
        {O12Page, KdarPage},
        {{both, "118.000", "118.000"}, {both, "117.975", "dflt", Painted}, {both, "138.1", "dflt", Painted}});
    ExpectAll(
        {Anam},
        {{both, "225.0000", "225.0000"}, {both, "400.0000", "400.0000"}, {both, "118.000", "dflt", Painted}});
}

TEST_F(ColumnChecks, FrequenciesOfTheModuleLieWithinTheirRowsBand) {
    const std::vector<int> both{RFRQ, TFRQ};
    ExpectAll({Mdlx}, {{both, "40.0000", "40.0000", Plain, "", BAND, "FM 30-50"},
                       {both, "300.0000", "300.0000", Plain, "", BAND, "AM 225-400"},
                       {both, "300.0000", "dflt", Painted, "", BAND, "FM 30-50"},
                       {both, "900.0000", "dflt", Painted, "", BAND, "FM 30-50"},
                       {both, "40.0000", "dflt", Painted, "", BAND, ""},
                       {both, "40.0000", "dflt", Painted, "", BAND, "no band"},
                       {{RFRQ}, "117.000", "117.000", Plain, "", BAND, "AM 108-138"},
                       {{RFRQ}, "55.000", "dflt", Painted, "", BAND, "AM 108-138"}});
}

TEST_F(ColumnChecks, ATransmitFrequencyOfAnAm108RowOfTheModuleIsNeverRefused) {
    for (const char* receive : {"117.000", "125.000", ""})
        for (const char* text : {"117.000", "55.000", "n/a", "", "junk"}) {
            Become(Mdlx);
            SetCell(row, BAND, "AM 108-138");
            SetCell(row, RFRQ, receive);
            EXPECT_EQ(0, CheckFreq(CurrentGrid(), row, TFRQ, text)) << '"' << text << '"';
            EXPECT_EQ(text, Cell(row, TFRQ).utf8_string());
            EXPECT_FALSE(IsPainted(TFRQ)) << '"' << text << '"';
        }
}

TEST_F(ColumnChecks, FrequenciesAnswerWhetherTheyStand) {
    EXPECT_EQ(0, CheckFreq(CurrentGrid(), row, RFRQ, "70.0000"));
    EXPECT_EQ(-1, CheckFreq(CurrentGrid(), row, RFRQ, "89.0000"));
}

TEST_F(ColumnChecks, SquelchLettersFollowTheMode) {
    for (const char* mode : {"w", "n", ""})
        ExpectAll(p25Pages, {{{RSQL, TSQL}, "x", "x", Plain, "", MODE, mode},
                             {{RSQL, TSQL}, "t", "t", Plain, "", MODE, mode},
                             {{RSQL, TSQL}, "c", "c", Plain, "", MODE, mode},
                             {{TSQL}, "-", "-", Plain, "", MODE, mode},
                             {{RSQL}, "-", "dflt", Painted, "", MODE, mode},
                             {{RSQL, TSQL}, "m", "dflt", Painted, "", MODE, mode},
                             {{RSQL, TSQL}, "g", "dflt", Painted, "", MODE, mode},
                             {{RSQL, TSQL}, "X", "dflt", Painted, "", MODE, mode},
                             {{RSQL, TSQL}, "", "dflt", Painted, "", MODE, mode}});
    ExpectAll(p25Pages, {{{RSQL}, "m", "m", Plain, "", MODE, "D"},
                         {{RSQL}, "n", "n", Plain, "", MODE, "D"},
                         {{RSQL}, "g", "g", Plain, "", MODE, "D"},
                         {{RSQL}, "i", "dflt", Painted, "", MODE, "D"},
                         {{TSQL}, "g", "g", Plain, "", MODE, "D"},
                         {{TSQL}, "i", "i", Plain, "", MODE, "D"},
                         {{TSQL}, "-", "-", Plain, "", MODE, "D"},
                         {{TSQL}, "m", "dflt", Painted, "", MODE, "D"},
                         {{RSQL, TSQL}, "x", "dflt", Painted, "", MODE, "D"},
                         {{RSQL, TSQL}, "", "dflt", Painted, "", MODE, "D"}});
    ExpectAll(analogPages, {{{RSQL, TSQL}, "x", ""}, {{RSQL, TSQL}, "", ""}, {{RSQL, TSQL}, "junk", ""}});
}

TEST_F(ColumnChecks, SquelchValuesBelongToTheSecondGeneration) {
    ExpectAll({Np25}, {{{RNSV}, "0", "0"},
                       {{RNSV}, "10", "10"},
                       {{RNSV}, "15", "15"},
                       {{RNSV}, "16", "dflt", Painted},
                       {{RNSV}, "-1", "dflt", Painted},
                       {{RNSV}, "99999999999", "dflt", Painted},
                       {{RNSV}, "", ""},
                       {{RNSV}, "x", "x"}});
    ExpectAll({Anfm, Rp25, Mdlx, O12Page, KdarPage, Anam, Fxam}, {{{RNSV}, "10", ""}, {{RNSV}, "", ""}});
}

TEST_F(ColumnChecks, TonesOfFmPagesAreThoseOfTheList) {
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

TEST_F(ColumnChecks, TonesOfP25PagesAreThoseOfTheirOwnList) {
    const std::vector<int> both{RTON, TTON};
    ExpectAll(p25Pages, {{both, "67.0", "67.0", Plain, "t"},
                         {both, "254.8", "254.8", Plain, "x"},
                         {both, "67.0", "67.0", Plain, "c"},
                         {both, "67.0", "67.0"},
                         {both, "OFF", "dflt", Painted},
                         {both, "OFF", "dflt", Painted, "t"},
                         {both, "33.0", "dflt", Painted, "t"},
                         {both, "", "dflt", Painted, "t"},
                         {both, "n/a", "dflt", Painted}});
}

TEST_F(ColumnChecks, TonesOfOtherPagesGo) {
    ExpectAll({O12Page, KdarPage, Anam, Fxam}, {{{RTON, TTON}, "67.0", ""},
                                                {{RTON, TTON}, "", ""},
                                                {{RTON, TTON}, "junk", ""},
                                                {{RTON, TTON}, "67.0", "", Plain, "t"}});
}

TEST_F(ColumnChecks, CodesOfFmPagesAreThoseOfTheList) {
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

TEST_F(ColumnChecks, CodesOfTheModuleAreAbsentInAmRows) {
    for (const char* band : {"AM 108-138", "AM 225-400", "AM 118-138"})
        ExpectAll({Mdlx}, {{{RCOD, TCOD}, "023", "n/a", Plain, "", BAND, band},
                           {{RCOD, TCOD}, "junk", "n/a", Plain, "c", BAND, band}});
    ExpectAll({Mdlx}, {{{RCOD, TCOD}, "023", "023", Plain, "", BAND, "FM 30-50"}});
}

TEST_F(ColumnChecks, CodesOfP25PagesAreNeverOff) {
    const std::vector<int> both{RCOD, TCOD};
    ExpectAll(p25Pages, {{both, "023", "023", Plain, "c"},
                         {both, "754", "754", Plain, "x"},
                         {both, "023", "023"},
                         {both, "OFF", "dflt", Painted},
                         {both, "000", "dflt", Painted},
                         {both, "OFF", "dflt", Painted, "c"},
                         {both, "junk", "dflt", Painted, "c"},
                         {both, "", "dflt", Painted, "c"}});
}

TEST_F(ColumnChecks, CodesOfAmPagesAreAbsent) {
    ExpectAll(
        {O12Page, KdarPage, Anam},
        {{{RCOD, TCOD}, "023", "n/a"}, {{RCOD, TCOD}, "", "n/a"}, {{RCOD, TCOD}, "junk", "n/a", Plain, "c"}});
}

TEST_F(ColumnChecks, CodesOfFxamPagesStand) {
    ExpectAll(
        {Fxam},
        {{{RCOD, TCOD}, "023", "023"}, {{RCOD, TCOD}, "junk", "junk", Plain, "t"}, {{RCOD, TCOD}, "", ""}});
}

TEST_F(ColumnChecks, AToneOrCodeSetsAnEmptySquelchOfAP25Row) {
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
        EXPECT_EQ(line.expected, Cell(row, line.squelchColumn).utf8_string())
            << ColumnTag[line.column] << " " << line.text;
        EXPECT_EQ("other", Cell(row, other)) << ColumnTag[line.column] << " " << line.text;
        SetCell(row, line.squelchColumn, "was");
        Check(line.column, line.text, "x");
        EXPECT_EQ("was", Cell(row, line.squelchColumn)) << ColumnTag[line.column] << " " << line.text;
    }
}

TEST_F(ColumnChecks, ReceiveToneAndCodeOfAnalogGuardRowsAreAbsent) {
    for (int guard : {GD1, GD2}) {
        CheckTone(CurrentGrid(), guard, RTON, "67.0", "x");
        CheckCode(CurrentGrid(), guard, RCOD, "023", "x");
        CheckTone(CurrentGrid(), guard, TTON, "67.0", "");
        CheckCode(CurrentGrid(), guard, TCOD, "023", "");
        EXPECT_EQ("n/a", Cell(guard, RTON));
        EXPECT_EQ("n/a", Cell(guard, RCOD));
        EXPECT_EQ("67.0", Cell(guard, TTON));
        EXPECT_EQ("023", Cell(guard, TCOD));
        EXPECT_FALSE(IsPainted(RTON, guard));
        EXPECT_FALSE(IsPainted(RCOD, guard));
    }
    Become(Np25);
    CheckTone(CurrentGrid(), GD1, RTON, "67.0", "t");
    EXPECT_EQ("67.0", Cell(GD1, RTON));
}

TEST_F(ColumnChecks, TalkGroupsAreFourHexadecimalDigits) {
    ExpectAll(p25Pages, {{{RTGP, TTGP}, "0001", "0001"},
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
    ExpectAll(analogPages, {{{RTGP, TTGP}, "0001", ""}, {{RTGP, TTGP}, "", ""}});
}

TEST_F(ColumnChecks, NacsAreThreeHexadecimalDigits) {
    ExpectAll(p25Pages, {{{RNAC, TNAC}, "293", "293"},
                         {{RNAC, TNAC}, "FFF", "FFF"},
                         {{RNAC, TNAC}, "3", "003"},
                         {{RNAC, TNAC}, "F7", "0F7"},
                         {{RNAC, TNAC}, "2934", "2934"},
                         {{RNAC, TNAC}, "", "dflt"},
                         {{RNAC, TNAC}, "29x", "dflt"},
                         {{RNAC, TNAC}, "x", "dflt"}});
    ExpectAll(analogPages, {{{RNAC, TNAC}, "293", ""}, {{RNAC, TNAC}, "", ""}});
}

TEST_F(ColumnChecks, UnitIdsHaveSevenDigits) {
    ExpectAll(p25Pages, {{{TIDC}, "", "0000001"},
                         {{TIDC}, "0", "0"},
                         {{TIDC}, "00000001", "00000001"},
                         {{TIDC}, "9999999", "9999999"},
                         {{TIDC}, "10000000", "dflt"},
                         {{TIDC}, "-1", "dflt"},
                         {{TIDC}, "99999999999999999999", "dflt"}});
    ExpectAll(analogPages, {{{TIDC}, "1", ""}, {{TIDC}, "", ""}});
}

TEST_F(ColumnChecks, ReceiveOnlyBelongsToKdarPages) {
    ExpectAll({KdarPage}, {{{RONL}, "Y", "before"}, {{RONL}, "", "before"}});
    ExpectAll({Anfm, Rp25, Np25, Mdlx, O12Page, Anam, Fxam}, {{{RONL}, "Y", ""}, {{RONL}, "", ""}});
}

TEST_F(ColumnChecks, EndlessTextsDoNoHarm) {
    for (Page page : allPages) {
        Become(page);
        for (int column = MNUM; column <= RONL; ++column)
            if (column < SHD0 || column > SHD6) {
                Check(column, LongText(), LongText());
                EXPECT_LE(Cell(row, column).length(), 5000u) << "page " << page << ", " << ColumnTag[column];
            }
    }
}
