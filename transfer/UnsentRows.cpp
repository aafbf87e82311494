#include "transfer/UnsentRows.h"

#include "catalogue/PageModel.h"
#include "commands/StatusOutcome.h"

#include <wx/grid.h>

#include <algorithm>
#include <iterator>

wxString RowRanges(const std::set<int>& rows) {
    constexpr int ShortestRange = 2; // difference between its first and last row
    wxString text;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        const int first = *row;
        auto last = row;
        while (std::next(last) != rows.end() && *std::next(last) == *last + 1)
            ++last;
        if (!text.empty())
            text += ", ";
        text += wxString::Format("%d", first);
        if (*last - first >= ShortestRange) {
            text += wxString::Format(" to %d", *last);
            row = last;
        }
    }
    return text;
}

std::set<int> SelectedMemories() {
    std::set<int> rows;
    for (const int row : CurrentGrid()->GetSelectedRows())
        if (row >= 1 && RowHasData(row))
            rows.insert(row);
    return rows;
}

void TellUnsentRows(const std::set<int>& selected, const std::set<int>& sent) {
    std::set<int> unsent;
    std::set_difference(selected.begin(), selected.end(), sent.begin(), sent.end(),
                        std::inserter(unsent, unsent.end()));
    if (unsent.empty())
        return;
    const int all = static_cast<int>(selected.size()), left = static_cast<int>(unsent.size());
    TellOutcome(wxString::Format("%d of %d selected rows sent", all - left, all),
                wxString::Format(left == 1 ? "%d selected row was not sent: %s"
                                           : "%d selected rows were not sent: %s",
                                 left, RowRanges(unsent)));
}
