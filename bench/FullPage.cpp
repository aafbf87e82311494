#include "bench/FullPage.h"

#include "catalogue/PageCreation.h"
#include "catalogue/RowFilling.h"
#include "catalogue/ZoneSlots.h"
#include "frame/ZelkMain.h"

#include <wx/grid.h>
#include <wx/notebook.h>

void MakePage(const PageCase& page) {
    SetPageParameters(MainFrame, 1, page.radio, page.bandIndex);
    if (page.forcedType >= 0) {
        PageParameters[1].Type = page.forcedType;
        PageStrings[1].TypeName = RadioCatalogue::RadioTypeName[page.forcedType];
    }
    if (page.rows > 0) {
        PageParameters[1].Rows = page.rows;
        SetGuardRows(MainFrame, 1, page.rows);
    }
    CreateNewPage(MainFrame, 1);
}

void DropPage() {
    PageGrid[1] = nullptr;
    MainFrame->m_notebook->DeletePage(MainFrame->m_notebook->GetPageCount() - 1);
    CurrentPage = 0;
    PageCount = 1;
}

void FillPage() {
    ClearZoneSlots(CurrentPage);
    CurrentGrid()->SelectAll();
    CopyValuesToSelection(CurrentPage, GetRowValues(CurrentPage, 0), true, true);
}

void SpreadTonesAndCodes() {
    using namespace RadioCatalogue;
    wxGrid* grid = CurrentGrid();
    const wxArrayString& tones = CurrentPageIsP25() ? CtcssList : ToneList;
    wxGridUpdateLocker quiet(grid);
    for (int row = 1; row <= CurrentParameters().Rows; ++row) {
        // The first code is "OFF".
        const wxString tone = tones[static_cast<size_t>(row) % tones.size()];
        const wxString code = CodeList[1 + static_cast<size_t>(row) % (CodeList.size() - 1)];
        for (int col : {RTON, TTON})
            grid->SetCellValue(row, col, tone);
        for (int col : {RCOD, TCOD})
            grid->SetCellValue(row, col, code);
    }
}

void EmptyPage() {
    wxGrid* grid = CurrentGrid();
    ClearZoneSlots(CurrentPage);
    grid->ClearSelection();
    const wxArrayString defaults = GetRowValues(CurrentPage, 0);
    grid->ClearGrid();
    SetRowValues(grid, 0, defaults);
}
