// How the port's thread wakes the one that waits for a line.
#pragma once

#include <atomic>
#include <chrono>
#include <memory>

/// A count of lines that have come. One thread raises it, another waits for that. One source file for each
/// operating system.
class ArrivalCount {
public:
    ArrivalCount();
    ArrivalCount(const ArrivalCount&) = delete;
    ArrivalCount& operator=(const ArrivalCount&) = delete;
    ~ArrivalCount();

    unsigned Value() const { return m_value; }
    /// Takes no lock and wakes no one, unlike Wake.
    void Raise() { ++m_value; }
    /// Wakes the waiting thread.
    void Wake();
    /// Sleeps until the count isn't `former` any more, or until `end`; on Windows up to a millisecond longer.
    /// Returns true if the count has changed.
    bool AwaitChange(unsigned former, std::chrono::steady_clock::time_point end);

    struct Impl;

private:
    std::atomic<unsigned> m_value = 0;
    std::unique_ptr<Impl> m_impl;
};
