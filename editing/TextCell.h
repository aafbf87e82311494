// What the typed cells share: which keys and pastes their text control takes, and how an edit ends.
#pragma once

#include <wx/grid.h>
#include <wx/validate.h>

#include <optional>

class wxClipboardTextEvent;
class wxTextCtrl;

/// Refuses keys and pastes of characters that a cell can't hold, while the user types, and takes back what
/// the mouse pastes or drops of them. Refusing is silent but for the bell.
class TextCellValidator : public wxValidator {
public:
    /// value is the text of the edit, which belongs to the editor; it may be null.
    explicit TextCellValidator(wxString* value) : m_value(value) {}
    TextCellValidator(const TextCellValidator& other) : wxValidator(other), m_value(other.m_value) {}

    /// Asks IsValid about the control's text and shows its answer, which is never empty: so the
    /// result is false, unless the control is disabled. The grid doesn't call this.
    bool Validate(wxWindow* parent) override;

    /// A sentence that tells whether all characters of text can stand in the cell.
    virtual wxString IsValid(const wxString& text) const;

    /// Whether a character can stand in the cell.
    virtual bool IsValidChar(wxUniChar character) const = 0;

    /// The editor itself is about to change the control's text, which then stands whatever it is.
    void BeginOwnChange() { m_isOwnChange = true; }
    void EndOwnChange();

protected:
    /// The control, or null when the validator's window isn't a text control.
    wxTextCtrl* Control() const;

    /// Whether the key's character may be typed.
    virtual bool IsGoodKey(wxUniChar character) const { return IsValidChar(character); }

    /// Whether inserted, all of whose characters are valid, may come between the two parts of the text.
    virtual bool IsGoodInsertion(const wxString& left, const wxString& inserted, const wxString& right) const;

    /// Whether a whole text, however it came, could have been typed key by key.
    virtual bool CouldBeTyped(const wxString&) const { return false; }

    /// Whether the control's text is made upper case.
    virtual bool WritesUpperCase() const { return false; }

    void OnChar(wxKeyEvent& event);
    void OnPaste(wxClipboardTextEvent& event);
    void OnText(wxCommandEvent& event);
    void OnTooLong(wxCommandEvent& event);

    wxString* m_value;

private:
    bool MayInsert(const wxString& left, const wxString& inserted, const wxString& right) const;
    /// Whether text can follow m_text: by the user's key or paste, or by an insertion that could have been
    /// either.
    bool MayFollow(const wxString& text) const;
    void MakeUpperCase();

    /// The control's text as it was before the change that comes next.
    wxString m_text;
    /// What a key or a paste, already found good, is about to insert.
    wxString m_expected;
    bool m_isOwnChange = false;
    bool m_isTooLong = false;
};

/// A text cell that is opened only by keys whose character it can hold.
class TextCellEditor : public wxGridCellTextEditor {
public:
    explicit TextCellEditor(size_t width) : wxGridCellTextEditor(width), m_width(width) {}

    /// Answers false for a key that StartingKey would refuse, so that it opens no edit.
    bool IsAcceptedKey(wxKeyEvent& event) override;
    void BeginEdit(int row, int col, wxGrid* grid) override;
    void StartingKey(wxKeyEvent& event) override;
    void Reset() override;

protected:
    size_t Width() const { return m_width; }

    /// Whether an edit can be opened with the character.
    virtual bool CanStartWith(wxUniChar character) const = 0;

private:
    bool Opens(const wxKeyEvent& event) const;

    size_t m_width;
};

/// A text cell whose text is finished when its edit ends, and the finished text is what reaches
/// the table.
class FinishedTextEditor : public TextCellEditor {
public:
    using TextCellEditor::TextCellEditor;

    void BeginEdit(int row, int col, wxGrid* grid) override;
    bool EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) override;

protected:
    /// The finished form of what was typed; nothing when the cell has to stay as it was.
    virtual std::optional<wxString> Finish(const wxString& typed) const = 0;

    /// The text kept between the phases of an edit.
    wxString m_held;
};
