#include "campaign/VirtualTime.h"

#include <algorithm>
#include <utility>

namespace Campaign {

int64_t VirtualTime::Milliseconds() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(m_now.time_since_epoch()).count();
}

void VirtualTime::At(Moment when, std::function<void()> what) {
    m_events.push({std::max(when, m_now), m_added++, std::move(what)});
}

bool VirtualTime::RunNext(Moment limit) {
    if (m_events.empty() || m_events.top().when > limit)
        return false;
    Event event = m_events.top();
    m_events.pop();
    m_now = event.when;
    event.what();
    return true;
}

void VirtualTime::AdvanceTo(Moment when) {
    while (RunNext(when)) {
    }
    m_now = std::max(m_now, when);
}

} // namespace Campaign
