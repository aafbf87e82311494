#include "simulator/Player.h"

#include "simulator/Promptness.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <ctime>
#include <iterator>
#include <optional>

namespace Simulator {

namespace {

constexpr size_t ReadSize = 512;

} // namespace

Player::Player(PseudoTerminal& port, Radio& radio, FaultyLink& link, OutputQueue& output, Journal& journal,
               ReplyTimes& replyTimes, bool pace, bool once)
    : m_port(port), m_radio(radio), m_link(link), m_output(output), m_journal(journal),
      m_replyTimes(replyTimes), m_pace(pace), m_once(once) {}

void Player::Run(int signals) {
    if (m_pace)
        WakeUpOnTime();
    while (!m_stop) {
        Wait(signals);
        TakeSignals(signals);
        // Handle visits first; Leave still reads the last bytes of a user who has gone.
        HandleVisits();
        if (m_stop)
            return;
        TakeInput();
        Deliver();
    }
}

void Player::Wait(int signals) {
    std::optional<TimePoint> due;
    if (m_port.IsOpen() && m_pending.empty())
        due = m_output.NextDue();
    if (!m_heard.empty()) {
        const TimePoint heard = m_hearing.NextDue(Baud(), m_heard.size());
        due = due ? std::min(*due, heard) : heard;
    }
    // Use nanoseconds: at 115200 baud a millisecond is the time of eleven bytes.
    std::optional<timespec> timeout;
    if (due) {
        using namespace std::chrono;
        const auto left = std::clamp<nanoseconds>(*due - Clock::now(), 0ns, 1min);
        const auto whole = duration_cast<seconds>(left);
        timeout = timespec{.tv_sec = whole.count(), .tv_nsec = (left - whole).count()};
    }
    short wanted = 0;
    if (m_heard.empty())
        wanted |= POLLIN;
    if (!m_pending.empty())
        wanted |= POLLOUT;
    // While the other side is closed, the port constantly reports a hang-up; only the watch reports an open.
    pollfd watched[] = {
        {m_port.IsOpen() ? m_port.Descriptor() : -1, wanted, 0},
        {m_port.WatchDescriptor(), POLLIN, 0},
        {signals, POLLIN, 0},
    };
    ppoll(watched, std::size(watched), timeout ? &*timeout : nullptr, nullptr);
}

void Player::TakeSignals(int signals) {
    signalfd_siginfo info;
    while (read(signals, &info, sizeof info) == sizeof info) {
        if (info.ssi_signo == SIGUSR1) {
            m_journal.Note("- key pressed");
            m_output.PressKey();
        } else {
            m_stop = true;
        }
    }
}

void Player::HandleVisits() {
    const PseudoTerminal::Visit visit = m_port.TakeVisits();
    if (visit.closed)
        Leave();
    if (visit.opened && m_port.IsOpen())
        m_journal.Note("- port opened");
}

void Player::Leave() {
    for (std::string last = m_port.Read(ReadSize); !last.empty(); last = m_port.Read(ReadSize))
        m_heard += last;
    if (m_port.IsOpen()) {
        // Another user has already opened the port, and nothing separates his first bytes from the last
        // user's last bytes. The new dialogue begins where the old one has ended, or at bytes that can't
        // belong to the old one. The last user's bytes had the speed at which he was last heard.
        while (!m_heard.empty() && !(m_radio.IsAtRest() && !m_link.IsDead()) && !m_radio.BeginsAnew(m_heard))
            FeedRadio(1, m_speed);
    } else {
        FeedRadio(m_heard.size(), m_port.Speed());
    }
    m_hearing.Rest();
    m_output.Clear();
    m_pending.clear();
    m_replyTimes.Forget();
    m_radio.PortClosed();
    m_link.PortClosed();
    m_port.Flush();
    m_journal.Note("- port closed");
    if (m_once && m_output.Completed() > 0)
        m_stop = true;
}

void Player::TakeInput() {
    if (m_heard.empty() && m_port.IsOpen()) {
        m_heard = m_port.Read(ReadSize);
        m_hearing.Rest();
        if (!m_heard.empty())
            m_replyTimes.Heard(Clock::now());
    }
    if (m_heard.empty())
        return;
    m_speed = m_port.Speed();
    FeedRadio(m_hearing.Take(Clock::now(), Baud(), m_heard.size()), m_speed);
}

void Player::FeedRadio(size_t count, int baud) {
    m_radio.LineSpeed(baud);
    for (size_t k = 0; k < count && !m_link.IsDead(); ++k)
        m_radio.Hear(static_cast<uint8_t>(m_heard[k]));
    m_heard.erase(0, count);
}

void Player::Deliver() {
    while (m_port.IsOpen()) {
        if (!m_pending.empty()) {
            m_replyTimes.Sent(Clock::now());
            m_pending.erase(0, m_port.Write(m_pending));
            if (!m_pending.empty())
                return;
        }
        OutputQueue::Delivery delivery = m_output.Take(Clock::now(), Baud());
        for (const std::string& note : delivery.notes)
            m_journal.Note(note);
        if (delivery.vanish) {
            m_stop = true;
            return;
        }
        if (delivery.bytes.empty())
            return;
        m_pending = std::move(delivery.bytes);
    }
}

} // namespace Simulator
