#include "editing/PasteOutcome.h"

namespace {

wxString Counted(int count, const char* one, const char* several) {
    return wxString::Format(count == 1 ? one : several, count);
}

} // namespace

wxString PasteOutcome::Text() const {
    const int refusals = static_cast<int>(refused.size());
    if (refusals > 0)
        return wxString::Format("%d of %d cells NOT PASTED from row %d", refusals, refusals + taken,
                                refused.begin()->first);
    if (taken > 0)
        return Counted(taken, "%d cell pasted", "%d cells pasted");
    if (locked > 0)
        return Counted(locked, "NOT PASTED: %d read-only cell", "NOT PASTED: %d read-only cells");
    return withoutRoom > 0 ? "NOT PASTED: no room" : "Nothing to paste";
}

wxString PasteOutcome::Story() const {
    wxString story = Counted(taken, "%d cell pasted", "%d cells pasted");
    if (!refused.empty())
        story += "\nNot pasted, since the text can't stand there: " + CellList(refused);
    if (locked > 0)
        story += "\n" + Counted(locked, "%d cell is read-only and was passed over",
                                "%d cells are read-only and were passed over");
    if (withoutRoom > 0)
        story += "\n" +
                 Counted(withoutRoom, "%d text had no room on the page", "%d texts had no room on the page");
    return story;
}
