#include "transfer/TransferSession.h"

#include "transfer/ProgressFrame.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferLog.h"
#include "transfer/wxAsyncSerial.h"

#include <wx/gauge.h>
#include <wx/grid.h>
#include <wx/msgdlg.h>

namespace {

constexpr int LastWordsTime = 200; // ms

} // namespace

void MakeProgressFrame(TransferContext& context, wxGrid* grid, const wxString& title) {
    context.Progress = new ProgressFrame(grid->GetGridWindow(), -1, title, wxDefaultPosition,
                                         wxSize(200, 150), wxCAPTION | wxRESIZE_BORDER);
    context.Progress->MainGauge()->SetRange(grid->GetNumberRows());
    context.Progress->MainGauge()->SetValue(0);
    context.Progress->Show();
}

void TakeDown(TransferContext& context) {
    CloseTransferLog(context.LogFile);
    // A close drops what is unsent, on Windows the record on its way too: the radio would miss the end of the
    // transfer. However it ended, there is nothing to wait for unless the line is slow or stuck.
    context.Port->waitUntilWritten(LastWordsTime);
    context.Port->close();
    delete context.Port;
    context.Port = nullptr;
    context.Progress->Hide();
    // At once, not when the program is next idle: the other windows are disabled as long as it lives.
    delete context.Progress;
    context.Progress = nullptr;
}

void ShowError(TransferContext& context, const wxString& text) {
    wxMessageBox(text, "Error", wxOK | wxICON_ERROR, context.Progress);
}

void ShowStatus(TransferContext& context) {
    context.Progress->SetStatus(context.StatusText);
    WriteTransferLog(context.LogFile, context.StatusText);
}

void SetMainGauge(TransferContext& context, int value) {
    wxGauge* const gauge = context.Progress->MainGauge();
    if (value >= 0 && value <= gauge->GetRange())
        gauge->SetValue(value);
}

void TakeReceivedLine(TransferContext& context) {
    const std::size_t end = static_cast<std::size_t>(context.FoundAt);
    context.RxLine = context.RxBuffer.Left(end).Trim(false);
    context.RxBuffer = context.RxBuffer.Mid(end + 1).Trim(false);
}
