#include "transfer/PromptThread.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// The system's structure sched_attr; the C library has it only in its latest versions.
struct SchedulingAttributes {
    uint32_t size;
    uint32_t policy;
    uint64_t flags;
    int32_t nice;
    uint32_t priority;
    uint64_t runtime; ///< nanoseconds; of an ordinary thread, how long it runs before others get their turn
    uint64_t deadline;
    uint64_t period;
};

constexpr uint32_t OrdinaryPolicy = 0;
/// The shortest turn that the system grants, in nanoseconds.
constexpr uint64_t ShortTurn = 100'000;

/// Sets the length of the calling thread's turns and returns the former one, 0 if the system didn't change
/// it. A thread that asks for short turns gets them early: it needn't wait until a busy thread's turn, of
/// some milliseconds, is over. Systems before Linux 6.12 ignore the length.
uint64_t SetTurn(uint64_t nanoseconds) {
    SchedulingAttributes attributes{};
    if (syscall(SYS_sched_getattr, 0, &attributes, sizeof attributes, 0) != 0 ||
        attributes.policy != OrdinaryPolicy)
        return 0;
    const uint64_t former = attributes.runtime;
    attributes.size = sizeof attributes;
    attributes.runtime = nanoseconds;
    return syscall(SYS_sched_setattr, 0, &attributes, 0) == 0 ? former : 0;
}

} // namespace

PromptThread::PromptThread() : m_former(static_cast<int64_t>(SetTurn(ShortTurn))) {}

PromptThread::~PromptThread() {
    if (m_former > 0)
        SetTurn(static_cast<uint64_t>(m_former));
}
