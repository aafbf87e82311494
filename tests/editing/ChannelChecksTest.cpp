// Checks of a channel's band, scan, zone, description and mode.
#include "editing/ScanListCell.h"
#include "tests/editing/ColumnCheckTest.h"

namespace {

class ChannelChecks : public ColumnCheckTest {};

} // namespace

TEST_F(ChannelChecks, BandsBelongToTheModule) {
    ExpectAll({Anfm, Rp25, Np25, O12Page, KdarPage, Anam, Fxam},
              {{{BAND}, "FM 30-50", ""}, {{BAND}, "", ""}, {{BAND}, "junk", ""}});
    ExpectAll({Mdlx}, {{{BAND}, "FM 30-50", "before"},
                       {{BAND}, "AM 108-138", "before"},
                       {{BAND}, "AM 225-400", "before"},
                       {{BAND}, "FM 66-88", "dflt", Painted},
                       {{BAND}, "", "dflt", Painted},
                       {{BAND}, "fm 30-50", "dflt", Painted}});
}

TEST_F(ChannelChecks, ScanIsYesOrNoOnP25AndKdarPages) {
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

TEST_F(ChannelChecks, ScanIsAMaskOnOtherPages) {
    ExpectAll(MaskPages, {{{SCAN}, "0", "0"},
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

TEST_F(ChannelChecks, ScanOfThreeCharactersFallsBackToTheDefault) {
    ExpectAll(MaskPages, {{{SCAN}, "031", "dflt", Painted}, {{SCAN}, "1_3", "dflt", Painted}});
}

TEST_F(ChannelChecks, ScanOfAGuardRowIsTheDefaultUnpainted) {
    for (Page page : {Anfm, Rp25, Np25}) {
        Become(page);
        SetCell(0, SCAN, "dflt");
        for (int guard : {GD1, GD2})
            for (const char* text : {"Y", "7", "1_3__", "", "junk"}) {
                CheckScan(CurrentGrid(), guard, text);
                EXPECT_EQ(Cell(guard, SCAN), "dflt") << "page " << page << ", " << text;
                EXPECT_FALSE(IsPainted(SCAN, guard)) << "page " << page << ", " << text;
            }
    }
}

TEST_F(ChannelChecks, ZonesBelongToP25Pages) {
    ExpectAll(AnalogPages, {{{ZONE}, "3", ""}, {{ZONE}, "", ""}});
    ExpectAll(P25Pages, {{{ZONE}, "3", "3"}, {{ZONE}, "16", "16"}, {{ZONE}, "junk", "1"}, {{ZONE}, "", "1"}});
    ExpectAll({Rp25}, {{{ZONE}, "X", "1"}});
    ExpectAll({Np25}, {{{ZONE}, "X", "X"}});
}

TEST_F(ChannelChecks, DescriptionsAreUpperCaseOnAnfmPages) {
    ExpectAll({Anfm}, {{{DESC}, "Tower 1", "TOWER 1"},
                       {{DESC}, "abcdefghijk", "ABCDEFGHI"},
                       {{DESC}, "a!b\"c#d", "A B C D"},
                       {{DESC}, "", ""},
                       {{DESC}, "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x93\xBBx", "   X"},
                       {{DESC}, "a\tb\nc\x7F", "A B C "}});
}

TEST_F(ChannelChecks, DescriptionsKeepTheirCaseOnOtherPages) {
    ExpectAll({Mdlx},
              {{{DESC}, "Tower 1", "Tower 1"}, {{DESC}, "abcdefghijk", "abcdefghi"}, {{DESC}, "a!b", "a b"}});
    ExpectAll({O12Page, KdarPage, Anam, Fxam}, {{{DESC}, "Tower 1", "Tower 1"},
                                                {{DESC}, "abcdefghijklmno", "abcdefghijklmno"},
                                                {{DESC}, "a!b~", "a b "}});
}

TEST_F(ChannelChecks, DescriptionsOfP25HaveEightCharacters) {
    ExpectAll(P25Pages, {{{DESC}, "Tower 1", "Tower 1"},
                         {{DESC}, "abcdefghijk", "abcdefgh"},
                         {{DESC}, "a!b\"c#d", "a!b\"c#d"},
                         {{DESC}, "{|}~z", "    z"},
                         {{DESC}, "", ""},
                         {{DESC}, "\xC3\xA4z", " z"}});
}

TEST_F(ChannelChecks, ModesGetThePagesCase) {
    ExpectAll(P25Pages, {{{MODE}, "w", "w"},
                         {{MODE}, "W", "w"},
                         {{MODE}, "n", "n"},
                         {{MODE}, "N", "n"},
                         {{MODE}, "D", "D"},
                         {{MODE}, "d", "dflt", Painted},
                         {{MODE}, "", "dflt", Painted},
                         {{MODE}, "Wide", "dflt", Painted}});
    ExpectAll(AnalogPages, {{{MODE}, "w", "W"},
                            {{MODE}, "W", "W"},
                            {{MODE}, "n", "N"},
                            {{MODE}, "N", "N"},
                            {{MODE}, "D", "dflt", Painted},
                            {{MODE}, "", "dflt", Painted},
                            {{MODE}, " W", "dflt", Painted}});
}

TEST_F(ChannelChecks, ReceiveOnlyBelongsToKdarPages) {
    ExpectAll({KdarPage}, {{{RONL}, "Y", "before"}, {{RONL}, "", "before"}});
    ExpectAll({Anfm, Rp25, Np25, Mdlx, O12Page, Anam, Fxam}, {{{RONL}, "Y", ""}, {{RONL}, "", ""}});
}

TEST_F(ChannelChecks, AScanMaskThatStandsGetsItsBoxes) {
    for (Page page : MaskPages)
        for (const char* text : {"7", "1_3__"}) {
            Become(page);
            CurrentGrid()->SetCellRenderer(row, SCAN, nullptr);
            CheckScan(CurrentGrid(), row, text);
            const wxGridCellRendererPtr renderer(CurrentGrid()->GetCellRenderer(row, SCAN));
            EXPECT_TRUE(dynamic_cast<ScanlistRenderer*>(renderer.get())) << "page " << page << ", " << text;
        }
}
