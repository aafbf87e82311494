// Memory numbers that are entered together, as when rows were sorted elsewhere.
#pragma once

#include <map>
#include <utility>
#include <vector>

/// Returns which of the wanted numbers, as (row, number), can stand when all of those are written at once:
/// true for a number that no other row keeps or gets. A row whose number can't stand keeps its own. Of two
/// rows that want the same number the first one gets it.
///
/// @param numberOfRow the present number of each row that has one
std::vector<bool> NumbersThatFit(const std::map<int, int>& numberOfRow,
                                 const std::vector<std::pair<int, int>>& wanted);
