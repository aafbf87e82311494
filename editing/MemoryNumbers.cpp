#include "editing/MemoryNumbers.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"

#include <wx/grid.h>

namespace {

/// The number that a MNUM text reads as, none for an empty one.
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
    if (const auto found = m_rowsOfNumber.find(number); found != m_rowsOfNumber.end())
        for (int other : found->second)
            if (other != row)
                return other;
    return m_last + 1;
}

void MemoryNumberIndex::Change(int row, const wxString& text) {
    std::optional<int>& number = m_numberOfRow[static_cast<size_t>(row)];
    if (number)
        m_rowsOfNumber[*number].erase(row);
    number = NumberOf(text);
    if (number)
        m_rowsOfNumber[*number].insert(row);
}
