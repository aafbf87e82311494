#include "simulator/WaitForPort_linux.h"

#include "simulator/Requests_linux.h"

#include <poll.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <iterator>

namespace Simulator {

void WaitForPort(int device, Port::Wanted wanted, int watch, std::optional<TimePoint> due,
                 const Requests& requests) {
    // Use nanoseconds: at 115200 baud a millisecond is the time of eleven bytes.
    std::optional<timespec> timeout;
    if (due) {
        using namespace std::chrono;
        const auto left = std::clamp<nanoseconds>(*due - Clock::now(), 0ns, 1min);
        const auto whole = duration_cast<seconds>(left);
        timeout = timespec{.tv_sec = whole.count(), .tv_nsec = (left - whole).count()};
    }
    short events = 0;
    if (wanted.input)
        events |= POLLIN;
    if (wanted.room)
        events |= POLLOUT;
    pollfd watched[] = {
        {device, events, 0},
        {watch, POLLIN, 0},
        {requests.Watched().signals, POLLIN, 0},
    };
    ppoll(watched, std::size(watched), timeout ? &*timeout : nullptr, nullptr);
}

} // namespace Simulator
