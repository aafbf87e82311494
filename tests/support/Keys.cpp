#include "tests/support/Keys.h"

#include "robot/Hands.h"

#include <gtest/gtest.h>
#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/grid.h>
#include <wx/toplevel.h>

namespace testbench {

namespace {

Hands& TheHands() {
    static Hands hands(1);
    return hands;
}

/// Counts the ends of clicks and key presses as they arrive. A window manager may delay an event
/// until it has focused the window, so a moment without events doesn't mean that all have arrived.
class Arrivals : public wxEventFilter {
public:
    Arrivals() { wxEvtHandler::AddFilter(this); }
    ~Arrivals() override { wxEvtHandler::RemoveFilter(this); }

    int FilterEvent(wxEvent& event) override {
        const wxEventType type = event.GetEventType();
        if (type == wxEVT_LEFT_UP || type == wxEVT_MIDDLE_UP || type == wxEVT_RIGHT_UP) {
            m_count++;
        } else if (type == wxEVT_KEY_UP) {
            const int key = static_cast<wxKeyEvent&>(event).GetKeyCode();
            m_count += key != WXK_SHIFT && key != WXK_RAW_CONTROL && key != WXK_ALT ? 1 : 0;
        }
        return Event_Skip;
    }

    /// Native menus and dialogs don't report their events; the wait then ends by timeout.
    void Await(size_t count) {
        PumpUntil([&] { return m_count >= count; }, 500);
        PumpUntilIdle();
    }

private:
    size_t m_count = 0;
};

} // namespace

void ShowAndFocus(wxTopLevelWindow& window) {
    window.Show();
    window.Raise();
    const std::string title = window.GetTitle().utf8_string();
    EXPECT_TRUE(PumpUntil([&] { return window.IsActive() && TheHands().FocusedTitle() == title; }))
        << "the window \"" << title << "\" did not get the keyboard";
    PumpUntilIdle();
}

void TypeText(const std::string& text) {
    Arrivals arrivals;
    TheHands().Type(text);
    arrivals.Await(text.size());
}

void PressKey(const std::string& chord) {
    Arrivals arrivals;
    TheHands().Press(chord);
    arrivals.Await(1);
}

void ClickAt(const wxWindow& window, const wxPoint& client, int button) {
    ClickAt(SpotIn(window, client), button);
}

void DoubleClickAt(const wxWindow& window, const wxPoint& client, int button) {
    DoubleClickAt(SpotIn(window, client), button);
}

void ClickAt(const wxPoint& screen, int button) {
    Arrivals arrivals;
    TheHands().Click(screen, button);
    arrivals.Await(1);
}

void DoubleClickAt(const wxPoint& screen, int button) {
    Arrivals arrivals;
    TheHands().DoubleClick(screen, button);
    arrivals.Await(2);
}

void TypeIntoCell(wxGrid& grid, int row, int column, const std::string& text) {
    grid.GoToCell(row, column);
    grid.SetFocus();
    PumpUntilIdle();
    TypeText(text);
    PressKey("Return");
}

} // namespace testbench
