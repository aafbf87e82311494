// Lookup of the rows that hold a memory number on the current page.
#pragma once

#include <wx/string.h>

#include <optional>
#include <set>
#include <utility>
#include <vector>

class wxGrid;

/// Returns the first row from start to last of the current page, except row, whose MNUM isn't empty and reads
/// as number; last + 1 if there is none.
int FindDuplicateMNum(int start, int row, int last, int number);

/// Index of the memory numbers in rows 1 to last of the current page. Saves checks from searching the page
/// for each row. Valid only while every change of MNUM is reported to Change.
class MemoryNumberIndex {
public:
    explicit MemoryNumberIndex(int last);

    /// Same as FindDuplicateMNum(1, row, last, number).
    int FindDuplicate(int row, int number) const;

    /// True if a row holds the number.
    bool IsTaken(int number) const { return FindDuplicate(0, number) <= m_last; }

    /// Records that the MNUM of row (1 to last) is now text.
    void Change(int row, const wxString& text);

private:
    int m_last;
    std::vector<std::optional<int>> m_numberOfRow;
    /// Numbers with their rows.
    std::set<std::pair<int, int>> m_holders;
};

/// True for a number that no row of the current page can have: above the page's rows, or outside the 32-bit
/// range.
bool IsNumberOutOfRange(int number);

/// Sets MNUM of a memory row of the current page to the row's own number if the present one is out of range
/// or held by another row, and no row holds the row's own number. Otherwise MNUM stays, for CheckMNum to
/// handle. An empty MNUM stays empty.
void ReplaceImpossibleNumber(wxGrid* grid, int row, MemoryNumberIndex& numbers);
