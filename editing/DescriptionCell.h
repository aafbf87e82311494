// The cell of a memory's description.
#pragma once

#include "editing/TextCell.h"

#include <cstdint>

/// Takes only characters that a description can have, and writes them upper case where the
/// radio knows no others.
class ZelkDescriptionValidator : public TextCellValidator {
public:
    ZelkDescriptionValidator() : ZelkDescriptionValidator(nullptr, 0) {}
    /// Modes: 5 takes codes 32 to 126; 1 and 2 take codes 32 to 122; every other takes letters,
    /// digits, blanks and -./:+?_ alone, and 0, 6 and 7 of these write upper case.
    ZelkDescriptionValidator(wxString* value, int mode) : TextCellValidator(value), m_mode(mode) {}
    ZelkDescriptionValidator(const ZelkDescriptionValidator& other) = default;

    wxObject* Clone() const override { return new ZelkDescriptionValidator(*this); }
    bool Validate(wxWindow* parent) override { return TextCellValidator::Validate(parent); }
    wxString IsValid(const wxString& text) const override { return TextCellValidator::IsValid(text); }

    /// Wider than what a check of the row leaves in the cell on some pages, and that is meant.
    bool IsValidChar(wxUniChar character) const override;

    int32_t GetMode() const { return m_mode; }
    const wxString* GetValuePointer() const { return m_value; }

protected:
    bool WritesUpperCase() const override;

private:
    int32_t m_mode;

    wxDECLARE_DYNAMIC_CLASS(ZelkDescriptionValidator);
    wxDECLARE_EVENT_TABLE();
};

/// Takes descriptions of at most maxChars characters; mode as for ZelkDescriptionValidator.
class ZelkDescriptionEditor : public TextCellEditor {
public:
    ZelkDescriptionEditor(int maxChars, int mode);

protected:
    bool CanStartWith(wxUniChar character) const override { return m_rules.IsValidChar(character); }

private:
    ZelkDescriptionValidator m_rules;
};
