// Thread that gets the processor soon after it is woken up.
#pragma once

#include <cstdint>

/// Lets the thread that makes it run soon after each wake-up, even if other programs keep all processors
/// busy. Destroy it on the same thread; the thread is then as before. Has no effect on a system that can't do
/// that. One source file for each operating system.
class PromptThread {
public:
    PromptThread();
    ~PromptThread();
    PromptThread(const PromptThread&) = delete;
    PromptThread& operator=(const PromptThread&) = delete;

private:
    int64_t m_former; ///< what the destructor restores, in the system's unit
};
