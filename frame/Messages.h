// Messages of result codes and outcomes.
#pragma once

#include <wx/string.h>

/// Result codes of dialogs and checks.
enum ResultCode : int {
    ResultCancelled = -10, ///< the user cancelled a dialog: nothing is shown
    ResultBadRadio = -12,
    ResultBadBand = -13,
    ResultNumberUsed = -14,       ///< value: the row that has the number
    ResultDuplicateNumbers = -15, ///< value: how many
};

/// Shows the message of a result code in a box with the caption "Error". value is the row or
/// count that the message names.
void DisplayError(int code, int value);

/// Shows what became of a command in the first field of the status bar, until the next command or page
/// change. No help text covers it meanwhile.
///
/// @param verdict begins with what counts; a text too long for the field ends in an ellipsis. Empty takes an
///                earlier outcome away.
/// @param story   the whole of it, as tool tip of the status bar; the verdict where it is empty
void TellOutcome(const wxString& verdict, const wxString& story = wxString());

/// Takes away what TellOutcome shows. For the beginning of a command and for a page change.
void ForgetOutcome();

/// Whether the first field of the status bar holds an outcome.
bool OutcomeIsTold();
