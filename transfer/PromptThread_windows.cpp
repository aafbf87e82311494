#include "transfer/PromptThread.h"

#include <windows.h>

PromptThread::PromptThread() : m_former(GetThreadPriority(GetCurrentThread())) {
    SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_ABOVE_NORMAL);
}

PromptThread::~PromptThread() {
    if (m_former != THREAD_PRIORITY_ERROR_RETURN)
        SetThreadPriority(GetCurrentThread(), static_cast<int>(m_former));
}
