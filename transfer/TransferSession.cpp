#include "transfer/TransferSession.h"

#include "transfer/ProgressFrame.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferSystem.h"
#include "transfer/TransferTimes.h"

#include <wx/grid.h>
#include <wx/msgdlg.h>

#include <utility>

namespace {

/// Initial speed of every radio, in baud.
constexpr unsigned OpeningSpeed = 9600;

std::unique_ptr<ProgressFrame> MakeProgressFrame(wxGrid* grid, const wxString& title) {
    auto progress = std::make_unique<ProgressFrame>(grid->GetGridWindow(), -1, title, wxDefaultPosition,
                                                    wxSize(200, 150), wxCAPTION | wxRESIZE_BORDER);
    progress->SetRange(grid->GetNumberRows());
    progress->SetValue(0);
    progress->Show();
    progress->AwaitDrawing();
    return progress;
}

} // namespace

TransferMeans MeansFor(wxGrid* grid, const wxString& portName, const wxString& title) {
    // The window comes first: opening a port can take a while.
    auto progress = MakeProgressFrame(grid, title);
    return {std::move(progress),
            CurrentTransferSystem().Open(wxGetTopLevelParent(grid), portName, OpeningSpeed)};
}

TransferSession::TransferSession(TransferContext& context, TransferMeans means)
    : m_context(context), m_means(std::move(means)) {
    m_context.Progress = m_means.progress.get();
    m_context.Port = m_means.port.get();
}

TransferSession::~TransferSession() {
    CloseTransferLog(m_context.LogFile);
    CloseTransferLog(m_context.DebugLogFile);
    CloseTransferLog(m_context.HardwareFile); // still open if the radio didn't end its records
    // Closing the port drops unsent data, on Windows even the record being sent: the radio would miss the end
    // of the transfer. Whatever the result, this only waits if the line is slow or stuck.
    m_means.port->waitUntilWritten(TransferTimes::LastWordsTimeout);
    m_means.port->close();
    m_means.port.reset();
    m_context.Port = nullptr;
    // Destroyed at once, not at the program's next idle time: it disables the other windows while it lives.
    m_means.progress.reset();
    m_context.Progress = nullptr;
}

void TransferSession::Run(const std::function<TransferStatus()>& exchange) {
    m_context.Status = m_means.port->isOpen() ? exchange() : TransferPortError;
}

void ShowError(TransferContext& context, const wxString& text) {
    wxMessageBox(text, "Error", wxOK | wxICON_ERROR, context.Progress->Window());
}

void ShowStatus(TransferContext& context) {
    context.Progress->SetStatus(context.StatusText);
    WriteTransferLog(context.LogFile, context.StatusText);
}

void SetMainGauge(TransferContext& context, int value) {
    if (value >= 0 && value <= context.Progress->Range())
        context.Progress->SetValue(value);
}

void TakeReceivedLine(TransferContext& context) {
    const size_t end = static_cast<size_t>(context.FoundAt);
    context.RxLine = context.RxBuffer.Left(end).Trim(false);
    context.RxBuffer = context.RxBuffer.Mid(end + 1).Trim(false);
}
