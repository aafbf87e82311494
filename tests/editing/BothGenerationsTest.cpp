// Pages of both P25 generations in one window: each uses its own zones.
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
        ASSERT_EQ(CurrentPage, page);
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
        ASSERT_EQ(Cell(row, ZONE), zone);
    }
};

} // namespace

TEST_F(BothGenerations, ZoneXStaysZone32OfTheRecordBesideAFirstGenerationPage) {
    PutIntoZone(5, "X");
    PutIntoZone(6, "A");
    AddPage(Kdrv716);
    GoToPage(0);
    EXPECT_EQ(ZoneInRecord(5), "01F0");
    EXPECT_EQ(ZoneInRecord(6), "0100");
}

TEST_F(BothGenerations, AZoneOfTheSecondIsReadFromARecordBesideAFirstGenerationPage) {
    PutIntoZone(5, "W");
    wxString line;
    encodeTrecordV2(CurrentGrid(), 5, line);
    AddPage(Kdrv716);
    GoToPage(0);
    ClearRowData(5, true);
    ASSERT_EQ(decodeTrecordV2(CurrentGrid(), line), 1);
    EXPECT_EQ(Cell(5, ZONE), "W");
}

TEST_F(BothGenerations, ValidatingTheFirstPageLeavesRecordsOfTheSecondAlone) {
    PutIntoZone(5, "X");
    AddPage(Kdrv716);
    CheckPage();
    GoToPage(0);
    EXPECT_EQ(ZoneInRecord(5), "01F0");
    GoToPage(1);
    CheckPage();
    EXPECT_EQ(Cell(232, ZONE), "16");
    EXPECT_EQ(ZoneInRecord(232), "00F0");
}

TEST_F(BothGenerations, TheZoneCellTakesZonesOfTheSecondBesideAFirstGenerationPage) {
    PutIntoZone(5, "2");
    AddPage(Kdrv716);
    GoToPage(0);
    Choose(5, ZONE, "K");
    EXPECT_EQ(Cell(5, ZONE), "K");
    EXPECT_EQ(ZoneSlotsOf(0)[22], 1);
    EXPECT_EQ(ZoneSlotsOf(0)[1], 0);
}

TEST_F(BothGenerations, GuardsOfANewPageAreInTheLastZoneOfTheirOwnWhateverPageWasMadeBefore) {
    AddPage(Kdrv716);
    EXPECT_EQ((Texts{Text(231, ZONE), Text(232, ZONE)}), (Texts{"16", "16"}));
    AddPage(Kdrv716B);
    EXPECT_EQ((Texts{Text(501, ZONE), Text(502, ZONE)}), (Texts{"X", "X"}));
    EXPECT_EQ(ZoneSlotsOf(2)[31], 2);
    AddPage(Kdrv716);
    EXPECT_EQ((Texts{Text(231, ZONE), Text(232, ZONE)}), (Texts{"16", "16"}));
    EXPECT_EQ(ZoneSlotsOf(3)[15], 2);
}

TEST_F(BothGenerations, AClearedRowGivesItsZoneBackBesideAFirstGenerationPage) {
    PutIntoZone(5, "K");
    PutIntoZone(6, "K");
    AddPage(Kdrv716);
    GoToPage(0);
    ASSERT_EQ(ZoneSlotsOf(0)[22], 2);
    ClearRowData(5, true);
    EXPECT_EQ(ZoneSlotsOf(0)[22], 1);
}

TEST_F(BothGenerations, AFirstGenerationPageKnowsNoZoneXBesideASecond) {
    AddPage(Kdrv716);
    AddPage(Kdrv716B);
    GoToPage(1);
    SetCell(7, TFLG, "A0");
    CheckZone(CurrentGrid(), 7, "X");
    EXPECT_EQ(Cell(7, ZONE), "1");
    SetCell(7, ZONE, "X");
    EXPECT_EQ(ZoneInRecord(7), "0000");
}
