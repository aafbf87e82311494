// Sleeps that end on time: on this system a short rest on the clock is enough.
#include "tests/support/ProcessorTime.h"
#include "transfer/PreciseSleep.h"

#include <gtest/gtest.h>

#include <chrono>

TEST(PreciseSleep, TakesAQuarterOfTheProcessorAtMost) {
    const double before = ProcessorSeconds();
    for (int i = 0; i < 100; ++i)
        SleepPrecisely(std::chrono::steady_clock::now() + std::chrono::milliseconds(2));
    EXPECT_LT(ProcessorSeconds() - before, 0.05) << "of 0.2 s";
}
