// How often a window is drawn.
#pragma once

#include <chrono>
#include <memory>

class wxTopLevelWindow;

/// Draws a window and its controls no more often than once in an interval. What changes meanwhile is drawn at
/// its end. One source file for each operating system.
class FrameRate {
public:
    /// @param window must outlive this object
    FrameRate(wxTopLevelWindow& window, std::chrono::milliseconds interval);
    FrameRate(const FrameRate&) = delete;
    FrameRate& operator=(const FrameRate&) = delete;
    ~FrameRate();

    struct Impl;

private:
    std::unique_ptr<Impl> m_impl;
};
