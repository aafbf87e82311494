// Ends a test program in which a test hangs.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace testbench {

/// Aborts the program if a single test takes too long, and reports the test and the open dialogs.
class Watchdog : public testing::EmptyTestEventListener {
public:
    /// `beforeAbort` cleans up what must not outlive the program; it runs in another thread.
    Watchdog(std::chrono::seconds limit, std::function<void()> beforeAbort);
    ~Watchdog() override;

    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;

private:
    void Watch();

    const std::chrono::seconds m_limit;
    const std::function<void()> m_beforeAbort;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_test; ///< empty if none is running
    std::chrono::steady_clock::time_point m_started;
    bool m_ended = false;
    std::thread m_thread;
};

} // namespace testbench
