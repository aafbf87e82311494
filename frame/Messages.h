// Messages of result codes and outcomes.
#pragma once

class wxString;

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

/// Shows what became of a command in the first field of the status bar. An empty outcome only takes away what
/// an earlier one told.
void TellOutcome(const wxString& outcome);
