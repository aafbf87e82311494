// Choosing from a list by typing.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

/// Returns the position (0-based) of the first choice that begins with the text: in the same case if there is
/// one, otherwise in any case. wxNOT_FOUND if there is none.
int ChoiceBeginningWith(const wxArrayString& choices, const wxString& text);

/// Returns the position (0-based) of the choice that a whole text means: the same text, else the same in any
/// case, else the same number ("67" for "67.0", "23" for "023"). wxNOT_FOUND if there is none.
int ChoiceMeantBy(const wxArrayString& choices, const wxString& text);

/// The characters typed in one edit. They accumulate regardless of pauses, so that the choice depends on the
/// keys alone. If no choice has more than one character, each character starts over.
class TypeAhead {
public:
    /// Adds a character. Returns the position of the choice that begins with all characters typed;
    /// wxNOT_FOUND if none does, in which case the characters stay until they are taken back.
    int Type(wxUniChar character, const wxArrayString& choices);

    /// Removes the last character and returns as Type does; wxNOT_FOUND if no character is left.
    int TakeBack(const wxArrayString& choices);

    /// True if Type would find a choice.
    bool Fits(wxUniChar character, const wxArrayString& choices) const;

    bool IsEmpty() const { return m_typed.empty(); }
    void Forget() { m_typed.clear(); }

private:
    wxString With(wxUniChar character, const wxArrayString& choices) const;

    wxString m_typed;
};
