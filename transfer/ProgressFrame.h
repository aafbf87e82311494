// The window that shows a transfer and carries its Cancel.
#pragma once

#include <memory>
#include <wx/frame.h>
#include <wx/utils.h>

class wxButton;
class wxGauge;
class wxStaticLine;
class wxStaticText;

/// Shows how far a transfer is. While it lives, all other windows are disabled, so that a transfer which
/// pumps events can't be entered a second time. Its size and place are kept between runs of the program.
///
/// The transfer makes it on the heap and destroys it; the user can't: the window manager's close counts as
/// Cancel.
class ProgressFrame : public wxFrame {
public:
    /// @param parent window to centre on, or null for the middle of the screen
    explicit ProgressFrame(wxWindow* parent, wxWindowID id = -1, const wxString& title = wxString(),
                           const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxSize(200, 150),
                           long style = wxCAPTION | wxRESIZE_BORDER);
    ~ProgressFrame() override;

    /// Shows a text above the gauges.
    void SetStatus(const wxString& text);

    /// Adds to the text that is shown.
    void AppendStatus(const wxString& text);

    /// Gauge of the rows done, range 100 and value 10 until the transfer sets them. The frame owns it.
    wxGauge* MainGauge() const { return m_mainGauge; }

    /// Gauge that moves while a transfer waits. The frame owns it.
    wxGauge* PulseGauge() const { return m_pulseGauge; }

    /// True once the user has asked for an end; the waits of a transfer look at it.
    bool Cancelled = false;

private:
    void CreateControls();
    void OnCancel(wxCommandEvent& event);
    void OnCloseRequest(wxCloseEvent& event);

    wxStaticLine* m_line = nullptr;
    wxStaticText* m_label = nullptr;
    wxString m_status;
    wxButton* m_cancelButton = nullptr;
    std::unique_ptr<wxWindowDisabler> m_disabler;
    wxGauge* m_pulseGauge = nullptr;
    wxGauge* m_mainGauge = nullptr;
};
