#include "commands/CommandQuestions.h"

#include <wx/msgdlg.h>

bool UserConfirms(int command) {
    for (const CommandQuestion& question : CommandQuestions)
        if (question.id == command)
            return wxMessageDialog(nullptr, question.message, question.caption, wxOK | wxCANCEL)
                       .ShowModal() == wxID_OK;
    return true;
}
