#include "editing/TypeAhead.h"

#include "catalogue/TextNumbers.h"

#include <algorithm>
#include <optional>

int ChoiceBeginningWith(const wxArrayString& choices, const wxString& text) {
    const auto position = [&choices](auto begins) {
        const auto found = std::find_if(choices.begin(), choices.end(), begins);
        return found == choices.end() ? wxNOT_FOUND : static_cast<int>(found - choices.begin());
    };
    const int exact = position([&text](const wxString& choice) { return choice.StartsWith(text); });
    if (exact != wxNOT_FOUND)
        return exact;
    const wxString lower = text.Lower();
    return position([&lower](const wxString& choice) { return choice.Lower().StartsWith(lower); });
}

int ChoiceMeantBy(const wxArrayString& choices, const wxString& text) {
    if (const int same = choices.Index(text); same != wxNOT_FOUND)
        return same;
    if (const int inAnyCase = choices.Index(text, false); inAnyCase != wxNOT_FOUND)
        return inAnyCase;
    const std::optional<wxString> number = PlainDecimal(text);
    for (size_t position = 0; number && position < choices.size(); ++position)
        if (PlainDecimal(choices[position]) == number)
            return static_cast<int>(position);
    return wxNOT_FOUND;
}

wxString TypeAhead::With(wxUniChar character, const wxArrayString& choices) const {
    const bool single = std::all_of(choices.begin(), choices.end(),
                                    [](const wxString& choice) { return choice.length() < 2; });
    return single ? wxString(character) : m_typed + character;
}

int TypeAhead::Type(wxUniChar character, const wxArrayString& choices) {
    m_typed = With(character, choices);
    return ChoiceBeginningWith(choices, m_typed);
}

int TypeAhead::TakeBack(const wxArrayString& choices) {
    if (!m_typed.empty())
        m_typed.RemoveLast();
    return m_typed.empty() ? wxNOT_FOUND : ChoiceBeginningWith(choices, m_typed);
}

bool TypeAhead::Fits(wxUniChar character, const wxArrayString& choices) const {
    return ChoiceBeginningWith(choices, With(character, choices)) != wxNOT_FOUND;
}
