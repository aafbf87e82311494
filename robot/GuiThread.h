// Work handed from any thread to the thread that runs the windows.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace testbench {

/// The window thread did not come round to a job within its deadline.
class GuiSilent : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// While one of these lives, the window thread takes jobs, also inside modal dialogs, menus and
/// handlers that yield for some kinds of events only. Every Robot holds one. May be made in any thread;
/// does nothing in a program without windows.
class GuiMailbox {
public:
    GuiMailbox();
    ~GuiMailbox();
    GuiMailbox(const GuiMailbox&) = delete;
    GuiMailbox& operator=(const GuiMailbox&) = delete;
};

/// Runs the job in the window thread and waits for its end; in the window thread itself it runs at
/// once. Jobs wait until the thread has no more events to work on. What the job throws is thrown here.
/// If the job has not begun within `ms` it never will, and GuiSilent is thrown. The job must not open a
/// modal dialog or menu (its end would have to be waited for): TellGui does.
void RunInGui(const std::function<void()>& job, int ms = 10000);

/// Queues the job for the window thread and returns at once.
void TellGui(std::function<void()> job);

/// RunInGui for a job with a result.
template <class F>
auto AskGui(F&& question, int ms = 10000) {
    using Answer = std::decay_t<std::invoke_result_t<F&>>;
    if constexpr (std::is_void_v<Answer>) {
        RunInGui([&] { question(); }, ms);
    } else {
        std::optional<Answer> answer;
        RunInGui([&] { answer.emplace(question()); }, ms);
        return std::move(*answer);
    }
}

} // namespace testbench
