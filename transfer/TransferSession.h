// One transfer as the user meets it, whatever radio it serves: its port, its window, its boxes.
#pragma once

#include "transfer/ProgressFrame.h"
#include "transfer/TransferStatus.h"
#include "transfer/wxAsyncSerial.h"

#include <functional>
#include <memory>
#include <wx/string.h>

class wxGrid;
struct TransferContext;

/// What a transfer runs on. Anyone who runs one may hand in their own.
struct TransferMeans {
    std::unique_ptr<ProgressFrame> progress; ///< disables all other windows as long as it lives
    std::unique_ptr<wxAsyncSerial> port;
};

/// The progress window of a page's grid, shown and counting its rows from 0, and the port, opened at 9600
/// baud. A port that couldn't be opened is there all the same.
[[nodiscard]] TransferMeans MeansFor(wxGrid* grid, const wxString& portName, const wxString& title);

/// Owns port and progress window while a transfer runs, and lends them to its context. When the session ends,
/// also by an exception, the files of the context are closed, the other windows are enabled, and the port is
/// free; both pointers of the context are null again.
class TransferSession {
public:
    /// @param context must outlive the session
    TransferSession(TransferContext& context, TransferMeans means);

    /// Gives what is still queued for the radio 200 ms to go out.
    ~TransferSession();

    TransferSession(const TransferSession&) = delete;
    TransferSession& operator=(const TransferSession&) = delete;

    /// Runs the exchange with the radio, or doesn't if the port isn't open. Sets context.Status to what comes
    /// of it.
    void Run(const std::function<TransferStatus()>& exchange);

private:
    TransferContext& m_context;
    TransferMeans m_means;
};

/// Shows a failure in a box.
void ShowError(TransferContext& context, const wxString& text);

/// Shows context.StatusText in the progress window and writes it to the log.
void ShowStatus(TransferContext& context);

/// Moves the main gauge if the value is in its range.
void SetMainGauge(TransferContext& context, int value);

/// Takes the text before the terminator that WaitForLine found out of the buffer into context.RxLine, without
/// leading blanks and line feeds, and drops the terminator. What follows stays, trimmed in the same way.
void TakeReceivedLine(TransferContext& context);
