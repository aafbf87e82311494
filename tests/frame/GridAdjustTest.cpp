// A page's grid follows its target.
#include "frame/TargetSelection.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/statusbr.h>

using namespace testbench;

namespace {

class Adjusting : public ZelkWindowTest {
protected:
    /// Does what a file for another radio does: sets new parameters, then adjusts the grid.
    static void Adjust(int radio, int slot) {
        const PageParameterRecord before = CurrentParameters();
        SetPageParameters(MainFrame, CurrentPage, radio, slot);
        AdjustEditGrid(MainFrame, before.Radio, before.BandIndex);
    }

    static void NumberRows() {
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            SetCell(row, DESC, wxString::Format("row %d", row));
    }

    static std::vector<std::string> ShownColumns() {
        std::vector<std::string> shown;
        for (int col = 0; col < 32; ++col)
            if (CurrentGrid()->GetColSize(col) > 0)
                shown.push_back(CurrentGrid()->GetColLabelValue(col).utf8_string() + " " +
                                std::to_string(CurrentGrid()->GetColSize(col)));
        return shown;
    }

    using Texts = std::vector<std::string>;
};

} // namespace

TEST_F(Adjusting, FromSlot1ToSlot0OfTheKrv630LosesRows200And201) {
    Retarget(Krv630, 1);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 203);
    NumberRows();
    Adjust(Krv630, 0);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 201);
    for (int row = 0; row < 200; ++row)
        EXPECT_EQ(Cell(row, DESC), wxString::Format("row %d", row));
    EXPECT_EQ(Cell(200, DESC), "row 202");
    for (int row = 0; row <= 200; ++row)
        EXPECT_EQ(CurrentGrid()->GetRowLabelValue(row), wxString::Format("%03d", row));
}

TEST_F(Adjusting, ToMoreRowsAppendsBlankOnes) {
    Retarget(Krv630, 0);
    NumberRows();
    Adjust(Krv630, 1);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 203);
    EXPECT_EQ(Cell(200, DESC), "row 200");
    EXPECT_FALSE(RowHasData(201));
    EXPECT_FALSE(RowHasData(202));
    for (int row = 0; row <= 202; ++row)
        EXPECT_EQ(CurrentGrid()->GetRowLabelValue(row), wxString::Format("%03d", row));
}

TEST_F(Adjusting, ThereAndBackKeepsLabelsRight) {
    Adjust(Orv12, 0);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 7);
    Adjust(Kdrv716B, 0);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 503);
    for (int row = 0; row <= 502; ++row)
        EXPECT_EQ(CurrentGrid()->GetRowLabelValue(row), wxString::Format("%03d", row));
}

TEST_F(Adjusting, ToAsManyRowsKeepsThemAll) {
    NumberRows();
    Adjust(Krv305, 0);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 123);
    for (int row = 0; row <= 122; ++row)
        EXPECT_EQ(Cell(row, DESC), wxString::Format("row %d", row));
}

TEST_F(Adjusting, GivesTheColumnsOfTheNewType) {
    const struct {
        int radio, slot;
        Texts columns;
    } cases[] = {
        {Kdrv716,
         0,
         {"Mem 45", "Shad 45", "Scan 45", "Zone 45", "Desc 90", "Mode 50", "RxFreq 80", "RxSq 50", "RxTn 50",
          "RxCd 50", "RxTG 50", "RxNAC 55", "TxFreq 80", "TxSq 50", "TxTn 50", "TxCd 50", "TxTG 50",
          "TxNAC 55", "TxIDC 70"}},
        {Kdrv716B, 0, {"Mem 45",  "Shad 45", "Scan 45", "Zone 45", "Desc 90",  "Mode 50",  "RxFreq 80",
                       "RxSq 50", "NSqV 50", "RxTn 50", "RxCd 50", "RxTG 50",  "RxNAC 55", "TxFreq 80",
                       "TxSq 50", "TxTn 50", "TxCd 50", "TxTG 50", "TxNAC 55", "TxIDC 70"}},
        {Orv12, 0, {"Chan 45", "Freq 80", " 500"}},
        {Kdar2000, 0, {"Mem 45", "Scan 45", "Desc 80", "RxFreq 80", "TxFreq 80", "RxOnly 60"}},
        {Kdrv4xxx,
         5,
         {"Chan 45", "Band 90", "Scan 75", "Desc 90", "Mode 50", "RxFreq 80", "RxTn 50", "RxCd 50",
          "TxFreq 80", "TxTn 50", "TxCd 50"}},
        {Kdrv4xxx, 1, {"Chan 45", "Scan 75", "Desc 90", "RxFreq 80", "TxFreq 80"}},
        {Krv47,
         0,
         {"Chan 45", "Scan 75", "Desc 90", "Mode 50", "RxFreq 80", "RxTn 50", "RxCd 50", "TxFreq 80",
          "TxTn 50", "TxCd 50"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE("radio " + std::to_string(c.radio) + ", slot " + std::to_string(c.slot));
        Adjust(c.radio, c.slot);
        EXPECT_EQ(ShownColumns(), c.columns);
    }
}

TEST_F(Adjusting, LeavesNoHiddenColumnThatCanBeDraggedOpen) {
    Adjust(Kdrv716B, 0);
    Adjust(Kdar2000, 0);
    const Texts before = ShownColumns();
    ShowAndFocus(*MainFrame);
    int resized = 0;
    RunWithRobot([&resized](Robot& robot) {
        // On both sides of each border between shown columns, where hidden ones are.
        for (int col : {SCAN, DESC, RFRQ, TFRQ, RONL}) {
            for (int side : {-2, 2}) {
                const wxPoint border = robot.Ask([col, side] {
                    const wxPoint middle = ColumnLabelSpot(*CurrentGrid(), col);
                    return wxPoint(middle.x - CurrentGrid()->GetColSize(col) / 2 + side, middle.y);
                });
                const Texts sizes = robot.Ask(ShownColumns);
                robot.Drag(border, border + wxPoint(40, 0));
                robot.Settle();
                resized += robot.Ask(ShownColumns) != sizes;
                robot.Drag(border + wxPoint(40, 0), border);
                robot.Settle();
            }
        }
    });
    EXPECT_GT(resized, 0) << "no drag caught a border";
    Texts hidden;
    for (int col = 0; col < 32; ++col)
        if (CurrentGrid()->GetColSize(col) > 0 && CurrentGrid()->GetColLabelValue(col).empty())
            hidden.push_back(std::to_string(col));
    EXPECT_EQ(hidden, Texts{});
    EXPECT_EQ(ShownColumns().size(), before.size());
}

TEST_F(Adjusting, LocksTheNewGuardRowsAndFreesTheOldOnes) {
    ASSERT_TRUE(CurrentGrid()->IsReadOnly(121, RCOD));
    Adjust(Krv630, 1);
    for (int row : {201, 202})
        for (int col : {MNUM, SCAN, RTON, RCOD})
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(row, col)) << row << ", " << col;
    for (int row : {121, 122, 200})
        for (int col : {MNUM, SCAN, RTON, RCOD})
            EXPECT_FALSE(CurrentGrid()->IsReadOnly(row, col)) << row << ", " << col;
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
}

TEST_F(Adjusting, UpdatePageOfAnUnchangedTargetRefreshesTheStatusOnly) {
    MainFrame->m_statusBar->SetStatusText("stale", 1);
    CurrentGrid()->SetColSize(DESC, 123);
    UpdatePage(MainFrame, 0, 1, 0);
    EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(1), "KRV-47");
    EXPECT_EQ(CurrentGrid()->GetColSize(DESC), 123) << "the grid is left alone";
}

TEST_F(Adjusting, UpdatePageOfANewTargetBringsGridAndStatusUpToDate) {
    SetPageParameters(MainFrame, 0, Kdar2000, 0);
    UpdatePage(MainFrame, 0, Krv47, 0);
    EXPECT_EQ(CurrentGrid()->GetNumberRows(), 101);
    EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(1), "KDAR-2000");

    // Changes only the band slot.
    SetPageParameters(MainFrame, 0, Krv630, 0);
    UpdatePage(MainFrame, 0, Kdar2000, 0);
    SetPageParameters(MainFrame, 0, Krv630, 1);
    UpdatePage(MainFrame, 0, Krv630, 0);
    EXPECT_EQ(CurrentGrid()->GetNumberRows(), 203);
    EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(3), "202 Rows");
}
