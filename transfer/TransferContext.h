// State of a transfer, shared by the drivers and their helpers.
#pragma once

#include "transfer/TransferStatus.h"
#include "transfer/TransferSystem.h"
#include "transfer/TransferTimes.h"

#include <wx/arrstr.h>
#include <wx/datetime.h>
#include <wx/ffile.h>
#include <wx/string.h>

#include <cstdint>
#include <set>

class TransferProgress;

/// Values of TransferContext::Phase.
enum ExchangePhase : uint32_t {
    LineDone = 0,   ///< go to the next index
    SendNew = 1,    ///< send TxLine
    SendAgain = 2,  ///< send TxLine again, unchanged
    WaitOn = 3,     ///< send nothing, wait for another line
    LineFailed = 4, ///< Status holds the reason
};

/// State of one transfer. The handler of the command makes a new one for each transfer; the driver fills it.
struct TransferContext {
    wxString InfoField4, InfoField5;      ///< fields of the radio's information block
    wxArrayString InfoLines;              ///< fields of the information block, or hardware text lines
    wxArrayString ConfigLines;            ///< configuration lines read or to be written
    uint32_t ProductCode = 0;             ///< first digit of the information block
    uint32_t RowCapacity = 0;             ///< rows that the radio holds
    uint32_t ConfigCount = 0;             ///< configuration lines that the radio holds
    TransferLine* Port = nullptr;         ///< owned by the TransferSession
    TransferProgress* Progress = nullptr; ///< owned by the TransferSession
    TransferClock* Clock = &CurrentTransferSystem().Clock(); ///< must outlive the transfer
    wxDateTime WaitStart, WaitNow;           ///< start and current time of the last WaitForLine or Delay
    int64_t Elapsed = 0;                     ///< milliseconds of that wait so far
    int64_t LastPulse = 0;                   ///< Elapsed when the pulse gauge last moved
    wxString TxLine;                         ///< line to send
    wxString RxLine;                         ///< line received
    wxString RxBuffer;                       ///< received text not yet split into lines
    wxString Scratch;                        ///< temporary text: file names, message texts
    wxString StatusText;                     ///< text for the progress label
    wxString RadioSerial;                    ///< serial number of the radio
    wxFFile LogFile;                         ///< log of the transfer, open only if the user asked for one
    wxFFile DebugLogFile, HardwareFile;      ///< texts from the radio; T-record transfers only
    int32_t Index = 0;                       ///< state or row
    int32_t Work1 = 0, Work2 = 0, Work3 = 0; ///< temporary numbers
    uint32_t Phase = LineDone;               ///< an ExchangePhase
    int32_t FoundAt = -1;                    ///< position of the terminator in RxBuffer, -1 for none
    TransferStatus Status = TransferOk;
    uint32_t XferFlags = 0; ///< what the rows to be sent need of the radio
    std::set<int> RowsSent; ///< memory rows that the radio has acknowledged

    /// Converts received text before it is added to RxBuffer; if null, the text is added unchanged.
    wxString (*Arriving)(const wxString& text) = nullptr;
};

/// State of a T-record transfer.
struct TRecordContext : TransferContext {
    wxString DebugRxText, DebugTxText; ///< lines of the radio's debug log in progress
    uint32_t RecordVersion = 1;        ///< 1 or 2
    uint32_t RadioModes = 0;           ///< operating modes that the radio has
    uint32_t InvalidModes = 0;         ///< operating modes that the rows use and the radio lacks
    uint32_t RetryCount = 0;           ///< refusals of the current line
    uint32_t RecordType = 0;           ///< digit of the last record
    uint32_t LogDataStart = 0;         ///< byte of a debug log record where its data start
    uint32_t Protocol = 0;             ///< number of the protocol offered or agreed on
    wxString StampTold;                ///< identity stamp reported by the radio in a write, empty before

    // Milliseconds, as in TransferTimes.h. Tests set shorter ones.
    int ReplyTimeout = TransferTimes::ReplyTimeout;
    int ShadowPause = TransferTimes::ShadowPause;
    int ResultPause = TransferTimes::ResultPause;
};
