// Clicks and keys as they arrive in this program.
#pragma once

#include <cstddef>

namespace testbench {

/// Counts the ends of clicks and key presses as they arrive, during its lifetime. A window manager may delay
/// an event until it has focused the window, so a moment without events doesn't mean that all have arrived.
/// Looks at the events of the system: those of menus, tools and dialogs of the desktop never become events of
/// the toolkit. Modifiers don't count. Use one at a time, in the window thread.
class Arrivals {
public:
    Arrivals();
    ~Arrivals();
    Arrivals(const Arrivals&) = delete;
    Arrivals& operator=(const Arrivals&) = delete;

    /// Ends so far.
    size_t Count() const;
};

} // namespace testbench
