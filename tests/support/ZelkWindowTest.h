// A test with the program's main window, created for each test.
#pragma once

#include "catalogue/GridShape.h"
#include "catalogue/PageCreation.h"
#include "catalogue/RowFilling.h"
#include "catalogue/ZoneSlots.h"
#include "editing/ZelkEditors.h"
#include "frame/ZelkMain.h"
#include "tests/support/PageTexts.h"
#include "transfer/ChosenPort.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/grid.h>
#include <wx/utils.h>

#include <utility>
#include <vector>

using enum RadioCatalogue::RadioIndex;
using RadioCatalogue::ModuleSlot;
using testbench::FilledRows;
using testbench::RowTexts;

/// Shows the window with its first page (KRV-47) before each test and destroys it afterwards. The window has
/// its usual size, or is less high for programs of tests that say so in CMakeLists.txt. Its width, which cuts
/// the status bar's texts, is always the usual one.
class ZelkWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        ForgetState();
        MainFrame = new ZelkFrame(nullptr);
        if (wxGetEnv("ZELK_SMALL_WINDOW", nullptr))
            MainFrame->SetSize(MainFrame->GetSize().x, 360);
        MainFrame->Show();
        MainFrame->Raise();
        wxYield();
    }

    void TearDown() override {
        MainFrame->Destroy();
        wxTheApp->ProcessPendingEvents();
        wxTheApp->ProcessIdle(); // really deletes the window
        MainFrame = nullptr;
        wxYield();
    }

    /// Turns the current page into one for the radio and band slot, as if created for it.
    static void Retarget(int radio, int bandIndex) {
        SetPageParameters(MainFrame, CurrentPage, radio, bandIndex);
        wxGrid* grid = CurrentGrid();
        grid->ClearGrid();
        if (grid->GetNumberRows() > CurrentParameters().Rows + 1)
            grid->DeleteRows(1, grid->GetNumberRows() - CurrentParameters().Rows - 1);
        else if (grid->GetNumberRows() < CurrentParameters().Rows + 1)
            grid->AppendRows(CurrentParameters().Rows + 1 - grid->GetNumberRows());
        SetGridColumns(grid, CurrentParameters().Type);
        SetGridRowLabels(grid, CurrentParameters().Rows);
        SetPageEditors(CurrentPage);
        SetPageDefaults(MainFrame, CurrentPage);
        UpdateStatus(MainFrame, CurrentPage);
    }

    static wxString Cell(int row, int col) { return CurrentGrid()->GetCellValue(row, col); }
    static void SetCell(int row, int col, const wxString& text) {
        CurrentGrid()->SetCellValue(row, col, text);
    }

    /// Cells by column, with their texts.
    using CellList = std::vector<std::pair<int, const char*>>;

    static void SetCells(int row, const CellList& cells) {
        for (const auto& [col, text] : cells)
            SetCell(row, col, text);
    }
    /// Expects these texts. A failure names the row and the column.
    static void ExpectCells(int row, const CellList& cells) {
        for (const auto& [col, text] : cells)
            EXPECT_EQ(Cell(row, col).utf8_string(), text) << "row " << row << ", " << ColumnTag[col];
    }

private:
    /// Resets the state that outlives a window within one process.
    static void ForgetState() {
        PortName = "none";
        RowCopyBuffer.clear();
        ContextRow = 0;
        ZoneSlots.fill(0);
        PageGrid.fill(nullptr);
        PageParameters.fill({});
        PageStrings.fill({});
    }
};
