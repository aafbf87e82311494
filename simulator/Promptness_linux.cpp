#include "simulator/Promptness.h"

#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

namespace Simulator {

namespace {

/// The beginning of the system's structure sched_attr that every version of it has.
struct Scheduling {
    uint32_t size, policy;
    uint64_t flags;
    int32_t nice;
    uint32_t priority;
    uint64_t runtime, deadline, period; // nanoseconds
};

} // namespace

void WakeUpOnTime() {
    // By default the system may wake us up late by half a byte's time at 115200 baud.
    prctl(PR_SET_TIMERSLACK, 1UL);
    // A thread that runs for 0.1 ms at a time needn't wait until a busy one has had its turn.
    Scheduling scheduling{};
    if (syscall(SYS_sched_getattr, 0, &scheduling, sizeof scheduling, 0) != 0 || scheduling.policy != 0)
        return;
    scheduling.size = sizeof scheduling;
    scheduling.runtime = 100'000;
    syscall(SYS_sched_setattr, 0, &scheduling, 0);
}

} // namespace Simulator
