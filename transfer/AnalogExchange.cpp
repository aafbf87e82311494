// Paced sending of commands and lines to an analog radio.
#include "transfer/AnalogDialogue.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferTimes.h"
#include "transfer/TransferWaits.h"
#include "transfer/wxAsyncSerial.h"

void SendPaced(TransferContext& context, const wxString& text, bool slow) {
    const int pause = slow ? TransferTimes::CommandPause : TransferTimes::LinePause;
    for (wxUniChar character : slow ? text : text + "\r") {
        context.Port->write(wxString(character));
        Delay(context, pause, false);
    }
}

wxString CountedCommand(const wxString& word, uint32_t count) {
    return word + wxString::Format("%3u\r", count);
}
