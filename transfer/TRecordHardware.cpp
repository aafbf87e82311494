// Hardware information of a digital radio, and the files made of it.
#include "transfer/DebugLog.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TRecord.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TransferLog.h"

#include <wx/filefn.h>
#include <wx/log.h>

#include <algorithm>

namespace {

wxString DateOf(const TRecordContext& context) {
    return context.Clock->Date().FormatISOCombined(' ');
}

/// The radio may send any text; it must not lead out of the folder.
bool CanBePartOfFileName(const wxString& serial) {
    return std::all_of(serial.begin(), serial.end(),
                       [](wxUniChar c) { return c >= ' ' && c != '/' && c != '\\'; });
}

void OpenHardwareFile(TRecordContext& context, const wxString& now) {
    const wxLogNull silence;
    CloseTransferLog(context.HardwareFile);
    context.Scratch = "Logs/" + context.RadioSerial + ".txt";
    if (wxFileExists(context.Scratch))
        wxRemoveFile(context.Scratch);
    if (context.HardwareFile.Open(context.Scratch, "w"))
        WriteTransferLog(context.HardwareFile, "Date: " + now);
}

} // namespace

void BeginHardware(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    const wxString now = DateOf(context);
    context.InfoLines.clear();
    context.InfoLines.Add("Date: " + now);
    if (!context.LogFile.IsOpened())
        return;
    context.RadioSerial = HexToText(context.RxLine);
    RadioSerial = context.RadioSerial;
    if (!CanBePartOfFileName(context.RadioSerial))
        return;
    OpenHardwareFile(context, now);
    if (dialogue.mode == ReadDebugLogMode)
        OpenDebugLog(context, context.RadioSerial, now);
}

void TakeHardwareText(TRecordDialogue& dialogue) {
    const wxString text = HexToText(dialogue.context.RxLine);
    WriteTransferLog(dialogue.context.HardwareFile, text);
    dialogue.context.InfoLines.Add(text);
}

void EndHardware(TRecordDialogue& dialogue) {
    CloseTransferLog(dialogue.context.HardwareFile);
}

void BeginDebugLogWithoutHardware(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    if (context.LogFile.IsOpened() && !context.DebugLogFile.IsOpened())
        OpenDebugLog(context, "UNKNOWN", DateOf(context));
}
