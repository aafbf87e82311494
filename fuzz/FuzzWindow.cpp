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

void MakeCurrent(int page) {
    CurrentPage = page;
    SetGuardRows(MainFrame, page, PageParameters[page].Rows);
}

void EmptyPages() {
    for (int page = 0; page < PageCount; ++page) {
        MakeCurrent(page);
        ResetPage(page);
        EmptyDefaultMemories(page);
    }
}

} // namespace

void MakeFuzzWindow(std::initializer_list<FuzzTarget> targets) {
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
    const PageParameterRecord former = CurrentParameters();
    for (const FuzzTarget& target : targets) {
        const bool isFirst = &target == targets.begin();
        const int page = isFirst ? CurrentPage : PageCount;
        SetPageParameters(MainFrame, page, target.radio, target.bandIndex);
        if (isFirst)
            AdjustEditGrid(MainFrame, former.Radio, former.BandIndex);
        else
            CreateNewPage(MainFrame, page);
    }
}

void ChooseFuzzPage(size_t size, int emptyAfter) {
    static int calls = 0;
    if (calls++ % emptyAfter == 0)
        EmptyPages();
    MakeCurrent(static_cast<int>(size % static_cast<size_t>(PageCount)));
}

void Demand(bool condition, const char* what) {
    if (condition)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

void CheckFuzzPage() {
    const wxGrid* grid = CurrentGrid();
    Demand(grid->GetNumberCols() == ColumnTotal, "the page's columns");
    Demand(grid->GetNumberRows() == CurrentParameters().Rows + 1, "the page's rows");
    const int32_t* slots = ZoneSlotsOf(CurrentPage);
    for (int zone = 0; zone < ZonesPerPage; ++zone)
        Demand(slots[zone] >= 0 && slots[zone] <= ZoneCapacity, "the page's zone counters");
}
