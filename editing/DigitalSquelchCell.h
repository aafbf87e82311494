// Cells of the P25 squelch values: talk groups and NACs, in hexadecimal digits.
#pragma once

#include "editing/TextCell.h"

#include <cstdint>

/// Accepts only hexadecimal digits, and converts them to upper case.
class DigitalSquelchValidator : public TextCellValidator {
public:
    DigitalSquelchValidator() : DigitalSquelchValidator(nullptr, 0, 0) {}
    /// The range is stored but not checked: the width of the cell limits the value.
    DigitalSquelchValidator(wxString* value, int min, int max)
        : TextCellValidator(value), m_min(min), m_max(max) {}
    DigitalSquelchValidator(const DigitalSquelchValidator& other) = default;

    wxObject* Clone() const override { return new DigitalSquelchValidator(*this); }
    bool Validate(wxWindow* parent) override { return TextCellValidator::Validate(parent); }
    /// Both return true without a value, otherwise false without a text control.
    bool TransferToWindow() override;
    bool TransferFromWindow() override;
    wxString IsValid(const wxString& text) const override { return TextCellValidator::IsValid(text); }
    virtual void SetRange(int min, int max);

    /// True for hexadecimal digits of either case.
    bool IsValidChar(wxUniChar character) const override;

    int32_t GetMin() const { return m_min; }
    int32_t GetMax() const { return m_max; }
    const wxString* GetValuePointer() const { return m_value; }

protected:
    bool WritesUpperCase() const override { return true; }

private:
    int32_t m_min, m_max;

    wxDECLARE_DYNAMIC_CLASS(DigitalSquelchValidator);
    wxDECLARE_EVENT_TABLE();
};

/// Pads the typed text with leading zeros to maxChars hexadecimal digits.
class DigitalSquelchEditor : public FinishedTextEditor {
public:
    /// maxChars: 4 for a talk group, 3 for a NAC. The range isn't checked.
    DigitalSquelchEditor(size_t maxChars, int min, int max);

    /// Writes the value; a receive value is copied to its transmit twin.
    void ApplyEdit(int row, int col, wxGrid* grid) override;

protected:
    bool CanStartWith(wxUniChar character) const override { return m_rules.IsValidChar(character); }
    std::optional<wxString> Finish(const wxString& typed) const override;
    bool CanHold(const wxString& text) const override;

private:
    DigitalSquelchValidator m_rules;
};
