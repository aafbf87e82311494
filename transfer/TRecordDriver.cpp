#include "transfer/TRecordDriver.h"

#include "catalogue/PageModel.h"
#include "transfer/ProgressFrame.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferWaits.h"

#include <wx/gauge.h>
#include <wx/grid.h>

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

/// Ends a write. The page now shows what the radio holds, so the next write needs no purge.
void CompleteWrite(TRecordContext& context) {
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
        CompleteWrite(context);
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
        context.Progress->MainGauge()->SetRange(dialogue.rowsToSend);
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
    TransferSession session(context, MeansFor(grid, portName, title));
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
