#include "transfer/ZelkTransfer.h"

#include "catalogue/PageModel.h"
#include "commands/FocusKeeper.h"
#include "commands/OpenEditor.h"
#include "editing/PageReset.h"
#include "editing/ZelkEditors.h"
#include "frame/ZelkMain.h"
#include "transfer/AnalogDriver.h"
#include "transfer/ChosenPort.h"
#include "transfer/DriverChoice.h"
#include "transfer/TRecordDriver.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"
#include "transfer/UnsentRows.h"

#include <wx/grid.h>
#include <wx/msgdlg.h>

#include <set>

using namespace RadioCatalogue;

namespace {

constexpr int NoRadio = -1;

void Refuse(const wxString& text) {
    wxMessageBox(text, "Error!", wxOK | wxCENTRE, MainFrame);
}

bool PortIsChosen() {
    if (PortName != "none")
        return true;
    Refuse("No Port selected!");
    return false;
}

void ShowResult(TransferStatus status, const wxString& caption) {
    wxMessageBox(GetStatusText(status), caption, wxOK | wxCENTRE, MainFrame);
}

bool GuardIsSelected(int row) {
    return row < CurrentGrid()->GetNumberRows() && RowHasData(row) && CurrentGrid()->IsInSelection(row, 0);
}

/// Result of a transfer and the memory rows that the radio has acknowledged in it.
struct TransferResult {
    TransferStatus status = TransferUnsupported;
    std::set<int> rowsSent = {};
};

TransferResult RunDriver(TransferDriver driver, TransferMode mode, const wxString& title) {
    TransferContext analog;
    TRecordContext digital;
    switch (driver) {
    case TransferDriver::Analog:
        return {AnalogProtocol::TransferData(analog, CurrentGrid(), mode, PortName, title), analog.RowsSent};
    case TransferDriver::TRecord:
        return {TRecordProtocol::TransferData(digital, CurrentGrid(), mode, PortName, title),
                digital.RowsSent};
    case TransferDriver::None:
        break;
    }
    return {};
}

bool UserAgreesToOverwrite() {
    wxMessageDialog question(MainFrame, "This will overwrite any data on this page! Continue?",
                             "Read Channel Data from Radio?", wxOK | wxCANCEL);
    return question.ShowModal() == wxID_OK;
}

} // namespace

bool MainAndGuardsAreSelected() {
    const PageParameterRecord& page = CurrentParameters();
    // Intentional: the default row represents the main channels.
    if (page.Rows > 0 && !RowHasData(0))
        return false;
    // Among the single channel radios, KRV-214 has 100 channels, the others 120.
    const int firstGuard = page.Radio == Krv214 ? 101 : 121;
    return GuardIsSelected(firstGuard) && GuardIsSelected(firstGuard + 1);
}

void ZelkFrame::OnDownload(wxCommandEvent&) {
    CommitOpenEditor();
    // Before the question: while it closes, no window has the keyboard.
    const FocusKeeper focus;
    const PageParameterRecord& page = CurrentParameters();
    if (!UserAgreesToOverwrite())
        return;
    if (page.Radio == NoRadio)
        return Refuse("No target radio selected!");
    if (!PortIsChosen())
        return;
    const DriverChoice choice = ChooseDriver(page.Type, page.Band, TransferDirection::Read);
    TransferStatus status = TransferUnsupported;
    if (choice.driver != TransferDriver::None) {
        ResetPage(CurrentPage);
        // Rows read must not mix with the memories that such a page begins with.
        EmptyDefaultMemories(CurrentPage);
        status = RunDriver(choice.driver, ReadChannelsMode,
                           wxString("Read ") + RadioTypeName[page.Type] + " Memory Data Progress")
                     .status;
        SetPageEditors(CurrentPage);
    }
    ShowResult(status, "Read from Radio Status");
}

void ZelkFrame::OnUpload(wxCommandEvent&) {
    CommitOpenEditor();
    const FocusKeeper focus;
    const PageParameterRecord& page = CurrentParameters();
    if (!PortIsChosen())
        return;
    if (CurrentGrid()->GetSelectedRows().empty())
        return Refuse("No data selected!");
    const DriverChoice choice = ChooseDriver(page.Type, page.Band, TransferDirection::Write);
    if (choice.driver == TransferDriver::Analog && page.Radio <= Krv305 && !MainAndGuardsAreSelected())
        return Refuse("For single channel analog radios\n(KRV-21, 47, 214, 214B 305):\n\n"
                      "At least one Main channel and\n both Guards must be selected!");
    if (page.Type == O12)
        Refuse("ORV-12 is not currently supported!");
    const std::set<int> selected = SelectedMemories();
    const TransferResult result = RunDriver(choice.driver, WriteChannelsMode, choice.title);
    // Also after an incomplete write: rows that aren't in the radio must not be taken for sent.
    TellUnsentRows(selected, result.rowsSent);
    ShowResult(result.status, "Write to Radio Status");
}
