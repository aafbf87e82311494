// The window for the self-tests of the bench.
#pragma once

#include <wx/button.h>
#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/sizer.h>

/// A small grid above a button that counts its clicks.
class SelfTestFrame : public wxFrame {
public:
    SelfTestFrame() : wxFrame(nullptr, wxID_ANY, "Bench", {60, 40}, {600, 400}) {
        grid->CreateGrid(5, 3);
        button->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { clicks++; });
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(grid, 1, wxEXPAND);
        sizer->Add(button);
        SetSizer(sizer);
    }

    wxGrid* grid = new wxGrid(this, wxID_ANY);
    wxButton* button = new wxButton(this, wxID_ANY, "Count");
    int clicks = 0;
};
