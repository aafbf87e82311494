#include "commands/ErrorBox.h"

#include <wx/msgdlg.h>
#include <wx/string.h>

void DisplayError(int code, int value) {
    wxString message;
    switch (code) {
    case ResultBadRadio:
        message = "Invalid Radio selection";
        break;
    case ResultBadBand:
        message = "Invalid Band selection";
        break;
    case ResultNumberUsed:
        message.Printf("Number already used at row: %03d", value);
        break;
    case ResultDuplicateNumbers:
        message.Printf("%d Duplicate memory number(s) found.", value);
        break;
    default:
        message = "Unknown Error";
    }
    wxMessageBox(message, "Error", wxOK | wxCENTRE);
}
