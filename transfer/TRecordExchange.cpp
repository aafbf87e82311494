// Exchange of one line with a digital radio.
#include "catalogue/TextNumbers.h"
#include "transfer/TRecord.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TRecordMessages.h"
#include "transfer/TransferLine.h"
#include "transfer/TransferLog.h"
#include "transfer/TransferSession.h"
#include "transfer/TransferWaits.h"

namespace {

constexpr size_t ShortestRecord = 4; // letter, type and checksum
constexpr size_t ChecksumLength = 2;
/// A line is sent at most this often: a radio that always answers with something else would keep the transfer
/// going for ever. Hellos are exempt, since each of them offers another protocol.
constexpr int SendLimit = 16;

void SendLine(TRecordContext& context, const wxString& line) {
    WriteTransferLog(context.LogFile, ">" + line);
    context.Port->write(line + "\r");
}

/// Drops lines that have arrived since the last answer of a write, or of a hello: they can't answer a line
/// that wasn't sent yet. In a read they may hold data.
void DropStaleAnswers(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    const bool writes = dialogue.mode == WriteChannelsMode || dialogue.mode == WriteConfigMode;
    if (!writes && context.Index != HelloState)
        return;
    context.RxBuffer += context.Port->takeReceived();
    if (!context.RxBuffer.empty())
        WriteTransferLog(context.LogFile, "<" + context.RxBuffer);
    // What a hello leaves behind says nothing about the rows.
    if (context.Index != HelloState) {
        if (context.RxBuffer.Contains("T2"))
            dialogue.extraAnswers = true;
        if (context.RxBuffer.Contains(NakRecord))
            ++dialogue.refusals;
    }
    context.RxBuffer.clear();
}

void SendOffer(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    DropStaleAnswers(dialogue);
    if (dialogue.lacksChecksum)
        context.TxLine = WithChecksum(context.TxLine);
    dialogue.lacksChecksum = false;
    SendLine(context, context.TxLine);
}

/// Has the radio repeat a garbled line: by a refusal if it is sending a list, else by sending TxLine again.
/// To acknowledge a line of a list again would ask for the next one.
void RefuseLine(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    ++dialogue.refusals;
    if (++context.RetryCount > 1)
        context.Status = TransferChecksumError;
    if (dialogue.mode == ReadChannelsMode || context.TxLine.StartsWith(AckRecord)) {
        dialogue.Offer(NakRecord);
        context.Phase = SendNew;
    } else {
        context.Phase = SendAgain;
    }
    context.RxLine.clear();
}

/// True for a record of a kind that a radio sends in a list. The checksum doesn't cover the kind.
bool IsOfAKind(const wxString& line) {
    return line.StartsWith("T1") || line.StartsWith("T2") || line.StartsWith(EndRecord);
}

/// Removes the checksum of the received line. Clears a line that is no record or is garbled.
void CheckLine(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (!context.RxLine.StartsWith("T")) {
        context.RxLine.clear();
        context.Phase = WaitOn;
    } else if (context.RxLine.length() < ShortestRecord || !HasGoodChecksum(context.RxLine) ||
               (context.TxLine.StartsWith(AckRecord) && !IsOfAKind(context.RxLine))) {
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
    int sent = 0;
    do {
        if (context.Phase == SendNew || context.Phase == SendAgain) {
            if (++sent > SendLimit && context.Index != HelloState) {
                context.Status = TransferCommunicationError;
                return;
            }
            SendOffer(dialogue);
        }
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
