// Editor for a choice from a list; changes nothing until a choice is made.
#pragma once

#include "catalogue/RadioCatalogue.h"
#include "editing/ChoiceList.h"
#include "editing/TypeAhead.h"
#include "editing/WholeTextEditor.h"

#include <wx/grid.h>

/// Returns the entries of a constant list. The lists of RadioCatalogue can't be used: the first page is
/// created before they are filled.
template <const auto& texts>
const wxString* Choices() {
    static const wxArrayString list = RadioCatalogue::ListOf(texts);
    return &list[0];
}

/// The toolkit's choice editor, except that an edit left without a choice changes nothing. A choice is typed
/// ahead, reached by keys, or taken from the open list; choosing the cell's own text counts as one.
class ListChoiceEditor : public wxGridCellChoiceEditor, public WholeTextEditor, private ChoiceListListener {
public:
    /// count texts to choose from, which are copied.
    ListChoiceEditor(size_t count, const wxString choices[], bool allowOthers = false)
        : wxGridCellChoiceEditor(count, choices, allowOthers) {}

    void Create(wxWindow* parent, wxWindowID id, wxEvtHandler* handler) override;
    void BeginEdit(int row, int col, wxGrid* grid) override;

    /// Treats the key that opened the edit as the first typed key.
    void StartingKey(wxKeyEvent& event) override;

    /// Called for Escape before the edit ends.
    void Reset() override;

    /// Returns false and changes nothing if the edit was left without a choice.
    bool EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) override;

    /// Accepts a text that ChoiceMeantBy finds.
    std::optional<wxString> HoldText(int row, int col, wxGrid* grid, const wxString& text) override;
    void ApplyHeldText(int row, int col, wxGrid* grid) override { ApplyEdit(row, col, grid); }

    wxGridCellEditor* Clone() const override { return new ListChoiceEditor(*this); }

protected:
    /// Destroys the control first: it may call this editor until it is gone.
    ~ListChoiceEditor() override { Destroy(); }

    /// True if the ending edit made a choice.
    bool IsChosen() const { return m_isChosen && !m_isGivenUp; }

    /// True if the choice being applied is the text that the cell already held; no other cell changes then.
    bool IsOwnText(int row, int col, wxGrid* grid) const {
        return m_value == m_startText && m_value == grid->GetCellValue(row, col);
    }

private:
    void OnChar(wxKeyEvent& event);
    void OnChosen(wxCommandEvent& event);

    /// Handles a type-ahead key; returns false for other keys.
    bool TakeKey(const wxKeyEvent& event);
    /// Selects the choice at the position. For wxNOT_FOUND shows the cell's own text, and no choice is made.
    void Choose(int position);
    void ShowStart();
    int Found(int position);

    void TypeInControl(wxUniChar character) override;
    int TypeInList(wxUniChar character) override;
    int TakeBackInList() override;
    bool TakesBlank() const override;
    void MoveInList() override;
    bool KeysChose() const override { return m_keysChose; }
    void TakeFromList(int position) override;
    void GiveUpList() override { m_isGivenUp = true; }

    TypeAhead m_typed;
    wxString m_startText;
    bool m_isChosen = false;
    bool m_isGivenUp = false;
    bool m_listIsOpen = false;
    bool m_keysChose = false;
};
