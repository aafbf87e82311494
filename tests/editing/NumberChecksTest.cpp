// Checks of memory numbers, links to primaries, squelch values and unit ids.
#include "tests/editing/ColumnCheckTest.h"
#include "tests/support/Modals.h"

#include <map>

namespace {

class NumberChecks : public ColumnCheckTest {};

} // namespace

TEST_F(NumberChecks, NumbersGetThreeDigits) {
    ExpectAll(AllPages, {{{MNUM}, "", ""},
                         {{MNUM}, "3", "003"},
                         {{MNUM}, "005", "005"},
                         {{MNUM}, "0", "000"},
                         {{MNUM}, " 4", "004"},
                         {{MNUM}, "4x", "004"},
                         {{MNUM}, "abc", "000"},
                         {{MNUM}, "-5", "-05"}});
}

TEST_F(NumberChecks, ANumberAboveThePagesRowsGoes) {
    ExpectAll(AllPages, {{{MNUM}, "9999", ""}, {{MNUM}, "503", ""}, {{MNUM}, "99999999999999999999", ""}});
    // A number below the 32-bit range doesn't become another number either.
    ExpectAll(AllPages, {{{MNUM}, "-99999999999999999999", ""}, {{MNUM}, "-3000000000", ""}});
    for (const auto& [page, rows] :
         std::map<Page, int>{{Anfm, 122}, {Rp25, 232}, {Mdlx, 500}, {O12Page, 6}}) {
        Become(page);
        SetCell(rows, MNUM, "");
        CheckMNum(CurrentGrid(), row, wxString::Format("%d", rows));
        EXPECT_EQ(Cell(row, MNUM), wxString::Format("%03d", rows)) << "page " << page;
        CheckMNum(CurrentGrid(), row, wxString::Format("%d", rows + 1));
        EXPECT_EQ(Cell(row, MNUM), "") << "page " << page;
    }
}

TEST_F(NumberChecks, ANumberThatAnotherRowHoldsIsToldAndGoes) {
    SetCell(12, MNUM, "7");
    {
        testbench::DialogScript dialogs;
        dialogs.ExpectMessage("Error", "Number already used at row: 012")
            .Style(wxOK | wxCENTRE | wxICON_INFORMATION);
        EXPECT_EQ(CheckMNum(CurrentGrid(), row, "007"), -1);
    }
    EXPECT_EQ(Cell(row, MNUM), "");
    EXPECT_FALSE(IsPainted(MNUM));
    EXPECT_EQ(Cell(12, MNUM), "7") << "the other row keeps its number";
    EXPECT_EQ(CheckMNum(CurrentGrid(), 12, "7"), 0) << "a row is no rival to itself";
}

TEST_F(NumberChecks, ANumberAboveTheRowsIsStillSearchedFor) {
    SetCell(12, MNUM, "9999");
    testbench::DialogScript dialogs;
    dialogs.ExpectMessage("Error", "Number already used at row: 012");
    EXPECT_EQ(CheckMNum(CurrentGrid(), row, "9999"), -1);
    EXPECT_EQ(Cell(row, MNUM), "");
}

TEST_F(NumberChecks, ThePrimaryIsTheRowsOwnNumber) {
    for (const char* text : {"", "003", "junk"}) {
        ExpectAll(P25Pages, {{{PRIM}, text, "042", Plain, "", MNUM, "042"}, {{PRIM}, text, ""}});
        ExpectAll(AnalogPages, {{{PRIM}, text, "", Plain, "", MNUM, "042"}});
    }
}

TEST_F(NumberChecks, ShadowTextsArePlainPrimaryOrShadow) {
    ExpectAll(P25Pages, {{{SHAD}, "N", "N"},
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
    ExpectAll(AnalogPages, {{{SHAD}, "N", ""}, {{SHAD}, "P-2", ""}, {{SHAD}, "", ""}});
}

TEST_F(NumberChecks, ShadowTextsAnswerWhatTheyAre) {
    Become(Rp25);
    EXPECT_EQ(CheckShad(CurrentGrid(), row, "N"), 0);
    EXPECT_EQ(CheckShad(CurrentGrid(), row, "P-1"), 0);
    EXPECT_EQ(CheckShad(CurrentGrid(), row, "Q"), -1);
    Become(Anfm);
    EXPECT_EQ(CheckShad(CurrentGrid(), row, "N"), -2);
}

TEST_F(NumberChecks, SquelchValuesBelongToTheSecondGeneration) {
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

TEST_F(NumberChecks, UnitIdsHaveSevenDigits) {
    ExpectAll(P25Pages, {{{TIDC}, "", "0000001"},
                         {{TIDC}, "0", "0"},
                         {{TIDC}, "00000001", "00000001"},
                         {{TIDC}, "9999999", "9999999"},
                         {{TIDC}, "10000000", "dflt"},
                         {{TIDC}, "-1", "dflt"},
                         {{TIDC}, "99999999999999999999", "dflt"}});
    ExpectAll(AnalogPages, {{{TIDC}, "1", ""}, {{TIDC}, "", ""}});
}
