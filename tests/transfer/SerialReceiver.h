// Collector of the data that a port's read callback receives.
#pragma once

#include "tests/transfer/SerialWaiting.h"
#include "transfer/AsyncSerial.h"

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

/// Must outlive the callback that Callback() makes.
class SerialReceiver {
public:
    AsyncSerial::ReadCallback Callback() {
        return [this](const char* data, size_t size) {
            const std::lock_guard lock(m_mutex);
            m_text.append(data, size);
            m_sizes.push_back(size);
        };
    }

    std::string Text() const {
        const std::lock_guard lock(m_mutex);
        return m_text;
    }

    /// Number of bytes of each call.
    std::vector<size_t> Sizes() const {
        const std::lock_guard lock(m_mutex);
        return m_sizes;
    }

    bool WaitForSize(size_t size) const {
        return Eventually([&] { return Text().size() >= size; });
    }

private:
    mutable std::mutex m_mutex;
    std::string m_text;
    std::vector<size_t> m_sizes;
};
