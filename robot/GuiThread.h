// Hands work from any thread to the window thread.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace testbench {

/// The window thread did not start a job before its deadline.
class GuiSilent : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// While an instance exists, the window thread runs jobs, even inside modal dialogs, menus and handlers
/// that yield for only some kinds of events. Every Robot holds one. May be created in any thread; does
/// nothing in a program without windows.
class GuiMailbox {
public:
    GuiMailbox();
    ~GuiMailbox();
    GuiMailbox(const GuiMailbox&) = delete;
    GuiMailbox& operator=(const GuiMailbox&) = delete;
};

/// Runs the job in the window thread and waits until it ends. Called in the window thread itself, runs the
/// job at once. Jobs wait until the thread has no pending events, for 200 ms at most. Rethrows what the job
/// throws. If the job has not started within `ms`, cancels it and throws GuiSilent. The job must not open a
/// modal dialog or menu, because this call would wait for it to close; use TellGui for that.
void RunInGui(const std::function<void()>& job, int ms = 10000);

/// Queues the job for the window thread and returns at once.
void TellGui(std::function<void()> job);

/// Same as RunInGui, and returns the result of the job.
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
