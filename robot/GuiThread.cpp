#include "robot/GuiThread.h"

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/thread.h>
#include <wx/timer.h>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <string>

namespace testbench {

namespace {

using Clock = std::chrono::steady_clock;

struct Job {
    std::function<void()> work;
    Clock::time_point queued;
};

std::mutex jobsMutex;
std::deque<Job>& Jobs() {
    static std::deque<Job> jobs;
    return jobs;
}

/// Polls for jobs with a timer. The toolkit's own queued calls wait while a handler yields for only some
/// kinds of events; timers don't. Each tick first restarts the timer: a timer doesn't fire again while its
/// handler runs, and a job may open a dialog.
class Postman : public wxTimer {
public:
    void Begin() {
        if (m_users++ == 0) {
            StartOnce(tickMs);
        }
    }

    void End() {
        if (--m_users == 0) {
            Stop();
        }
    }

    void Notify() override {
        StartOnce(tickMs);
        while (const auto work = Next()) {
            work();
        }
    }

private:
    static std::function<void()> Next() {
        std::lock_guard lock(jobsMutex);
        std::deque<Job>& jobs = Jobs();
        if (jobs.empty()) {
            return {};
        }
        // A window that is never idle must not block a job forever.
        wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
        const bool busy = loop != nullptr && loop->Pending();
        if (busy && Clock::now() - jobs.front().queued < std::chrono::milliseconds(200)) {
            return {};
        }
        std::function<void()> work = std::move(jobs.front().work);
        jobs.pop_front();
        return work;
    }

    static constexpr int tickMs = 4;
    int m_users = 0;
};

/// Use in the window thread only.
Postman& ThePostman() {
    // Never destroyed: the toolkit shuts its timers down first.
    static Postman* const postman = new Postman;
    return *postman;
}

/// Runs the work at once in the window thread; from other threads, queues it until the event loop is idle.
void Soon(void (*work)()) {
    if (wxTheApp == nullptr) {
        return;
    }
    if (wxThread::IsMain()) {
        work();
    } else {
        wxTheApp->CallAfter(work);
    }
}

struct Errand {
    enum class State { Waiting, Running, Done, GivenUp };
    std::mutex mutex;
    std::condition_variable changed;
    State state = State::Waiting;
    std::exception_ptr thrown;
};

} // namespace

GuiMailbox::GuiMailbox() {
    Soon([] { ThePostman().Begin(); });
}

GuiMailbox::~GuiMailbox() {
    Soon([] { ThePostman().End(); });
}

void TellGui(std::function<void()> job) {
    if (wxTheApp == nullptr) {
        throw GuiSilent("there is no window thread to ask");
    }
    std::lock_guard lock(jobsMutex);
    Jobs().push_back({std::move(job), Clock::now()});
}

void RunInGui(const std::function<void()>& job, int ms) {
    if (wxTheApp != nullptr && wxThread::IsMain()) {
        job();
        return;
    }
    using State = Errand::State;
    auto errand = std::make_shared<Errand>();
    // Capturing the job by reference is safe: it runs only while this call waits.
    TellGui([errand, &job] {
        {
            std::lock_guard lock(errand->mutex);
            if (errand->state == State::GivenUp) {
                return;
            }
            errand->state = State::Running;
        }
        std::exception_ptr thrown;
        try {
            job();
        } catch (...) {
            thrown = std::current_exception();
        }
        std::lock_guard lock(errand->mutex);
        errand->thrown = thrown;
        errand->state = State::Done;
        errand->changed.notify_all();
    });
    std::unique_lock lock(errand->mutex);
    errand->changed.wait_for(lock, std::chrono::milliseconds(ms),
                             [&] { return errand->state == State::Done; });
    if (errand->state == State::Waiting) {
        errand->state = State::GivenUp;
        throw GuiSilent("the window thread did not answer within " + std::to_string(ms) + " ms");
    }
    errand->changed.wait(lock, [&] { return errand->state == State::Done; });
    if (errand->thrown) {
        std::rethrow_exception(errand->thrown);
    }
}

} // namespace testbench
