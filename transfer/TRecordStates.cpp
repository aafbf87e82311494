// The line to send in each state of a transfer with a digital radio.
#include "transfer/RadioIdentity.h"
#include "transfer/TRecord.h"
#include "transfer/TRecordCodec.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TRecordMessages.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferProgress.h"
#include "transfer/TransferSession.h"

#include <wx/msgdlg.h>

namespace {

constexpr int DebugLogBlocks = 255;
/// Radios of this protocol send their hardware information before their debug log.
constexpr uint32_t HardwareProtocol = 2;

bool UserAcceptsModes(const TRecordContext& context) {
    wxString text =
        "The following operating modes are used in the memory data but not enabled in the radio:\n";
    if (context.InvalidModes & WideMode)
        text += "    Analog Wideband\n";
    if (context.InvalidModes & NarrowMode)
        text += "    Analog Narrowband\n";
    if (context.InvalidModes & DigitalMode)
        text += "    P25 Conventional\n";
    text += "\nThe radio will not transmit in disabled modes (affected memories become receive only).\n"
            "\nDo you wish to continue the transfer?";
    return wxMessageBox(text, "Radio Operating Modes", wxYES_NO | wxICON_WARNING | wxCENTRE,
                        context.Progress->Window()) == wxYES;
}

bool UserAcceptsPurge(const TRecordDialogue& dialogue) {
    const char* const text = dialogue.Needs(OtherRadio)
                                 ? "This radio's memories were not read by this program.\n"
                                   "All of them will be erased before the selected rows are sent!"
                                 : "This radio holds memories that this page doesn't.\n"
                                   "All of them will be erased before the selected rows are sent!";
    wxMessageDialog question(dialogue.context.Progress->Window(), text, "Purge radio?", wxOK | wxCANCEL);
    return question.ShowModal() == wxID_OK;
}

TransferStatus ChooseVersionQuery(TRecordDialogue& dialogue) {
    if (dialogue.mode == ReadInformationMode)
        return TransferComplete;
    // Intentional: InvalidModes was set before this radio reported its modes, from those of the radio before.
    // Intentional: the answer No counts as a complete transfer.
    if (dialogue.mode == WriteChannelsMode && dialogue.context.InvalidModes != 0 &&
        !UserAcceptsModes(dialogue.context))
        return TransferComplete;
    dialogue.Offer(MSG_RVER);
    return TransferOk;
}

void OfferStamp(TRecordDialogue& dialogue) {
    if (dialogue.mode == WriteChannelsMode)
        return dialogue.Offer(MSG_RID);
    RadioStamp = MakeRadioStamp(dialogue.context.Clock->Date());
    HeldByRadio = {RadioStamp, {}, dialogue.mode == ReadChannelsMode};
    dialogue.Offer(MSG_SID + RadioStamp);
}

/// Asks the user before anything changes in a radio that may hold memories that the page lacks.
bool PurgeIsRefused(TRecordDialogue& dialogue) {
    return dialogue.mode == WriteChannelsMode && PurgeMayCostMemories(dialogue) &&
           !UserAcceptsPurge(dialogue);
}

void OfferOpening(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    switch (dialogue.mode) {
    case WriteChannelsMode:
        return dialogue.Offer(MSG_DNLD);
    case ReadChannelsMode:
        return dialogue.Offer(MSG_UPLD);
    case ReadConfigMode:
        return dialogue.Offer(MSG_UPLDSWCFG);
    case WriteConfigMode:
        context.Progress->SetRange(static_cast<int>(context.ConfigLines.size()));
        return dialogue.Offer(ConfigWrite);
    default:
        context.Progress->SetRange(DebugLogBlocks);
        if (context.Protocol != HardwareProtocol)
            BeginDebugLogWithoutHardware(dialogue);
        return dialogue.Offer(MSG_DBLOG);
    }
}

void OfferPurge(TRecordDialogue& dialogue) {
    if (dialogue.mode != WriteChannelsMode || !PurgeIsNeeded(dialogue))
        return;
    dialogue.context.StatusText = "Purging Radio....";
    WriteTransferLog(dialogue.context.LogFile, dialogue.context.StatusText);
    dialogue.Offer(MSG_PURGE);
    // All that the radio held is sent again, including shadows.
    dialogue.context.XferFlags |= RadioPurged | NeedsShadowPass;
    // If the write fails now, the next one has to purge and restore the radio again.
    RadioStamp.clear();
    HeldByRadio = {};
}

const char* DataStatus(TransferMode mode) {
    switch (mode) {
    case WriteChannelsMode:
        return "Sending Primary Memory Data....";
    case ReadChannelsMode:
        return "Receiving Memory Data....";
    case ReadConfigMode:
        return "Receiving Config Data....";
    case WriteConfigMode:
        return "Sending Config Data....";
    default:
        return "Receiving Debug Log Data....";
    }
}

void BeginData(TRecordDialogue& dialogue) {
    dialogue.context.StatusText = DataStatus(dialogue.mode);
    WriteTransferLog(dialogue.context.LogFile, dialogue.context.StatusText);
}

TransferStatus OfferConfigLine(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    const size_t line = static_cast<size_t>(context.Index);
    if (line >= context.ConfigLines.size())
        return TransferComplete;
    wxString record;
    encodeConfigRecord(context, context.ConfigLines[line], record);
    dialogue.Offer(record);
    SetMainGauge(context, context.Index + 1);
    return TransferOk;
}

TransferStatus ChooseDataLine(TRecordDialogue& dialogue) {
    if (dialogue.mode == WriteConfigMode)
        return OfferConfigLine(dialogue);
    if (dialogue.mode == WriteChannelsMode)
        ChooseRowLine(dialogue);
    else
        dialogue.Offer(AckRecord);
    return TransferOk;
}

} // namespace

void OfferHello(TRecordDialogue& dialogue) {
    dialogue.Offer(HelloBegin + HexField(FirstProtocolByte + int64_t{dialogue.context.Protocol}, 2) +
                   HelloEnd);
}

TransferStatus ChooseLine(TRecordDialogue& dialogue) {
    dialogue.context.TxLine.clear();
    switch (dialogue.context.Index) {
    case HelloState:
        OfferHello(dialogue);
        break;
    case SpeedState:
        dialogue.Offer(SpeedChange);
        break;
    case OpModeState:
        dialogue.Offer(OpModeQuery);
        break;
    case HardwareState:
        dialogue.Offer(HardwareQuery);
        break;
    case HardwareTextState:
        dialogue.Offer(AckRecord);
        break;
    case VersionState:
        return ChooseVersionQuery(dialogue);
    case StampState:
        OfferStamp(dialogue);
        break;
    case OpeningState:
        if (PurgeIsRefused(dialogue))
            return TransferCancelled;
        OfferOpening(dialogue);
        break;
    case PurgeState:
        OfferPurge(dialogue);
        break;
    case DataState:
        BeginData(dialogue);
        break;
    default:
        return ChooseDataLine(dialogue);
    }
    return TransferOk;
}
