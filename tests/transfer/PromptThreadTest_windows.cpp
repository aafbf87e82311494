// Threads that get the processor soon: their priority.
#include "transfer/PromptThread.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

int Priority() {
    return GetThreadPriority(GetCurrentThread());
}

TEST(PromptThread, GoesBeforeOthers) {
    const PromptThread prompt;
    EXPECT_EQ(Priority(), THREAD_PRIORITY_ABOVE_NORMAL);
}

TEST(PromptThread, IsAsBeforeAtTheEnd) {
    const int former = Priority();
    { const PromptThread prompt; }
    EXPECT_EQ(Priority(), former);
}

} // namespace
