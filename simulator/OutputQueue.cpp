#include "simulator/OutputQueue.h"

namespace Simulator {

void OutputQueue::Push(Action action) {
    if (m_actions.empty()) {
        m_clock.Rest();
        m_due = TimePoint{};
    }
    m_actions.push_back(std::move(action));
}

void OutputQueue::Say(std::string bytes, std::string note) {
    Push({Kind::Bytes, std::move(bytes), {}, std::move(note)});
}

void OutputQueue::Pause(std::chrono::milliseconds duration, std::string note) {
    Push({Kind::Pause, {}, duration, std::move(note)});
}

void OutputQueue::AwaitKey(std::chrono::milliseconds patience) {
    Push({Kind::Key, {}, patience, "- waits for its key"});
}

void OutputQueue::Vanish(std::string note) {
    Push({Kind::Vanish, {}, {}, std::move(note)});
}

void OutputQueue::Complete() {
    if (m_actions.empty())
        CountCompleted();
    else
        Push({Kind::Complete, {}, {}, {}});
}

void OutputQueue::PressKey() {
    if (!m_actions.empty() && m_actions.front().kind == Kind::Key) {
        m_holdEnd = TimePoint{};
        m_due = TimePoint{};
    }
}

void OutputQueue::Clear() {
    m_actions.clear();
    m_sent = 0;
    m_holdEnd.reset();
    m_due.reset();
}

bool OutputQueue::HoldIsOver(const Action& action, TimePoint now, Delivery& delivery) {
    if (!m_holdEnd) {
        m_holdEnd = now + action.duration;
        if (!action.note.empty())
            delivery.notes.push_back(action.note);
    }
    if (now < *m_holdEnd) {
        m_due = m_holdEnd;
        return false;
    }
    m_holdEnd.reset();
    m_clock.Rest();
    return true;
}

OutputQueue::Delivery OutputQueue::Take(TimePoint now, int baud) {
    Delivery delivery;
    while (!m_actions.empty()) {
        Action& action = m_actions.front();
        switch (action.kind) {
        case Kind::Pause:
        case Kind::Key:
            if (!HoldIsOver(action, now, delivery))
                return delivery;
            break;
        case Kind::Bytes: {
            if (!delivery.bytes.empty()) {
                m_due = now;
                return delivery;
            }
            const size_t taken = m_clock.Take(now, baud, action.bytes.size() - m_sent);
            delivery.bytes = action.bytes.substr(m_sent, taken);
            m_sent += taken;
            if (m_sent < action.bytes.size()) {
                m_due = m_clock.NextDue(baud, action.bytes.size() - m_sent);
                return delivery;
            }
            m_sent = 0;
            if (!action.note.empty())
                delivery.notes.push_back(action.note);
            break;
        }
        case Kind::Vanish:
            delivery.notes.push_back(action.note);
            delivery.vanish = true;
            Clear();
            return delivery;
        case Kind::Complete:
            CountCompleted();
            break;
        }
        m_actions.pop_front();
    }
    m_due.reset();
    return delivery;
}

} // namespace Simulator
