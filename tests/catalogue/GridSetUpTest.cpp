#include "tests/catalogue/PageTest.h"
#include "tests/catalogue/PrintedColumns.h"
#include "tests/catalogue/PrintedRadios.h"

#include <wx/dcclient.h>
#include <wx/notebook.h>
#include <wx/sizer.h>

namespace {

class GridSetUp : public PageTest {};

/// A radio and band slot that shows the columns of a type.
struct TypeTarget {
    printed::Type type;
    int radio, slot, rows;
};

/// Makes a page of each type in turn.
class GridSetUpOfType : public PageTest, public testing::WithParamInterface<TypeTarget> {
protected:
    void SetUp() override {
        PageTest::SetUp();
        SetPageParameters(MainFrame, 1, GetParam().radio, GetParam().slot);
        // No radio has FXAM; only channel files use it.
        PageParameters[1].Type = GetParam().type;
        CreateNewPage(MainFrame, 1);
        m_grid = PageGrid[1];
    }

    wxGrid* m_grid = nullptr; ///< owned by its panel
};

INSTANTIATE_TEST_SUITE_P(
    Each, GridSetUpOfType,
    testing::Values(TypeTarget{printed::ANFM, Krv214, 0, 102}, TypeTarget{printed::RP25, Kdrv716, 0, 232},
                    TypeTarget{printed::NP25, Kdrv716B, 0, 502},
                    TypeTarget{printed::MDLX, Kdrv4xxx, ModuleSlot, 500},
                    TypeTarget{printed::O12, Orv12, 0, 6}, TypeTarget{printed::KDAR, Kdar2000, 0, 100},
                    TypeTarget{printed::ANAM, Krv620, 1, 200}, TypeTarget{printed::FXAM, Krv620, 1, 200}),
    [](const auto& tested) { return printed::Types[tested.param.type].tag; });

/// Gives access to the minimal width, which only derived grids can read.
class MinimalWidth : public wxGrid {
public:
    static int Of(const wxGrid& grid, int col) { return (grid.*&MinimalWidth::GetColMinimalWidth)(col); }
};

std::string LabelOf(int row) {
    const std::string digits = std::to_string(row);
    return digits.size() < 3 ? std::string(3 - digits.size(), '0') + digits : digits;
}

} // namespace

TEST_P(GridSetUpOfType, HasADefaultRowTheMemoryRowsAnd32Columns) {
    EXPECT_EQ(m_grid->GetNumberRows(), GetParam().rows + 1);
    EXPECT_EQ(m_grid->GetNumberCols(), 32);
}

TEST_P(GridSetUpOfType, ShowsTheColumnsOfItsTypeAndHidesTheOthers) {
    for (const printed::ColumnLine& line : printed::Columns) {
        SCOPED_TRACE(line.tag);
        const printed::Look& look = line.looks[GetParam().type];
        EXPECT_EQ(m_grid->GetColSize(line.column), look.width);
        EXPECT_EQ(m_grid->IsColShown(line.column), look.width > 0);
        EXPECT_EQ(m_grid->GetColLabelValue(line.column).utf8_string(), look.heading);
    }
}

TEST_P(GridSetUpOfType, LabelsItsRowsWithThreeDigitsUpToOnePastTheLast) {
    for (int row = 0; row <= GetParam().rows + 1; ++row)
        EXPECT_EQ(m_grid->GetRowLabelValue(row).utf8_string(), LabelOf(row));
    EXPECT_NE(LabelOf(GetParam().rows + 2), m_grid->GetRowLabelValue(GetParam().rows + 2).utf8_string());
}

TEST_P(GridSetUpOfType, HasRowsOf23PixelsAndAHeadAsHigh) {
    EXPECT_EQ(m_grid->GetDefaultRowSize(), 23);
    for (int row : {0, 1, GetParam().rows})
        EXPECT_EQ(m_grid->GetRowSize(row), 23) << "row " << row;
    EXPECT_EQ(m_grid->GetColLabelSize(), 23);
}

TEST_P(GridSetUpOfType, LetsNoShownColumnBecomeNarrowerThanItStarts) {
    for (const printed::ColumnLine& line : printed::Columns) {
        const int width = line.looks[GetParam().type].width;
        if (width > 0) {
            EXPECT_EQ(MinimalWidth::Of(*m_grid, line.column), width) << line.tag;
        }
    }
}

TEST_F(GridSetUp, EditsCellsAndSelectsThemSingly) {
    const wxGrid* grid = CurrentGrid();
    EXPECT_TRUE(grid->IsEditable());
    EXPECT_TRUE(grid->GridLinesEnabled());
    EXPECT_EQ(grid->GetSelectionMode(), wxGrid::wxGridSelectCells);
}

TEST_F(GridSetUp, LetsColumnsBeWidenedAndNothingElseBeDragged) {
    const wxGrid* grid = CurrentGrid();
    EXPECT_TRUE(grid->CanDragColSize(MNUM));
    EXPECT_FALSE(grid->CanDragRowSize(1));
    EXPECT_FALSE(grid->CanDragGridSize());
    EXPECT_FALSE(grid->CanDragColMove());
}

TEST_F(GridSetUp, CentresItsLabelsAndPutsCellsTopLeft) {
    int across = 0, down = 0;
    CurrentGrid()->GetColLabelAlignment(&across, &down);
    EXPECT_EQ(across, wxALIGN_CENTRE);
    EXPECT_EQ(down, wxALIGN_CENTRE);
    CurrentGrid()->GetRowLabelAlignment(&across, &down);
    EXPECT_EQ(across, wxALIGN_CENTRE);
    EXPECT_EQ(down, wxALIGN_CENTRE);
    CurrentGrid()->GetDefaultCellAlignment(&across, &down);
    EXPECT_EQ(across, wxALIGN_LEFT);
    EXPECT_EQ(down, wxALIGN_TOP);
}

TEST_F(GridSetUp, GivesTheRowLabelsTheWidthOfTheirText) {
    wxGrid* grid = CurrentGrid();
    wxClientDC dc(grid);
    dc.SetFont(grid->GetLabelFont());
    const int made = grid->GetRowLabelSize();
    EXPECT_GE(made, dc.GetTextExtent("122").x);
    grid->SetRowLabelSize(wxGRID_AUTOSIZE);
    EXPECT_EQ(made, grid->GetRowLabelSize());
}

TEST_F(GridSetUp, FillsItsPanelWithABorderOfFive) {
    AddPage(Krv214, 0);
    wxWindow* panel = CurrentGrid()->GetParent();
    EXPECT_EQ(panel, MainFrame->m_pagePanels[1]);
    EXPECT_EQ(panel->GetParent(), MainFrame->m_notebook);
    EXPECT_TRUE(panel->HasFlag(wxTAB_TRAVERSAL));
    ASSERT_NE(panel->GetSizer(), nullptr);
    const wxSizerItem* item = panel->GetSizer()->GetItem(CurrentGrid());
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->GetProportion(), 1);
    EXPECT_EQ(item->GetBorder(), 5);
    EXPECT_EQ(item->GetFlag(), wxEXPAND | wxALL);
}

TEST_F(GridSetUp, FillsABlankRowWhenACellOfItIsAboutToChange) {
    AddPage(Krv214, 0);
    wxGridEvent event(CurrentGrid()->GetId(), wxEVT_GRID_CELL_CHANGING, CurrentGrid(), 7, DESC);
    CurrentGrid()->GetEventHandler()->ProcessEvent(event);
    EXPECT_EQ(Cell(7, MNUM), "007");
    EXPECT_EQ(Cell(7, TFLG), "A0");
}

TEST_F(GridSetUp, OfANewPageBecomesTheCurrentTabUnderTheRadioName) {
    ASSERT_EQ(PageCount, 1);
    AddPage(Krv630Qnt, 1);
    EXPECT_EQ(PageCount, 2);
    EXPECT_EQ(CurrentPage, 1);
    ASSERT_EQ(MainFrame->m_notebook->GetPageCount(), 2u);
    EXPECT_EQ(MainFrame->m_notebook->GetSelection(), 1);
    EXPECT_EQ(MainFrame->m_notebook->GetPageText(1), "KRV-630_QNT");
    EXPECT_EQ(MainFrame->m_notebook->GetPageText(0), "KRV-47");
    EXPECT_NE(PageGrid[0], PageGrid[1]);
}

TEST_F(GridSetUp, OfANewPageClearsTheFlagsOfThePageBefore) {
    PageParameters[0].Flags = 0x12;
    AddPage(Krv214, 0);
    EXPECT_EQ(PageParameters[0].Flags, 0);
}
