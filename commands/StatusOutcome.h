// The outcome of a command in the status bar.
#pragma once

#include <wx/string.h>

class wxStatusBar;

/// Makes a status bar the one that shows outcomes, from now on until it is destroyed. The main window calls
/// this; without a status bar the functions below do nothing.
void ShowOutcomesIn(wxStatusBar* statusBar);

/// Shows the outcome of a command in the first field of the status bar, until the next command or page
/// change. No help text covers it meanwhile.
///
/// @param verdict begins with what counts; a text too long for the field ends in an ellipsis. An empty one
///                removes an earlier outcome.
/// @param story   the whole of it, as tool tip of the status bar; the verdict if it is empty
void TellOutcome(const wxString& verdict, const wxString& story = wxString());

/// Removes what TellOutcome shows. For the beginning of a command and for a page change.
void ForgetOutcome();

/// Whether the first field of the status bar holds an outcome.
bool OutcomeIsTold();
