#include "editing/MemoryNumbers.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "editing/ReplacedCells.h"

#include <wx/grid.h>

#include <limits>

namespace {

/// Returns the number that a MNUM text reads as, none for an empty text.
std::optional<int> NumberOf(const wxString& text) {
    if (text.empty())
        return std::nullopt;
    return ReadDecimal(text);
}

} // namespace

int FindDuplicateMNum(int start, int row, int last, int number) {
    wxGrid* grid = CurrentGrid();
    for (int other = start; other <= last; ++other)
        if (other != row && NumberOf(grid->GetCellValue(other, MNUM)) == number)
            return other;
    return last + 1;
}

MemoryNumberIndex::MemoryNumberIndex(int last) : m_last(last), m_numberOfRow(static_cast<size_t>(last) + 1) {
    for (int row = 1; row <= last; ++row)
        Change(row, CurrentGrid()->GetCellValue(row, MNUM));
}

int MemoryNumberIndex::FindDuplicate(int row, int number) const {
    auto holder = m_holders.lower_bound({number, 0});
    if (holder != m_holders.end() && *holder == std::pair(number, row))
        ++holder;
    return holder != m_holders.end() && holder->first == number ? holder->second : m_last + 1;
}

void MemoryNumberIndex::Change(int row, const wxString& text) {
    std::optional<int>& held = m_numberOfRow[static_cast<size_t>(row)];
    const std::optional<int> number = NumberOf(text);
    if (held == number)
        return;
    if (held)
        m_holders.erase({*held, row});
    if (number)
        m_holders.insert({*number, row});
    held = number;
}

bool IsNumberOutOfRange(int number) {
    // Numbers below the 32-bit range are read as the minimum.
    return number > CurrentParameters().Rows || number == std::numeric_limits<int>::min();
}

void ReplaceImpossibleNumber(wxGrid* grid, int row, MemoryNumberIndex& numbers) {
    const std::optional<int> number = NumberOf(grid->GetCellValue(row, MNUM));
    if (!number || numbers.IsTaken(row))
        return;
    if (!IsNumberOutOfRange(*number) && numbers.FindDuplicate(row, *number) > CurrentParameters().Rows)
        return;
    grid->SetCellValue(row, MNUM, NumberText(row));
    numbers.Change(row, NumberText(row));
    ReplacedCells::Note(row, MNUM);
}
