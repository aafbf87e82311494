// Checks of a complete row: their order, and their results.
#include "editing/ZelkEdit.h"
#include "tests/catalogue/PageTest.h"
#include "tests/support/Modals.h"

#include <map>

namespace {

constexpr int row = 5;

class CheckingARow : public PageTest {
protected:
    static bool IsPainted(int column, int ofRow = row) {
        return CurrentGrid()->GetCellBackgroundColour(ofRow, column) == wxColour(235, 125, 50);
    }

    static std::vector<int> PaintedColumns(int ofRow = row) {
        std::vector<int> columns;
        for (int col = 0; col < 32; ++col)
            if (IsPainted(col, ofRow))
                columns.push_back(col);
        return columns;
    }

    using Cells = std::map<int, const char*>;

    static void SetCells(const Cells& cells, int ofRow = row) {
        for (const auto& [column, text] : cells)
            SetCell(ofRow, column, text);
    }

    /// Fills a memory from the page's default row, with its own number.
    static void FillFromDefault(int ofRow = row) { FillRowsFromDefault({ofRow}); }

    static void ExpectCells(const Cells& cells, int ofRow = row) {
        for (const auto& [column, text] : cells)
            EXPECT_EQ(Cell(ofRow, column).utf8_string(), text) << ColumnTag[column];
    }
};

} // namespace

TEST_F(CheckingARow, ThatIsBlankLeavesItBlank) {
    for (int radio : {Krv47, Kdrv716, Kdar2000}) {
        Retarget(radio, 0);
        CheckRow(CurrentGrid(), row);
        EXPECT_FALSE(RowHasData(row)) << "radio " << radio;
        EXPECT_EQ(PaintedColumns(), std::vector<int>{}) << "radio " << radio;
    }
}

TEST_F(CheckingARow, ThatIsGoodChangesNothing) {
    struct Line {
        int radio, slot;
        Cells cells;
    };
    const std::vector<Line> lines{
        {1,
         0,
         {{MNUM, "005"},
          {SCAN, "3"},
          {DESC, "TOWER"},
          {MODE, "W"},
          {RFRQ, "70.0000"},
          {RTON, "67.0"},
          {RCOD, "023"},
          {TFRQ, "71.0000"},
          {TTON, "OFF"},
          {TCOD, "OFF"},
          {TFLG, "A0"}}},
        {6, 0, {{MFLG, "10"},       {MNUM, "005"},     {PRIM, "005"},   {SHAD, "P-1"},  {BAND, ""},
                {SCAN, "Y"},        {ZONE, "3"},       {DESC, "Tower"}, {MODE, "D"},    {RFRQ, "140.0000"},
                {RSQL, "n"},        {RTON, "67.0"},    {RCOD, "023"},   {RTGP, "00AB"}, {RNAC, "293"},
                {TFRQ, "141.0000"}, {TSQL, "g"},       {TTON, "67.0"},  {TCOD, "754"},  {TTGP, "0001"},
                {TNAC, "F7E"},      {TIDC, "0000001"}, {SHD0, "007"},   {TFLG, "A8"}}},
        {7, 0, {{MFLG, "00"},       {MNUM, "005"},   {PRIM, "005"},  {SHAD, "N"},        {SCAN, "N"},
                {ZONE, "K"},        {DESC, "Tower"}, {MODE, "w"},    {RFRQ, "140.0000"}, {RSQL, "c"},
                {RNSV, "15"},       {RTON, "254.8"}, {RCOD, "023"},  {RTGP, "00AB"},     {RNAC, "293"},
                {TFRQ, "141.0000"}, {TSQL, "-"},     {TTON, "67.0"}, {TCOD, "754"},      {TTGP, "0001"},
                {TNAC, "F7E"},      {TIDC, "7"},     {TFLG, "A8"}}},
        {17,
         5,
         {{MNUM, "005"},
          {BAND, "AM 225-400"},
          {SCAN, "31"},
          {DESC, "Tower"},
          {MODE, "N"},
          {RFRQ, "300.0000"},
          {RTON, "OFF"},
          {RCOD, "n/a"},
          {TFRQ, "301.0000"},
          {TTON, "67.0"},
          {TCOD, "n/a"},
          {TFLG, "A0"}}},
        {2,
         0,
         {{MNUM, "005"},
          {SCAN, "0"},
          {DESC, "x"},
          {MODE, "W"},
          {RFRQ, "120.000"},
          {RCOD, "n/a"},
          {TFRQ, "121.000"},
          {TCOD, "n/a"},
          {TFLG, "A0"}}},
        {8,
         0,
         {{MNUM, "005"},
          {SCAN, "Y"},
          {DESC, "Tower"},
          {MODE, "W"},
          {RFRQ, "120.000"},
          {RCOD, "n/a"},
          {TFRQ, "121.000"},
          {TCOD, "n/a"},
          {RONL, "Y"},
          {TFLG, "A0"}}},
        {10,
         1,
         {{MNUM, "005"},
          {SCAN, "9"},
          {DESC, "Tower"},
          {MODE, "N"},
          {RFRQ, "300.0000"},
          {RCOD, "n/a"},
          {TFRQ, "301.0000"},
          {TCOD, "n/a"},
          {TFLG, "A0"}}},
    };
    for (const Line& line : lines) {
        Retarget(line.radio, line.slot);
        SetCells(line.cells);
        const auto before = RowTexts(row);
        CheckRow(CurrentGrid(), row);
        EXPECT_EQ(RowTexts(row), before) << "radio " << line.radio;
        EXPECT_EQ(PaintedColumns(), std::vector<int>{}) << "radio " << line.radio;
    }
}

TEST_F(CheckingARow, LeavesFlagsAndShadowSlotsAlone) {
    Retarget(Kdrv716, 0);
    FillFromDefault();
    SetCells({{MFLG, "7junk"},
              {SHD0, "a"},
              {SHD1, "1"},
              {SHD2, ""},
              {SHD3, "999"},
              {SHD4, "-1"},
              {SHD5, "\n"},
              {SHD6, "z"}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{MFLG, "7junk"},
                 {SHD0, "a"},
                 {SHD1, "1"},
                 {SHD2, ""},
                 {SHD3, "999"},
                 {SHD4, "-1"},
                 {SHD5, "\n"},
                 {SHD6, "z"},
                 {TFLG, "A8"}});
    EXPECT_EQ(PaintedColumns(), std::vector<int>{});
}

TEST_F(CheckingARow, WithOnlyADescriptionRepairsTheFrequencies) {
    SetCell(row, DESC, "tower");
    CheckRow(CurrentGrid(), row);
    ExpectCells({{MNUM, ""},
                 {DESC, "TOWER"},
                 {MODE, "W"},
                 {RFRQ, "66.0000"},
                 {TFRQ, "88.0000"},
                 {RTON, "OFF"},
                 {TCOD, "OFF"},
                 {TFLG, ""}});
    EXPECT_EQ(PaintedColumns(), (std::vector<int>{MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD}));
}

TEST_F(CheckingARow, RepairsByWhatTheDefaultRowHoldsHoweverBad) {
    SetCells({{MODE, "bad mode"}, {RFRQ, "no frequency"}}, 0);
    SetCell(row, DESC, "X");
    CheckRow(CurrentGrid(), row);
    ExpectCells({{MODE, "bad mode"}, {RFRQ, "no frequency"}});
}

TEST_F(CheckingARow, OfTheModuleAllowsAnyTransmitFrequencyInAm108) {
    Retarget(Kdrv4xxx, ModuleSlot);
    for (const char* text : {"117.000", "55.000"}) {
        FillFromDefault();
        SetCells({{BAND, "AM 108-138"}, {RFRQ, "117.000"}, {TFRQ, text}});
        CheckRow(CurrentGrid(), row);
        ExpectCells({{BAND, "AM 108-138"},
                     {RFRQ, "117.000"},
                     {TFRQ, text},
                     {RTON, "n/a"},
                     {RCOD, "n/a"},
                     {TTON, "n/a"},
                     {TCOD, "n/a"}});
        EXPECT_EQ(PaintedColumns(), std::vector<int>{}) << text;
    }
}

TEST_F(CheckingARow, ReplacesAScanOf031AndKeeps31) {
    FillFromDefault();
    SetCell(row, SCAN, "031");
    CheckRow(CurrentGrid(), row);
    EXPECT_EQ(Cell(row, SCAN), "0");
    EXPECT_TRUE(IsPainted(SCAN));
    FillFromDefault(7);
    SetCell(7, SCAN, "31");
    CheckRow(CurrentGrid(), 7);
    EXPECT_EQ(Cell(7, SCAN), "31");
    EXPECT_FALSE(IsPainted(SCAN, 7));
}

TEST_F(CheckingARow, TurnsLegacyScanMarksIntoAMask) {
    FillFromDefault();
    for (const auto& [text, mask] :
         std::map<const char*, const char*>{{"1_3__", "5"}, {"L____", "0"}, {"L234", "0"}}) {
        SetCell(row, SCAN, text);
        CheckRow(CurrentGrid(), row);
        EXPECT_EQ(Cell(row, SCAN).utf8_string(), mask) << text;
        EXPECT_FALSE(IsPainted(SCAN)) << text;
    }
}

TEST_F(CheckingARow, InZoneXOfTheFirstGenerationFallsToTheFirstFreeZone) {
    Retarget(Kdrv716, 0);
    ZoneSlotsOf(CurrentPage)[0] = 16;
    SetCells({{DESC, "X"}, {ZONE, "X"}, {TFLG, "A0"}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{ZONE, "2"}, {TFLG, "A8"}});
    EXPECT_EQ(SlotsTaken(CurrentPage, 1), 1);
}

TEST_F(CheckingARow, TwiceTakesOneZoneSlotOnly) {
    Retarget(Kdrv716, 0);
    const int before = SlotsTaken(CurrentPage, 2);
    SetCells({{DESC, "X"}, {ZONE, "3"}, {TFLG, "A0"}});
    CheckRow(CurrentGrid(), row);
    CheckRow(CurrentGrid(), row);
    EXPECT_EQ(SlotsTaken(CurrentPage, 2), before + 1);
    EXPECT_EQ(Cell(row, ZONE), "3");
}

TEST_F(CheckingARow, InAZoneThatHasJustBeenFilledKeepsItsTextAndIsFlagged) {
    Retarget(Kdrv716, 0);
    ZoneSlotsOf(CurrentPage)[4] = 16;
    SetCells({{DESC, "X"}, {ZONE, "5"}, {TFLG, "A0"}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{ZONE, "5"}, {TFLG, "A8"}});
    EXPECT_EQ(SlotsTaken(CurrentPage, 4), 16);
}

TEST_F(CheckingARow, OfAShadowEmptiesItsZoneAndPointsPrimToItself) {
    Retarget(Kdrv716, 0);
    FillFromDefault();
    SetCells({{MFLG, "01"}, {PRIM, "003"}, {SHAD, "S-003"}, {ZONE, "3"}, {TFLG, "A0"}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{MNUM, "005"}, {PRIM, "005"}, {SHAD, "S-003"}, {ZONE, ""}, {TFLG, "A8"}});
}

TEST_F(CheckingARow, WithNumber9999On200RowsEmptiesItWithoutABox) {
    Retarget(Krv620, 0);
    FillFromDefault();
    SetCell(row, MNUM, "9999");
    testbench::DialogScript dialogs;
    CheckRow(CurrentGrid(), row);
    EXPECT_EQ(Cell(row, MNUM), "");
    EXPECT_TRUE(dialogs.Shown().empty());
}

TEST_F(CheckingARow, LooksAtTheNumberBeforeThePrimary) {
    Retarget(Kdrv716, 0);
    FillFromDefault();
    SetCells({{MNUM, "7"}, {PRIM, "1"}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{MNUM, "007"}, {PRIM, "007"}});
}

TEST_F(CheckingARow, WhoseNumberIsTakenGoesOnWithTheOtherCells) {
    FillFromDefault(3);
    FillFromDefault();
    SetCells({{MNUM, "003"}, {DESC, "low"}, {RFRQ, "10.0"}});
    testbench::DialogScript dialogs;
    dialogs.ExpectMessage("Error", "Number already used at row: 003");
    CheckRow(CurrentGrid(), row);
    ExpectCells({{MNUM, ""}, {DESC, "LOW"}, {RFRQ, "66.0000"}});
    EXPECT_TRUE(RowHasData(row));
    EXPECT_FALSE(IsPainted(MNUM));
}

TEST_F(CheckingARow, LooksAtTheBandBeforeTheFrequencies) {
    Retarget(Kdrv4xxx, ModuleSlot);
    FillFromDefault();
    SetCells({{BAND, "FM 66-88"}, {RFRQ, "40.0000"}, {TFRQ, "70.0000"}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{BAND, "FM 30-50"}, {RFRQ, "40.0000"}, {TFRQ, "31.0000"}});
    EXPECT_EQ(PaintedColumns(), (std::vector<int>{BAND, TFRQ}));
}

TEST_F(CheckingARow, LooksAtTheModeBeforeTheSquelch) {
    Retarget(Kdrv716, 0);
    FillFromDefault();
    SetCells({{MODE, "digital"}, {RSQL, "m"}, {TSQL, "g"}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{MODE, "n"}, {RSQL, "x"}, {TSQL, "x"}});
    EXPECT_EQ(PaintedColumns(), (std::vector<int>{MODE, RSQL, TSQL}));
}

TEST_F(CheckingARow, OfP25WithoutASquelchEndsWithTheCodesLetter) {
    Retarget(Kdrv716, 0);
    FillFromDefault();
    SetCells({{RSQL, ""}, {TSQL, ""}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{RSQL, "c"}, {TSQL, "c"}, {RTON, "67.0"}, {RCOD, "023"}});
    EXPECT_EQ(PaintedColumns(), (std::vector<int>{RSQL, TSQL}));
}

TEST_F(CheckingARow, OfP25WithoutASquelchAndCodeEndsWithTheTonesLetter) {
    Retarget(Kdrv716, 0);
    FillFromDefault();
    SetCells({{RSQL, ""}, {RCOD, "OFF"}, {TSQL, "x"}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{RSQL, "t"}, {RTON, "67.0"}, {RCOD, "023"}, {TSQL, "x"}});
    EXPECT_EQ(PaintedColumns(), (std::vector<int>{RSQL, RCOD}));
}

TEST_F(CheckingARow, OfAnFmRadioTakesToneAndCodeByTheSquelchThatItHeld) {
    struct Line {
        const char *squelch, *tone, *code;
    };
    for (const Line& line : std::initializer_list<Line>{
             {"", "67.0", "023"}, {"t", "67.0", "OFF"}, {"c", "OFF", "023"}, {"x", "OFF", "OFF"}}) {
        FillFromDefault();
        // The other direction's squelch must not matter.
        SetCells(
            {{RSQL, line.squelch}, {RTON, "67.0"}, {RCOD, "023"}, {TSQL, ""}, {TTON, "71.9"}, {TCOD, "025"}});
        CheckRow(CurrentGrid(), row);
        ExpectCells({{RSQL, ""}, {RTON, line.tone}, {RCOD, line.code}, {TTON, "71.9"}, {TCOD, "025"}});
        SetCells({{RTON, "67.0"}, {RCOD, "023"}, {TSQL, line.squelch}, {TTON, "67.0"}, {TCOD, "023"}});
        CheckRow(CurrentGrid(), row);
        ExpectCells({{TSQL, ""}, {RTON, "67.0"}, {RCOD, "023"}, {TTON, line.tone}, {TCOD, line.code}});
        EXPECT_EQ(PaintedColumns(), std::vector<int>{}) << '"' << line.squelch << '"';
    }
}

TEST_F(CheckingARow, OfFxamLosesItsTonesAndKeepsItsCodes) {
    CurrentParameters().Type = RadioCatalogue::FXAM;
    FillFromDefault();
    SetCells({{RTON, "67.0"}, {TTON, "67.0"}, {RCOD, "023"}, {TCOD, "000"}});
    CheckRow(CurrentGrid(), row);
    ExpectCells({{RTON, ""}, {TTON, ""}, {RCOD, "023"}, {TCOD, "OFF"}});
    EXPECT_EQ(PaintedColumns(), std::vector<int>{});
}

TEST_F(CheckingARow, AgainChangesNothingWhateverTheTextsWere) {
    const std::vector<wxString> texts{"",
                                      "x",
                                      "0",
                                      "-1",
                                      "99999999999999999999",
                                      "n/a",
                                      "F",
                                      "%s%n",
                                      " ",
                                      wxString::FromUTF8("\xE2\x98\x92\xE2\x98\x90"),
                                      wxString('9', 3000)};
    struct Target {
        int radio, slot;
    };
    for (const Target& target : std::initializer_list<Target>{{Krv47, 0},
                                                              {Kdrv716, 0},
                                                              {Kdrv716B, 0},
                                                              {Kdrv4xxx, ModuleSlot},
                                                              {Orv12, 0},
                                                              {Kdar2000, 0},
                                                              {Krv620, 1}})
        for (const wxString& text : texts) {
            Retarget(target.radio, target.slot);
            for (int col = 0; col < 32; ++col)
                SetCell(row, col, text);
            CheckRow(CurrentGrid(), row);
            const auto once = RowTexts(row);
            CheckRow(CurrentGrid(), row);
            EXPECT_EQ(RowTexts(row), once) << "radio " << target.radio << ", " << text.Left(30);
        }
}
