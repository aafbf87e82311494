// Records of a file by the grid rows that they are for.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

/// Keeps only the last record for each row, which is what the grid would hold if each were written
/// over the other. A file that names a row repeatedly then costs no more than one that names it once,
/// holds one zone slot for it, and leaves no paint of an overwritten record.
template <class Record>
class LastOfRow {
public:
    /// For rows 0 to rows - 1.
    explicit LastOfRow(int rows) : m_kept(static_cast<size_t>(rows)) {}

    /// row must be in this range.
    void Keep(int row, Record record) {
        m_kept[static_cast<size_t>(row)] = Kept{m_next++, std::move(record)};
    }

    /// Returns the record of a row, null if there is none.
    const Record* Of(int row) const {
        const auto& kept = m_kept[static_cast<size_t>(row)];
        return kept ? &kept->record : nullptr;
    }

    /// Calls work(row, record) for each record kept, in the order of arrival.
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
