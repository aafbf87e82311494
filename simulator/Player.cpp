#include "simulator/Player.h"

#include "simulator/Promptness.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace Simulator {

namespace {

constexpr size_t ReadSize = 512;

/// At line speed the radio gets up this much early and spends the rest on the clock: waking up takes about
/// that long, as long as a byte at 115200 baud.
constexpr std::chrono::microseconds WakeUp{100};

// A port that doesn't see closes counts as closed after so much silence: after a dialogue, and in one. The
// program may be held up in a dialogue while its user moves the window.
constexpr std::chrono::seconds QuietAfterDialogue{1};
constexpr std::chrono::seconds QuietInDialogue{10};

} // namespace

Player::Player(Port& port, Radio& radio, FaultyLink& link, OutputQueue& output, Journal& journal,
               ReplyTimes& replyTimes, bool pace, bool once)
    : m_port(port), m_radio(radio), m_link(link), m_output(output), m_journal(journal),
      m_replyTimes(replyTimes), m_pace(pace), m_once(once) {}

void Player::Run(Requests& requests) {
    if (m_pace)
        WakeUpOnTime();
    if (!m_port.SeesVisits())
        m_radio.ExpectUnseenCloses();
    while (!m_stop) {
        Wait(requests);
        TakeRequests(requests);
        // Handle visits first; Leave still reads the last bytes of a user who has gone.
        HandleVisits();
        if (m_stop)
            return;
        TakeInput();
        Deliver();
        Tune();
        if (m_port.Lost())
            m_stop = true;
    }
}

void Player::Wait(const Requests& requests) {
    std::optional<TimePoint> due;
    const auto AtLatest = [&due](TimePoint time) { due = due ? std::min(*due, time) : time; };
    if (const auto next = m_output.NextDue(); next && m_port.IsOpen() && m_pending.empty())
        AtLatest(*next);
    if (!m_heard.empty())
        AtLatest(m_hearing.NextDue(Baud(), m_heard.size()));
    if (const auto end = QuietEnd())
        AtLatest(*end);
    const Port::Wanted wanted{.input = m_heard.empty(), .room = !m_pending.empty()};
    if (!m_pace || !due)
        return m_port.Wait(wanted, due, requests);
    m_port.Wait(wanted, *due - WakeUp, requests);
    if (Clock::now() < *due - WakeUp)
        return; // something else ended the wait
    while (Clock::now() < *due) {
    }
}

void Player::TakeRequests(Requests& requests) {
    const Requests::Asked asked = requests.Take();
    for (int k = 0; k < asked.keyPresses; ++k) {
        m_journal.Note("- key pressed");
        m_output.PressKey();
    }
    m_stop = m_stop || asked.stop;
}

void Player::HandleVisits() {
    const Port::Visit visit = m_port.TakeVisits();
    if (visit.closed)
        Leave();
    if (visit.opened && m_port.IsOpen())
        m_journal.Note("- port opened");
    if (const auto end = QuietEnd(); end && Clock::now() >= *end)
        EndVisit();
}

/// Returns when silence ends a visit to a port that doesn't see closes; nothing if it doesn't end now.
std::optional<TimePoint> Player::QuietEnd() const {
    if (!m_lastByte || !m_heard.empty() || !m_pending.empty() || !m_output.IsEmpty())
        return {};
    const bool over = m_radio.IsAtRest() && !m_link.IsDead();
    return *m_lastByte + (over ? QuietAfterDialogue : QuietInDialogue);
}

/// Sets this side's speed to the radio's, once the radio has sent what it had to say at the former speed.
void Player::Tune() {
    if (m_pending.empty() && m_output.IsEmpty())
        m_port.SetSpeed(m_radio.Speed());
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
    EndVisit();
}

void Player::EndVisit() {
    m_lastByte.reset();
    m_hearing.Rest();
    m_output.Clear();
    m_pending.clear();
    m_replyTimes.Forget();
    m_radio.PortClosed();
    m_link.PortClosed();
    m_port.Flush();
    m_journal.Note(m_port.SeesVisits() ? "- port closed" : "- line quiet");
    if (m_once && m_output.Completed() > 0)
        m_stop = true;
}

void Player::TakeInput() {
    if (m_heard.empty() && m_port.IsOpen()) {
        m_heard = m_port.Read(ReadSize);
        m_hearing.Rest();
        if (!m_heard.empty()) {
            m_replyTimes.Heard(Clock::now());
            NoteByte();
        }
    }
    if (m_heard.empty())
        return;
    for (size_t count = m_hearing.Take(Clock::now(), Baud(), m_heard.size()); count > 0; --count) {
        m_speed = m_port.Speed();
        FeedRadio(1, m_speed);
        Tune();
    }
}

void Player::NoteByte() {
    if (m_port.SeesVisits())
        return;
    if (!m_lastByte)
        m_journal.Note("- line in use");
    m_lastByte = Clock::now();
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
            NoteByte();
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
