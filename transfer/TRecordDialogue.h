// Shared declarations of the digital driver's sources: one transfer, its states and the steps of each source.
#pragma once

#include "catalogue/MemoryRow.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"

#include <wx/string.h>

#include <set>

class wxGrid;

/// Bits of TransferContext::XferFlags.
enum TransferNeed : uint32_t {
    RadioPurged = 0x01,     ///< the radio was told to erase all memories: those it held are sent again
    NeedsShadowPass = 0x02, ///< shadows are to be sent, after all primaries
    HasMarkedRow = 0x04,    ///< a row to be sent has MarkedFlag
    OtherRadio = 0x08,      ///< the radio's identity stamp isn't RadioStamp: its content is unknown
    PrimaryPass = 0x10,     ///< this pass over the rows sends primaries; without the bit, shadows
    FitsV1 = 0x20,          ///< everything to be sent fits the old layout
};

/// Values of TransferContext::Index below 0; from 0 on it is a row or a line of the configuration. A transfer
/// takes the states in this order; answers skip some of them (ContinueAt).
enum TransferState : int32_t {
    HelloState = -10,       ///< offers a protocol, until the radio agrees to one
    SpeedState = -9,        ///< agrees on the fast line speed
    OpModeState = -8,       ///< asks for the enabled operating modes
    HardwareState = -7,     ///< asks for the hardware information; its first record is the serial number
    HardwareTextState = -6, ///< fetches the next hardware record, until the radio has no more
    VersionState = -5,      ///< asks for the firmware version
    StampState = -4,        ///< asks for the identity stamp or sets a new one
    OpeningState = -3,      ///< announces the kind of transfer
    PurgeState = -2,        ///< erases the radio's memories if needed
    DataState = -1,         ///< sends nothing; the data start at the next index
};

/// Makes `next` the state after the current line. The driver increments Index after every line, so this sets
/// the state before it.
inline void ContinueAt(TRecordContext& context, TransferState next) {
    context.Index = next - 1;
}

/// One transfer. The context holds the state of the protocol, this struct the data that it works on.
struct TRecordDialogue {
    TRecordContext& context;
    wxGrid* grid; ///< grid of the current page
    TransferMode mode;
    int rowCount; ///< rows of the grid, including the default row

    std::set<int> markedRows = {}; ///< rows to be sent as primary or shadow of a selected row
    int rowsToSend = 0;            ///< for the gauge
    int rowsSent = 0;              ///< for the gauge
    bool lacksChecksum = false;    ///< TxLine is new and has no checksum yet
    bool extraAnswers = false;     ///< the radio has sent an answer twice
    int refusals = 0;              ///< lines that the radio refused, or whose answer was garbled

    /// Sets the line to be sent. Its checksum is added when it is sent.
    void Offer(const wxString& line) {
        context.TxLine = line;
        lacksChecksum = true;
    }
    bool Needs(uint32_t anyOf) const { return (context.XferFlags & anyOf) != 0; }
};

// Each source calls only functions that are declared above its own.

// ---- TRecordRows.cpp: choice of the rows to send, and of their records ----

/// Returns the operating mode that a row of the current page uses and radioModes lacks: WideMode, NarrowMode
/// or DigitalMode; 0 if there is none.
uint32_t CheckForInvalidOpModes(TRecordContext& context, int row, uint32_t radioModes);

/// Prepares all rows for a write. Sets SEL in the TFLG of selected rows and of the primaries and shadows that
/// must be sent with them, and clears it in all others. Counts the rows to send, and finds out what they need
/// of the radio (XferFlags) and which operating modes the radio lacks for them (InvalidModes).
void EvaluateRows(TRecordDialogue& dialogue);

/// Sets TxLine for the row at context.Index: its record, the message that erases it, or nothing. May advance
/// Index past rows that the old layout doesn't know.
void ChooseRowLine(TRecordDialogue& dialogue);

/// Records the radio's acknowledgement of the row at context.Index: sets InRadioFlag of a memory row that was
/// sent, clears it in one that was erased, and adds the row to context.RowsSent.
void TakeRowAck(TRecordDialogue& dialogue);

/// True if a write must erase all memories of the radio before it sends any.
bool PurgeIsNeeded(const TRecordDialogue& dialogue);

/// True if the purge that a write needs may lose memories. With a radio other than the known one: a memory
/// row of the page, guards included, has data and isn't selected. With the known one: it holds memories that
/// won't be sent again, or its last read broke off.
bool PurgeMayCostMemories(const TRecordDialogue& dialogue);

/// Records at the end of a read that the radio holds exactly the rows with InRadioFlag.
void KeepContentOfRead(const TRecordDialogue& dialogue);

// ---- TRecordHardware.cpp: the hardware information of the radio, and the files made of it ----

/// Handles the first hardware record, in context.RxLine. If the user asked for a log, takes the serial number
/// from it and starts the hardware file "Logs/" + serial + ".txt"; in a read of the debug log, also that
/// log's file.
void BeginHardware(TRecordDialogue& dialogue);

/// Adds a hardware text record, in context.RxLine, to context.InfoLines and the hardware file.
void TakeHardwareText(TRecordDialogue& dialogue);

/// Closes the hardware file.
void EndHardware(TRecordDialogue& dialogue);

/// Starts the debug log's file for a radio that sends its log without hardware information.
void BeginDebugLogWithoutHardware(TRecordDialogue& dialogue);

// ---- TRecordStates.cpp: the line to send in each state ----

/// Sets TxLine for context.Index, empty if there is nothing to send, and StatusText, gauge and flags to
/// match. May ask the user a question. May advance Index.
///
/// @return TransferOk, TransferComplete when the transfer is over, or TransferCancelled when the user refused
///         to purge the radio
TransferStatus ChooseLine(TRecordDialogue& dialogue);

/// Sets TxLine to the hello that offers protocol context.Protocol.
void OfferHello(TRecordDialogue& dialogue);

// ---- TRecordReplies.cpp: handling of the radio's lines ----

/// Handles the line in context.RxLine, which has no checksum and is empty if the line was refused. Sets
/// Phase, and Status when the transfer is over; may advance Index. An unexpected line changes nothing.
void TakeReply(TRecordDialogue& dialogue);

// ---- TRecordExchange.cpp: one line to the radio and the replies to it ----

/// Sends the line that was offered, and handles the radio's lines until one of them settles it or the
/// transfer is over. The result is in context.Status: TransferOk to continue.
void ExchangeLine(TRecordDialogue& dialogue);

/// Sends the end record and doesn't wait for an answer.
void SendEndRecord(TRecordContext& context);

// ---- TRecordReport.cpp: report of the result ----

/// Reports the result of the transfer, in context.Status, to the radio, the user and the log. Sends the end
/// record if the radio waits for one; context.Port must be open for that.
void ReportResult(TRecordContext& context, TransferMode mode);
