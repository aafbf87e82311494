// Cells of the receive and transmit frequencies.
#pragma once

#include "editing/TextCell.h"

#include <cstdint>

/// Returns the band id (0 to 8) of the text in a row's BAND cell, 0 if the text names no band.
int GetRowBand(const wxGrid* grid, int row);

/// True for a memory row that an edit first fills from the default row: its TFLG is empty.
bool IsFilledByEdit(const wxGrid* grid, int row);

/// Returns GetRowBand as it applies to an edit of the row: the default row's if the edit fills the row from
/// it, otherwise the row's own.
int GetBandOfEdit(const wxGrid* grid, int row);

/// Accepts only keys and pastes after which the text can still become a frequency of the band.
class FrequencyValidator : public TextCellValidator {
public:
    FrequencyValidator() : FrequencyValidator(nullptr, 1, 0, 25000) {}
    /// band is a band id (0 to 8), step the channel step in Hz. On an MDLX page the band of that row of the
    /// current page is used instead.
    FrequencyValidator(wxString* value, int row, int band, int step);
    FrequencyValidator(const FrequencyValidator& other) = default;

    wxObject* Clone() const override { return new FrequencyValidator(*this); }
    bool Validate(wxWindow* parent) override { return TextCellValidator::Validate(parent); }
    wxString IsValid(const wxString& text) const override { return TextCellValidator::IsValid(text); }
    virtual void SetFreqParams(int band, int step);

    /// True for digits and the point.
    bool IsValidChar(wxUniChar character) const override;

    int32_t GetBand() const { return m_band; }
    int32_t GetStep() const { return m_step; }
    const wxString* GetValuePointer() const { return m_value; }

    bool CouldBeTyped(const wxString& text) const override;

protected:
    bool IsGoodKey(wxUniChar character) const override;
    bool IsGoodInsertion(const wxString& left, const wxString& inserted,
                         const wxString& right) const override;

private:
    int32_t m_band, m_step;

    wxDECLARE_DYNAMIC_CLASS(FrequencyValidator);
    wxDECLARE_EVENT_TABLE();
};

/// Completes the typed text to a frequency on the channel step.
class FrequencyEditor : public FinishedTextEditor {
public:
    /// Edits a cell of grid row row; band id and channel step in Hz as for FrequencyValidator. On an MDLX
    /// page each edit takes the band and step of its row when it begins.
    FrequencyEditor(int row, int band, int step);

    void BeginEdit(int row, int col, wxGrid* grid) override;

    /// Writes the frequency and clears the cell's paint. A receive frequency is copied to the transmit cell
    /// unless it is receive-only; a receive-only transmit frequency becomes "n/a".
    void ApplyEdit(int row, int col, wxGrid* grid) override;

    virtual void SetEditorFreqParams(int band, int step);

    /// Also accepts a decimal comma, and zeros at the end that the cell has no room for. "n/a" can stand as
    /// the transmit frequency of a band with receive-only frequencies.
    std::optional<wxString> HoldText(int row, int col, wxGrid* grid, const wxString& text) override;

protected:
    bool CanStartWith(wxUniChar character) const override;
    std::optional<wxString> Finish(const wxString& typed) const override;
    bool CanHold(const wxString& text) const override { return m_rules.CouldBeTyped(text); }

private:
    void TakeBandOfRow(int row, const wxGrid* grid);

    FrequencyValidator m_rules;
    size_t m_width; ///< characters of a complete frequency
};
