// What differs by operating system in the list of a read-only combo box.
#pragma once

#include <wx/string.h>

class wxComboBox;

/// Hears what is done in a list while it stands open, and what the toolkit doesn't tell of the closed
/// control.
class ChoiceListListener {
public:
    virtual ~ChoiceListListener() = default;

    /// A character is typed while the list is closed, and the toolkit will send no event for it.
    virtual void TypeInControl(wxUniChar character) = 0;

    /// A character is typed in the list. The position to highlight, or wxNOT_FOUND for none.
    virtual int TypeInList(wxUniChar character) = 0;

    /// Backspace. The position to highlight, or wxNOT_FOUND for none.
    virtual int TakeBackInList() = 0;

    /// Whether a blank belongs to what is typed; else it is a key like others.
    virtual bool TakesBlank() const = 0;

    /// A key moves the highlight.
    virtual void MoveInList() = 0;

    /// Whether the keys told above led to the highlighted entry.
    virtual bool KeysChose() const = 0;

    /// The entry at this position (from 0) is taken: by a click, by Enter, or by Tab where keys led to it.
    virtual void TakeFromList(int position) = 0;

    /// Escape.
    virtual void GiveUpList() = 0;
};

/// Tells the listener of the control from now on, and keeps the mouse wheel from choosing. The listener has
/// to outlive the control.
void WatchChoiceList(wxComboBox& control, ChoiceListListener& listener);

/// Shows none of the choices.
void ShowNoChoice(wxComboBox& control);
