// Base of the typed cells: which keys and pastes their text control accepts, and how an edit ends.
#pragma once

#include "editing/WholeTextEditor.h"

#include <wx/grid.h>
#include <wx/validate.h>

#include <optional>

class wxClipboardTextEvent;
class wxTextCtrl;

/// Refuses typed and pasted characters that a cell can't hold, and reverts insertions of such characters by
/// mouse paste or drop. Refusing is silent except for the bell.
class TextCellValidator : public wxValidator {
public:
    /// value is the text of the edit, owned by the editor; it may be null.
    explicit TextCellValidator(wxString* value) : m_value(value) {}
    TextCellValidator(const TextCellValidator& other) : wxValidator(other), m_value(other.m_value) {}

    /// Passes the control's text to IsValid and shows the result, which is never empty. So this returns false
    /// unless the control is disabled. The grid doesn't call this.
    bool Validate(wxWindow* parent) override;

    /// Returns a sentence that says whether the cell can hold all characters of text.
    virtual wxString IsValid(const wxString& text) const;

    /// True if the cell can hold the character.
    virtual bool IsValidChar(wxUniChar character) const = 0;

    /// Announces a change of the control's text by the editor itself, which is accepted whatever the text.
    void BeginOwnChange() { m_isOwnChange = true; }
    void EndOwnChange();

protected:
    /// Returns the control, or null if the validator's window isn't a text control.
    wxTextCtrl* Control() const;

    /// True if the key's character may be typed.
    virtual bool IsGoodKey(wxUniChar character) const { return IsValidChar(character); }

    /// True if inserted, whose characters are all valid, may go between the two parts of the text.
    virtual bool IsGoodInsertion(const wxString& left, const wxString& inserted, const wxString& right) const;

    /// True if the complete text could have been typed key by key, however it was entered.
    virtual bool CouldBeTyped(const wxString&) const { return false; }

    /// True if the control's text is converted to upper case.
    virtual bool WritesUpperCase() const { return false; }

    void OnChar(wxKeyEvent& event);
    void OnPaste(wxClipboardTextEvent& event);
    void OnText(wxCommandEvent& event);
    void OnTooLong(wxCommandEvent& event);

    wxString* m_value;

private:
    bool MayInsert(const wxString& left, const wxString& inserted, const wxString& right) const;
    /// True if text can follow m_text: by the user's key or paste, or by an insertion that could have been
    /// either.
    bool MayFollow(const wxString& text) const;
    void MakeUpperCase();

    /// The control's text before the next change.
    wxString m_text;
    /// Text that an accepted key or paste is about to insert.
    wxString m_expected;
    bool m_isOwnChange = false;
    bool m_isTooLong = false;
};

/// Text cell that opens only on keys whose character it can hold. Delete opens it with the whole text.
class TextCellEditor : public wxGridCellTextEditor, public WholeTextEditor {
public:
    explicit TextCellEditor(size_t width) : wxGridCellTextEditor(width), m_width(width) {}

    /// Returns false for a key that StartingKey would refuse, so that the key opens no edit.
    bool IsAcceptedKey(wxKeyEvent& event) override;
    void BeginEdit(int row, int col, wxGrid* grid) override;
    void StartingKey(wxKeyEvent& event) override;
    void Reset() override;

protected:
    size_t Width() const { return m_width; }

    /// True if the character can open an edit.
    virtual bool CanStartWith(wxUniChar character) const = 0;

private:
    bool Opens(const wxKeyEvent& event) const;

    size_t m_width;
};

/// Text cell that completes its text when its edit ends; the completed text is what reaches the table.
class FinishedTextEditor : public TextCellEditor {
public:
    using TextCellEditor::TextCellEditor;

    void BeginEdit(int row, int col, wxGrid* grid) override;
    bool EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) override;
    std::optional<wxString> HoldText(int row, int col, wxGrid* grid, const wxString& text) override;
    void ApplyHeldText(int row, int col, wxGrid* grid) override { ApplyEdit(row, col, grid); }

protected:
    /// Returns the completed form of the typed text; nothing if the cell must stay unchanged.
    virtual std::optional<wxString> Finish(const wxString& typed) const = 0;

    /// True if the text, which is not too long, could be typed.
    virtual bool CanHold(const wxString& text) const = 0;

    /// The text kept between the phases of an edit.
    wxString m_held;
};
