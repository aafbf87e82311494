// The command that selects the serial port.
#include "frame/SelectionDialogs.h"
#include "frame/ZelkMain.h"
#include "transfer/ChosenPort.h"

void ZelkFrame::OnSetPort(wxCommandEvent&) {
    PortDialog dialog(this, "<-- Select Serial Port -->");
    if (dialog.ShowModal() == wxID_OK) {
        PortName = dialog.GetValue();
        SetStatusText(PortName, 4);
    }
    PortList.clear();
}
