// Checks of both frequencies.
#include "tests/editing/ColumnCheckTest.h"

namespace {

class FrequencyChecks : public ColumnCheckTest {};

} // namespace

TEST_F(FrequencyChecks, FrequenciesLieWithinThePagesBand) {
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
    ExpectAll(P25Pages, {{both, "136.0000", "136.0000"},
                         {both, "174.0000", "174.0000"},
                         {both, "174.0001", "dflt", Painted},
                         {both, "135.9999", "dflt", Painted},
                         {both, "", "dflt", Painted}});
    ExpectAll({O12Page, KdarPage}, {{both, "118.000", "118.000"},
                                    {both, "117.975", "dflt", Painted},
                                    {both, "138.1", "dflt", Painted},
                                    {both, "", "dflt", Painted}});
    ExpectAll({Anam}, {{both, "225.0000", "225.0000"},
                       {both, "400.0000", "400.0000"},
                       {both, "118.000", "dflt", Painted},
                       {both, "", "dflt", Painted}});
}

TEST_F(FrequencyChecks, FrequenciesOfTheModuleLieWithinTheirRowsBand) {
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

TEST_F(FrequencyChecks, ATransmitFrequencyOfAnAm108RowOfTheModuleIsNeverRefused) {
    for (const char* receive : {"117.000", "125.000", ""})
        for (const char* text : {"117.000", "55.000", "n/a", "", "junk"}) {
            Become(Mdlx);
            SetCell(row, BAND, "AM 108-138");
            SetCell(row, RFRQ, receive);
            EXPECT_EQ(CheckFreq(CurrentGrid(), row, TFRQ, text), 0) << '"' << text << '"';
            EXPECT_EQ(Cell(row, TFRQ).utf8_string(), text);
            EXPECT_FALSE(IsPainted(TFRQ)) << '"' << text << '"';
        }
}

TEST_F(FrequencyChecks, FrequenciesAnswerWhetherTheyStand) {
    EXPECT_EQ(CheckFreq(CurrentGrid(), row, RFRQ, "70.0000"), 0);
    EXPECT_EQ(CheckFreq(CurrentGrid(), row, RFRQ, "89.0000"), -1);
}

TEST_F(FrequencyChecks, FrequenciesOfOtherPagesDoNotDependOnTheirRowsBand) {
    for (const char* band : {"FM 30-50", "AM 108-138", "no band"}) {
        ExpectAll({Anfm, Fxam}, {{{RFRQ, TFRQ}, "70.0000", "70.0000", Plain, "", BAND, band},
                                 {{RFRQ, TFRQ}, "40.0000", "dflt", Painted, "", BAND, band}});
        ExpectAll(P25Pages, {{{RFRQ, TFRQ}, "140.0000", "140.0000", Plain, "", BAND, band},
                             {{RFRQ, TFRQ}, "117.000", "dflt", Painted, "", BAND, band}});
    }
}

TEST_F(FrequencyChecks, FrequenciesNeedNotLieOnTheChannelStep) {
    ExpectAll({Anfm, Fxam}, {{{RFRQ, TFRQ}, "70.00001", "70.00001"}, {{RFRQ, TFRQ}, "70.", "70."}});
    ExpectAll(P25Pages, {{{RFRQ, TFRQ}, "140.0013", "140.0013"}});
    ExpectAll({O12Page, KdarPage}, {{{RFRQ, TFRQ}, "120.0001", "120.0001"}});
    ExpectAll({Anam}, {{{RFRQ, TFRQ}, "300.00007", "300.00007"}});
}
