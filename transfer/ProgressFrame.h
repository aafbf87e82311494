// Window that shows the progress of a transfer and has its Cancel button.
#pragma once

#include "transfer/FrameRate.h"
#include "transfer/TransferProgress.h"

#include <wx/frame.h>
#include <wx/utils.h>
#include <wx/weakref.h>

#include <memory>
#include <optional>

class wxButton;
class wxGauge;
class wxStaticLine;
class wxStaticText;

/// Shows the progress of a transfer. While it exists, all other windows are disabled, so that a transfer that
/// pumps events can't be started a second time. It stays above the window of its parent. Its size and
/// position are kept between runs of the program.
///
/// The transfer creates it on the heap and destroys it. The user can't destroy it: closing the window counts
/// as Cancel, and so does Escape. At first no control has the keyboard, so that a key meant for the window
/// below cancels nothing.
class ProgressFrame : public wxFrame, public TransferProgress {
public:
    /// @param parent window to centre on, or null for the middle of the screen
    explicit ProgressFrame(wxWindow* parent, wxWindowID id = -1, const wxString& title = wxString(),
                           const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxSize(200, 150),
                           long style = wxCAPTION | wxRESIZE_BORDER);
    ~ProgressFrame() override;

    /// Waits until the shown window is drawn, for a second at most.
    void AwaitDrawing();

    /// Shows a text above the gauges. It is drawn with the next events, or by DrawStatus.
    void SetStatus(const wxString& text) override;

    /// Appends to the text shown.
    void AppendStatus(const wxString& text) override;

    /// Gauge of the rows done, range 100 and value 10 until the transfer sets them. The frame owns it.
    wxGauge* MainGauge() const { return m_mainGauge; }

    /// Gauge that moves while a transfer waits. The frame owns it.
    wxGauge* PulseGauge() const { return m_pulseGauge; }

    void SetRange(int rows) override;
    int Range() const override;
    /// The gauge moves with Pulse, before a box, or in a pause.
    void SetValue(int rows) override;
    void Pulse() override;
    void DrawStatus(TransferClock::Moment end) override;
    wxWindow* Window() override;

private:
    void CreateControls();
    void FollowParent();
    void OnCancel(wxCommandEvent& event);
    void OnKey(wxKeyEvent& event);
    void MoveMainGauge();
    void OnMainActivated(wxActivateEvent& event);
    void OnCloseRequest(wxCloseEvent& event);

    wxStaticLine* m_line = nullptr;
    wxStaticText* m_label = nullptr;
    wxString m_status;
    wxButton* m_cancelButton = nullptr;
    /// Has the keyboard until the user moves it to a control. No one sees it.
    wxWindow* m_keyHolder = nullptr;
    bool m_isDrawn = false;
    /// When DrawStatus gives up.
    TransferClock::Moment m_statusLimit{};
    std::unique_ptr<FrameRate> m_frameRate;
    /// The window of the parent.
    wxWeakRef<wxTopLevelWindow> m_main;
    std::unique_ptr<wxWindowDisabler> m_disabler;
    wxGauge* m_pulseGauge = nullptr;
    wxGauge* m_mainGauge = nullptr;
    std::optional<int> m_rows; // that the gauge doesn't show yet
    TransferClock::Moment m_nextMove{};
};
