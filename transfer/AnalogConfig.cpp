// Configuration lines from and to analog radios.
#include "catalogue/TextNumbers.h"
#include "transfer/AnalogDialogue.h"
#include "transfer/HexText.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferProgress.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferTimes.h"
#include "transfer/TransferWaits.h"

namespace {

/// Sets the gauge to count lines. False if the radio has no configuration.
bool PrepareGauge(TransferContext& context) {
    const int count = static_cast<int>(context.ConfigCount);
    if (count < 1)
        return false;
    context.Progress->SetRange(count);
    return true;
}

/// Intentional: unlike in a digital radio's text (IsGoodConfigText), fields may be missing if the others add
/// up.
bool HasGoodChecksum(const wxString& line) {
    return HasConfigChecksum(wxSplit(line, ':', '\\'));
}

/// Sends one line and checks the radio's answer.
TransferStatus WriteConfigLine(TransferContext& context, const wxString& line) {
    SendPaced(context, line, false);
    WriteTransferLog(context.LogFile, ">" + line);
    SetMainGauge(context, context.Index);
    context.RxBuffer.clear();
    const TransferStatus status = WaitForLine(context, TransferTimes::ConfigAnswerTimeout, '\r', true);
    WriteTransferLog(context.LogFile, "<" + context.RxBuffer.BeforeFirst('\r'));
    if (status == TransferCancelled)
        return status;
    return context.RxBuffer.Left(4) == "CWOK" ? status : TransferCommunicationError;
}

} // namespace

TransferStatus ReadConfig(TransferContext& context) {
    if (!PrepareGauge(context))
        return TransferComplete;
    context.ConfigLines.clear();
    while (true) {
        if (const TransferStatus status = WaitForLine(context, TransferTimes::ConfigLineTimeout, '\r', true))
            return status;
        TakeReceivedLine(context);
        WriteTransferLog(context.LogFile, "<" + context.RxLine);
        if (context.RxLine.Left(4).Contains("CRXX"))
            return TransferComplete;
        context.Index = ReadHex(context.RxLine.Mid(2, 2));
        SetMainGauge(context, context.Index + 1);
        if (HasGoodChecksum(context.RxLine))
            context.ConfigLines.Add(context.RxLine);
    }
}

TransferStatus WriteConfig(TransferContext& context) {
    if (!PrepareGauge(context))
        return TransferComplete;
    context.Status = TransferOk;
    const int count = static_cast<int>(context.ConfigLines.size());
    for (context.Index = 0; context.Index < count && context.Status == TransferOk; ++context.Index)
        context.Status = WriteConfigLine(context, context.ConfigLines[static_cast<size_t>(context.Index)]);
    if (context.Status == TransferCancelled)
        return TransferCancelled;
    SendPaced(context, "END", false);
    WriteTransferLog(context.LogFile, ">END");
    return context.Status == TransferOk ? TransferComplete : context.Status;
}
