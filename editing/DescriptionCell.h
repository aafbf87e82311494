// Description cell of a memory.
#pragma once

#include "editing/TextCell.h"

#include <cstdint>

/// Accepts only characters allowed in a description, and converts them to upper case if the radio has no
/// lower case.
class ZelkDescriptionValidator : public TextCellValidator {
public:
    ZelkDescriptionValidator() : ZelkDescriptionValidator(nullptr, 0) {}
    /// Modes: 5 accepts codes 32 to 126; 1 and 2 accept codes 32 to 122; all others accept only letters,
    /// digits, blanks and -./:+?_, and of these 0, 6 and 7 write upper case.
    ZelkDescriptionValidator(wxString* value, int mode) : TextCellValidator(value), m_mode(mode) {}
    ZelkDescriptionValidator(const ZelkDescriptionValidator& other) = default;

    wxObject* Clone() const override { return new ZelkDescriptionValidator(*this); }
    bool Validate(wxWindow* parent) override { return TextCellValidator::Validate(parent); }
    wxString IsValid(const wxString& text) const override { return TextCellValidator::IsValid(text); }

    /// Intentional: on some pages accepts more characters than a check of the row keeps.
    bool IsValidChar(wxUniChar character) const override;

    int32_t GetMode() const { return m_mode; }
    const wxString* GetValuePointer() const { return m_value; }

    bool WritesUpperCase() const override;

private:
    int32_t m_mode;

    wxDECLARE_DYNAMIC_CLASS(ZelkDescriptionValidator);
    wxDECLARE_EVENT_TABLE();
};

/// Accepts descriptions of at most maxChars characters; mode as for ZelkDescriptionValidator.
class ZelkDescriptionEditor : public TextCellEditor {
public:
    ZelkDescriptionEditor(size_t maxChars, int mode);

    std::optional<wxString> HoldText(int row, int col, wxGrid* grid, const wxString& text) override;
    void ApplyHeldText(int row, int col, wxGrid* grid) override;

protected:
    bool CanStartWith(wxUniChar character) const override { return m_rules.IsValidChar(character); }

private:
    ZelkDescriptionValidator m_rules;
    wxString m_held;
};
