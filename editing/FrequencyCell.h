// The cells of the receive and transmit frequency.
#pragma once

#include "editing/TextCell.h"

#include <cstdint>

/// Band id (0 to 8) of the text in a row's BAND cell, 0 when the text is in no band.
int GetRowBand(const wxGrid* grid, int row);

/// True for a memory row that an edit first fills from the default row: its TFLG is empty.
bool IsFilledByEdit(const wxGrid* grid, int row);

/// GetRowBand of the row as an edit in it finds it: of the default row where the edit fills it from there.
int GetBandOfEdit(const wxGrid* grid, int row);

/// Takes only keys and pastes with which the text can still become a frequency of the band.
class FrequencyValidator : public TextCellValidator {
public:
    FrequencyValidator() : FrequencyValidator(nullptr, 1, 0, 25000) {}
    /// band is a band id (0 to 8), step the channel step in Hz. On an MDLX page the band is that
    /// of the row of the current page.
    FrequencyValidator(wxString* value, int row, int band, int step);
    FrequencyValidator(const FrequencyValidator& other) = default;

    wxObject* Clone() const override { return new FrequencyValidator(*this); }
    bool Validate(wxWindow* parent) override { return TextCellValidator::Validate(parent); }
    wxString IsValid(const wxString& text) const override { return TextCellValidator::IsValid(text); }
    virtual void SetFreqParams(int band, int step);

    /// Digits and the point.
    bool IsValidChar(wxUniChar character) const override;

    int32_t GetBand() const { return m_band; }
    int32_t GetStep() const { return m_step; }
    const wxString* GetValuePointer() const { return m_value; }

protected:
    bool IsGoodKey(wxUniChar character) const override;
    bool IsGoodInsertion(const wxString& left, const wxString& inserted,
                         const wxString& right) const override;
    bool CouldBeTyped(const wxString& text) const override;

private:
    int32_t m_band, m_step;

    wxDECLARE_DYNAMIC_CLASS(FrequencyValidator);
    wxDECLARE_EVENT_TABLE();
};

/// Completes what is typed to a frequency on the channel step.
class FrequencyEditor : public FinishedTextEditor {
public:
    /// For a cell of grid row row; band id and channel step in Hz as for FrequencyValidator. On an MDLX page
    /// each edit takes band and step of its row when it begins.
    FrequencyEditor(int row, int band, int step);

    void BeginEdit(int row, int col, wxGrid* grid) override;

    /// Writes the frequency and clears the cell's paint. A receive frequency is carried to the
    /// transmit cell unless nobody may transmit on it; such a transmit frequency becomes "n/a".
    void ApplyEdit(int row, int col, wxGrid* grid) override;

    virtual void SetEditorFreqParams(int band, int step);

protected:
    bool CanStartWith(wxUniChar character) const override;
    std::optional<wxString> Finish(const wxString& typed) const override;

private:
    void TakeBandOfRow(int row, const wxGrid* grid);

    FrequencyValidator m_rules;
    int m_width; ///< characters of a complete frequency
};
