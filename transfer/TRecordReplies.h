// What a digital radio's lines do.
#pragma once

struct TRecordDialogue;

/// Acts on the line in context.RxLine, which is without its checksum, or empty for one that was refused.
/// Sets Phase, and Status when the transfer is over; may move Index on. A line that means nothing here
/// changes nothing.
void TakeReply(TRecordDialogue& dialogue);
