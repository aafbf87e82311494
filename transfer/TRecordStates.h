// What a transfer with a digital radio says, state by state.
#pragma once

struct TRecordDialogue;

/// Sets TxLine by context.Index, empty where there is nothing to say, and StatusText, gauge and flags that
/// go with it. May ask the user a question. May move Index on.
///
/// @return TransferOk, TransferComplete when the transfer is over, or TransferCancelled when the user didn't
///         want the radio to be purged
int ChooseLine(TRecordDialogue& dialogue);

/// Makes the next hello the line to be sent: it offers protocol context.Protocol.
void OfferHello(TRecordDialogue& dialogue);
