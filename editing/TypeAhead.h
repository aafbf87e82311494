// Choosing from a list by typing.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

/// Position (from 0) of the first choice that begins with the text: in the same case if there is one, else in
/// any case. wxNOT_FOUND when none does.
int ChoiceBeginningWith(const wxArrayString& choices, const wxString& text);

/// The characters typed in one edit. They add up, without regard to pauses: what is chosen depends on the
/// keys alone. Where no choice has more than one character, each character begins anew.
class TypeAhead {
public:
    /// Adds a character. The position of the choice that all characters together begin; wxNOT_FOUND when they
    /// begin none, in which case they stay until they are taken back.
    int Type(wxUniChar character, const wxArrayString& choices);

    /// Takes the last character back and answers as Type; wxNOT_FOUND when none is left.
    int TakeBack(const wxArrayString& choices);

    /// Whether Type would find a choice.
    bool Fits(wxUniChar character, const wxArrayString& choices) const;

    bool IsEmpty() const { return m_typed.empty(); }
    void Forget() { m_typed.clear(); }

private:
    wxString With(wxUniChar character, const wxArrayString& choices) const;

    wxString m_typed;
};
