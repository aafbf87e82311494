#include "editing/FindText.h"

#include "catalogue/TextNumbers.h"

bool IsFoundBy(const wxString& shown, const wxString& wanted) {
    const wxString text = wxString(wanted).Trim(true).Trim(false);
    if (text.empty())
        return false;
    if (shown.Lower().Contains(text.Lower()))
        return true;
    const std::optional<wxString> number = PlainDecimal(text);
    return number && PlainDecimal(shown) == number;
}

std::optional<FoundCell> NextMatch(int count, int from, bool forward,
                                   const std::function<bool(int)>& matches) {
    for (int step = 1; step <= count; ++step) {
        const int position = (from + (forward ? step : -step) + 2 * count) % count;
        if (matches(position))
            return FoundCell{position, forward ? position <= from : position >= from};
    }
    return std::nullopt;
}
