#include "tests/support/Keys.h"

#include "robot/Hands.h"

#include <gtest/gtest.h>
#include <wx/event.h>
#include <wx/grid.h>
#include <wx/toplevel.h>

// Their macros have names of the toolkit.
#include <X11/XKBlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XInput2.h>
#include <gdk/gdk.h>

namespace testbench {

namespace {

Hands& TheHands() {
    static Hands hands(1);
    return hands;
}

/// Counts the ends of clicks and key presses as they arrive. A window manager may delay an event until it has
/// focused the window, so a moment without events doesn't mean that all have arrived. Looks at the events of
/// the display: those of menus, tools and dialogs of the desktop never become events of the toolkit.
class Arrivals {
public:
    Arrivals() { gdk_window_add_filter(nullptr, &Arrivals::Look, this); }
    ~Arrivals() { gdk_window_remove_filter(nullptr, &Arrivals::Look, this); }
    Arrivals(const Arrivals&) = delete;
    Arrivals& operator=(const Arrivals&) = delete;

    void Await(size_t count) {
        PumpUntil([&] { return m_count >= count; }, 500);
        PumpUntilIdle();
    }

private:
    static GdkFilterReturn Look(GdkXEvent* what, GdkEvent*, gpointer arrivals) {
        const auto& event = *static_cast<const XEvent*>(what);
        if (event.type == GenericEvent && event.xcookie.data != nullptr && IsAnEnd(event.xcookie))
            static_cast<Arrivals*>(arrivals)->m_count++;
        return GDK_FILTER_CONTINUE;
    }

    static bool IsAnEnd(const XGenericEventCookie& event) {
        if (event.evtype == XI_ButtonRelease)
            return true;
        if (event.evtype != XI_KeyRelease)
            return false;
        const auto key = static_cast<KeyCode>(static_cast<const XIDeviceEvent*>(event.data)->detail);
        return !IsModifierKey(XkbKeycodeToKeysym(event.display, key, 0, 0));
    }

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
