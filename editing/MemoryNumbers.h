// Who holds a memory number on the current page.
#pragma once

#include <wx/string.h>

#include <optional>
#include <set>
#include <utility>
#include <vector>

class wxGrid;

/// The first row from start to last of the current page, other than row, whose MNUM isn't empty and
/// reads as number; last + 1 when there is none.
int FindDuplicateMNum(int start, int row, int last, int number);

/// The memory numbers of rows 1 to last of the current page, for checks that would search the whole
/// page for each row. Holds as long as every change of MNUM is told.
class MemoryNumberIndex {
public:
    explicit MemoryNumberIndex(int last);

    /// As FindDuplicateMNum(1, row, last, number).
    int FindDuplicate(int row, int number) const;

    /// Whether a row holds the number.
    bool IsTaken(int number) const { return FindDuplicate(0, number) <= m_last; }

    /// The MNUM of row (1 to last) has become text.
    void Change(int row, const wxString& text);

private:
    int m_last;
    std::vector<std::optional<int>> m_numberOfRow;
    /// Numbers with their rows.
    std::set<std::pair<int, int>> m_holders;
};

/// True for a number that no row of the current page can have, as it is above the page's rows or has more
/// digits than 32 bits hold.
bool IsNumberOutOfRange(int number);

/// Gives a memory row of the current page its row's number if the one in MNUM can't stand, being out of range
/// or another row's, and no row holds that number. Else MNUM stays, for CheckMNum to deal with. An empty MNUM
/// stays empty.
void ReplaceImpossibleNumber(wxGrid* grid, int row, MemoryNumberIndex& numbers);
