// Commands that print a page, preview it and set up the paper.
#include "catalogue/PageModel.h"
#include "commands/FocusKeeper.h"
#include "commands/OpenEditor.h"
#include "commands/StatusOutcome.h"
#include "files/ZelkPrinting.h"
#include "frame/ZelkMain.h"

#include <wx/generic/prntdlgg.h>
#include <wx/log.h>
#include <wx/printdlg.h>
#include <wx/utils.h>
#include <wx/weakref.h>

namespace {

/// Disables all commands while it exists, then restores the keyboard focus. Events are handled between
/// sheets, and neither the grid nor the printout may be deleted before the last sheet is drawn.
class CommandsOff {
    const FocusKeeper m_focus; // first: a disabled window can't have the focus
    const wxWindowDisabler m_disabler;
};

/// Preview that can't be closed while it prints.
class SteadyPreview : public wxPrintPreview {
public:
    using wxPrintPreview::wxPrintPreview;
    bool Print(bool interactive) override {
        const CommandsOff quiet;
        return wxPrintPreview::Print(interactive);
    }
};

std::unique_ptr<ZelkPrintout> MakePrintout(ZelkFrame* frame) {
    return std::make_unique<ZelkPrintout>(frame, CurrentGrid(), PageStrings[CurrentPage].RadioName);
}

/// What the print dialog begins with: not every system's asks the printout for its sheets.
wxPrintDialogData DialogDataFor(ZelkPrintout& printout) {
    wxPrintDialogData data(*PrintData);
    int min, max, from, to;
    printout.GetPageInfo(&min, &max, &from, &to);
    data.SetMinPage(min);
    data.SetMaxPage(max);
    data.SetFromPage(from);
    data.SetToPage(to);
    return data;
}

} // namespace

void ZelkFrame::OnPrint(wxCommandEvent&) {
    CommitOpenEditor();
    const std::unique_ptr<ZelkPrintout> printout = MakePrintout(this);
    wxPrintDialogData dialogData = DialogDataFor(*printout);
    wxPrinter printer(&dialogData);
    const CommandsOff quiet;
    wxString outcome;
    if (printer.Print(this, printout.get(), true))
        *PrintData = printer.GetPrintDialogData().GetPrintData();
    else if (wxPrinter::GetLastError() == wxPRINTER_ERROR)
        outcome = "There was a problem printing. Perhaps your current printer is not set correctly?";
    // Logging is off in the program; the user reads the status bar.
    if (!outcome.empty())
        wxLogMessage("%s", outcome);
    TellOutcome(outcome.empty() ? wxString() : wxString("There was a problem printing."), outcome);
}

// Intentional: nothing checks whether the preview is usable.
void ZelkFrame::OnPrintPreview(wxCommandEvent&) {
    CommitOpenEditor();
    std::unique_ptr<ZelkPrintout> printout = MakePrintout(this);
    wxPrintDialogData dialogData = DialogDataFor(*printout);
    auto* preview = new SteadyPreview(MakePrintout(this).release(), printout.release(), &dialogData);
    auto* frame = new wxPreviewFrame(preview, this, "Print Preview", wxDefaultPosition, wxDefaultSize,
                                     wxDEFAULT_FRAME_STYLE | wxFRAME_FLOAT_ON_PARENT);
    // The preview takes the keyboard focus; return it on close.
    frame->Bind(wxEVT_DESTROY, [frame, focus = wxWindowRef(FindFocus())](wxWindowDestroyEvent& event) {
        event.Skip();
        if (event.GetWindow() == frame && focus && !frame->GetParent()->IsBeingDeleted())
            focus->SetFocus();
    });
    frame->Initialize();
    frame->CentreOnScreen();
    frame->Show();
    // Otherwise a window manager may leave the focus on the main window, which takes no keys now.
    frame->Raise();
}

void ZelkFrame::OnPageSetup(wxCommandEvent&) {
    wxGenericPageSetupDialog dialog(this, PageSetupData.get());
    dialog.ShowModal();
    // Intentional: applied whichever button closed the dialog.
    *PrintData = dialog.GetPageSetupDialogData().GetPrintData();
    *PageSetupData = dialog.GetPageSetupDialogData();
}
