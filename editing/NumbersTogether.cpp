#include "editing/NumbersTogether.h"

#include <cstddef>
#include <set>

namespace {

/// Returns the numbers of the rows that get no new one.
std::set<int> KeptNumbers(std::map<int, int> numberOfRow, const std::vector<std::pair<int, int>>& wanted,
                          const std::vector<bool>& fits) {
    for (size_t i = 0; i < wanted.size(); ++i)
        if (fits[i])
            numberOfRow.erase(wanted[i].first);
    std::set<int> kept;
    for (const auto& [row, number] : numberOfRow)
        kept.insert(number);
    return kept;
}

} // namespace

std::vector<bool> NumbersThatFit(const std::map<int, int>& numberOfRow,
                                 const std::vector<std::pair<int, int>>& wanted) {
    std::vector<bool> fits(wanted.size(), true);
    // A row that keeps its number takes it away from another one; begin again until none does.
    for (bool changed = true; changed;) {
        changed = false;
        std::set<int> taken = KeptNumbers(numberOfRow, wanted, fits);
        for (size_t i = 0; i < wanted.size(); ++i)
            if (fits[i] && !taken.insert(wanted[i].second).second) {
                fits[i] = false;
                changed = true;
            }
    }
    return fits;
}
