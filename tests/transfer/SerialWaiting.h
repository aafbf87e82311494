// Waiting for the port's thread.
#pragma once

#include <chrono>
#include <thread>

/// Polls a condition for up to ten seconds. Returns true as soon as it holds, false if it never does.
template <typename Condition>
bool Eventually(Condition condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}
