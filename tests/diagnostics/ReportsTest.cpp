// The dump of the current page into the log. Only a developer connects it to an event.
#include "catalogue/TextNumbers.h"
#include "diagnostics/PageReports.h"
#include "tests/support/AssertsOff.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/panel.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class Reports : public ZelkWindowTest {
protected:
    /// Runs the handler with an event of the object and returns the records that it logged.
    static Lines Debug(wxObject* source = MainFrame->m_notebook) {
        wxCommandEvent event;
        event.SetEventObject(source);
        const testbench::LogKeeper log;
        MainFrame->OnDebug(event);
        return log.lines;
    }

    static void AddPage(int radio, int bandIndex) {
        SetPageParameters(MainFrame, PageCount, radio, bandIndex);
        CreateNewPage(MainFrame, PageCount);
    }

    static void Select(std::initializer_list<int> rows) {
        CurrentGrid()->ClearSelection();
        for (int row : rows)
            CurrentGrid()->SelectRow(row, true);
    }

    /// The rows that have a group of lines.
    static std::vector<int> RowsIn(const Lines& lines) {
        const std::string heading = ">-- Data for Row ";
        std::vector<int> rows;
        for (const std::string& line : lines)
            if (line.rfind(heading, 0) == 0)
                rows.push_back(ReadDecimal(line.substr(heading.size())));
        return rows;
    }

    static const Lines FirstLines;
};

const Lines Reports::FirstLines = {
    "\n>----------- OnDebug ------------------------------------------------<",
    ">-- Debug - Report Page Parameters -------------<",
};

Lines operator+(Lines lines, const Lines& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

/// The lines of the zone counters; all zones that aren't named have 0.
Lines ZoneCounters(const std::vector<std::pair<int, int>>& taken) {
    Lines lines = {">-- Debug - Report P25 Page Zone Parameters -----------<"};
    for (int zone = 0; zone <= 32; ++zone) {
        int slot = 0;
        for (const auto& [other, count] : taken)
            if (other == zone)
                slot = count;
        lines.push_back("  Zone: " + std::to_string(zone) + "; Slot: " + std::to_string(slot));
    }
    return lines;
}

} // namespace

TEST_F(Reports, OfAPageWithNothingSelectedHaveThePageAndTheRowsHeadingOnly) {
    EXPECT_EQ(Debug(), FirstLines + Lines({
                                        " . Page: 1 of 1",
                                        " . Radio - Num: 1; Name: KRV-47",
                                        " . Type - Num: 0; Name: ANFM",
                                        " . Band - Num: 1; Name: FM 66-88; Index: 0",
                                        " . Grid - Rows: 122, Cols: 10\n",
                                        ">-- Debug - Report Row Parameters -------------------------<",
                                    }));
}

TEST_F(Reports, LeaveOutASelectedRowWithoutANumber) {
    SetCells(1, {{MNUM, "001"}, {DESC, "ONE"}});
    SetCells(2, {{DESC, "TWO"}, {TFLG, "A0"}});
    SetCells(3, {{MNUM, "003"}, {DESC, "THREE"}});
    Select({1, 2, 3, 4});
    EXPECT_EQ(RowsIn(Debug()), (std::vector<int>{1, 3}));
}

TEST_F(Reports, LeaveOutARowThatIsNotSelected) {
    for (int row : {1, 2, 3})
        SetCell(row, MNUM, NumberText(row));
    Select({2});
    EXPECT_EQ(RowsIn(Debug()), std::vector<int>{2});
}

TEST_F(Reports, AskTheHiddenColumnOfPrimariesWhetherARowIsSelected) {
    SetCell(1, MNUM, "001");
    CurrentGrid()->SelectBlock(1, MNUM, 1, MNUM);
    EXPECT_EQ(RowsIn(Debug()), std::vector<int>{});
    CurrentGrid()->SelectBlock(1, PRIM, 1, PRIM);
    EXPECT_EQ(RowsIn(Debug()), std::vector<int>{1});
}

TEST_F(Reports, GoFromTheDefaultRowToTheLastRow) {
    SetCell(0, MNUM, "000");
    SetCell(121, MNUM, "121");
    SetCell(122, MNUM, "122");
    CurrentGrid()->SelectAll();
    EXPECT_EQ(RowsIn(Debug()), (std::vector<int>{0, 121, 122}));
}

TEST_F(Reports, EndWithTheGridWhereItIsShorterThanThePage) {
    SetCell(120, MNUM, "120");
    SetCell(121, MNUM, "121");
    CurrentGrid()->DeleteRows(121, 2);
    {
        const testbench::AssertsOff selectingMoreThanThereIs;
        CurrentGrid()->SelectBlock(119, 0, 122, 31);
    }
    EXPECT_EQ(RowsIn(Debug()), std::vector<int>{120});
}

TEST_F(Reports, OfAnAnalogPageAreWhole) {
    SetCells(5, {{MNUM, "005"},
                 {SCAN, "13"},
                 {DESC, "HARBOUR"},
                 {MODE, "W"},
                 {RFRQ, "66.1250"},
                 {RTON, "100.0"},
                 {RCOD, "OFF"},
                 {TFRQ, "71.5000"},
                 {TTON, "OFF"},
                 {TCOD, "023"},
                 {TFLG, "A0"}});
    Select({5});
    EXPECT_EQ(Debug(), FirstLines + Lines({
                                        " . Page: 1 of 1",
                                        " . Radio - Num: 1; Name: KRV-47",
                                        " . Type - Num: 0; Name: ANFM",
                                        " . Band - Num: 1; Name: FM 66-88; Index: 0",
                                        " . Grid - Rows: 122, Cols: 10\n",
                                        ">-- Debug - Report Row Parameters -------------------------<",
                                        ">-- Data for Row 005:",
                                        "  MFLG: ; 0x00",
                                        "  MNUM: 005",
                                        "  SCAN: 13",
                                        "  DESC: HARBOUR",
                                        "  MODE: W",
                                        "  RFRQ: 66.1250",
                                        "  RTON: 100.0",
                                        "  RCOD: OFF",
                                        "  TFRQ: 71.5000",
                                        "  TTON: OFF",
                                        "  TCOD: 023",
                                        "  Tflg: A0; 0xA0",
                                    }));
}

TEST_F(Reports, OfAKDARPageAreWholeAndHaveNoReceiveOnlyLine) {
    Retarget(Kdar2000, 0);
    SetCells(100, {{MNUM, "100"},
                   {SCAN, "Y"},
                   {DESC, "TOWER"},
                   {RFRQ, "118.005"},
                   {TFRQ, "118.005"},
                   {RONL, "Y"},
                   {TFLG, "A2"}});
    Select({100});
    EXPECT_EQ(Debug(), FirstLines + Lines({
                                        " . Page: 1 of 1",
                                        " . Radio - Num: 8; Name: KDAR-2000",
                                        " . Type - Num: 5; Name: KDAR",
                                        " . Band - Num: 3; Name: AM 118-138; Index: 0",
                                        " . Grid - Rows: 100, Cols: 6\n",
                                        ">-- Debug - Report Row Parameters -------------------------<",
                                        ">-- Data for Row 100:",
                                        "  MFLG: ; 0x00",
                                        "  MNUM: 100",
                                        "  SCAN: Y",
                                        "  DESC: TOWER",
                                        "  MODE: ",
                                        "  RFRQ: 118.005",
                                        "  RTON: ",
                                        "  RCOD: ",
                                        "  TFRQ: 118.005",
                                        "  TTON: ",
                                        "  TCOD: ",
                                        "  Tflg: A2; 0xA2",
                                    }));
}

TEST_F(Reports, OfAModulePageAreWhole) {
    Retarget(Kdrv4xxx, ModuleSlot);
    SetCells(500, {{MNUM, "500"},
                   {BAND, "FM 138-174"},
                   {SCAN, "0"},
                   {DESC, "RIDGE"},
                   {MODE, "N"},
                   {RFRQ, "151.6250"},
                   {RTON, "OFF"},
                   {RCOD, "114"},
                   {TFRQ, "153.2500"},
                   {TTON, "67.0"},
                   {TCOD, "OFF"},
                   {TFLG, "E1"}});
    Select({500});
    EXPECT_EQ(Debug(), FirstLines + Lines({
                                        " . Page: 1 of 1",
                                        " . Radio - Num: 17; Name: KDRV-4xxx",
                                        " . Type - Num: 3; Name: MDLX",
                                        " . Band - Num: 8; Name: K6 3-BAND; Index: 5",
                                        " . Grid - Rows: 500, Cols: 11\n",
                                        ">-- Debug - Report Row Parameters -------------------------<",
                                        ">-- Data for Row 500:",
                                        "  MFLG: ; 0x00",
                                        "  MNUM: 500",
                                        "  BAND: FM 138-174",
                                        "  SCAN: 0",
                                        "  DESC: RIDGE",
                                        "  MODE: N",
                                        "  RFRQ: 151.6250",
                                        "  RTON: OFF",
                                        "  RCOD: 114",
                                        "  TFRQ: 153.2500",
                                        "  TTON: 67.0",
                                        "  TCOD: OFF",
                                        "  Tflg: E1; 0xE1",
                                    }));
}

TEST_F(Reports, OfAFirstP25PageAreWhole) {
    Retarget(Kdrv716, 0);
    ZoneSlots.fill(0);
    ZoneSlots[0] = 16;
    ZoneSlots[15] = 2;
    ZoneSlots[32] = 5; // zone 0 of the second page
    SetCells(34, {{MFLG, "10"},       {MNUM, "034"}, {PRIM, "034"}, {SHAD, "P-2"},      {SCAN, "N"},
                  {ZONE, "3"},        {DESC, "RPT"}, {MODE, "D"},   {RFRQ, "154.9500"}, {RSQL, "n"},
                  {RNSV, "9"},        {RTON, "OFF"}, {RCOD, "OFF"}, {RTGP, "2711"},     {RNAC, "68A"},
                  {TFRQ, "159.0300"}, {TSQL, "g"},   {TTON, "OFF"}, {TCOD, "OFF"},      {TTGP, "2712"},
                  {TNAC, "68B"},      {TIDC, "77"},  {SHD0, "035"}, {SHD1, "036"},      {SHD2, "0"},
                  {SHD3, "0"},        {SHD4, "0"},   {SHD5, "0"},   {SHD6, "9"},        {TFLG, "C8"}});
    Select({34});
    EXPECT_EQ(Debug(), FirstLines +
                           Lines({
                               " . Page: 1 of 1",
                               " . Radio - Num: 6; Name: KDRV-716",
                               " . Type - Num: 1; Name: RP25",
                               " . Band - Num: 4; Name: FM 136-174; Index: 0",
                               " . Grid - Rows: 232, Cols: 19\n",
                               ">-- Debug - Report Row Parameters -------------------------<",
                               ">-- Data for Row 034:",
                               "  MFLG: 10; 0x10",
                               "  MNUM: 034",
                               "  PRIM: 034",
                               "  SHAD: P-2",
                               "  SCAN: N",
                               "  ZONE: 3",
                               "  DESC: RPT",
                               "  MODE: D",
                               "  RFRQ: 154.9500",
                               "  RSQL: n",
                               "  RTON: OFF",
                               "  RCOD: OFF",
                               "  RTGP: 2711",
                               "  RNAC: 68A",
                               "  TFRQ: 159.0300",
                               "  TSQL: g",
                               "  TTON: OFF",
                               "  TCOD: OFF",
                               "  TTGP: 2712",
                               "  TNAC: 68B",
                               "  TIDC: 77",
                               "  SHD0: 035",
                               "  SHD1: 036",
                               "  SHD2: 0",
                               "  SHD3: 0",
                               "  SHD4: 0",
                               "  SHD5: 0",
                               "  SHD6: 9",
                               "  Tflg: C8; 0xC8",
                           }) +
                           ZoneCounters({{0, 16}, {15, 2}, {32, 5}}) +
                           Lines({
                               ">-- Debug - Report P25 Page OpMode Parameters ---------<",
                               "  Op Mode: w -  No",
                               "  Op Mode: n - Yes",
                               "  Op Mode: D - Yes",
                           }));
}

TEST_F(Reports, OfASecondP25PageAreWhole) {
    AddPage(Kdrv716B, 0);
    ZoneSlots.fill(0);
    ZoneSlots[31] = 9; // the first page's
    ZoneSlots[32 + 31] = 1;
    OpModes[1] = 0x40;
    SetCells(502, {{MFLG, "02"},        {MNUM, "502"},  {PRIM, "034"},  {SHAD, "S-034"},     {SCAN, "Y"},
                   {ZONE, ""},          {DESC, "SH"},   {MODE, "w"},    {RFRQ, "154.95000"}, {RSQL, "o"},
                   {RNSV, "10"},        {RTON, "67.0"}, {RCOD, "OFF"},  {RTGP, "0001"},      {RNAC, "293"},
                   {TFRQ, "159.03000"}, {TSQL, "t"},    {TTON, "67.0"}, {TCOD, "OFF"},       {TTGP, "0002"},
                   {TNAC, "294"},       {TIDC, "1"},    {SHD0, "0"},    {SHD1, "1"},         {SHD2, "2"},
                   {SHD3, "3"},         {SHD4, "4"},    {SHD5, "5"},    {SHD6, "6"},         {TFLG, "A1"}});
    Select({502});
    EXPECT_EQ(Debug(), FirstLines +
                           Lines({
                               " . Page: 2 of 2",
                               " . Radio - Num: 7; Name: KDRV-716B",
                               " . Type - Num: 2; Name: NP25",
                               " . Band - Num: 4; Name: FM 136-174; Index: 0",
                               " . Grid - Rows: 502, Cols: 20\n",
                               ">-- Debug - Report Row Parameters -------------------------<",
                               ">-- Data for Row 502:",
                               "  MFLG: 02; 0x02",
                               "  MNUM: 502",
                               "  PRIM: 034",
                               "  SHAD: S-034",
                               "  SCAN: Y",
                               "  ZONE: ",
                               "  DESC: SH",
                               "  MODE: w",
                               "  RFRQ: 154.95000",
                               "  RSQL: o",
                               "  RNSV: 10;",
                               "  RTON: 67.0",
                               "  RCOD: OFF",
                               "  RTGP: 0001",
                               "  RNAC: 293",
                               "  TFRQ: 159.03000",
                               "  TSQL: t",
                               "  TTON: 67.0",
                               "  TCOD: OFF",
                               "  TTGP: 0002",
                               "  TNAC: 294",
                               "  TIDC: 1",
                               "  SHD0: 0",
                               "  SHD1: 1",
                               "  SHD2: 2",
                               "  SHD3: 3",
                               "  SHD4: 4",
                               "  SHD5: 5",
                               "  SHD6: 6",
                               "  Tflg: A1; 0xA1",
                           }) +
                           ZoneCounters({{31, 1}}) +
                           Lines({
                               ">-- Debug - Report P25 Page OpMode Parameters ---------<",
                               "  Op Mode: w - Yes",
                               "  Op Mode: n -  No",
                               "  Op Mode: D -  no",
                           }));
}

TEST_F(Reports, OfTheLastPageOfSixHaveACounterBehindIt) {
    while (PageCount < 6)
        AddPage(Kdrv716, 0);
    ZoneSlots.fill(0);
    ZoneSlots[6 * 32] = 4;
    CurrentGrid()->ClearSelection();
    const testbench::LogKeeper log;
    ReportPageP25OnlyParameters(5);
    ASSERT_EQ(log.lines.size(), 38u);
    EXPECT_EQ(log.lines[32], "  Zone: 31; Slot: 0");
    EXPECT_EQ(log.lines[33], "  Zone: 32; Slot: 4");
}

TEST_F(Reports, TakeThePageThatTheyAreGivenNotTheCurrentOne) {
    Retarget(Kdrv716, 0);
    AddPage(Krv214, 0);
    PageGrid[0]->SelectRow(1);
    CurrentGrid()->ClearSelection();
    const testbench::LogKeeper log;
    ReportPageParameters(0, 65535, 4);
    ReportRowParameters(0);
    ReportPageP25OnlyParameters(0);
    ASSERT_GT(log.lines.size(), 3u);
    EXPECT_EQ(log.lines[1], " . Page: 1 of 4");
    EXPECT_EQ(log.lines[2], " . Radio - Num: 6; Name: KDRV-716");
    EXPECT_EQ(RowsIn(log.lines), std::vector<int>{1});
    EXPECT_EQ(log.lines.back(), "  Op Mode: D - Yes");
}

TEST_F(Reports, OfAPageThatIsNotP25HaveNoZones) {
    for (const auto& [radio, slot] :
         {std::pair{Krv21, 0}, {Orv12, 0}, {Kdar2000, 0}, {Kdrv8400, 1}, {Kdrv4xxx, ModuleSlot}}) {
        Retarget(radio, slot);
        const testbench::LogKeeper log;
        ReportPageP25OnlyParameters(0);
        EXPECT_EQ(log.lines, Lines{}) << "radio " << radio;
    }
}

TEST_F(Reports, AskedForByAnythingButTheNotebookCountTheWindowsPages) {
    AddPage(Krv214, 0);
    for (wxObject* source : {static_cast<wxObject*>(nullptr), static_cast<wxObject*>(MainFrame),
                             static_cast<wxObject*>(MainFrame->m_menuBar)})
        EXPECT_EQ(Debug(source)[2], " . Page: 2 of 2");
}

TEST_F(Reports, CountThePagesOfTheNotebookThatAsksForThem) {
    auto* other = new wxNotebook(MainFrame, wxID_ANY);
    for (int page = 0; page < 3; ++page)
        other->AddPage(new wxPanel(other), "");
    EXPECT_EQ(Debug(other)[2], " . Page: 1 of 3");
}

TEST_F(Reports, ChangeNothingOnThePage) {
    Retarget(Kdrv716B, 0);
    CurrentGrid()->SelectAll();
    const auto cells = [] {
        Lines texts;
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            for (int col = 0; col < 32; ++col)
                texts.push_back(Cell(row, col).utf8_string());
        return texts;
    };
    const Lines before = cells();
    const auto slots = ZoneSlots;
    Debug();
    EXPECT_EQ(cells(), before);
    EXPECT_EQ(ZoneSlots, slots);
    EXPECT_TRUE(CurrentGrid()->IsInSelection(502, 31)) << "the selection stays";
}

TEST_F(Reports, AreSilentAsLongAsNobodyTurnsTheLogOn) {
    wxCommandEvent event;
    event.SetEventObject(MainFrame->m_notebook);
    const testbench::LogKeeper log;
    wxLog::EnableLogging(false);
    MainFrame->OnDebug(event);
    EXPECT_EQ(log.lines, Lines{});
}
