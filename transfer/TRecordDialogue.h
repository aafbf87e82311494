// What the sources of the digital driver share: one transfer, its states, and what each source does for it.
#pragma once

#include "catalogue/MemoryRow.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"

#include <set>
#include <wx/string.h>

class wxGrid;

/// Bits of TransferContext::XferFlags.
enum TransferNeed : std::uint32_t {
    RadioPurged = 0x01,     ///< the radio was told to erase all: what it held goes out again
    NeedsShadowPass = 0x02, ///< shadows are to be sent, behind all primaries
    HasMarkedRow = 0x04,    ///< a row to be sent has MarkedFlag
    OtherRadio = 0x08,      ///< the radio's identity stamp isn't RadioStamp: what it holds is unknown
    PrimaryPass = 0x10,     ///< the pass over the rows that sends primaries; else it sends shadows
    FitsV1 = 0x20,          ///< all that is sent fits the old layout
};

/// Values of TransferContext::Index below 0; from 0 on it is a row, or a line of the configuration. A
/// transfer goes through the states in this order; answers skip some of them (ContinueAt).
enum TransferState : std::int32_t {
    HelloState = -10,       ///< offers a protocol, until the radio agrees to one
    SpeedState = -9,        ///< agrees on the fast line speed
    OpModeState = -8,       ///< asks for the enabled operating modes
    HardwareState = -7,     ///< asks for the hardware information; its first record is the serial number
    HardwareTextState = -6, ///< fetches the next hardware record, until the radio has no more
    VersionState = -5,      ///< asks for the firmware version
    StampState = -4,        ///< asks for the identity stamp or sets a new one
    OpeningState = -3,      ///< announces what is going to be transferred
    PurgeState = -2,        ///< erases the radio's memories if that is needed
    DataState = -1,         ///< sends nothing; the data begin with the next index
};

/// Makes `next` follow the present line. The driver moves Index on by one behind every line, so the state
/// before is set.
inline void ContinueAt(TRecordContext& context, TransferState next) {
    context.Index = next - 1;
}

/// One transfer. The context holds the state of the protocol, this holds what it works on.
struct TRecordDialogue {
    TRecordContext& context;
    wxGrid* grid; ///< the current page's
    TransferMode mode;
    int rowCount; ///< rows of the grid, the default row among them

    std::set<int> markedRows = {}; ///< rows that go along as primary or shadow of a selected row
    int rowsToSend = 0;            ///< for the gauge
    int rowsSent = 0;              ///< for the gauge
    bool lacksChecksum = false;    ///< TxLine was set anew and has no checksum yet

    /// Sets a line that is to be sent; it gets its checksum on its way out.
    void Offer(const wxString& line) {
        context.TxLine = line;
        lacksChecksum = true;
    }
    bool Needs(std::uint32_t anyOf) const { return (context.XferFlags & anyOf) != 0; }
};

// Each source calls only what is declared above its own functions.

// ---- TRecordRows.cpp: which rows of the page go to the radio, and as what ----

/// The operating mode that a row of the current page uses and radioModes lacks: WideMode, NarrowMode or
/// DigitalMode, or 0.
std::uint32_t CheckForInvalidOpModes(TRecordContext& context, int row, std::uint32_t radioModes);

/// Goes over the rows before a write. Sets SEL in the TFLG of the selected ones, and in that of primaries
/// and shadows that must go along with them, and clears it in all others; counts them; finds out what the
/// rows need of the radio (XferFlags) and which operating modes the radio lacks for them (InvalidModes).
void EvaluateRows(TRecordDialogue& dialogue);

/// Sets TxLine for the row at context.Index: its record, the message that erases it, or nothing. May move
/// Index on over rows that the old layout doesn't know.
void ChooseRowLine(TRecordDialogue& dialogue);

/// Takes over that the radio has acknowledged the line of the row at context.Index: sets InRadioFlag of a
/// memory row that was sent, clears it in one that was erased, and keeps the row in context.RowsSent.
void TakeRowAck(TRecordDialogue& dialogue);

/// Whether a write has to erase all memories of the radio before it sends any.
bool PurgeIsNeeded(const TRecordDialogue& dialogue);

/// Whether the purge that a write needs may cost memories. Of a radio that isn't the known one: a memory row
/// of the page, guards included, has data and isn't selected. Of the known one: it holds memories that don't
/// go out again, or its read broke off.
bool PurgeMayCostMemories(const TRecordDialogue& dialogue);

/// Takes over at the end of a read that the radio holds the rows with InRadioFlag and no others.
void KeepContentOfRead(const TRecordDialogue& dialogue);

// ---- TRecordHardware.cpp: the hardware information of the radio, and the files made of it ----

/// Takes the first hardware record, in context.RxLine: the serial number, if the user asked for a log. The
/// hardware file "Logs/" + serial + ".txt" is then begun, and in a read of the debug log that log's file.
void BeginHardware(TRecordDialogue& dialogue);

/// Takes a hardware text record, in context.RxLine, into context.InfoLines and the hardware file.
void TakeHardwareText(TRecordDialogue& dialogue);

/// Closes the hardware file.
void EndHardware(TRecordDialogue& dialogue);

/// Begins the debug log's file for a radio that is asked for its log and tells no hardware information.
void BeginDebugLogWithoutHardware(TRecordDialogue& dialogue);

// ---- TRecordStates.cpp: what the program says in each state ----

/// Sets TxLine by context.Index, empty where there is nothing to say, and StatusText, gauge and flags that
/// go with it. May ask the user a question. May move Index on.
///
/// @return TransferOk, TransferComplete when the transfer is over, or TransferCancelled when the user didn't
///         want the radio to be purged
TransferStatus ChooseLine(TRecordDialogue& dialogue);

/// Makes the next hello the line to be sent: it offers protocol context.Protocol.
void OfferHello(TRecordDialogue& dialogue);

// ---- TRecordReplies.cpp: what the radio's lines do ----

/// Acts on the line in context.RxLine, which is without its checksum, or empty for one that was refused.
/// Sets Phase, and Status when the transfer is over; may move Index on. A line that means nothing here
/// changes nothing.
void TakeReply(TRecordDialogue& dialogue);

// ---- TRecordExchange.cpp: one line to the radio and what comes back ----

/// Sends the line that was offered, and takes the radio's lines until one of them settles it or the
/// transfer is over. The result is in context.Status: TransferOk to go on.
void ExchangeLine(TRecordDialogue& dialogue);

/// Sends the end record; no answer is waited for.
void SendEndRecord(TRecordContext& context);

// ---- TRecordReport.cpp: how the transfer ended ----

/// Reports to the radio, the user and the log by context.Status how the transfer ended. The end record goes
/// out where the radio waits for one; for that context.Port must be open.
void ReportResult(TRecordContext& context, TransferMode mode);
