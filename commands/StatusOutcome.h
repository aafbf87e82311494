// The outcome of a command in the status bar.
#pragma once

#include <wx/string.h>

class wxStatusBar;

/// Sets the status bar that shows outcomes until it is destroyed. Called by the main window; without a status
/// bar the functions below do nothing.
void ShowOutcomesIn(wxStatusBar* statusBar);

/// Shows the outcome of a command in the first field of the status bar, until the next command or page
/// change. Help texts of tools don't cover it meanwhile.
///
/// @param verdict short result, the important part first; a text too long for the field ends in an ellipsis.
///                An empty one removes an earlier outcome.
/// @param story   full result, shown as tool tip of the status bar; if empty, the verdict is shown
void TellOutcome(const wxString& verdict, const wxString& story = wxString());

/// Removes the outcome that TellOutcome shows. Call at the beginning of a command and on a page change.
void ForgetOutcome();

/// The full result of the outcome that is shown; empty if there is none.
wxString OutcomeStory();

/// Whether the first field of the status bar holds an outcome.
bool OutcomeIsTold();
