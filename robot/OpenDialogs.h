// List of the open modal dialogs; any thread may read it.
#pragma once

#include <string>
#include <vector>

class wxDialog;

namespace testbench {

enum class DialogKind { Any, Message, File, Print, PageSetup, Other };

/// Properties of a dialog, read before it is shown.
struct DialogFacts {
    wxDialog* dialog = nullptr; ///< use in the window thread only, while the dialog is open
    DialogKind kind = DialogKind::Other;
    std::string caption; ///< UTF-8
    std::string message; ///< UTF-8; empty for kinds without one
    long style = 0;      ///< of a message box: wxOK, wxICON_... as given by the caller; else the window style
};

/// Reads the facts of a dialog. Call in the window thread.
DialogFacts FactsOf(wxDialog* dialog);

/// Human-readable line with kind, caption and message.
std::string Describe(const DialogFacts& facts);

/// Starts to fill the list of OpenDialogs, from the next dialog on. Call in the window thread. Further
/// calls do nothing.
void WatchDialogs();

/// The dialogs that are modal now, outermost first.
std::vector<DialogFacts> OpenDialogs();

} // namespace testbench
