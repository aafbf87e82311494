// Parts of a read-only combo box's list that differ by operating system.
#pragma once

#include <wx/string.h>

class wxComboBox;

/// Receives user actions in an open list, and those on the closed control that the toolkit doesn't report.
class ChoiceListListener {
public:
    virtual ~ChoiceListListener() = default;

    /// Called for a character typed while the list is closed, if the toolkit sends no event for it.
    virtual void TypeInControl(wxUniChar character) = 0;

    /// Called for a character typed in the list. Returns the position to highlight, or wxNOT_FOUND for none.
    virtual int TypeInList(wxUniChar character) = 0;

    /// Called for Backspace. Returns the position to highlight, or wxNOT_FOUND for none.
    virtual int TakeBackInList() = 0;

    /// True if a blank continues the typed text; otherwise it is a key like any other.
    virtual bool TakesBlank() const = 0;

    /// Called when a key moves the highlight.
    virtual void MoveInList() = 0;

    /// True if the keys reported above led to the highlighted entry.
    virtual bool KeysChose() const = 0;

    /// Called when the entry at this position (0-based) is taken: by a click, Enter, or Tab if keys led to
    /// it.
    virtual void TakeFromList(int position) = 0;

    /// Called for Escape.
    virtual void GiveUpList() = 0;
};

/// Reports the control's actions to the listener from now on, and stops the mouse wheel from choosing. The
/// listener must outlive the control.
void WatchChoiceList(wxComboBox& control, ChoiceListListener& listener);

/// Shows the control with no choice selected.
void ShowNoChoice(wxComboBox& control);
