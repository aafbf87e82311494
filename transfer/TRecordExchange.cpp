// Exchange of one line with a digital radio.
#include "catalogue/TextNumbers.h"
#include "transfer/TRecord.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TRecordMessages.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferWaits.h"
#include "transfer/wxAsyncSerial.h"

namespace {

constexpr size_t ShortestRecord = 4; // letter, type and checksum
constexpr size_t ChecksumLength = 2;

void SendLine(TRecordContext& context, const wxString& line) {
    WriteTransferLog(context.LogFile, ">" + line);
    context.Port->write(line + "\r");
}

void SendOffer(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (dialogue.lacksChecksum)
        context.TxLine = WithChecksum(context.TxLine);
    dialogue.lacksChecksum = false;
    SendLine(context, context.TxLine);
}

/// Has the radio repeat a garbled line: by a refusal in a read of channels, else by sending TxLine again.
void RefuseLine(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (++context.RetryCount > 1)
        context.Status = TransferChecksumError;
    if (dialogue.mode == ReadChannelsMode) {
        dialogue.Offer(NakRecord);
        context.Phase = SendNew;
    } else {
        context.Phase = SendAgain;
    }
    context.RxLine.clear();
}

/// Removes the checksum of the received line. Clears a line that is no record or is garbled.
void CheckLine(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (!context.RxLine.StartsWith("T")) {
        context.RxLine.clear();
        context.Phase = WaitOn;
    } else if (context.RxLine.length() < ShortestRecord || !HasGoodChecksum(context.RxLine)) {
        RefuseLine(dialogue);
    } else {
        context.RecordType = static_cast<uint32_t>(ReadDecimal(context.RxLine.Mid(1, 1)));
        context.RxLine.RemoveLast(ChecksumLength);
    }
}

} // namespace

void ExchangeLine(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    context.Phase = SendNew;
    context.RetryCount = 0;
    do {
        if (context.Phase == SendNew || context.Phase == SendAgain)
            SendOffer(dialogue);
        context.RxLine.clear();
        context.Status = WaitForLine(context, context.ReplyTimeout, '\r', true);
        if (context.Status != TransferOk)
            return;
        TakeReceivedLine(context);
        WriteTransferLog(context.LogFile, "<" + context.RxLine);
        CheckLine(dialogue);
        TakeReply(dialogue);
    } while (context.Phase != LineDone && context.Status == TransferOk);
}

void SendEndRecord(TRecordContext& context) {
    SendLine(context, WithChecksum(EndRecord));
}
