// Pages of both P25 generations in one window: each works with the zones of its own.
#include "editing/ZelkEdit.h"
#include "tests/editing/CellTools.h"
#include "tests/frame/FrameTools.h"
#include "transfer/TRecordCodec.h"

#include <wx/notebook.h>

using namespace testbench;

namespace {

class BothGenerations : public CellTest {
protected:
    void SetUp() override {
        CellTest::SetUp();
        Retarget(Kdrv716B, 0);
    }

    static void GoToPage(int page) {
        MainFrame->m_notebook->SetSelection(static_cast<size_t>(page));
        PumpUntilIdle();
        ASSERT_EQ(page, CurrentPage);
    }

    /// The zone field of the row's record in the layout that has room for all zones.
    static std::string ZoneInRecord(int row) {
        wxString line;
        encodeTrecordV2(CurrentGrid(), row, line);
        return line.Mid(20, 4).utf8_string();
    }

    static void PutIntoZone(int row, const wxString& zone) {
        SetCell(row, MNUM, wxString::Format("%03d", row));
        SetCell(row, TFLG, "A0");
        CheckZone(CurrentGrid(), row, zone);
        ASSERT_EQ(zone, Cell(row, ZONE));
    }
};

} // namespace

TEST_F(BothGenerations, ZoneXStaysZone32OfTheRecordBesideAFirstGenerationPage) {
    PutIntoZone(5, "X");
    PutIntoZone(6, "A");
    AddPage(Kdrv716);
    GoToPage(0);
    EXPECT_EQ("01F0", ZoneInRecord(5));
    EXPECT_EQ("0100", ZoneInRecord(6));
}

TEST_F(BothGenerations, AZoneOfTheSecondIsReadFromARecordBesideAFirstGenerationPage) {
    PutIntoZone(5, "W");
    wxString line;
    encodeTrecordV2(CurrentGrid(), 5, line);
    AddPage(Kdrv716);
    GoToPage(0);
    ClearRowData(5, true);
    ASSERT_EQ(1, decodeTrecordV2(CurrentGrid(), line));
    EXPECT_EQ("W", Cell(5, ZONE));
}

TEST_F(BothGenerations, ValidatingTheFirstPageLeavesRecordsOfTheSecondAlone) {
    PutIntoZone(5, "X");
    AddPage(Kdrv716);
    CheckPage();
    GoToPage(0);
    EXPECT_EQ("01F0", ZoneInRecord(5));
    GoToPage(1);
    CheckPage();
    EXPECT_EQ("16", Cell(232, ZONE));
    EXPECT_EQ("00F0", ZoneInRecord(232));
}

TEST_F(BothGenerations, TheZoneCellTakesZonesOfTheSecondBesideAFirstGenerationPage) {
    PutIntoZone(5, "2");
    AddPage(Kdrv716);
    GoToPage(0);
    Choose(5, ZONE, "K");
    EXPECT_EQ("K", Cell(5, ZONE));
    EXPECT_EQ(1, ZoneSlotsOf(0)[22]);
    EXPECT_EQ(0, ZoneSlotsOf(0)[1]);
}

TEST_F(BothGenerations, GuardsOfANewPageAreInTheLastZoneOfTheirOwnWhateverPageWasMadeBefore) {
    AddPage(Kdrv716);
    EXPECT_EQ((Texts{"16", "16"}), (Texts{Text(231, ZONE), Text(232, ZONE)}));
    AddPage(Kdrv716B);
    EXPECT_EQ((Texts{"X", "X"}), (Texts{Text(501, ZONE), Text(502, ZONE)}));
    EXPECT_EQ(2, ZoneSlotsOf(2)[31]);
    AddPage(Kdrv716);
    EXPECT_EQ((Texts{"16", "16"}), (Texts{Text(231, ZONE), Text(232, ZONE)}));
    EXPECT_EQ(2, ZoneSlotsOf(3)[15]);
}

TEST_F(BothGenerations, AClearedRowGivesItsZoneBackBesideAFirstGenerationPage) {
    PutIntoZone(5, "K");
    PutIntoZone(6, "K");
    AddPage(Kdrv716);
    GoToPage(0);
    ASSERT_EQ(2, ZoneSlotsOf(0)[22]);
    ClearRowData(5, true);
    EXPECT_EQ(1, ZoneSlotsOf(0)[22]);
}

TEST_F(BothGenerations, AFirstGenerationPageKnowsNoZoneXBesideASecond) {
    AddPage(Kdrv716);
    AddPage(Kdrv716B);
    GoToPage(1);
    SetCell(7, TFLG, "A0");
    CheckZone(CurrentGrid(), 7, "X");
    EXPECT_EQ("1", Cell(7, ZONE));
    SetCell(7, ZONE, "X");
    EXPECT_EQ("0000", ZoneInRecord(7));
}
