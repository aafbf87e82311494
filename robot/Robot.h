// A person at keyboard and mouse, from a thread of its own.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

#include "robot/GuiThread.h"
#include "robot/Hands.h"

class wxDialog;

namespace testbench {

/// Works on the display by real key presses and clicks, so it doesn't care what the window thread is
/// busy with: nested modal dialogs, menus, a handler that pumps events. One robot serves one thread.
/// What needs the program's windows (WaitFor, Ask, WaitForDialog) works in the program's own process;
/// the rest on any program of the display.
class Robot : public Hands {
public:
    /// `paceMs` is the rest after each key press, click and move.
    explicit Robot(int paceMs = 8);

    /// Asks the condition in the window thread until it holds (true) or `ms` are over (false).
    bool WaitFor(const std::function<bool()>& condition, int ms = 5000);

    /// Runs the question in the window thread and gives its answer; see AskGui.
    template <class F>
    auto Ask(F&& question, int ms = 10000) {
        return AskGui(std::forward<F>(question), ms);
    }

    /// Waits until a modal dialog whose caption the regular expression matches (in whole) is open and
    /// has the keyboard. Null if none came within `ms`. Use the dialog through Ask only.
    wxDialog* WaitForDialog(const std::string& caption, int ms = 5000);

    /// Waits until no modal dialog is open.
    bool WaitForNoDialog(int ms = 5000);

    /// Waits until a window of any program whose title the regular expression matches (in whole) has
    /// the keyboard.
    bool WaitForWindow(const std::string& title, int ms = 5000);

    /// Waits until the window thread has nothing more to do with what was done so far.
    void Settle(int ms = 10000);

    /// Writes a PNG of the screen, or of a part of it.
    void Screenshot(const std::filesystem::path& file, const wxRect& part = {}) const;

private:
    bool Poll(const std::function<bool()>& condition, int ms) const;

    GuiMailbox m_mailbox;
};

} // namespace testbench
