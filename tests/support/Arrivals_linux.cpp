#include "tests/support/Arrivals.h"

// Their macros have names of the toolkit.
#include <X11/XKBlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XInput2.h>
#include <gdk/gdk.h>

namespace testbench {

namespace {

size_t arrived = 0;

bool IsAnEnd(const XGenericEventCookie& event) {
    if (event.evtype == XI_ButtonRelease)
        return true;
    if (event.evtype != XI_KeyRelease)
        return false;
    const auto key = static_cast<KeyCode>(static_cast<const XIDeviceEvent*>(event.data)->detail);
    return !IsModifierKey(XkbKeycodeToKeysym(event.display, key, 0, 0));
}

GdkFilterReturn Look(GdkXEvent* what, GdkEvent*, gpointer) {
    const auto& event = *static_cast<const XEvent*>(what);
    if (event.type == GenericEvent && event.xcookie.data != nullptr && IsAnEnd(event.xcookie))
        arrived++;
    return GDK_FILTER_CONTINUE;
}

} // namespace

Arrivals::Arrivals() {
    arrived = 0;
    gdk_window_add_filter(nullptr, Look, nullptr);
}

Arrivals::~Arrivals() {
    gdk_window_remove_filter(nullptr, Look, nullptr);
}

size_t Arrivals::Count() const {
    return arrived;
}

} // namespace testbench
