// The lists of the analog radios.
#include "editing/ScanListCell.h"
#include "tests/files/ImportTest.h"

namespace {

class MultiZEL : public ImportTest {
protected:
    /// Writes a line into row 5 of the page.
    static void Write(const std::vector<std::pair<size_t, std::string>>& parts) {
        writeANFMToGrid(CurrentGrid(), wxString::FromUTF8(MultiZELLine("005", parts)));
    }
};

using namespace RadioCatalogue;

struct CellCase {
    size_t position;
    const char* text;
    int column;
    const char* cell;
};

} // namespace

TEST_F(MultiZEL, FieldsStandInTheirColumns) {
    RetargetTo("ANFM");
    const CellCase cases[] = {
        {4, "ABCDEFGHI", DESC, "ABCDEFGHI"},
        {14, "151.1375", RFRQ, "151.1375"},
        {25, "154.4525", TFRQ, "154.4525"},
        {43, "01", RTON, "67.0"},
        {48, "02", TTON, "71.9"},
        {58, "025", TCOD, "025"},
        {64, "026", RCOD, "026"},
        {70, "_2_4_", SCAN, "10"},
    };
    for (const CellCase& c : cases) {
        Write({{c.position, c.text}});
        EXPECT_EQ(Text(5, c.column), c.cell) << ColumnTag[c.column];
        EXPECT_FALSE(IsPainted(5, c.column)) << ColumnTag[c.column];
    }
    EXPECT_EQ(Text(5, MNUM), "005");
    EXPECT_EQ(Text(5, TFLG), "A0");
    EXPECT_EQ(Text(5, PRIM), "");
    EXPECT_EQ(Text(5, SHAD), "");
}

TEST_F(MultiZEL, FieldsEndWhereOthersCouldBegin) {
    RetargetTo("ANFM");
    // Different characters on both sides of every field.
    Write({{3, "9"},
           {13, "9"},
           {22, "9"},
           {24, "9"},
           {33, "9"},
           {42, "9"},
           {45, "9"},
           {47, "9"},
           {50, "9"},
           {57, "9"},
           {61, "9"},
           {63, "9"},
           {67, "9"},
           {69, "1"},
           {75, "1"},
           {4, "ABCDEFGHI"}});
    ExpectCells(5, {{MNUM, "005"},
                    {DESC, "ABCDEFGHI"},
                    {RFRQ, "155.7525"},
                    {TFRQ, "159.4725"},
                    {RTON, "156.7"},
                    {TTON, "136.5"},
                    {TCOD, "023"},
                    {RCOD, "754"},
                    {SCAN, "1"},
                    {MODE, "w"}});
}

TEST_F(MultiZEL, CodesStandTheOtherWayRoundThanInTheRadio) {
    RetargetTo("ANFM");
    Write({{58, "023"}, {64, "754"}});
    ExpectCells(5, {{TCOD, "023"}, {RCOD, "754"}});
}

TEST_F(MultiZEL, TonesAreFoundByTheirPosition) {
    RetargetTo("ANFM");
    for (const auto& [position, tone] :
         {std::pair("00", "OFF"), std::pair("25", "156.7"), std::pair("63", "250.3"), std::pair("64", "OFF"),
          std::pair("99", "OFF"), std::pair("  ", "OFF"), std::pair(" 1", "67.0"), std::pair("x1", "OFF")}) {
        Write({{43, position}, {48, position}});
        EXPECT_EQ(Text(5, RTON), tone) << position;
        EXPECT_EQ(Text(5, TTON), tone) << position;
    }
    Write({{43, "-1"}});
    EXPECT_EQ(Text(5, RTON), "OFF") << "repaired";
    EXPECT_TRUE(IsPainted(5, RTON));
}

TEST_F(MultiZEL, TheModeOfALineHasNoEffect) {
    for (const char* type : {"ANFM", "RP25", "MDLX", "ANAM"}) {
        RetargetTo(type);
        for (const char* mode : {"N", "n", "W", " "}) {
            Write({{75, mode}});
            EXPECT_EQ(Text(5, MODE), "w") << type << " " << mode;
        }
    }
}

TEST_F(MultiZEL, ScanMarksBecomeWhatThePageShows) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"ANFM", "1_3_5", "21"}, {"MDLX", "1_3_5", "21"}, {"ANFM", "L2345", "0"}, {"RP25", "_____", "N"},
        {"RP25", "1____", "Y"},  {"NP25", "L____", "N"},  {"KDAR", "1____", ""},  {"ANAM", "1____", ""},
    };
    for (const auto& [type, marks, scan] : cases) {
        RetargetTo(type);
        SetCell(5, SCAN, "");
        Write({{70, marks}});
        EXPECT_EQ(Text(5, SCAN), scan) << type << " " << marks;
    }
}

TEST_F(MultiZEL, ScanCellsOfAnalogPagesGetTheirBoxes) {
    RetargetTo("ANFM");
    Write({});
    const wxGridCellRendererPtr renderer(CurrentGrid()->GetCellRenderer(5, SCAN));
    EXPECT_NE(dynamic_cast<ScanlistRenderer*>(renderer.get()), nullptr);
}

TEST_F(MultiZEL, AlignmentOfAnAnalogFile) {
    // Rows: the page's band; columns: the source's band from 0 on; the last column is a frequency in no band.
    const int expected[9][10] = {
        {0, 2, 2, 2, 2, 2, 2, 2, 2, 2}, {2, 0, 2, 2, 2, 2, 2, 2, 2, 2}, {2, 2, 0, 2, 2, 2, 2, 2, 2, 2},
        {2, 2, 2, 0, 2, 2, 2, 2, 2, 2}, {2, 2, 2, 2, 0, 1, 2, 2, 2, 2}, {2, 2, 2, 2, 1, 0, 2, 2, 2, 2},
        {2, 2, 2, 2, 2, 2, 0, 2, 2, 2}, {2, 2, 2, 2, 2, 2, 2, 0, 2, 2}, {0, 2, 0, 2, 2, 2, 0, 2, 0, 2},
    };
    for (int page = 0; page < 9; ++page) {
        for (int source = 0; source < 10; ++source) {
            const int band = source == 9 ? -6 : source;
            EXPECT_EQ(AlignmentOf(0, band, page, ANFM), expected[page][source]) << page << " " << band;
            for (int type : {RP25, NP25, MDLX, O12, KDAR, ANAM, FXAM})
                EXPECT_EQ(AlignmentOf(0, band, page, type), expected[page][source] + 128)
                    << page << " " << band;
        }
    }
}

TEST_F(MultiZEL, AlignmentOfA716File) {
    for (int kind : {1, 2}) {
        for (int type : {ANFM, MDLX, O12, KDAR, ANAM, FXAM})
            for (int band = 0; band < 9; ++band)
                EXPECT_EQ(AlignmentOf(kind, 4, band, type), band == 5 ? 129 : 130) << type << " " << band;
        for (int type : {RP25, NP25})
            EXPECT_EQ(AlignmentOf(kind, 4, 4, type), 0);
    }
    for (int kind : {3, 4, 5, -1})
        EXPECT_EQ(AlignmentOf(kind, 0, 5, ANFM), 0) << kind;
}

TEST_F(MultiZEL, AlignmentAsksTheCurrentPage) {
    RetargetTo("ANFM");
    EXPECT_EQ(GetAlignment(0, 5), 0);
    EXPECT_EQ(GetAlignment(1, 4), 129);
    RetargetTo("RP25");
    EXPECT_EQ(GetAlignment(0, 5), 129);
    EXPECT_EQ(GetAlignment(2, 5), 0);
}

TEST_F(MultiZEL, FrequenciesOfTheNeighbourBandStay) {
    RetargetTo("RP25"); // band 4; the file's is 5
    Write({});
    ExpectCells(5, {{RFRQ, "155.7525"}, {TFRQ, "159.4725"}});
}

TEST_F(MultiZEL, FrequenciesOfAnotherBandBecomeTheBandsStart) {
    const std::tuple<int, int, const char*, const char*> cases[] = {
        // radio, band slot, frequency in the file, in the cells
        {Krv21, 0, "155.7525", "30.0000"},    {Krv47, 0, "155.7525", "66.0000"},
        {Orv12, 0, "155.7525", "118.0000"},   {Krv214, 0, "453.2125", "138.0000"},
        {Kdrv716, 0, "453.2125", "136.0000"}, {Krv620, 1, "155.7525", "225.0000"},
        {Krv305, 0, "155.7525", "403.0000"},  {Kdrv4xxx, ModuleSlot, "155.7525", "31.0000"},
        {Krv214, 0, "600.0000", "138.0000"},  {Krv214, 0, "        ", "138.0000"},
        {Krv214, 0, "1557525 ", "138.0000"},
    };
    for (const auto& [radio, slot, source, start] : cases) {
        SCOPED_TRACE(std::to_string(radio) + " " + source);
        Retarget(radio, slot);
        Write({{14, source}});
        ExpectCells(5, {{RFRQ, start}, {TFRQ, start}, {DESC, "VCALL10  "}, {MODE, "w"}});
    }
}

TEST_F(MultiZEL, TheModulesRowsAreOfItsFirstBand) {
    RetargetTo("MDLX");
    for (const auto& [frequency, kept] : {std::pair("039.4600", true), std::pair("121.5000", true),
                                          std::pair("243.0000", true), std::pair("155.7525", false)}) {
        Write({{14, frequency}});
        EXPECT_EQ(Text(5, BAND), "FM 30-50") << frequency;
        EXPECT_EQ(Text(5, RFRQ), kept ? frequency : "31.0000") << frequency;
    }
}

TEST_F(MultiZEL, RowsOfTheNextModulesPageAreOfTheirOwnBand) {
    RetargetTo("MDLX");
    CurrentParameters().Band = RadioCatalogue::K7Module;
    SetCell(0, BAND, "DEFAULT");
    for (const auto& [frequency, band] : {std::pair("039.4600", "FM 30-50"),
                                          {"077.6875", "FM 66-88"},
                                          {"121.5000", "AM 108-138"},
                                          {"155.7525", "FM 138-174"},
                                          {"243.0000", "AM 225-400"},
                                          {"453.2125", "FM 403-512"},
                                          {"600.0000", "DEFAULT"}}) {
        Write({{14, frequency}});
        EXPECT_EQ(Text(5, BAND), band) << frequency;
    }
    CurrentParameters().Band = RadioCatalogue::K6Module;
}

TEST_F(MultiZEL, ADigitalPageTakesItsDefaultRowsDigitalFields) {
    for (const char* type : {"RP25", "NP25"}) {
        SCOPED_TRACE(type);
        RetargetTo(type);
        SetCells(0, {{RSQL, "t"},
                     {RNSV, "7"},
                     {RTGP, "1234"},
                     {RNAC, "F7E"},
                     {TSQL, "t"},
                     {TTGP, "4321"},
                     {TNAC, "68A"},
                     {TIDC, "0000042"}});
        Write({});
        ExpectCells(5, {{MNUM, "005"},
                        {PRIM, "005"},
                        {SHAD, "N"},
                        {ZONE, "1"},
                        {RSQL, "t"},
                        {TSQL, "t"},
                        {RTGP, "1234"},
                        {RNAC, "F7E"},
                        {TTGP, "4321"},
                        {TNAC, "68A"},
                        {TIDC, "0000042"},
                        {RTON, "156.7"},
                        {TTON, "136.5"},
                        {RCOD, "754"},
                        {TCOD, "023"},
                        {TFLG, "A8"}});
        EXPECT_EQ(Text(5, RNSV), std::string(type) == "NP25" ? "7" : "");
    }
}

TEST_F(MultiZEL, AToneThatADigitalPageLacksIsRepaired) {
    RetargetTo("RP25");
    Write({{43, "00"}, {64, "000"}});
    ExpectCells(5, {{RTON, "67.0"}, {RCOD, "023"}});
    EXPECT_TRUE(IsPainted(5, RTON));
    EXPECT_TRUE(IsPainted(5, RCOD));
}

TEST_F(MultiZEL, NoCodeOnAnAnalogPageIsOff) {
    RetargetTo("ANFM");
    Write({{58, "000"}, {64, "000"}});
    ExpectCells(5, {{RCOD, "OFF"}, {TCOD, "OFF"}});
}

TEST_F(MultiZEL, AirbandPagesHaveNoTones) {
    RetargetTo("KDAR");
    Write({{14, "121.5000"}});
    ExpectCells(5, {{RTON, ""}, {TTON, ""}, {RCOD, "n/a"}, {TCOD, "n/a"}, {ZONE, ""}});
}

TEST_F(MultiZEL, AllLinesCount) {
    RetargetTo("ANFM");
    EXPECT_EQ(Import(MultiZELFileOf({MultiZELLine("007"), "", "   ", MultiZELLine("   "), MultiZELLine("103"),
                                     MultiZELLine("-01"), MultiZELLine("999")})),
              9);
    EXPECT_EQ(FilledRows(0), Rows({0, 1, 2, 7}));
    EXPECT_EQ(Text(0, DESC), "VHF   138") << "a line without a number writes nothing";
}

TEST_F(MultiZEL, ATextThatIsNoNumberIsRowZero) {
    RetargetTo("ANFM");
    EXPECT_EQ(Import(MultiZELFileOf({MultiZELLine("abc", {{4, "HERE     "}})})), 3);
    EXPECT_EQ(Text(0, DESC), "HERE     ");
    EXPECT_EQ(FilledRows(0), Rows({0, 1, 2}));
}

TEST_F(MultiZEL, AShortLineIsReadAsFarAsItGoes) {
    RetargetTo("ANFM");
    EXPECT_EQ(Import(MultiZELFileOf({"007 SHORT", "008 CUT       155.7525   159.4725"})), 4);
    ExpectCells(7, {{MNUM, "007"}, {DESC, "SHORT"}, {RFRQ, "138.0000"}, {TFRQ, "138.0000"}, {RTON, "OFF"}});
    ExpectCells(8, {{DESC, "CUT      "}, {RFRQ, "155.7525"}, {TFRQ, "159.4725"}, {SCAN, "0"}});
}

TEST_F(MultiZEL, ARowThatComesAgainHoldsItsLastLineAndOneZoneSlot) {
    RetargetTo("RP25");
    EXPECT_EQ(Import(MultiZELFileOf({MultiZELLine("007"), MultiZELLine("007", {{4, "LAST     "}})})), 4);
    EXPECT_EQ(Text(7, DESC), "LAST     ");
    EXPECT_EQ(TakenSlots(), 3);
}

TEST_F(MultiZEL, LinesMayEndInAnyWayAndTheLastInNone) {
    RetargetTo("ANFM");
    for (const char* end : {"\n", "\r", "\r\n"}) {
        std::string bytes = MultiZELFileOf({MultiZELLine("003")}, end);
        EXPECT_EQ(Import(bytes), 3);
        bytes.resize(bytes.size() - std::string(end).size());
        EXPECT_EQ(Import(bytes), 3);
        EXPECT_EQ(FilledRows(0), Rows({0, 1, 2, 3}));
    }
}

TEST_F(MultiZEL, NamesAreUtf8OrLatin1) {
    Retarget(Krv630, 1);
    for (const char* name : {"krv-630-vhf-towns-latin1.630", "krv-630-vhf-towns-utf8.630"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(Import(SampleFile(name)), 30);
        ExpectCells(1, {{MNUM, "001"}, {DESC, "M\xC3\x9CNCHEN  "}, {RFRQ, "155.7525"}});
        ExpectCells(2, {{DESC, "\xC3\x85RE      "}, {RFRQ, "151.1375"}});
        ExpectCells(3, {{DESC, "GEN\xC3\x88VE   "}, {TFRQ, "154.4525"}});
    }
}

TEST_F(MultiZEL, TheSamplesHoldTheirChannels) {
    const std::tuple<const char*, int, int, int, int, const char*, const char*, const char*> cases[] = {
        // file, radio, band slot, lines, row, description, frequencies
        {"krv-630-vhf.630", 11, 1, 30, 6, "VTAC36   ", "151.1375", "159.4725"},
        {"krv-630-vhf-cr.630", 11, 1, 30, 30, "CH 22A   ", "157.1000", "157.1000"},
        {"krv-650-low.650", 13, 0, 4, 2, "LFIRE2   ", "039.4800", "039.4800"},
        {"krv-650-uhf.650", 13, 2, 8, 8, "GMRS 20  ", "462.6750", "462.6750"},
        {"krv-666-mid.666", 15, 0, 2, 2, "MID 77   ", "077.6875", "084.0500"},
    };
    for (const auto& [name, radio, slot, lines, row, description, receive, transmit] : cases) {
        SCOPED_TRACE(name);
        Retarget(radio, slot);
        EXPECT_EQ(Import(SampleFile(name)), lines);
        EXPECT_EQ(FilledRows(0).size(), static_cast<size_t>(lines) + 1);
        ExpectCells(row,
                    {{DESC, description}, {RFRQ, receive}, {TFRQ, transmit}, {TCOD, "023"}, {RCOD, "754"}});
    }
}
