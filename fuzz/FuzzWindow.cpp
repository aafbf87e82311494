#include "fuzz/FuzzWindow.h"

#include "catalogue/PageCreation.h"
#include "catalogue/ZoneSlots.h"
#include "editing/PageReset.h"
#include "frame/TargetSelection.h"
#include "frame/ZelkApp.h"
#include "frame/ZelkMain.h"

#include <wx/grid.h>
#include <wx/modalhook.h>

#include <cstdio>
#include <cstdlib>

namespace {

class AnswerAtOnce : public wxModalDialogHook {
protected:
    int Enter(wxDialog*) override { return wxID_OK; }
};

void Demand(bool condition, const char* what) {
    if (condition)
        return;
    std::fprintf(stderr, "the page is broken: %s\n", what);
    std::abort();
}

} // namespace

void MakeFuzzWindow() {
    static AnswerAtOnce hook;
    wxDisableAsserts();
    int noArguments = 0;
    char** const arguments = nullptr;
    wxApp::SetInstance(new ZelkApp);
    if (!wxEntryStart(noArguments, arguments) || !wxTheApp->CallOnInit()) {
        std::fprintf(stderr, "the window can't be made: is there a display?\n");
        std::exit(2);
    }
    hook.Register();
}

void MakeFuzzPage(int radio, int bandIndex) {
    const PageParameterRecord former = CurrentParameters();
    SetPageParameters(MainFrame, CurrentPage, radio, bandIndex);
    AdjustEditGrid(MainFrame, former.Radio, former.BandIndex);
    ResetPage(CurrentPage);
    EmptyDefaultMemories(CurrentPage);
}

void CheckFuzzPage() {
    const wxGrid* grid = CurrentGrid();
    Demand(grid->GetNumberCols() == ColumnTotal, "columns");
    Demand(grid->GetNumberRows() == CurrentParameters().Rows + 1, "rows");
    const int32_t* slots = ZoneSlotsOf(CurrentPage);
    for (int zone = 0; zone < ZonesPerPage; ++zone)
        Demand(slots[zone] >= 0 && slots[zone] <= ZoneCapacity, "zone counters");
}
