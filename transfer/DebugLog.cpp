#include "transfer/DebugLog.h"

#include "transfer/HexText.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferProgress.h"

#include <wx/ffile.h>
#include <wx/gauge.h>
#include <wx/log.h>

namespace {

constexpr uint32_t SampleProtocol = 2;

// Intentional: in these records the address and data begin at odd positions, one after their positions in
// other records. The first byte of the data is byte 5.
constexpr size_t AddressPosition = 5, AddressDigits = 4;
constexpr uint32_t FirstDataByte = 5, FirstDataByteOfBlock = 9;
constexpr int BlockMask = 0x1FFF; // a block has 8192 bytes

uint32_t LogByte(const wxString& line, size_t n) {
    return HexNumberAt(line, 2 * (n - 1) + 1, 2);
}

void Write(wxFFile& file, const wxString& text) {
    const wxLogNull silence;
    if (file.IsOpened() && !text.empty())
        file.Write(text);
}

// ---- Trace of the serial traffic ----

constexpr uint32_t SevenBits = 0x7F, Received = 0x80, MessageBegin = 2, MessageEnd = 3;

wxString PairOfLines(const TRecordContext& context) {
    return context.DebugRxText + "\n" + context.DebugTxText + "\n";
}

void BeginLines(TRecordContext& context) {
    const wxString prefix = ":" + context.RxLine.Mid(AddressPosition, AddressDigits) + ": ";
    context.DebugRxText = "Rx" + prefix;
    context.DebugTxText = "Tx" + prefix;
}

void PadTo(wxString& text, size_t length) {
    if (text.length() < length)
        text.Pad(length - text.length());
}

wxString TraceCharacter(uint32_t c) {
    return c >= ' ' && c <= '~' ? wxString(wxUniChar(c)) : wxString::Format("<%02X>", c);
}

/// State carried from one byte outside messages to the next, within a record.
struct Traffic {
    uint32_t lastCharacter = 0;
    wxString text; ///< last text made
};

/// @return text to write
wxString TakeMessageByte(TRecordContext& context, uint32_t c) {
    if (c != MessageEnd) {
        context.DebugRxText += wxUniChar(c);
        return {};
    }
    const wxString message = context.DebugRxText + "\n";
    context.Work2 = 0;
    BeginLines(context);
    return message;
}

/// Appends the text of a byte to its line. The echo of the previous byte is placed right under it; anything
/// else begins where the other line ends.
void AddToLines(TRecordContext& context, uint32_t byte, const Traffic& traffic) {
    const uint32_t c = byte & SevenBits;
    if (c == 0)
        return;
    if (byte & Received) {
        if (c != traffic.lastCharacter)
            PadTo(context.DebugRxText, context.DebugTxText.length());
        context.DebugRxText += traffic.text;
    } else {
        PadTo(context.DebugTxText, context.DebugRxText.length());
        context.DebugTxText += traffic.text;
    }
}

/// @return text to write
wxString TakeTrafficByte(TRecordContext& context, uint32_t byte, Traffic& traffic) {
    const uint32_t c = byte & SevenBits;
    wxString written;
    if (c == MessageBegin) {
        written = PairOfLines(context);
        context.Work2 = 1;
        context.DebugRxText = "Msg: ";
        // Intentional: this byte makes no text, so the text of the previous byte is added again.
    } else {
        traffic.text = TraceCharacter(c);
    }
    AddToLines(context, byte, traffic);
    traffic.lastCharacter = c;
    return written;
}

/// Returns the text that a record of the trace adds to the file.
wxString TraceText(TRecordContext& context) {
    const wxString& line = context.RxLine;
    wxString text;
    if (context.LogDataStart == FirstDataByteOfBlock) {
        context.DebugRxText = "Error Code = $" + line.Mid(9, 4) + "  Insert Ptr = $" + line.Mid(13, 4);
        text = "\n" + context.DebugRxText + "\n";
        context.Work2 = 0;
    }
    if (context.Work2 == 0)
        BeginLines(context);

    Traffic traffic;
    for (size_t n = context.LogDataStart; n < line.length() / 2; ++n) {
        const uint32_t byte = LogByte(line, n);
        text += context.Work2 == 1 ? TakeMessageByte(context, byte & SevenBits)
                                   : TakeTrafficByte(context, byte, traffic);
    }
    return context.Work2 == 1 ? text : text + PairOfLines(context);
}

// ---- Temperature samples ----

constexpr size_t EntryCount = 8, EntryLength = 16, UnusedMarkPosition = 15;
constexpr uint32_t UnusedEntry = 255, WordsFlag = 0x08, LowSixBits = 0x3F;

int SignedByte(uint32_t byte) {
    return byte > 127 ? static_cast<int>(byte) - 256 : static_cast<int>(byte);
}

/// Returns one line of the table; base is the position from which the entry's positions count.
wxString SampleText(const wxString& line, size_t base) {
    const auto byte = [&](size_t position) { return HexNumberAt(line, base + position, 2); };
    const auto word = [&](size_t position) { return HexNumberAt(line, base + position, 4); };
    const wxString head = wxString::Format("%u:%u:%u,%u,%u,%u,", byte(11), byte(13) & LowSixBits,
                                           byte(15) & LowSixBits, byte(9), byte(13) >> 6, byte(15) >> 6);
    if (byte(9) & WordsFlag)
        return head + wxString::Format("%u,%u\n", word(17), word(21));
    return head + wxString::Format("%d,%d,%d,%d\n", SignedByte(byte(17)), SignedByte(byte(19)),
                                   SignedByte(byte(21)), SignedByte(byte(23)));
}

/// Returns the lines of a record of samples. Entries missing from the line count as unused.
wxString SamplesText(const wxString& line) {
    wxString text;
    for (size_t base = 0; base < EntryCount * EntryLength; base += EntryLength)
        if (line.length() >= base + UnusedMarkPosition + 2 &&
            HexNumberAt(line, base + UnusedMarkPosition, 2) != UnusedEntry)
            text += SampleText(line, base);
    return text;
}

} // namespace

void OpenDebugLog(TRecordContext& context, const wxString& serial, const wxString& now) {
    const wxLogNull silence;
    if (context.DebugLogFile.IsOpened() && !context.DebugLogFile.Close())
        context.DebugLogFile.Detach();
    if (!context.DebugLogFile.Open("KDRV-716_" + serial + "_Dbg.log", "w"))
        return;
    // Intentional: the heading is on the same line as the date.
    Write(context.DebugLogFile, "SN," + serial + "\nDate," + now +
                                    "Timestamp,Flags,Main_RxTx_State,Guard_RxTx_State,"
                                    "MB_Temp,MCU_Temp,MainRF_Temp,GuardRF_Temp\n");
}

void decodeDebugLog(TRecordContext& context) {
    constexpr int bytesPerStep = 32, lowByte = 0xFF;
    const int address = static_cast<int>(HexNumberAt(context.RxLine, AddressPosition, AddressDigits));
    context.LogDataStart = (address & BlockMask) == 0 ? FirstDataByteOfBlock : FirstDataByte;
    context.Work3 = (address / bytesPerStep) & lowByte;
    if (context.Progress && context.Work3 <= context.Progress->Range())
        context.Progress->SetValue(context.Work3);
    if (context.Protocol == SampleProtocol)
        decodeDebugLog716B(context);
    else
        decodeDebugLog716A(context);
    context.Phase = LineDone;
}

void decodeDebugLog716A(TRecordContext& context) {
    Write(context.DebugLogFile, TraceText(context));
}

void decodeDebugLog716B(TRecordContext& context) {
    Write(context.DebugLogFile, SamplesText(context.RxLine));
}

void EndDebugLog(TRecordContext& context) {
    if (context.Protocol < SampleProtocol && context.Work2 == 1)
        Write(context.DebugLogFile, context.DebugRxText + "\n");
}
