// The records of a file by the grid rows that they are for.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

/// Keeps of all records for a row the last one: what is left in the grid when one is written over the
/// other. A file that names a row again and again so costs no more than one that names it once, holds
/// one zone slot for it, and leaves no paint of a record that has gone.
template <class Record>
class LastOfRow {
public:
    /// For rows 0 to rows - 1.
    explicit LastOfRow(int rows) : m_kept(static_cast<size_t>(rows)) {}

    /// row must be one of the rows.
    void Keep(int row, Record record) {
        m_kept[static_cast<size_t>(row)] = Kept{m_next++, std::move(record)};
    }

    /// The record of a row, or null.
    const Record* Of(int row) const {
        const auto& kept = m_kept[static_cast<size_t>(row)];
        return kept ? &kept->record : nullptr;
    }

    /// Calls work(row, record) in the order in which the records came.
    template <class Work>
    void ForEach(Work work) const {
        std::vector<std::pair<size_t, int>> order;
        for (size_t row = 0; row < m_kept.size(); ++row)
            if (m_kept[row])
                order.emplace_back(m_kept[row]->place, static_cast<int>(row));
        std::sort(order.begin(), order.end());
        for (const auto& [place, row] : order)
            work(row, m_kept[static_cast<size_t>(row)]->record);
    }

private:
    struct Kept {
        size_t place;
        Record record;
    };

    std::vector<std::optional<Kept>> m_kept;
    size_t m_next = 0;
};
