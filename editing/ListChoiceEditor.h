// A choice from a list that changes nothing until it is made.
#pragma once

#include "editing/ChoiceList.h"
#include "editing/TypeAhead.h"

#include <wx/grid.h>

/// The toolkit's choice editor, but for its answer: an edit that is left without a choice changes nothing. A
/// choice is typed ahead, moved to by keys, or taken from the open list; choosing the cell's own text counts.
class ListChoiceEditor : public wxGridCellChoiceEditor, private ChoiceListListener {
public:
    /// count texts to choose from, which are copied.
    ListChoiceEditor(size_t count, const wxString choices[], bool allowOthers = false)
        : wxGridCellChoiceEditor(count, choices, allowOthers) {}

    void Create(wxWindow* parent, wxWindowID id, wxEvtHandler* handler) override;
    void BeginEdit(int row, int col, wxGrid* grid) override;

    /// The key that opened the edit is the first that is typed.
    void StartingKey(wxKeyEvent& event) override;

    /// Escape comes here before the edit ends.
    void Reset() override;

    /// Answers false, with nothing changed, for an edit that was left without a choice.
    bool EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) override;

    wxGridCellEditor* Clone() const override { return new ListChoiceEditor(*this); }

protected:
    /// Takes the control down first, which may speak to this editor to its end.
    ~ListChoiceEditor() override { Destroy(); }

    /// Whether the edit that ends brought a choice.
    bool IsChosen() const { return m_isChosen && !m_isGivenUp; }

    /// True while a choice is applied that the cell held already: no other cell follows then.
    bool IsOwnText(int row, int col, wxGrid* grid) const {
        return m_value == m_startText && m_value == grid->GetCellValue(row, col);
    }

private:
    void OnChar(wxKeyEvent& event);
    void OnChosen(wxCommandEvent& event);

    /// Takes a key that belongs to typing ahead; answers false for others.
    bool TakeKey(const wxKeyEvent& event);
    /// Chooses the choice at the position; the cell's own text, unchosen, for wxNOT_FOUND.
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
