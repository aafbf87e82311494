// Configuration lines from and to analog radios.
#include "catalogue/TextNumbers.h"
#include "transfer/AnalogDriver.h"
#include "transfer/AnalogExchanges.h"
#include "transfer/HexText.h"
#include "transfer/ProgressFrame.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferStatus.h"
#include "transfer/TransferWaits.h"

#include <wx/gauge.h>

namespace {

/// False when the radio has no configuration. The gauge counts lines.
bool PrepareGauge(TransferContext& context) {
    const int count = static_cast<int>(context.ConfigCount);
    if (count < 1)
        return false;
    context.Progress->MainGauge()->SetRange(count);
    return true;
}

/// The bytes of fields 2 to 5 and one more add up to a whole multiple of 256.
bool HasGoodChecksum(const wxString& line) {
    const wxArrayString fields = wxSplit(line, ':', '\\');
    int sum = 1;
    for (std::size_t field = 2; field <= 5 && field < fields.size(); ++field)
        sum += HexByteSum(fields[field]);
    return sum % 256 == 0;
}

/// Sends one line and takes the radio's answer.
int WriteConfigLine(TransferContext& context, const wxString& line) {
    SendPaced(context, line, false);
    WriteTransferLog(context.LogFile, ">" + line);
    SetMainGauge(context, context.Index);
    context.RxBuffer.clear();
    const int status = WaitForLine(context, 500, '\r', true);
    WriteTransferLog(context.LogFile, "<" + context.RxBuffer.BeforeFirst('\r'));
    if (status == TransferCancelled)
        return status;
    return context.RxBuffer.Left(4) == "CWOK" ? status : TransferCommunicationError;
}

} // namespace

int ReadConfig(TransferContext& context) {
    if (!PrepareGauge(context))
        return TransferComplete;
    context.ConfigLines.clear();
    while (true) {
        if (const int status = WaitForLine(context, 5000, '\r', true))
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

int WriteConfig(TransferContext& context) {
    if (!PrepareGauge(context))
        return TransferComplete;
    context.Status = TransferOk;
    const int count = static_cast<int>(context.ConfigLines.size());
    for (context.Index = 0; context.Index < count && context.Status == TransferOk; ++context.Index)
        context.Status =
            WriteConfigLine(context, context.ConfigLines[static_cast<std::size_t>(context.Index)]);
    if (context.Status == TransferCancelled)
        return TransferCancelled;
    SendPaced(context, "END", false);
    WriteTransferLog(context.LogFile, ">END");
    return context.Status == TransferOk ? TransferComplete : context.Status;
}
