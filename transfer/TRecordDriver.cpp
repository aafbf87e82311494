#include "transfer/TRecordDriver.h"

#include "catalogue/PageModel.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TRecord.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TRecordMessages.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferProgress.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferWaits.h"

#include <wx/grid.h>

#include <utility>

namespace {

void SetUp(TRecordContext& context) {
    context.RadioSerial = "UNKNOWN";
    context.Status = TransferOk;
    context.XferFlags = PrimaryPass | FitsV1;
    context.RadioModes = OpModes[CurrentPage];
    context.InvalidModes = 0;
    context.RecordVersion = 1;
    context.Protocol = 0;
    context.StampTold.clear();
    context.RowsSent.clear();
    context.Work2 = 0; // no message of a debug log is in progress
}

void BeginExchange(TRecordContext& context) {
    context.StatusText = "Initializing...";
    ShowStatus(context);
    context.RxBuffer.clear();
    context.TxLine.clear();
    context.RxLine.clear();
    context.Index = HelloState;
    context.Status = TransferOk;
}

void BeginShadowPass(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    context.Index = 0;
    context.XferFlags &= ~NeedsShadowPass;
    context.StatusText = "Sending Shadow Memory Data....";
    SetMainGauge(context, 0);
    // Intentional: one dot fewer in the log than in the window.
    WriteTransferLog(context.LogFile, "Sending Shadow Memory Data...");
    Delay(context, context.ShadowPause, true);
}

/// Listens for answers after the one that was taken for the last line's. There are some if the radio has sent
/// an answer twice: since then every answer was taken for the next line's, and a refusal for that of another
/// row. Sets context.Status if a row may be missing in the radio, or if the user cancels.
void TakeLateAnswers(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    const int timeout =
        context.Protocol == 2 ? TransferTimes::FastLateAnswerTimeout : TransferTimes::LateAnswerTimeout;
    bool late = dialogue.extraAnswers;
    while (true) {
        const TransferStatus status = WaitForLine(context, timeout, '\r', true);
        if (status == TransferCancelled)
            context.Status = status;
        if (status != TransferOk)
            break;
        TakeReceivedLine(context);
        WriteTransferLog(context.LogFile, "<" + context.RxLine);
        if (!context.RxLine.StartsWith("T") || context.RxLine == WithChecksum(WaitRecord))
            continue;
        late = true;
        if (context.RxLine != WithChecksum(AckRecord))
            ++dialogue.refusals;
    }
    if (!late || dialogue.refusals == 0)
        return;
    context.Status = TransferCommunicationError;
    // Which rows the radio holds isn't known any more.
    RadioStamp.clear();
    HeldByRadio = {};
}

/// Ends a write. The page now shows what the radio holds, so the next write needs no purge.
void CompleteWrite(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    TakeLateAnswers(dialogue);
    // Without a device the last lines can't have reached the radio, whatever was taken for their answers.
    if (context.Status == TransferOk && context.Port->errorStatus())
        context.Status = TransferTimeout;
    if (context.Status != TransferOk)
        return;
    context.Status = TransferComplete;
    if (!context.StampTold.empty())
        RadioStamp = HeldByRadio.stamp = context.StampTold;
}

/// Updates the gauge in a write. After the last row, starts the pass over the shadows or ends the write.
void FinishRow(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    SetMainGauge(context, dialogue.rowsSent);
    if (context.Index != dialogue.rowCount)
        return;
    context.XferFlags &= ~PrimaryPass;
    if (dialogue.Needs(NeedsShadowPass))
        BeginShadowPass(dialogue);
    else
        CompleteWrite(dialogue);
}

/// Runs the states, then the rows or lines, until the transfer is over.
TransferStatus RunStates(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    do {
        if (const TransferStatus status = ChooseLine(dialogue))
            return status;
        if (!context.TxLine.empty()) {
            context.Progress->SetStatus(context.StatusText);
            ExchangeLine(dialogue);
            if (context.Status == TransferTimeout || context.Status == TransferCancelled)
                return context.Status;
        }
        ++context.Index;
        // A refused last row is a failure like any other, not the end of the pass.
        if (dialogue.mode == WriteChannelsMode && context.Status == TransferOk)
            FinishRow(dialogue);
    } while (context.Status == TransferOk);
    return context.Status;
}

TransferStatus Converse(TRecordContext& context, wxGrid* grid, TransferMode mode) {
    SetUp(context);
    TRecordDialogue dialogue{context, grid, mode, grid->GetNumberRows()};
    if (mode == WriteChannelsMode) {
        EvaluateRows(dialogue);
        context.Progress->SetRange(dialogue.rowsToSend);
        if (dialogue.rowsToSend == 0)
            return TransferNoDataSelected;
    }
    if (mode == ReadConfigMode || mode == WriteConfigMode)
        context.XferFlags &= ~FitsV1;
    BeginExchange(context);
    return RunStates(dialogue);
}

} // namespace

TransferStatus TRecordProtocol::TransferData(TRecordContext& context, wxGrid* grid, int mode,
                                             const wxString& portName, const wxString& title) {
    return TransferWith(context, grid, mode, MeansFor(grid, portName, title));
}

TransferStatus TRecordProtocol::TransferWith(TRecordContext& context, wxGrid* grid, int mode,
                                             TransferMeans means) {
    TransferSession session(context, std::move(means));
    OpenTransferLog(context.LogFile, wxString());
    context.RxBuffer.clear();
    context.RxLine.clear();
    session.Run([&] { return DoTransferData(context, grid, mode); });
    ReportResult(context, static_cast<TransferMode>(mode));
    return context.Status;
}

TransferStatus TRecordProtocol::DoTransferData(TRecordContext& context, wxGrid* grid, int mode) {
    return Converse(context, grid, static_cast<TransferMode>(mode));
}
