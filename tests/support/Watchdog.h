// Ends a test program in which a test hangs.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace testbench {

/// Aborts the program if a single test takes too long, and says which one and what dialogs are open.
class Watchdog : public testing::EmptyTestEventListener {
public:
    /// `beforeAbort` cleans up what must not outlive the program; it is called from another thread.
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
    std::string m_test; ///< empty: none runs
    std::chrono::steady_clock::time_point m_started;
    bool m_ended = false;
    std::thread m_thread;
};

} // namespace testbench
