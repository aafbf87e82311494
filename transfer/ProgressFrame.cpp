// Window that shows the progress of a transfer and has its Cancel button.
#include "transfer/ProgressFrame.h"

#include "commands/FrameLook.h"
#include "commands/SpokenNames.h"
#include "transfer/TransferSystem.h"

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/gauge.h>
#include <wx/persist/toplevel.h>
#include <wx/sizer.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include <algorithm>

namespace {

constexpr int Border = 5;
constexpr int GaugeRange = 100;
constexpr int GaugeStart = 10;
/// Time between two drawings, as between two pulses. Left alone, the toolkit would move the pulsing gauge
/// 60 times a second, which takes as much processor time as the rest of a transfer.
constexpr std::chrono::milliseconds FrameInterval{50};

constexpr const char* WidestStatus = "Sending Shadow Memory Data....";

/// Limits for the drawing of a new window, which the window manager has to place, and of a text. A window
/// that nobody can see may never be drawn.
constexpr std::chrono::milliseconds WindowLimit{1000};
constexpr std::chrono::milliseconds StatusLimit{100};

wxGauge* MakeGauge(wxWindow* parent, const wxString& name) {
    auto* gauge =
        new wxGauge(parent, wxID_ANY, GaugeRange, wxDefaultPosition, wxDefaultSize, wxGA_HORIZONTAL);
    gauge->SetValue(GaugeStart);
    NameForReader(*gauge, name);
    return gauge;
}

} // namespace

ProgressFrame::ProgressFrame(wxWindow* parent, wxWindowID id, const wxString& title, const wxPoint& pos,
                             const wxSize& size, long style)
    : wxFrame(parent, id, title, pos, size, parent ? style | wxFRAME_FLOAT_ON_PARENT : style) {
    SetFrameLook(*this);
    FollowParent();
    CreateControls();

    SetName("ProgressFrame");
    // The gauges move all the time, and each move paints the frame under them. With its own style for that
    // the toolkit makes a drawing context for each, although nobody draws there.
    SetBackgroundStyle(wxBG_STYLE_SYSTEM);
    SetSize(ConvertDialogToPixels(wxSize(200, 150)));
    // A smaller size may have been kept from a run with smaller texts.
    GetSizer()->SetSizeHints(this);
    if (GetParent())
        CentreOnParent();
    else
        CentreOnScreen();

    auto& persistence = wxPersistenceManager::Get();
    if (persistence.Find(this))
        persistence.Restore(this);
    else
        persistence.RegisterAndRestore(this);

    m_frameRate = std::make_unique<FrameRate>(*this, FrameInterval);
    m_cancelButton->Bind(wxEVT_BUTTON, &ProgressFrame::OnCancel, this);
    // On Windows only a dialog has its button pressed by Return.
    m_cancelButton->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER)
            Cancelled = true;
        else
            event.Skip();
    });
    Bind(wxEVT_CHAR_HOOK, &ProgressFrame::OnKey, this);
    Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
        m_isDrawn = true;
        event.Skip();
    });
    Bind(wxEVT_CLOSE_WINDOW, &ProgressFrame::OnCloseRequest, this);
    m_disabler = std::make_unique<wxWindowDisabler>(this);
    m_keyHolder->SetFocus();
}

ProgressFrame::~ProgressFrame() {
    Hide();
    if (m_main)
        m_main->Unbind(wxEVT_ACTIVATE, &ProgressFrame::OnMainActivated, this);
    Unbind(wxEVT_CLOSE_WINDOW, &ProgressFrame::OnCloseRequest, this);
    m_cancelButton->Unbind(wxEVT_BUTTON, &ProgressFrame::OnCancel, this);
    m_disabler.reset();
    m_frameRate.reset();
}

void ProgressFrame::FollowParent() {
    m_main = dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(GetParent()));
    if (!m_main)
        return;
    SetIcons(m_main->GetIcons());
    m_main->Bind(wxEVT_ACTIVATE, &ProgressFrame::OnMainActivated, this);
}

void ProgressFrame::CreateControls() {
    m_keyHolder = new wxWindow(this, wxID_ANY, wxPoint(0, 0), wxSize(1, 1));
    auto* column = new wxBoxSizer(wxVERTICAL);
    m_label = new wxStaticText(this, wxID_ANY, WidestStatus);
    m_label->SetMinSize(wxSize(m_label->GetBestSize().x, wxDefaultCoord));
    m_label->SetLabel(wxString());
    column->Add(m_label, 0, wxEXPAND | wxALL, Border);
    m_mainGauge = MakeGauge(this, "Rows done");
    column->Add(m_mainGauge, 0, wxEXPAND | wxALL, Border);
    m_line = new wxStaticLine(this);
    column->Add(m_line, 0, wxEXPAND | wxALL, Border);

    auto* row = new wxBoxSizer(wxHORIZONTAL);
    column->Add(row, 1, wxEXPAND | wxALL, Border);
    m_pulseGauge = MakeGauge(this, "Waiting for the radio");
    row->Add(m_pulseGauge, 1, wxEXPAND | wxALL, Border);
    m_cancelButton = new wxButton(this, wxID_ANY, "Cancel");
    row->Add(m_cancelButton, 0, wxALL, Border);
    SetSizer(column);
}

void ProgressFrame::AwaitDrawing() {
    m_isDrawn = false;
    Refresh();
    TransferClock& clock = CurrentTransferSystem().Clock();
    clock.AwaitDrawing([this] { return m_isDrawn; }, clock.Now() + WindowLimit);
}

void ProgressFrame::SetStatus(const wxString& text) {
    // Drivers set it for every row. Setting a label makes the window lay out and paint itself.
    if (text == m_status)
        return;
    m_status = text;
    m_isDrawn = false;
    m_statusLimit = CurrentTransferSystem().Clock().Now() + StatusLimit;
    m_label->SetLabelText(m_status);
}

void ProgressFrame::DrawStatus(TransferClock::Moment end) {
    MoveMainGauge();
    if (!m_isDrawn && IsShown())
        CurrentTransferSystem().Clock().AwaitDrawing([this] { return m_isDrawn; },
                                                     std::min(end, m_statusLimit));
}

void ProgressFrame::AppendStatus(const wxString& text) {
    m_status += text;
    m_label->SetLabelText(m_status);
}

void ProgressFrame::SetRange(int rows) {
    MoveMainGauge();
    m_mainGauge->SetRange(rows);
    // Not every edition of the toolkit does so.
    if (m_mainGauge->GetValue() > rows)
        m_mainGauge->SetValue(rows);
}

int ProgressFrame::Range() const {
    return m_mainGauge->GetRange();
}

void ProgressFrame::SetValue(int rows) {
    // A radio may wait for its next line, and the system's gauge draws itself at each move.
    m_rows = rows;
    if (!IsShown())
        MoveMainGauge();
}

void ProgressFrame::MoveMainGauge() {
    if (m_rows)
        m_mainGauge->SetValue(*m_rows);
    m_rows.reset();
    m_nextMove = CurrentTransferSystem().Clock().Now() + FrameInterval;
}

void ProgressFrame::Pulse() {
    if (CurrentTransferSystem().Clock().Now() >= m_nextMove)
        MoveMainGauge();
    m_pulseGauge->Pulse();
}

wxWindow* ProgressFrame::Window() {
    MoveMainGauge();
    return this;
}

void ProgressFrame::OnCancel(wxCommandEvent& event) {
    Cancelled = true;
    event.Skip();
}

void ProgressFrame::OnKey(wxKeyEvent& event) {
    // The main window would take them for its own keys.
    event.StopPropagation();
    if (event.GetKeyCode() == WXK_ESCAPE)
        Cancelled = true;
    else if (event.GetKeyCode() == WXK_TAB)
        m_cancelButton->SetFocus();
    else
        event.Skip();
}

void ProgressFrame::OnMainActivated(wxActivateEvent& event) {
    event.Skip();
    const auto isOpenBox = [](const wxWindow* child) {
        const auto* box = dynamic_cast<const wxDialog*>(child);
        return box && box->IsModal();
    };
    // A click on the disabled window takes the keyboard along, and Escape would do nothing.
    if (event.GetActive() && IsShown() && std::none_of(GetChildren().begin(), GetChildren().end(), isOpenBox))
        Raise();
}

void ProgressFrame::OnCloseRequest(wxCloseEvent& event) {
    // The transfer still uses this window and destroys it when it sees the flag.
    Cancelled = true;
    if (event.CanVeto())
        event.Veto();
}
