#include "bench/BareFrame.h"

#include "bench/ToolkitFloor.h"
#include "catalogue/ColumnTables.h"
#include "catalogue/RadioTables.h"

#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/sizer.h>

wxGrid* ShowBareFrame() {
    using namespace RadioCatalogue;
    GridContent content;
    content.rows = RadioRows[1][0] + 1;
    wxArrayString blank, defaults;
    blank.Add("", ColumnTotal);
    for (const char* text : PageDefault[1])
        defaults.Add(text);
    content.texts.assign(static_cast<size_t>(content.rows), blank);
    content.texts[0] = defaults;
    auto* frame = new wxFrame(nullptr, wxID_ANY, "Bare", wxDefaultPosition, wxSize(927, 680));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    wxGrid* grid = MakeBareGrid(frame, content);
    WriteTexts(grid, content);
    sizer->Add(grid, 1, wxEXPAND);
    frame->SetSizer(sizer);
    frame->Layout();
    frame->Show();
    return grid;
}
