// Simulated user at keyboard and mouse, run from a separate thread.
#pragma once

#include "robot/GuiThread.h"
#include "robot/Hands.h"

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

class wxDialog;

namespace testbench {

/// Works with real key presses and clicks, so the state of the window thread doesn't matter: nested modal
/// dialogs, menus, a handler that pumps events. Use each robot from one thread only. WaitFor, Ask,
/// WaitForDialog, WaitForNoDialog and Settle apply to the windows of this process only; the rest works on
/// any program of the display.
class Robot : public Hands {
public:
    /// `paceMs` is the pause after each key press, click and move, in milliseconds.
    explicit Robot(int paceMs = 8);

    /// Checks the condition in the window thread until it holds (returns true) or `ms` have passed (returns
    /// false).
    bool WaitFor(const std::function<bool()>& condition, int ms = 5000);

    /// Runs the question in the window thread and returns its answer; see AskGui.
    template <class F>
    auto Ask(F&& question, int ms = 10000) {
        return AskGui(std::forward<F>(question), ms);
    }

    /// Waits until a modal dialog is open, has the keyboard focus, and has a caption that the regular
    /// expression matches in full. Returns null if there is none within `ms`. Use the dialog only
    /// through Ask.
    wxDialog* WaitForDialog(const std::string& caption, int ms = 5000);

    /// Waits until no modal dialog is open. Returns false if one still is after `ms`.
    bool WaitForNoDialog(int ms = 5000);

    /// Waits until a window of any program has the keyboard focus and a title that the regular expression
    /// matches in full. Returns false if there is none within `ms`.
    bool WaitForWindow(const std::string& title, int ms = 5000);

    /// Waits until the window thread has handled all input so far. Throws GuiSilent as RunInGui does.
    void Settle(int ms = 10000);

    /// Writes a PNG of the screen, or of a part of it. Throws std::runtime_error if it can't be written.
    void Screenshot(const std::filesystem::path& file, const wxRect& part = {}) const;

private:
    bool Poll(const std::function<bool()>& condition, int ms) const;

    GuiMailbox m_mailbox;
};

} // namespace testbench
