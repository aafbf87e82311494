// Port, progress window and message boxes of one transfer, with any radio.
#pragma once

#include "transfer/PromptThread.h"
#include "transfer/TransferLine.h"
#include "transfer/TransferProgress.h"
#include "transfer/TransferStatus.h"

#include <wx/string.h>

#include <functional>
#include <memory>

class wxGrid;
struct TransferContext;

/// Progress window and port of a transfer. Tests supply their own.
struct TransferMeans {
    std::unique_ptr<TransferProgress> progress; ///< a window disables all others as long as it lives
    std::unique_ptr<TransferLine> port;
};

/// Shows the progress window of a page's grid, its gauge at 0 of the number of rows, and opens the port at
/// 9600 baud. Returns both, and a closed port if it couldn't be opened.
[[nodiscard]] TransferMeans MeansFor(wxGrid* grid, const wxString& portName, const wxString& title);

/// Owns port and progress window while a transfer runs, and sets the pointers of its context to them. When
/// the session ends, also by an exception, the files of the context are closed, the other windows are
/// enabled, the port is free, and both pointers of the context are null again.
class TransferSession {
public:
    /// @param context must outlive the session
    TransferSession(TransferContext& context, TransferMeans means);

    /// Waits up to half a second for queued data to reach the radio.
    ~TransferSession();

    TransferSession(const TransferSession&) = delete;
    TransferSession& operator=(const TransferSession&) = delete;

    /// Runs the exchange with the radio if the port is open. Sets context.Status to its result, or to
    /// TransferPortError if the port isn't open.
    void Run(const std::function<TransferStatus()>& exchange);

private:
    TransferContext& m_context;
    TransferMeans m_means;
    PromptThread m_prompt; ///< of the driver, whose pauses must not last longer because of other programs
};

/// Shows a failure in a message box.
void ShowError(TransferContext& context, const wxString& text);

/// Shows context.StatusText in the progress window and writes it to the log.
void ShowStatus(TransferContext& context);

/// Moves the main gauge if the value is in its range.
void SetMainGauge(TransferContext& context, int value);

/// Moves the text before the terminator that WaitForLine found from context.RxBuffer to context.RxLine,
/// without leading blanks and line feeds. Drops the terminator. The rest of the buffer stays, trimmed in the
/// same way.
void TakeReceivedLine(TransferContext& context);
