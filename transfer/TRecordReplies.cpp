// Handling of a digital radio's lines.
#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "transfer/DebugLog.h"
#include "transfer/HexText.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TRecord.h"
#include "transfer/TRecordCodec.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TRecordFields.h"
#include "transfer/TRecordMessages.h"
#include "transfer/TransferLine.h"
#include "transfer/TransferProgress.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferTimes.h"
#include "transfer/TransferWaits.h"

namespace {

constexpr unsigned FastSpeed = 115200; // baud
/// Refusals of the same line that end the transfer.
constexpr uint32_t RefusalLimit = 2;

void SetRadioModes(TRecordContext& context, uint32_t modes) {
    context.RadioModes = modes;
    OpModes[CurrentPage] = modes;
}

/// Handles the radio's agreement to the offered protocol.
void KeepProtocol(TRecordContext& context) {
    if (context.Protocol == 0)
        ContinueAt(context, VersionState); // this protocol has no earlier queries
    else if (context.Protocol == 1)
        ContinueAt(context, OpModeState); // the speed doesn't change
    SetRadioModes(context, context.Protocol <= 1 ? AllModes : context.RadioModes);
}

void TakeAck(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (context.Index == HelloState) {
        KeepProtocol(context);
    } else if (context.Index == SpeedState) {
        Delay(context, TransferTimes::SpeedPause, false);
        context.Port->setBaudRate(FastSpeed);
    } else if (dialogue.mode == WriteChannelsMode && context.Index >= 0) {
        TakeRowAck(dialogue);
    }
    context.Phase = LineDone;
    context.RetryCount = 0;
}

void TakeNak(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (context.Index == HelloState) {
        // Intentional: the number of protocols offered has no limit.
        // The offer has one byte. After a garbled hello the right protocol comes round again.
        context.Protocol = (context.Protocol + 1) & 0xFF;
        OfferHello(dialogue);
        context.Phase = SendNew;
        Delay(context, TransferTimes::HelloPause, true);
        return;
    }
    context.Phase = SendAgain;
    ++dialogue.refusals;
    if (++context.RetryCount < RefusalLimit)
        Delay(context, TransferTimes::RefusalPause, true);
    else
        context.Status = TransferCommunicationError;
}

void TakeVersion(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    RadioVersion = context.RxLine.Mid(MessageTextAt, VersionLength);
    context.RecordVersion = context.Protocol == 2 && RadioVersion.StartsWith("02") ? 2 : 1;
    // Intentional: from protocol 2 on, every version that doesn't begin with "01" is accepted, even if its
    // records are of version 1.
    if (!dialogue.Needs(FitsV1) && (context.Protocol < 2 || RadioVersion.StartsWith("01")))
        context.Status = TransferInvalidTransmitData;
    context.Phase = LineDone;
}

void TakeOpModes(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    SetRadioModes(context, HexNumberAt(context.RxLine, MessageTextAt, ByteLength));
    const bool writesOrConfig = dialogue.mode == WriteChannelsMode || dialogue.mode == ReadConfigMode ||
                                dialogue.mode == WriteConfigMode;
    if (context.Protocol == 1 || writesOrConfig)
        ContinueAt(context, VersionState);
    context.Phase = LineDone;
}

void TakeConfigCount(TRecordContext& context) {
    context.ConfigCount = HexNumberAt(context.RxLine, MessageTextAt, ByteLength);
    context.Progress->SetRange(static_cast<int>(context.ConfigCount));
    context.ConfigLines.clear();
    context.Phase = LineDone;
}

void TakeLineInWrite(TRecordContext& context) {
    if (context.RxLine.StartsWith(MSG_SID)) {
        context.StampTold = context.RxLine.Mid(MessageTextAt, StampLength);
        if (RadioStamp.empty() || context.StampTold != RadioStamp)
            context.XferFlags |= OtherRadio;
        if (HeldByRadio.stamp != RadioStamp)
            HeldByRadio = {};
        context.Phase = LineDone;
    } else if (context.RxLine == EndRecord) {
        context.Phase = LineFailed;
        context.Status = TransferCommunicationError;
    }
}

void TakeEnd(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (context.Index == HardwareState || context.Index == HardwareTextState) {
        EndHardware(dialogue);
        ContinueAt(context, VersionState);
        context.Phase = LineDone;
        return;
    }
    if (context.Index < 0) {
        // Sent twice after the hardware information. The list that the user asked for hasn't begun.
        context.Phase = WaitOn;
        return;
    }
    if (context.RetryCount > 0) {
        // The radio has gone on without repeating a garbled line: what it held is lost.
        context.Status = TransferChecksumError;
        return;
    }
    context.Status = TransferComplete;
    if (dialogue.mode == ReadChannelsMode)
        KeepContentOfRead(dialogue);
    if (dialogue.mode == ReadDebugLogMode && context.DebugLogFile.IsOpened())
        EndDebugLog(context);
}

void TakeConfigRecord(TRecordContext& context) {
    context.Scratch = HexToText(context.RxLine);
    // A record that is sent twice is one line. Lines differ, because each has its number.
    const bool again = !context.ConfigLines.empty() && context.ConfigLines.Last() == context.Scratch;
    if (!again && IsGoodConfigText(context.Scratch))
        context.ConfigLines.Add(context.Scratch);
    context.Phase = LineDone;
    const int number = ReadHex(context.Scratch.Mid(2, 2));
    if (number >= 0 && number < context.Progress->Range())
        SetMainGauge(context, number + 1);
}

/// True for a memory record without its checksum. Records of text begin with T1 too, and one that comes late
/// must not reach the page.
bool IsMemoryRecord(const wxString& line) {
    constexpr const TRecordField& last = std::end(TRecordV1)[-1]; // both layouts have the same length
    return line.length() == last.position + last.width && line.StartsWith(TRecordV1[0].literal);
}

void TakeMemoryRecord(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (!IsMemoryRecord(context.RxLine) || decodeTrecord(context, dialogue.grid, context.RxLine) == 0) {
        dialogue.Offer(NakRecord);
        context.Phase = SendNew;
        return;
    }
    SetMainGauge(context, ReadHex(context.RxLine.Mid(4, 4)));
    context.Phase = LineDone;
}

void TakeData(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (context.Index == HardwareState) {
        BeginHardware(dialogue);
        context.Phase = LineDone;
    } else if (context.Index == HardwareTextState) {
        TakeHardwareText(dialogue);
        context.Phase = LineDone;
        ContinueAt(context, HardwareTextState);
    } else if (dialogue.mode == ReadConfigMode) {
        TakeConfigRecord(context);
    } else if (dialogue.mode == ReadChannelsMode) {
        TakeMemoryRecord(dialogue);
    } else if (context.DebugLogFile.IsOpened()) {
        decodeDebugLog(context);
    } else {
        context.Phase = LineDone;
    }
}

/// Handles lines that only some modes expect.
void TakeLineOfMode(TRecordDialogue& dialogue) {
    const wxString& line = dialogue.context.RxLine;
    if (dialogue.mode == WriteChannelsMode)
        TakeLineInWrite(dialogue.context);
    else if (line == EndRecord)
        TakeEnd(dialogue);
    else if (line.StartsWith("T1"))
        TakeData(dialogue);
}

/// True for the answer to another query where a write waits for the version or the stamp. It must not go on
/// without them: they tell whether the radio can hold the data, and whether its memories are known.
bool AnswersAnotherQuery(const TRecordDialogue& dialogue, const wxString& line) {
    if (dialogue.mode != WriteChannelsMode)
        return false;
    const bool neither = line == AckRecord || line.StartsWith(ConfigReply);
    if (dialogue.context.Index == VersionState)
        return neither || line.StartsWith(MSG_SID);
    return dialogue.context.Index == StampState &&
           (neither || line.StartsWith(VersionReply) || line.StartsWith(OpModeReply));
}

} // namespace

void TakeReply(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    const wxString& line = context.RxLine;
    if (AnswersAnotherQuery(dialogue, line)) {
        context.Phase = WaitOn;
    } else if (line == AckRecord) {
        TakeAck(dialogue);
    } else if (line == NakRecord) {
        TakeNak(dialogue);
    } else if (line == WaitRecord) {
        context.Progress->AppendStatus(".");
        context.Phase = WaitOn;
    } else if (line.StartsWith(VersionReply)) {
        TakeVersion(dialogue);
    } else if (line.StartsWith(OpModeReply)) {
        TakeOpModes(dialogue);
    } else if (line.StartsWith(ConfigReply)) {
        TakeConfigCount(context);
    } else {
        TakeLineOfMode(dialogue);
    }
}
