#include "catalogue/PageCreation.h"

#include "catalogue/GridShape.h"
#include "catalogue/RowFilling.h"
#include "catalogue/ZoneSlots.h"
#include "editing/GridSpeech.h"
#include "editing/ZelkEditors.h"
#include "frame/ZelkGUI.h"

#include <wx/grid.h>
#include <wx/log.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/sizer.h>

using namespace RadioCatalogue;

void SetPageParameters(OrvZELFrame* frame, int page, int radio, int bandIndex) {
    PageParameterRecord& parameters = PageParameters[page];
    parameters.Radio = radio;
    parameters.BandIndex = bandIndex;
    parameters.Band = RadioBands[radio][bandIndex];
    parameters.Rows = RadioRows[radio][bandIndex];
    parameters.Type = GetRadioType(radio, parameters.Band);
    parameters.Cols = ColumnCount[parameters.Type];

    PageStrings[page] = {"", "", RadioName[radio], BandName[parameters.Band], RadioTypeName[parameters.Type]};
    OpModes[page] = NarrowMode | DigitalMode;
    // Intentional: clears the flags of the selected page, even while another page is created.
    CurrentParameters().Flags = 0;
    if (IsP25Type(parameters.Type))
        ClearZoneSlots(page);
    SetGuardRows(frame, page, parameters.Rows);
}

void CreateNewPage(OrvZELFrame* frame, int page) {
    // In the toolkit's first size of a page the grid has no room for its scroll bars, and GTK complains.
    auto* panel = new wxPanel(frame->m_notebook, wxID_ANY, wxDefaultPosition, frame->GetClientSize(),
                              wxTAB_TRAVERSAL | wxBORDER_NONE);
    frame->m_pagePanels[page] = frame->m_lastPanel = panel;
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    auto* grid = new wxGrid(panel, wxID_ANY);
    PageGrid[page] = grid;
    SpeakGrid(grid);
    SetUpGrid(grid, page);
    // The event carries the id of the grid's clicked inner window, so Bind can't filter by id here.
    grid->Bind(wxEVT_CONTEXT_MENU, &OrvZELFrame::OnGridContextMenu, frame);
    sizer->Add(grid, 1, wxEXPAND | wxALL, 5);
    panel->SetSizer(sizer);
    panel->Layout();
    // For every page except the first, this raises the page-changed event before it returns, so the
    // new page is the current one from here on.
    frame->m_notebook->AddPage(panel, PageStrings[page].RadioName, true);
    {
        wxGridUpdateLocker quiet(grid);
        SetPageEditors(page);
        SetPageDefaults(frame, page);
    }
    // On Windows neither a new page nor a click on a label brings the keyboard along. The first page gets it
    // when the window is shown.
    if (frame->IsShown())
        grid->SetFocus();
    grid->Bind(wxEVT_GRID_LABEL_LEFT_CLICK, [grid](wxGridEvent& event) {
        event.Skip();
        if (!grid->IsCellEditControlShown())
            grid->SetFocus();
    });
    grid->Bind(wxEVT_KEY_DOWN, &OrvZELFrame::OnGridKeyDown, frame);
    grid->Bind(wxEVT_GRID_CELL_CHANGING, &OrvZELFrame::OnGridCellChanging, frame);
    CurrentPage = page;
    ++PageCount;
    ShowPageParameters(frame, page);
}

void ShowPageParameters(OrvZELFrame*, int page) {
    const PageParameterRecord& parameters = PageParameters[page];
    wxLogMessage(" . Page: %d; Radio: %d; Band: %d, slot %d; Rows: %d; Cols: %d; Type: %d; Flags: %02X",
                 page + 1, parameters.Radio, parameters.Band, parameters.BandIndex, parameters.Rows,
                 parameters.Cols, parameters.Type, static_cast<unsigned>(parameters.Flags));
}
