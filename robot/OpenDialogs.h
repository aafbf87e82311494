// The modal dialogs that stand open, as any thread may ask for them.
#pragma once

#include <string>
#include <vector>

class wxDialog;

namespace testbench {

enum class DialogKind { Any, Message, File, Print, PageSetup, Other };

/// What a dialog says of itself before it is shown.
struct DialogFacts {
    wxDialog* dialog = nullptr; ///< to be used in the window thread only, while the dialog is open
    DialogKind kind = DialogKind::Other;
    std::string caption; ///< UTF-8
    std::string message; ///< UTF-8; empty for kinds without one
    long style = 0;      ///< of a message: wxOK, wxICON_... as given by the caller; else the window style
};

/// Reads the facts of a dialog; to be called in the window thread.
DialogFacts FactsOf(wxDialog* dialog);

/// A line for a person: kind, caption and message.
std::string Describe(const DialogFacts& facts);

/// Begins to keep the list of OpenDialogs, from the next dialog on. To be called in the window thread;
/// calling it again does nothing.
void WatchDialogs();

/// The dialogs that run modally now, the outermost first.
std::vector<DialogFacts> OpenDialogs();

} // namespace testbench
