// Finding a text or a frequency among cells.
#pragma once

#include <wx/string.h>

#include <functional>
#include <optional>

/// True if a cell that shows the text is found by wanted: it contains wanted in any case, or both are the
/// same number, so that 154.4525 is found by 154.45250. An empty or blank wanted finds nothing.
bool IsFoundBy(const wxString& shown, const wxString& wanted);

struct FoundCell {
    int position;
    bool wrapped; ///< the search went on at the other end
};

/// Returns the next position (0 to count - 1) that matches, going from the position behind `from` forward or
/// from the one before it backward, and round the end. `from` itself comes last; -1 and count are the places
/// before and behind all positions. Nothing if none matches.
std::optional<FoundCell> NextMatch(int count, int from, bool forward,
                                   const std::function<bool(int)>& matches);
