// Selected rows that a write didn't send.
#pragma once

#include <set>
#include <wx/string.h>

/// Rows in ascending order as a person lists them: "3, 7, 201 to 500". Two neighbours are listed one by one.
wxString RowRanges(const std::set<int>& rows);

/// The memory rows (from 1 on, guards included) of the current page that are selected whole and have data.
std::set<int> SelectedMemories();

/// Tells in the status bar how many of the selected rows were sent, and as its tool tip which were not. Says
/// nothing if all of them were.
void TellUnsentRows(const std::set<int>& selected, const std::set<int>& sent);
