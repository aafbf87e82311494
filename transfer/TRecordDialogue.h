// What the files of the digital driver share while one transfer runs.
#pragma once

#include "catalogue/MemoryRow.h"
#include "transfer/TransferContext.h"

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

/// Values of TransferContext::Phase.
enum ExchangePhase : std::uint32_t {
    LineDone = 0,   ///< go to the next index
    SendNew = 1,    ///< send TxLine
    SendAgain = 2,  ///< send TxLine again, as it stands
    WaitOn = 3,     ///< send nothing, wait for a further line
    LineFailed = 4, ///< Status tells how
};

/// Values of TransferContext::Index below 0; from 0 on it is a row, or a line of the configuration.
enum TransferState : std::int32_t {
    HelloState = -10,
    SpeedState = -9,
    OpModeState = -8,
    HardwareState = -7,
    HardwareTextState = -6,
    VersionState = -5,
    StampState = -4,
    OpeningState = -3,
    PurgeState = -2,
    DataState = -1,
};

/// One transfer. The context holds what the protocol is about; this holds what it is done with.
struct TRecordDialogue {
    TRecordContext& context;
    wxGrid* grid; ///< the current page's
    int mode;     ///< a TransferMode
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
