#include "tests/support/Watchdog.h"

#include "robot/OpenDialogs.h"

#include <cstdio>
#include <cstdlib>

namespace testbench {

Watchdog::Watchdog(std::chrono::seconds limit, std::function<void()> beforeAbort)
    : m_limit(limit), m_beforeAbort(std::move(beforeAbort)), m_thread([this] { Watch(); }) {}

Watchdog::~Watchdog() {
    {
        std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void Watchdog::OnTestStart(const testing::TestInfo& test) {
    std::lock_guard lock(m_mutex);
    m_test = std::string(test.test_suite_name()) + "." + test.name();
    m_started = std::chrono::steady_clock::now();
    m_changed.notify_all();
}

void Watchdog::OnTestEnd(const testing::TestInfo&) {
    std::lock_guard lock(m_mutex);
    m_test.clear();
    m_changed.notify_all();
}

void Watchdog::Watch() {
    std::unique_lock lock(m_mutex);
    while (!m_ended) {
        if (m_test.empty()) {
            m_changed.wait(lock);
            continue;
        }
        if (std::chrono::steady_clock::now() < m_started + m_limit) {
            m_changed.wait_until(lock, m_started + m_limit);
            continue;
        }
        std::fprintf(stderr, "\n%s takes longer than %s s\n", m_test.c_str(),
                     std::to_string(m_limit.count()).c_str());
        for (const DialogFacts& facts : OpenDialogs()) {
            std::fprintf(stderr, "open: %s\n", Describe(facts).c_str());
        }
        std::fflush(stdout);
        m_beforeAbort();
        std::abort();
    }
}

} // namespace testbench
