#include "transfer/AnalogDriver.h"

#include "catalogue/PageModel.h"
#include "transfer/AnalogDialogue.h"
#include "transfer/AnalogInformation.h"
#include "transfer/AnalogLine.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferMode.h"
#include "transfer/TransferProgress.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferTimes.h"
#include "transfer/TransferWaits.h"

#include <wx/stdpaths.h>

#include <utility>

namespace {

/// Reports to the user and the log how the transfer ended.
void Report(TransferContext& context, TransferMode mode) {
    switch (context.Status) {
    case TransferComplete:
        context.Progress->SetStatus("Transfer Complete.");
        WriteTransferLog(context.LogFile, "Transfer Complete.");
        if (mode != ReadInformationMode)
            Delay(context, TransferTimes::ResultPause, true);
        return;
    case TransferPortError:
        return ShowError(context, "Invalid COM Port (or Port in use)");
    case TransferTimeout:
        ShowError(context, "Timeout Error\nVerify Radio is in PC Download mode\n"
                           "and correct COM port is selected");
        return WriteTransferLog(context.LogFile, "<Timeout>");
    case TransferCommunicationError:
        return ShowError(context, wxString::Format("Radio rejected item: %d", context.Index - 1));
    case TransferNoDataSelected:
        return ShowError(context, "No data selected for transfer to Radio");
    case TransferUnsupported:
        // Intentional: the spelling.
        return ShowError(context, "The requested function is not supported\nby the firware in the Radio");
    case TransferCancelled:
        return WriteTransferLog(context.LogFile, "Transfer cancelled by user.");
    default:
        return ShowError(context, wxString::Format("Download Failure %d %d", context.Status, context.Index));
    }
}

/// Asks the radio for its information block. Returns TransferOk also if it doesn't answer; the block is then
/// unchanged.
TransferStatus AskForInformation(TransferContext& context, wxString& block) {
    SendPaced(context, "SV", false);
    context.RxLine.clear();
    context.RxBuffer.clear();
    const TransferStatus status = WaitForLine(context, TransferTimes::InformationTimeout, '\r', true);
    if (status == TransferCancelled)
        return status;
    if (status == TransferOk) {
        TakeReceivedLine(context);
        block = context.RxLine.Trim(true);
    }
    return TransferOk;
}

void KeepInformation(TransferContext& context, const AnalogInformation& information) {
    context.InfoLines = information.fields;
    context.InfoField4 = information.field4;
    context.InfoField5 = information.field5;
    context.ProductCode = information.productCode;
    context.RowCapacity = static_cast<uint32_t>(information.rowCount);
    context.ConfigCount = static_cast<uint32_t>(information.configCount);
    context.RadioSerial = information.serial;
    RadioVersion = information.version;
    RadioSerial = information.serial;
}

wxString ChannelCommand(uint32_t rows, const wxString& shortForm, const wxString& longForm) {
    return rows > ShortCommandRows ? CountedCommand(longForm, rows) : shortForm + "\r";
}

/// Sets TxLine and StatusText for the mode. Returns TransferOk, or the status with which the transfer ends
/// here.
TransferStatus ChooseCommand(TransferContext& context, TransferMode mode) {
    switch (mode) {
    case WriteChannelsMode:
        context.StatusText = "Sending Memory Data....";
        context.TxLine = ChannelCommand(context.RowCapacity, "dl", "DL");
        return TransferOk;
    case ReadChannelsMode:
        context.StatusText = "Receiving Memory Data....";
        context.TxLine = ChannelCommand(context.RowCapacity, "ul", "UL");
        return TransferOk;
    case ReadConfigMode:
        if (static_cast<int32_t>(context.ConfigCount) < 1)
            return TransferUnsupported;
        context.StatusText = "Reading Config Data....";
        context.TxLine = "UC\r";
        return TransferOk;
    case WriteConfigMode:
        if (context.ConfigLines.empty())
            return TransferNoDataSelected;
        context.StatusText = "Writing Config Data....";
        context.TxLine = "DC\r";
        return TransferOk;
    case ReadInformationMode:
        return TransferComplete;
    default:
        return TransferUnsupported;
    }
}

TransferStatus RunExchange(TransferContext& context, wxGrid* grid, TransferMode mode) {
    switch (mode) {
    case WriteChannelsMode:
        return WriteChannels(context, grid);
    case ReadChannelsMode:
        return ReadChannels(context, grid);
    case ReadConfigMode:
        return ReadConfig(context);
    default:
        return WriteConfig(context);
    }
}

TransferStatus Exchange(TransferContext& context, wxGrid* grid, TransferMode mode) {
    const PageParameterRecord& page = CurrentParameters();
    const int pibNumber = GetPibNumber(page.Radio);
    // Some radios set the parity bit on everything, including acknowledgements and line ends.
    context.Arriving = ClearParity;
    context.StatusText = "Initializing....";
    ShowStatus(context);
    context.Status = TransferOk;

    wxString block = UnknownInformation;
    if (pibNumber == AskingPibNumber && AskForInformation(context, block) == TransferCancelled)
        return TransferCancelled;
    KeepInformation(context, ParseInformation(block));
    if (pibNumber != 0)
        context.RowCapacity = static_cast<uint32_t>(page.Rows);

    if (const TransferStatus status = ChooseCommand(context, mode))
        return status;
    if (pibNumber != 0) {
        SendPaced(context, wxString::Format("rt\r%d\r", pibNumber), true);
        // Radios that need the opening start sending at the character after the command.
        if (mode == ReadChannelsMode)
            context.TxLine += " ";
    }
    ShowStatus(context);
    SendPaced(context, context.TxLine, true);
    return RunExchange(context, grid, mode);
}

} // namespace

TransferStatus AnalogProtocol::TransferData(TransferContext& context, wxGrid* grid, int mode,
                                            const wxString& portName, const wxString& title) {
    return TransferWith(context, grid, mode, MeansFor(grid, portName, title));
}

TransferStatus AnalogProtocol::TransferWith(TransferContext& context, wxGrid* grid, int mode,
                                            TransferMeans means) {
    TransferSession session(context, std::move(means));
    OpenTransferLog(context.LogFile, wxStandardPaths::Get().GetUserDataDir());
    session.Run([&] { return DoTransferData(context, grid, mode); });
    Report(context, static_cast<TransferMode>(mode));
    return context.Status;
}

TransferStatus AnalogProtocol::DoTransferData(TransferContext& context, wxGrid* grid, int mode) {
    return Exchange(context, grid, static_cast<TransferMode>(mode));
}
