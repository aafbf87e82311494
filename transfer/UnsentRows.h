// Selected rows that a write didn't send.
#pragma once

#include <wx/string.h>

#include <set>

/// Returns rows in ascending order as readable text: "3, 7, 201 to 500". Two adjacent rows are listed one by
/// one.
wxString RowRanges(const std::set<int>& rows);

/// Returns the memory rows (from 1, guards included) of the current page that are fully selected and have
/// data.
std::set<int> SelectedMemories();

/// Shows in the status bar how many of the selected rows were sent, and in its tool tip which were not. Does
/// nothing if all were sent.
void TellUnsentRows(const std::set<int>& selected, const std::set<int>& sent);
