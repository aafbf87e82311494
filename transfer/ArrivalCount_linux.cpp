#include "transfer/ArrivalCount.h"

#include <condition_variable>
#include <mutex>

struct ArrivalCount::Impl {
    std::mutex mutex;
    std::condition_variable raised;
};

ArrivalCount::ArrivalCount() : m_impl(std::make_unique<Impl>()) {}

ArrivalCount::~ArrivalCount() = default;

void ArrivalCount::Wake() {
    // The lock keeps the wake-up from falling between a waiting thread's look and its sleep.
    const std::lock_guard lock(m_impl->mutex);
    m_impl->raised.notify_all();
}

bool ArrivalCount::AwaitChange(unsigned former, std::chrono::steady_clock::time_point end) {
    std::unique_lock lock(m_impl->mutex);
    return m_impl->raised.wait_until(lock, end, [&] { return m_value != former; });
}
