// Message boxes for the result codes of dialogs and checks.
#pragma once

/// Result codes of dialogs and checks.
enum ResultCode : int {
    ResultCancelled = -10, ///< the user cancelled a dialog: no box
    ResultBadRadio = -12,
    ResultBadBand = -13,
    ResultNumberUsed = -14,       ///< value: the row that has the number
    ResultDuplicateNumbers = -15, ///< value: how many
};

/// Shows the message of a result code in a box with the caption "Error". value is the row or
/// count that the message names.
void DisplayError(int code, int value);
