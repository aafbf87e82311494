// Common base of the list import tests.
#pragma once

#include "tests/files/CsvTest.h"

#include <map>
#include <string>
#include <vector>

inline constexpr const char* HeaderMissing =
    "Unable to import the selected file\n\nPlease check that the file is correctly formatted\n"
    "and contains a column header line.";

class CsvImport : public CsvTest {
protected:
    using Cells = std::map<int, std::string>;

    /// Columns of a row whose text differs from before.
    static Cells Changes(int row, const std::vector<std::string>& before) {
        Cells changes;
        const std::vector<std::string> now = RowTexts(row);
        for (int col = 0; col < ColumnTotal; ++col)
            if (now[static_cast<size_t>(col)] != before[static_cast<size_t>(col)])
                changes[col] = now[static_cast<size_t>(col)];
        return changes;
    }

    static int CountTakenSlotsOf(const std::string& zone) { return ZoneSlotsOf(CurrentPage)[FindZone(zone)]; }
};
