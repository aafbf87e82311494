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
        // No radio has FXAM: channel files alone lead there.
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

/// The toolkit lets only derived grids read the minimal width.
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
    EXPECT_EQ(GetParam().rows + 1, m_grid->GetNumberRows());
    EXPECT_EQ(32, m_grid->GetNumberCols());
}

TEST_P(GridSetUpOfType, ShowsTheColumnsOfItsTypeAndHidesTheOthers) {
    for (const printed::ColumnLine& line : printed::Columns) {
        SCOPED_TRACE(line.tag);
        const printed::Look& look = line.looks[GetParam().type];
        EXPECT_EQ(look.width, m_grid->GetColSize(line.column));
        EXPECT_EQ(look.width > 0, m_grid->IsColShown(line.column));
        EXPECT_EQ(look.heading, m_grid->GetColLabelValue(line.column).utf8_string());
    }
}

TEST_P(GridSetUpOfType, LabelsItsRowsWithThreeDigitsUpToOnePastTheLast) {
    for (int row = 0; row <= GetParam().rows + 1; ++row)
        EXPECT_EQ(LabelOf(row), m_grid->GetRowLabelValue(row).utf8_string());
    EXPECT_NE(LabelOf(GetParam().rows + 2), m_grid->GetRowLabelValue(GetParam().rows + 2).utf8_string());
}

TEST_P(GridSetUpOfType, HasRowsOf23PixelsAndAHeadAsHigh) {
    EXPECT_EQ(23, m_grid->GetDefaultRowSize());
    for (int row : {0, 1, GetParam().rows})
        EXPECT_EQ(23, m_grid->GetRowSize(row)) << "row " << row;
    EXPECT_EQ(23, m_grid->GetColLabelSize());
}

TEST_P(GridSetUpOfType, LetsNoShownColumnBecomeNarrowerThanItStarts) {
    for (const printed::ColumnLine& line : printed::Columns) {
        const int width = line.looks[GetParam().type].width;
        if (width > 0) {
            EXPECT_EQ(width, MinimalWidth::Of(*m_grid, line.column)) << line.tag;
        }
    }
}

TEST_F(GridSetUp, EditsCellsAndSelectsThemSingly) {
    const wxGrid* grid = CurrentGrid();
    EXPECT_TRUE(grid->IsEditable());
    EXPECT_TRUE(grid->GridLinesEnabled());
    EXPECT_EQ(wxGrid::wxGridSelectCells, grid->GetSelectionMode());
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
    EXPECT_EQ(wxALIGN_CENTRE, across);
    EXPECT_EQ(wxALIGN_CENTRE, down);
    CurrentGrid()->GetRowLabelAlignment(&across, &down);
    EXPECT_EQ(wxALIGN_CENTRE, across);
    EXPECT_EQ(wxALIGN_CENTRE, down);
    CurrentGrid()->GetDefaultCellAlignment(&across, &down);
    EXPECT_EQ(wxALIGN_LEFT, across);
    EXPECT_EQ(wxALIGN_TOP, down);
}

TEST_F(GridSetUp, GivesTheRowLabelsTheWidthOfTheirText) {
    wxGrid* grid = CurrentGrid();
    wxClientDC dc(grid);
    dc.SetFont(grid->GetLabelFont());
    const int made = grid->GetRowLabelSize();
    EXPECT_GE(made, dc.GetTextExtent("122").x);
    grid->SetRowLabelSize(wxGRID_AUTOSIZE);
    EXPECT_EQ(grid->GetRowLabelSize(), made);
}

TEST_F(GridSetUp, FillsItsPanelWithABorderOfFive) {
    AddPage(Krv214, 0);
    wxWindow* panel = CurrentGrid()->GetParent();
    EXPECT_EQ(MainFrame->m_pagePanels[1], panel);
    EXPECT_EQ(MainFrame->m_notebook, panel->GetParent());
    EXPECT_TRUE(panel->HasFlag(wxTAB_TRAVERSAL));
    ASSERT_NE(nullptr, panel->GetSizer());
    const wxSizerItem* item = panel->GetSizer()->GetItem(CurrentGrid());
    ASSERT_NE(nullptr, item);
    EXPECT_EQ(1, item->GetProportion());
    EXPECT_EQ(5, item->GetBorder());
    EXPECT_EQ(wxEXPAND | wxALL, item->GetFlag());
}

TEST_F(GridSetUp, FillsABlankRowWhenACellOfItIsAboutToChange) {
    AddPage(Krv214, 0);
    wxGridEvent event(CurrentGrid()->GetId(), wxEVT_GRID_CELL_CHANGING, CurrentGrid(), 7, DESC);
    CurrentGrid()->GetEventHandler()->ProcessEvent(event);
    EXPECT_EQ("007", Cell(7, MNUM));
    EXPECT_EQ("A0", Cell(7, TFLG));
}

TEST_F(GridSetUp, OfANewPageBecomesTheCurrentTabUnderTheRadioName) {
    ASSERT_EQ(1, PageCount);
    AddPage(Krv630Qnt, 1);
    EXPECT_EQ(2, PageCount);
    EXPECT_EQ(1, CurrentPage);
    ASSERT_EQ(2u, MainFrame->m_notebook->GetPageCount());
    EXPECT_EQ(1, MainFrame->m_notebook->GetSelection());
    EXPECT_EQ("KRV-630_QNT", MainFrame->m_notebook->GetPageText(1));
    EXPECT_EQ("KRV-47", MainFrame->m_notebook->GetPageText(0));
    EXPECT_NE(PageGrid[0], PageGrid[1]);
}

TEST_F(GridSetUp, OfANewPageClearsTheFlagsOfThePageBefore) {
    PageParameters[0].Flags = 0x12;
    AddPage(Krv214, 0);
    EXPECT_EQ(0, PageParameters[0].Flags);
}
