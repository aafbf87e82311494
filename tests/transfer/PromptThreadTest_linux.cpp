// Threads that get the processor soon: the length of their turns.
#include "transfer/PromptThread.h"

#include <gtest/gtest.h>

#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cstring>

namespace {

/// What the system holds about the scheduling of this thread.
std::array<unsigned char, 48> Scheduling() {
    std::array<unsigned char, 48> attributes{};
    EXPECT_EQ(syscall(SYS_sched_getattr, 0, attributes.data(), attributes.size(), 0), 0);
    return attributes;
}

/// The nanoseconds for which an ordinary thread runs before others get their turn, 0 on systems that don't
/// tell.
uint64_t Turn() {
    uint64_t nanoseconds = 0;
    std::memcpy(&nanoseconds, Scheduling().data() + 24, sizeof nanoseconds);
    return nanoseconds;
}

TEST(PromptThread, AsksForShortTurns) {
    const uint64_t former = Turn();
    if (former == 0)
        GTEST_SKIP() << "this system knows no such turns";
    const PromptThread prompt;
    EXPECT_LT(Turn(), former);
}

TEST(PromptThread, IsAsBeforeAtTheEnd) {
    const auto former = Scheduling();
    { const PromptThread prompt; }
    EXPECT_EQ(Scheduling(), former);
}

} // namespace
