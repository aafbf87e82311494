#include "transfer/AnalogRecord.h"

#include "editing/FrequencyCell.h"
#include "tests/support/ZelkWindowTest.h"
#include "transfer/TransferContext.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace {

std::string Text(const wxString& text) {
    return text.utf8_string();
}

class AnalogRecord : public ZelkWindowTest {
protected:
    /// Fills row 1 to 9 of a low band FM page, or a guard, as a user would.
    static void FillRow(int row, const wxString& number) {
        const std::pair<int, wxString> cells[] = {
            {MNUM, number}, {SCAN, "5"},    {DESC, "HILL 4"}, {MODE, "W"},   {RFRQ, "66.025"}, {RTON, "67.0"},
            {RCOD, "023"},  {TFRQ, "70.5"}, {TTON, "250.3"},  {TCOD, "754"}, {TFLG, TflgMade},
        };
        for (const auto& [column, text] : cells)
            SetCell(row, column, text);
    }

    static std::string CellText(int row, int column) { return Text(Cell(row, column)); }

    std::string Line(int row) {
        wxString out;
        m_errors = encodeAnalogRecord(m_context, CurrentGrid(), row, out);
        return Text(out);
    }

    int Read(const wxString& line) { return decodeAnalogRecord(m_context, CurrentGrid(), line); }

    static wxArrayString AllCells() {
        wxArrayString all;
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            for (const wxString& text : GetRowValues(CurrentPage, row))
                all.push_back(text);
        return all;
    }

    /// Fills the default row with texts that no line of the tests contains.
    static void FillDefaults() {
        const std::pair<int, const char*> cells[] = {{RFRQ, "87.5000"}, {TFRQ, "86.5000"}, {RTON, "71.9"},
                                                     {TTON, "74.4"},    {RCOD, "031"},     {TCOD, "032"}};
        for (const auto& [column, text] : cells)
            SetCell(0, column, text);
    }

    static bool IsPainted(int row, int column) {
        return CurrentGrid()->GetCellBackgroundColour(row, column) == FailColour;
    }

    /// A cell of a row that was read, and whether the line contained it.
    struct CutCell {
        int column;
        const char* text;
        bool came;
    };

    /// Reads a line of memory 1 into an empty row and checks each cell that a line can fill.
    void CheckCut(const wxString& line, std::initializer_list<CutCell> cells) {
        for (int column = 0; column < ColumnTotal; ++column) {
            SetCell(1, column, "");
            CurrentGrid()->SetCellBackgroundColour(1, column, *wxWHITE);
        }
        ASSERT_EQ(Read(line), 1) << Text(line);
        for (const auto& [column, text, came] : cells) {
            EXPECT_EQ(CellText(1, column), came ? text : CellText(0, column))
                << Text(line) << ", " << ColumnTag[column];
            EXPECT_EQ(IsPainted(1, column), !came) << Text(line) << ", " << ColumnTag[column];
        }
        const size_t scanEnd = line.length() > 45 && line[45] != 'R' ? 64 : 75;
        const std::pair<int, wxString> always[] = {
            {MNUM, "001"},
            {DESC, line.Mid(4, 9)},
            {SCAN, line.length() >= scanEnd ? "5" : "0"},
            {MODE, line.length() > scanEnd ? "n" : "w"},
            {TFLG, "C0"},
        };
        for (const auto& [column, text] : always) {
            EXPECT_EQ(CellText(1, column), Text(text)) << Text(line) << ", " << ColumnTag[column];
            EXPECT_FALSE(IsPainted(1, column)) << Text(line) << ", " << ColumnTag[column];
        }
    }

    TransferContext m_context;
    int m_errors = -1;
};

const wxString Sent = "001 HILL 4    066.0250RX 070.5000TX CTCSS: 01RX 63TX DPL: 023RX 754TX 1_3__W";

const wxString Narrow = "001 HILL 4    066.0250RX 070.5000TX CTCSS: 01RX 63TX DPL: 023RX 754TX 1_3__N";
const wxString ShortNarrow = "001 HILL 4    066.0250RX 070.5000TX CTCSS: 12TX DPL: 025TX 1_3__N";

/// Sent, with its text from a position on replaced.
wxString With(size_t position, const wxString& text) {
    wxString line = Sent;
    return line.replace(position, text.length(), text);
}

} // namespace

TEST_F(AnalogRecord, GoesOutAsOneLine) {
    FillRow(1, "001");
    EXPECT_EQ(Line(1), Text(Sent));
    EXPECT_EQ(m_errors, 0);
}

TEST_F(AnalogRecord, OfACellEntersTheLineInItsForm) {
    struct {
        const char* name;
        int column;
        wxString cell;
        size_t position;
        const char* sent;
    } const cases[] = {
        {"number", MNUM, "17", 0, "017 "},
        {"scan 0", SCAN, "0", 70, "LOCK "},
        {"scan 31", SCAN, "31", 70, "12345"},
        {"scan 5", SCAN, "5", 70, "1_3__"},
        {"scan out of range", SCAN, "32", 70, "LOCK "},
        {"no scan", SCAN, "", 70, "LOCK "},
        {"short description", DESC, "A", 4, "A         066"},
        {"long description", DESC, "ABCDEFGHIJKL", 4, "ABCDEFGHI 066"},
        {"description with blanks around", DESC, "  A B  ", 4, "A B       066"},
        {"no description", DESC, "", 4, "          066"},
        {"receive frequency", RFRQ, "30.0000", 14, "030.0000RX "},
        {"receive frequency with blanks around", RFRQ, " 30.0 ", 14, "030.0000RX "},
        {"receive frequency with five decimals", RFRQ, "118.12345", 14, "118.1234RX "},
        {"receive frequency without point", RFRQ, "155", 14, "155.0000RX "},
        {"no receive frequency", RFRQ, "n/a", 14, "000.0000RX "},
        {"transmit frequency", TFRQ, "30.25", 25, "030.2500TX "},
        {"no transmit frequency", TFRQ, "", 25, "000.0000TX "},
        {"no receive tone", RTON, "OFF", 43, "64RX 63"},
        {"receive tone not settable", RTON, "n/a", 43, "64RX 63"},
        {"empty receive tone", RTON, "", 43, "64RX 63"},
        {"unknown receive tone", RTON, "12.3", 43, "64RX 63"},
        {"no transmit tone", TTON, "OFF", 48, "64TX "},
        {"transmit tone", TTON, "100.0", 48, "12TX "},
        {"no receive code", RCOD, "OFF", 58, "000RX 754"},
        {"receive code not settable", RCOD, "n/a", 58, "000RX 754"},
        {"empty receive code", RCOD, "", 58, "000RX 754"},
        {"long receive code", RCOD, "0231", 58, "000RX 754"},
        {"no transmit code", TCOD, "OFF", 64, "000TX "},
        {"short transmit code", TCOD, "23", 64, "000TX "},
        {"narrow", MODE, "n", 75, "N"},
        {"narrow as chosen", MODE, "N", 75, "N"},
        {"wide", MODE, "w", 75, "W"},
        {"no mode", MODE, "", 75, "N"},
        {"mode not settable", MODE, "n/a", 75, "N"},
        {"other mode", MODE, "D", 75, "D"},
    };
    for (const auto& c : cases) {
        FillRow(1, "001");
        SetCell(1, c.column, c.cell);
        EXPECT_EQ(Line(1), Text(With(c.position, c.sent))) << c.name << ": \"" << Text(c.cell) << "\"";
        EXPECT_EQ(m_errors, 0) << c.name;
    }
}

TEST_F(AnalogRecord, IsNumberedByItsMemoryNotByItsRow) {
    FillRow(4, "099");
    EXPECT_EQ(Line(4).substr(0, 4), "099 ");
}

TEST_F(AnalogRecord, OfAGuardNameGoesOutUnderTheGuardsNumber) {
    FillRow(121, "GD1");
    FillRow(122, "GD2");
    EXPECT_EQ(Line(121), Text(With(0, "121")));
    EXPECT_EQ(Line(122), Text(With(0, "122")));
    EXPECT_EQ(m_errors, 0);
}

TEST_F(AnalogRecord, WithoutANumberOfThePageIsAnErrorAndGoesOnBehindWhatStood) {
    const char* const numbers[] = {"0", "-1", "123", "", "abc", "4294967297"};
    for (const char* number : numbers) {
        FillRow(1, number);
        wxString out = "former";
        EXPECT_EQ(encodeAnalogRecord(m_context, CurrentGrid(), 1, out), 1) << number;
        EXPECT_EQ(Text(out), "former" + Text(Sent.Mid(4))) << number;
    }
}

TEST_F(AnalogRecord, BehindAGuardNameThatStoodHasNoReceiveToneCodeAndScan) {
    FillRow(1, "");
    wxString out = "GD9 ";
    EXPECT_EQ(encodeAnalogRecord(m_context, CurrentGrid(), 1, out), 1);
    EXPECT_EQ(Text(out), "GD9 HILL 4    066.0250RX 070.5000TX CTCSS: 63TX DPL: 754TX W");
}

TEST_F(AnalogRecord, OfAGuardNameOnAPageWithoutGuardsIsAnError) {
    Retarget(Krv610, 1);
    ASSERT_EQ(GD1, -1);
    FillRow(1, "GD1");
    Line(1);
    EXPECT_EQ(m_errors, 1);
}

TEST_F(AnalogRecord, OfAnEmptyRowOfAnAirbandPageKeepsItsColumns) {
    Retarget(Kdrv8400, 1);
    SetCell(1, MNUM, "001");
    SetCell(1, DESC, "TOWER");
    SetCell(1, RFRQ, "118.125");
    SetCell(1, TFRQ, "118.125");
    SetCell(1, SCAN, "0");
    EXPECT_EQ(Line(1), "001 TOWER     118.1250RX 118.1250TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N");
}

TEST_F(AnalogRecord, ThatIsReadFillsItsRow) {
    EXPECT_EQ(Read(Sent), 1);
    EXPECT_EQ(m_context.Work1, 1);
    const std::pair<int, const char*> expected[] = {
        {MFLG, ""},  {MNUM, "001"},     {PRIM, ""},          {SHAD, ""},      {BAND, ""},
        {SCAN, "5"}, {ZONE, ""},        {DESC, "HILL 4   "}, {MODE, "w"},     {RFRQ, "66.0250"},
        {RSQL, ""},  {RNSV, ""},        {RTON, "67.0"},      {RCOD, "023"},   {RTGP, ""},
        {RNAC, ""},  {TFRQ, "70.5000"}, {TSQL, ""},          {TTON, "250.3"}, {TCOD, "754"},
        {TTGP, ""},  {TNAC, ""},        {TIDC, ""},          {RONL, ""},      {TFLG, "C0"},
    };
    for (const auto& [column, text] : expected)
        EXPECT_EQ(CellText(1, column), text) << ColumnTag[column];
}

TEST_F(AnalogRecord, ThatWasReadGoesOutAsItCame) {
    ASSERT_EQ(Read(Sent), 1);
    EXPECT_EQ(Line(1), Text(Sent));
    ASSERT_EQ(Read(With(70, "LOCK N")), 1);
    EXPECT_EQ(Line(1), Text(With(70, "LOCK N")));
}

TEST_F(AnalogRecord, OfAFrequencyWithLeadingZeroIsReadWithoutIt) {
    ASSERT_EQ(Read(With(14, "030.0000")), 1);
    EXPECT_EQ(CellText(1, RFRQ), "30.0000");
    ASSERT_EQ(Read(With(14, "155.0000")), 1);
    EXPECT_EQ(CellText(1, RFRQ), "155.0000");
}

TEST_F(AnalogRecord, WithGuardNamesLandsInTheLastTwoRows) {
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 123);
    EXPECT_EQ(Read(With(0, "GD1")), 1);
    EXPECT_EQ(m_context.Work1, 121);
    EXPECT_EQ(CellText(121, MNUM), "121");
    EXPECT_EQ(CellText(121, DESC), "HILL 4   ");
    EXPECT_EQ(Read(With(0, "GD2")), 1);
    EXPECT_EQ(m_context.Work1, 122);
    EXPECT_EQ(CellText(122, MNUM), "122");
}

TEST_F(AnalogRecord, WithANumberOutsideTheGridIsRefused) {
    const wxArrayString before = AllCells();
    m_context.Work1 = -7;
    for (const char* number : {"000", "123", "999", "-01", "abc", "   ", "END", "GD3"})
        EXPECT_EQ(Read(With(0, number)), 0) << number;
    EXPECT_EQ(Read(""), 0);
    EXPECT_TRUE(AllCells() == before);
    EXPECT_EQ(m_context.Work1, -7);
    EXPECT_EQ(Read(With(0, "122")), 1);
}

TEST_F(AnalogRecord, WithParityBitsIsReadWithoutThem) {
    wxString marked;
    for (wxUniChar c : Sent)
        marked += wxUniChar(c.GetValue() | 0x80);
    EXPECT_EQ(Read(marked), 1);
    EXPECT_EQ(CellText(1, MNUM), "001");
    EXPECT_EQ(CellText(1, DESC), "HILL 4   ");
    EXPECT_EQ(CellText(1, RFRQ), "66.0250");
    EXPECT_EQ(CellText(1, TCOD), "754");
}

TEST_F(AnalogRecord, OfTheShortFormCannotSetReceiveToneAndCode) {
    EXPECT_EQ(Read("009 HILL 4    066.0250RX 070.5000TX CTCSS: 12TX DPL: 023TX LOCK N"), 1);
    EXPECT_EQ(CellText(9, RTON), "n/a");
    EXPECT_EQ(CellText(9, RCOD), "n/a");
    EXPECT_EQ(CellText(9, TTON), "100.0");
    EXPECT_EQ(CellText(9, TCOD), "023");
    EXPECT_EQ(CellText(9, SCAN), "0");
    EXPECT_EQ(CellText(9, MODE), "n");
}

TEST_F(AnalogRecord, CutBehindAnyCharacterGetsDefaultTextsPaintedForWhatDidNotCome) {
    FillDefaults();
    for (size_t length = 4; length <= Narrow.length(); ++length)
        CheckCut(Narrow.Left(length), {{RFRQ, "66.0250", length >= 22},
                                       {TFRQ, "70.5000", length >= 33},
                                       {RTON, "67.0", length >= 45},
                                       {TTON, "250.3", length >= 50},
                                       {RCOD, "023", length >= 61},
                                       {TCOD, "754", length >= 67}});
}

TEST_F(AnalogRecord, OfTheShortFormCutBehindAnyCharacterGetsDefaultTextsPaintedForWhatDidNotCome) {
    FillDefaults();
    // Up to this length the short form looks like the long one, whose first tone is the receive tone.
    for (size_t length = 4; length <= 45; ++length)
        CheckCut(ShortNarrow.Left(length), {{RFRQ, "66.0250", length >= 22},
                                            {TFRQ, "70.5000", length >= 33},
                                            {RTON, "100.0", length == 45},
                                            {TTON, "", false},
                                            {RCOD, "", false},
                                            {TCOD, "", false}});
    for (size_t length = 46; length <= ShortNarrow.length(); ++length)
        CheckCut(ShortNarrow.Left(length), {{RFRQ, "66.0250", true},
                                            {TFRQ, "70.5000", true},
                                            {RTON, "n/a", true},
                                            {TTON, "100.0", true},
                                            {RCOD, "n/a", true},
                                            {TCOD, "025", length >= 56}});
}

TEST_F(AnalogRecord, OfAModuleCutBehindAnyCharacterHasTheBandOfAWholeReceiveFrequencyOnly) {
    Retarget(Kdrv4xxx, ModuleSlot);
    FillDefaults();
    SetCell(0, BAND, "AM 225-400");
    for (size_t length = 4; length <= Narrow.length(); ++length)
        // The transmit tone alone shows that there are no codes.
        CheckCut(Narrow.Left(length), {{BAND, "FM 66-88", length >= 22},
                                       {RFRQ, "66.0250", length >= 22},
                                       {TFRQ, "70.5000", length >= 33},
                                       {RTON, "67.0", length >= 45},
                                       {TTON, "250.3", length >= 50},
                                       {RCOD, "OFF", length >= 50},
                                       {TCOD, "OFF", length >= 50}});
}

TEST_F(AnalogRecord, OfAModuleWithoutToneCutBehindAnyCharacterGetsDefaultTextsForItsCodes) {
    Retarget(Kdrv4xxx, ModuleSlot);
    FillDefaults();
    const wxString coded = wxString(Narrow).replace(48, 2, "00");
    for (size_t length = 50; length <= coded.length(); ++length)
        CheckCut(coded.Left(length),
                 {{TTON, "OFF", true}, {RCOD, "023", length >= 61}, {TCOD, "754", length >= 67}});
}

TEST_F(AnalogRecord, WithoutAWholeNumberFieldIsRefused) {
    FillDefaults();
    const wxArrayString before = AllCells();
    m_context.Work1 = -7;
    for (const wxString& line : {Narrow, ShortNarrow, With(0, "GD1")})
        for (size_t length = 0; length < 4; ++length)
            EXPECT_EQ(Read(line.Left(length)), 0) << length;
    EXPECT_EQ(Read(With(3, "4")), 0) << "a number of four digits";
    EXPECT_TRUE(AllCells() == before);
    EXPECT_EQ(m_context.Work1, -7);
}

TEST_F(AnalogRecord, ThatComesWholeAfterItCameCutIsNotPainted) {
    FillDefaults();
    ASSERT_EQ(Read(Narrow.Left(20)), 1);
    ASSERT_TRUE(IsPainted(1, RFRQ));
    ASSERT_EQ(Read(Narrow), 1);
    for (int column = 0; column < ColumnTotal; ++column)
        EXPECT_FALSE(IsPainted(1, column)) << ColumnTag[column];
}

TEST_F(AnalogRecord, OfTenThousandCharactersIsRead) {
    EXPECT_EQ(Read(Sent + wxString('x', 10000)), 1);
    EXPECT_EQ(CellText(1, TCOD), "754");
    EXPECT_EQ(CellText(1, MODE), "w");
    EXPECT_EQ(Read(wxString('0', 10000)), 0);
    EXPECT_EQ(Read("111 " + wxString('1', 10000)), 1);
    EXPECT_EQ(m_context.Work1, 111);
}

TEST_F(AnalogRecord, OfAModuleGetsTheBandOfItsFrequency) {
    Retarget(Kdrv4xxx, ModuleSlot);
    const std::pair<const char*, const char*> cases[] = {
        {"031.0000", "FM 30-50"},   {"066.0000", "FM 66-88"},   {"108.0000", "AM 108-138"},
        {"125.0000", "AM 108-138"}, {"150.0000", "FM 138-174"}, {"300.0000", "AM 225-400"},
        {"450.0000", "FM 403-512"}, {"900.0000", "K6 3-BAND"},
    };
    for (const auto& [frequency, band] : cases) {
        ASSERT_EQ(Read(With(14, frequency)), 1);
        EXPECT_EQ(CellText(1, BAND), band) << frequency;
        EXPECT_FALSE(CurrentGrid()->GetCellBackgroundColour(1, BAND) == FailColour) << frequency;
    }
}

TEST_F(AnalogRecord, OfAModuleIsEditedByTheBandOfItsFrequency) {
    Retarget(Kdrv4xxx, ModuleSlot);
    ASSERT_EQ(Read(With(14, "121.5000")), 1);
    for (int column : {RFRQ, TFRQ}) {
        const wxGridCellEditorPtr editor(CurrentGrid()->GetCellEditor(1, column));
        editor->Create(CurrentGrid()->GetGridWindow(), wxID_ANY, new wxEvtHandler);
        const auto* rules = dynamic_cast<const FrequencyValidator*>(editor->GetWindow()->GetValidator());
        ASSERT_NE(rules, nullptr) << column;
        EXPECT_EQ(rules->GetBand(), 2) << column;
        editor->Destroy();
    }
}

TEST_F(AnalogRecord, OfAModuleInNoBandGetsTheDefaultBandPainted) {
    Retarget(Kdrv4xxx, ModuleSlot);
    SetCell(0, BAND, "AM 225-400");
    int row = 1;
    for (const char* frequency : {"060.0000", "000.0000", "xxxxxxxx", "        "}) {
        ASSERT_EQ(Read(With(14, frequency).replace(0, 3, wxString::Format("%03d", row))), 1);
        EXPECT_EQ(CellText(row, BAND), "AM 225-400") << frequency;
        EXPECT_TRUE(CurrentGrid()->GetCellBackgroundColour(row, BAND) == FailColour) << frequency;
        ++row;
    }
}

TEST_F(AnalogRecord, OfAModuleWithTransmitToneHasNoCodes) {
    Retarget(Kdrv4xxx, ModuleSlot);
    ASSERT_EQ(Read(Sent), 1);
    EXPECT_EQ(CellText(1, RCOD), "OFF");
    EXPECT_EQ(CellText(1, TCOD), "OFF");
    EXPECT_EQ(CellText(1, RTON), "67.0");
    ASSERT_EQ(Read(With(48, "00")), 1);
    EXPECT_EQ(CellText(1, RCOD), "023");
    EXPECT_EQ(CellText(1, TCOD), "754");
}

TEST_F(AnalogRecord, OfAModuleReachesItsFiveHundredthRow) {
    Retarget(Kdrv4xxx, ModuleSlot);
    EXPECT_EQ(Read(With(0, "500")), 1);
    EXPECT_EQ(Read(With(0, "501")), 0);
    FillRow(500, "500");
    EXPECT_EQ(Line(500).substr(0, 4), "500 ");
    FillRow(500, "501");
    Line(500);
    EXPECT_EQ(m_errors, 1);
}

TEST_F(AnalogRecord, OfACodeOrToneThatTheListLacksIsRead) {
    ASSERT_EQ(Read(With(58, "999RX 998")), 1);
    EXPECT_EQ(CellText(1, RCOD), "OFF");
    EXPECT_EQ(CellText(1, TCOD), "OFF");
    ASSERT_EQ(Read(With(43, "99RX 65")), 1);
    EXPECT_EQ(CellText(1, RTON), "");
    EXPECT_EQ(CellText(1, TTON), "");
}

TEST_F(AnalogRecord, ToneOfACellIsTwoDigits) {
    FillRow(1, "001");
    EXPECT_EQ(Text(ToneToCode(CurrentGrid(), 1, RTON)), "01");
    EXPECT_EQ(Text(ToneToCode(CurrentGrid(), 1, TTON)), "63");
    SetCell(1, TTON, "OFF");
    EXPECT_EQ(Text(ToneToCode(CurrentGrid(), 1, TTON)), "64");
    EXPECT_EQ(Text(ToneToCode(CurrentGrid(), 2, TTON)), "64");
}
