// Questions before the commands on rows, columns and cells, none of which can be undone.
#pragma once

#include "commands/CommandIds.h"

struct CommandQuestion {
    int id; ///< the command, a CommandId
    const char* caption;
    const char* message;
};

// clang-format off
inline constexpr CommandQuestion CommandQuestions[] = {
    {IdDefaultRow,         "Change Selection to defaults?",                  "This will overwrite all data in selection, there is no 'undo'!"},
    {IdPasteRow,           "Paste copied data into Selection?",              "This will overwrite all data in selection, there is no 'undo'!"},
    {IdClearRow,           "Clear rows in Selection?",                       "This will clear all data in selection, there is no 'undo'!"},
    {IdEmptyCells,         "Empty cells in Selection?",                     "This will clear all data in selection, there is no 'undo'!"},
    {IdInsertRow,          "Insert row above Selected row?",                 "If last row is used, it will be lost, there is no 'undo'!"},
    {IdDeleteRow,          "Delete Selection?",                              "This will delete all data in selection, there is no 'undo'!"},
    {IdDefaultCol,         "Change Selection to default?",                   "This will overwrite all valid data in selection, there is no 'undo'!"},
    {IdDefaultMarked,      "Change Marked Rows in Column to default value?", "This will overwrite all data in selection, there is no 'undo'!"},
    {IdRenumberToRowNum,   "Re-number Rows?",                                "This will overwrite all numbers in selection, there is no 'undo'!"},
    {IdRenumberSequencial, "Re-number Rows?",                                "This will overwrite all numbers in selection, there is no 'undo'!"},
    {IdDefaultFile,        "Default File?",                                  "This will overwrite all data in file, there is no 'undo'!"},
};
// clang-format on

/// Asks the question of the command. Returns true when the user confirms, and for a command that
/// has no question.
bool UserConfirms(int command);
