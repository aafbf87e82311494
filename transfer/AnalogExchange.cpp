// Paced sending of commands and lines to an analog radio.
#include "transfer/AnalogDialogue.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferLine.h"
#include "transfer/TransferTimes.h"
#include "transfer/TransferWaits.h"

void SendPaced(TransferContext& context, const wxString& text, bool slow) {
    const int pause = slow ? TransferTimes::CommandPause : TransferTimes::LinePause;
    for (wxUniChar character : slow ? text : text + "\r") {
        // What has arrived before the end of a line can't be the answer to it.
        if (!slow && character == '\r')
            context.Port->takeReceived();
        context.Port->write(wxString(character));
        Delay(context, pause, false);
    }
}

wxString CountedCommand(const wxString& word, uint32_t count) {
    return word + wxString::Format("%3u\r", count);
}
