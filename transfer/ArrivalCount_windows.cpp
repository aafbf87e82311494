#include "transfer/ArrivalCount.h"

#include <windows.h>

#include <algorithm>

// The C++ library's condition variable is made of several of the system's objects, and each wake-up takes
// some calls of the system. A radio waits meanwhile.
struct ArrivalCount::Impl {
    SRWLOCK lock = SRWLOCK_INIT;
    CONDITION_VARIABLE raised = CONDITION_VARIABLE_INIT;
};

ArrivalCount::ArrivalCount() : m_impl(std::make_unique<Impl>()) {}

ArrivalCount::~ArrivalCount() = default;

void ArrivalCount::Wake() {
    // The lock keeps the wake-up from falling between a waiting thread's look and its sleep.
    AcquireSRWLockExclusive(&m_impl->lock);
    ReleaseSRWLockExclusive(&m_impl->lock);
    WakeAllConditionVariable(&m_impl->raised);
}

bool ArrivalCount::AwaitChange(unsigned former, std::chrono::steady_clock::time_point end) {
    using std::chrono::milliseconds, std::chrono::steady_clock;
    constexpr milliseconds longest = std::chrono::hours(1); // the system takes 32 bits
    AcquireSRWLockExclusive(&m_impl->lock);
    while (m_value == former) {
        const auto left = std::chrono::ceil<milliseconds>(end - steady_clock::now());
        if (left <= left.zero())
            break;
        SleepConditionVariableSRW(&m_impl->raised, &m_impl->lock,
                                  static_cast<DWORD>(std::min(left, longest).count()), 0);
    }
    ReleaseSRWLockExclusive(&m_impl->lock);
    return m_value != former;
}
