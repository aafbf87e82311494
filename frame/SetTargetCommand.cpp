// The command that changes the target of a page.
#include "catalogue/PageModel.h"
#include "catalogue/RowFilling.h"
#include "commands/ErrorBox.h"
#include "commands/OpenEditor.h"
#include "commands/StatusOutcome.h"
#include "editing/CellMarks.h"
#include "editing/MemoryNumbers.h"
#include "editing/MissingCells.h"
#include "editing/ReplacedCells.h"
#include "editing/ZelkEdit.h"
#include "editing/ZelkEditors.h"
#include "frame/TargetSelection.h"
#include "frame/ZelkMain.h"

#include <wx/grid.h>
#include <wx/msgdlg.h>

namespace {

/// State of the page before a change of target.
struct FormerPage {
    PageParameterRecord parameters = CurrentParameters();
    bool p25 = CurrentPageIsP25();
    bool hadGuards = HasGuardRows(CurrentPage);
    int guards[2] = {GD1, GD2};
    bool guardUsed[2] = {hadGuards && RowHasData(GD1), hadGuards&& RowHasData(GD2)};

    bool GuardsUsed() const { return guardUsed[0] || guardUsed[1]; }
    bool IsOfOtherTarget() const {
        return parameters.Radio != CurrentParameters().Radio ||
               parameters.BandIndex != CurrentParameters().BandIndex;
    }
};

int CountMemories() {
    int count = 0;
    for (int row = 1; row < CurrentGrid()->GetNumberRows(); ++row)
        count += RowHasData(row);
    return count;
}

/// Number of used guard rows of the former target that are restored without taking another memory's row.
int CountGuardsThatComeBack(const FormerPage& former) {
    if (!HasGuardRows(CurrentPage))
        return 0;
    return (former.guardUsed[0] && !RowHasData(GD1)) + (former.guardUsed[1] && !RowHasData(GD2));
}

/// Changes grid, default row and guard rows to those of the new target. Returns the number of memories that
/// have no row in it.
int MovePage(OrvZELFrame* frame, const FormerPage& former) {
    const int memories = CountMemories();
    if (former.hadGuards)
        for (int row : former.guards)
            ClearRowData(row, former.p25);
    if (former.IsOfOtherTarget())
        AdjustEditGrid(frame, former.parameters.Radio, former.parameters.BandIndex);
    const int kept = CountMemories() + CountGuardsThatComeBack(former);
    SetPageDefaults(frame, CurrentPage);
    if (former.GuardsUsed() && HasGuardRows(CurrentPage))
        RestoreGuardRows(frame, true);
    return memories - kept;
}

/// Removes read-only marks left by the rules of the former type. Marks of linked rows stay where both types
/// have links.
void ForgetFormerLocks(const FormerPage& former) {
    if (former.p25 && CurrentPageIsP25())
        return;
    MakeCellsWritable(CurrentGrid());
}

/// Adapts the memories to the new type: locks, numbers, cells that the former type lacks, and finally
/// whatever the checks find.
void FitMemories(const FormerPage& former) {
    wxGrid* grid = CurrentGrid();
    ForgetFormerLocks(former);
    MemoryNumberIndex numbers(CurrentParameters().Rows);
    for (int row = 1; row <= CurrentParameters().Rows; ++row) {
        if (!RowHasData(row))
            continue;
        ReplaceImpossibleNumber(grid, row, numbers);
        FillMissingCells(grid, row);
    }
    CheckPage();
    SetPageEditors(CurrentPage);
}

wxString Joined(const wxString& first, const wxString& second, const wxString& between) {
    return first.empty() || second.empty() ? first + second : first + between + second;
}

void TellTargetChange(int lost, const ReplacedCells& replaced) {
    wxString verdict, story;
    if (lost > 0) {
        verdict.Printf(lost == 1 ? "%d row LOST" : "%d rows LOST", lost);
        story.Printf(lost == 1 ? "%d row found no place in the smaller page"
                               : "%d rows found no place in the smaller page",
                     lost);
    }
    TellOutcome(Joined(verdict, replaced.Text(), ", "), Joined(story, replaced.Story(), "; "));
}

} // namespace

void ZelkFrame::OnSetTarget(wxCommandEvent&) {
    CommitOpenEditor();
    wxMessageDialog question(this,
                             "If there is data on this page,\nthis may result in invalid configuration!",
                             "Change Target?", wxOK | wxCANCEL);
    if (question.ShowModal() != wxID_OK)
        return;

    const FormerPage former;
    if (former.GuardsUsed())
        SaveGuardRows(this);
    const int result = UserSelectRadioAndBand(this, CurrentPage);
    if (result == ResultCancelled)
        return;
    if (result != 0) {
        DisplayError(result, 0);
        return;
    }

    const ReplacedCells replaced;
    int lost = 0;
    {
        wxGridUpdateLocker quiet(CurrentGrid());
        lost = MovePage(this, former);
        UpdateStatus(this, CurrentPage);
        FitMemories(former);
    }
    TellTargetChange(lost, replaced);
}
