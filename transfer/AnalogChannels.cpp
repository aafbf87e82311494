// Channel lines from and to analog radios.
#include "catalogue/MemoryRow.h"
#include "catalogue/PageModel.h"
#include "editing/ZelkEdit.h"
#include "transfer/AnalogDialogue.h"
#include "transfer/AnalogLine.h"
#include "transfer/AnalogRecord.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferProgress.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferTimes.h"
#include "transfer/TransferWaits.h"

#include <wx/grid.h>
#include <wx/msgdlg.h>

#include <algorithm>

using namespace RadioCatalogue;

namespace {

constexpr wxChar Acknowledgement = 0x05;
constexpr int EndLineBlanks = 74;
/// Highest row count at which "300" in a received line marks the end.
constexpr int NumberedEndRows = 200;

/// True for radios that start sending when the user presses one of their keys.
bool StartsWithKey(int radio) {
    return radio >= Krv610 && radio <= Kdrv8400;
}

/// Removes the acknowledgement and everything before it from the buffer.
void DropAcknowledgement(TransferContext& context) {
    context.RxBuffer = context.RxBuffer.Mid(static_cast<size_t>(context.FoundAt) + 1);
}

TransferStatus WriteChannel(TransferContext& context, wxGrid* grid, int row) {
    if (const int errors = encodeAnalogRecord(context, grid, row, context.TxLine)) {
        WriteTransferLog(context.LogFile,
                         wxString::Format("  Error: %04X on Row %d, Not Sent !", errors, row));
        return TransferOk;
    }
    WriteTransferLog(context.LogFile, "Send>" + context.TxLine);
    SendPaced(context, context.TxLine, false);
    SetMainGauge(context, row);
    context.RxBuffer.clear();
    const TransferStatus status =
        WaitForLine(context, TransferTimes::AcknowledgementTimeout, Acknowledgement, true);
    if (status == TransferOk) {
        DropAcknowledgement(context);
        context.RowsSent.insert(row);
    }
    return status;
}

void AskForKey(TransferContext& context, int radio) {
    if (!StartsWithKey(radio))
        return;
    wxMessageBox(radio == Kdrv8400 ? "Close this dialog, then press HOME on radio to start"
                                   : "Close this dialog, then press ENTER on radio to start",
                 "Read channel data from radio", wxOK | wxCENTRE, context.Progress->Window());
}

/// Removes the headings that radios print before channel 1. False for a line without that channel.
bool CutToFirstChannel(wxString& line) {
    const int start = line.Find("001");
    if (start == wxNOT_FOUND)
        return false;
    line = line.Mid(static_cast<size_t>(start));
    return true;
}

bool IsEndLine(const TransferContext& context, const wxString& line) {
    const wxString start = line.Left(3);
    return start.Contains("END") || (context.RowCapacity <= NumberedEndRows && start.Contains("300"));
}

void TakeChannel(TransferContext& context, wxGrid* grid, const wxString& line) {
    if (TakePlainAnalogRecord(context, grid, line) == 0)
        return;
    context.Index = context.Work1;
    SetMainGauge(context, context.Index);
    WriteTransferLog(context.LogFile, "<" + line);
    CheckBand(grid, context.Index, grid->GetCellValue(context.Index, BAND));
}

} // namespace

TransferStatus WriteChannels(TransferContext& context, wxGrid* grid) {
    // Some radios confirm the opening command, others don't: only Cancel counts here.
    if (WaitForLine(context, TransferTimes::OpeningTimeout, Acknowledgement, true) == TransferCancelled)
        return TransferCancelled;
    const int lastRow = std::min(static_cast<int>(context.RowCapacity), grid->GetNumberRows() - 1);
    for (int row = 1; row <= lastRow; ++row) {
        if (!grid->IsInSelection(row, 1))
            continue;
        if (const TransferStatus status = WriteChannel(context, grid, row))
            return status;
    }
    SendPaced(context,
              (context.RowCapacity > ShortCommandRows ? "END" : "300") + wxString(' ', EndLineBlanks), false);
    return TransferComplete;
}

TransferStatus ReadChannels(TransferContext& context, wxGrid* grid) {
    AskForKey(context, CurrentParameters().Radio);
    bool started = false;
    context.Index = 0;
    while (true) {
        const TransferStatus status = WaitForLine(context, TransferTimes::ChannelTimeout, '\r', true);
        if (status == TransferCancelled)
            return status;
        if (status == TransferTimeout)
            break;
        TakeReceivedLine(context);
        // The parity bits were cleared on arrival, because acknowledgements and line ends have them too.
        context.RxLine = PrintableText(context.RxLine).Trim(false);
        if (!started && !CutToFirstChannel(context.RxLine))
            continue;
        started = true;
        if (IsEndLine(context, context.RxLine))
            return TransferComplete;
        TakeChannel(context, grid, context.RxLine);
    }
    return context.Index < static_cast<int>(context.RowCapacity) - 1 ? TransferTimeout : TransferComplete;
}
