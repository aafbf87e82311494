// Report of the result of a transfer with a digital radio.
#include "transfer/TRecordDialogue.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferProgress.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferWaits.h"

namespace {

void ReportComplete(TRecordContext& context, TransferMode mode) {
    if (mode == WriteChannelsMode || mode == WriteConfigMode || context.Index == VersionState)
        SendEndRecord(context);
    context.Progress->SetStatus("Transfer Complete.");
    WriteTransferLog(context.LogFile, "Transfer Complete.");
    Delay(context, context.ResultPause, true);
}

void ReportCancelled(TRecordContext& context) {
    SendEndRecord(context);
    context.Progress->SetStatus("Transfer Cancelled.");
    WriteTransferLog(context.LogFile, "Transfer cancelled by user.");
    Delay(context, context.ResultPause, true);
}

} // namespace

void ReportResult(TRecordContext& context, TransferMode mode) {
    switch (context.Status) {
    case TransferComplete:
        return ReportComplete(context, mode);
    case TransferPortError:
        return ShowError(context, "Invalid COM Port (or Port in use)");
    case TransferCommunicationFailure:
        return ShowError(context, wxString::Format("Communication Error at channel %d", context.Index));
    case TransferTimeout:
        ShowError(context, "Timeout Error\nVerify Radio is in PC Download mode (3-8)\n"
                           "and correct COM port is selected");
        return WriteTransferLog(context.LogFile, "<Timeout>");
    case TransferCommunicationError:
        SendEndRecord(context);
        return ShowError(context, wxString::Format("Radio rejected channel %d", context.Index - 1));
    case TransferChecksumError:
        return ShowError(context, wxString::Format("Checksum Error on channel %d", context.Index - 1));
    case TransferNoDataSelected:
        return ShowError(context, "No data selected for transfer to Radio");
    case TransferInvalidTransmitData:
        return ShowError(context, "Selected operation requires updated software in Radio");
    case TransferCancelled:
        return ReportCancelled(context);
    default:
        return ShowError(context, wxString::Format("Download Failure %d %d", context.Status, context.Index));
    }
}
