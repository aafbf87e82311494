// Editing of full pages: set-up, checks, and the row and column commands.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "bench/OperationRecord.h"
#include "bench/TakeFastest.h"
#include "catalogue/PageModel.h"
#include "editing/ZelkEdit.h"
#include "editing/ZelkEditors.h"
#include "frame/ZelkMain.h"

#include <benchmark/benchmark.h>
#include <wx/grid.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/notebook.h>

namespace {

/// Answers OK to the question before a command.
class SayOk : public wxModalDialogHook {
public:
    SayOk() { Register(); }
    ~SayOk() override { Unregister(); }

protected:
    int Enter(wxDialog*) override { return wxID_OK; }
};

/// Growth can only be seen between pages of one type, but no type has radios of three such sizes. Besides the
/// pages of real radios (NP25 with 502 rows, RP25 with 232, ANFM with 102), there are pages set to the number
/// of rows of the others.
constexpr PageCase EditingPages[] = {
    {"NP25", Kdrv716B, 0, -1, 102},
    {"NP25", Kdrv716B, 0, -1, 232},
    {"NP25", Kdrv716B, 0},
    {"RP25", Kdrv716, 0},
    {"ANFM", Krv214, 0},
    {"ANFM", Krv214, 0, -1, 232},
    {"ANFM", Krv214, 0, -1, 502},
};

int LastRow(const wxGrid* grid) {
    return grid->GetNumberRows() - 1;
}

/// The row on which the row commands act.
int MiddleRow(const wxGrid* grid) {
    return LastRow(grid) / 2;
}

/// Selections that the user makes before the commands.
void SelectNothing(wxGrid* grid) {
    grid->ClearSelection();
}
void SelectOneRow(wxGrid* grid) {
    grid->SelectRow(MiddleRow(grid));
}
void SelectEveryTenthRow(wxGrid* grid) {
    grid->ClearSelection();
    for (int row = 10; row < LastRow(grid) - 2; row += 10)
        grid->SelectRow(row, true);
}
void SelectPage(wxGrid* grid) {
    grid->SelectAll();
}
void SelectColumn(wxGrid* grid) {
    grid->SelectCol(RFRQ);
}

void SetEditors() {
    SetPageEditors(CurrentPage);
}

template <auto handler>
void Command() {
    wxCommandEvent event;
    (MainFrame->*handler)(event);
}

/// The toolkit's part of the question before a command.
void AskBare() {
    wxMessageDialog(nullptr, "message", "caption", wxOK | wxCANCEL).ShowModal();
}

void CountSelected(wxGrid* grid, int rows, int cols) {
    int selected = 0;
    for (int row = 1; row <= rows; ++row)
        for (int col = 0; col < cols; ++col)
            selected += grid->IsInSelection(row, col);
    benchmark::DoNotOptimize(selected);
}

void DoTexts(wxGrid* grid, const OperationRecord& record) {
    record.trace.Replay(grid);
}

void DoTextsAndColumns(wxGrid* grid, const OperationRecord& record) {
    SetBareColumns(grid, record.before.type);
    record.trace.Replay(grid);
}

void InsertRowBare(wxGrid* grid, const OperationRecord& record) {
    AskBare();
    grid->SelectRow(MiddleRow(grid));
    DoTextsAndColumns(grid, record);
}

/// Deletes and appends the rows one by one; removes the guard rows before and restores them after. The record
/// covers only setting the editors again.
void DeleteRowsBare(wxGrid* grid, const OperationRecord& record) {
    AskBare();
    const int last = LastRow(grid), firstGuard = last - 1;
    wxArrayString guards[2];
    for (int guard = 0; guard < 2; ++guard)
        for (int col = 0; col < ColumnTotal; ++col)
            guards[guard].Add(grid->GetCellValue(firstGuard + guard, col));
    grid->DeleteRows(firstGuard, 2);
    for (int row = firstGuard - 1; row > 1; --row) {
        if (!grid->IsInSelection(row, 0))
            continue;
        for (int col = 0; col < ColumnTotal; ++col)
            grid->SetCellValue(row, col, "");
        grid->DeleteRows(row, 1);
        grid->AppendRows(1);
    }
    grid->ClearSelection();
    grid->AppendRows(2);
    for (int guard = 0; guard < 2; ++guard)
        SetRowValues(grid, firstGuard + guard, guards[guard]);
    DoTextsAndColumns(grid, record);
}

void DefaultFileBare(wxGrid* grid, const OperationRecord& record) {
    AskBare();
    grid->SelectRow(MiddleRow(grid), true);
    CountSelected(grid, LastRow(grid), 1);
    DoTextsAndColumns(grid, record);
    grid->ClearSelection();
}

void DefaultColBare(wxGrid* grid, const OperationRecord& record) {
    AskBare();
    CountSelected(grid, 1, RFRQ + 1);
    DoTexts(grid, record);
    grid->ClearSelection();
}

struct Operation {
    const char* name;
    void (*select)(wxGrid*);
    void (*program)();
    void (*recorded)(); ///< the part that the floor takes from a record
    void (*floor)(wxGrid*, const OperationRecord&);
};

// clang-format off
constexpr Operation Operations[] = {
    {"SetPageEditors",      SelectNothing,       SetEditors,                         SetEditors, DoTextsAndColumns},
    {"CheckPage",           SelectNothing,       CheckPage,                          CheckPage,  DoTexts},
    {"OnInsertRow",         SelectOneRow,        Command<&ZelkFrame::OnInsertRow>,   Command<&ZelkFrame::OnInsertRow>,   InsertRowBare},
    {"OnDeleteRow/one",     SelectOneRow,        Command<&ZelkFrame::OnDeleteRow>,   SetEditors, DeleteRowsBare},
    {"OnDeleteRow/tenth",   SelectEveryTenthRow, Command<&ZelkFrame::OnDeleteRow>,   SetEditors, DeleteRowsBare},
    {"OnDefaultFile",       SelectPage,          Command<&ZelkFrame::OnDefaultFile>, Command<&ZelkFrame::OnDefaultFile>, DefaultFileBare},
    {"OnDefaultCol",        SelectColumn,        Command<&ZelkFrame::OnDefaultCol>,  Command<&ZelkFrame::OnDefaultCol>,  DefaultColBare},
};
// clang-format on

void RunProgram(benchmark::State& state, const PageCase& page, const Operation& operation) {
    MakePage(page);
    ContextRow = MiddleRow(CurrentGrid());
    TakeFastest(
        state,
        [&] {
            FillPage();
            SpreadTonesAndCodes();
            operation.select(CurrentGrid());
        },
        operation.program);
    DropPage();
}

void RunFloor(benchmark::State& state, const PageCase& page, const Operation& operation) {
    MakePage(page);
    FillPage();
    SpreadTonesAndCodes();
    ContextRow = MiddleRow(CurrentGrid());
    const OperationRecord record =
        RecordOperation([&] { operation.select(CurrentGrid()); }, operation.recorded);
    DropPage();
    wxGrid* grid = AddBarePage(MainFrame->m_notebook, record.before);
    TakeFastest(
        state,
        [&] {
            WriteTexts(grid, record.before);
            operation.select(grid);
        },
        [&] {
            wxGridUpdateLocker quiet(grid);
            operation.floor(grid, record);
        });
    DropPage();
}

void RegisterSide(const Operation& operation, const PageCase& page, bool floor) {
    const int rows = page.rows ? page.rows : RadioCatalogue::RadioRows[page.radio][page.bandIndex];
    const std::string name = std::string(operation.name) + "/" + page.type + "/" + std::to_string(rows) +
                             (floor ? "/floor" : "/program");
    benchmark::RegisterBenchmark(name.c_str(),
                                 [floor, &page, &operation](benchmark::State& state) {
                                     const SayOk sayOk;
                                     floor ? RunFloor(state, page, operation)
                                           : RunProgram(state, page, operation);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->UseManualTime();
}

} // namespace

void RegisterEditing() {
    // Several passes, so that a temporary load on the machine can't spoil one case alone.
    constexpr int Passes = 6;
    for (int pass = 0; pass < Passes; ++pass)
        for (const Operation& operation : Operations)
            for (const PageCase& page : EditingPages)
                for (const bool floor : {false, true})
                    RegisterSide(operation, page, floor);
}
