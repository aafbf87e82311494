// Plays a radio on a simulated port until it has to stop.
#pragma once

#include "simulator/FaultyLink.h"
#include "simulator/Journal.h"
#include "simulator/OutputQueue.h"
#include "simulator/Port.h"
#include "simulator/Radio.h"
#include "simulator/ReplyTimes.h"
#include "simulator/Requests.h"

#include <optional>
#include <string>

namespace Simulator {

/// The loop that moves bytes between a port and a radio, with pacing and pauses. Only blocks in the port's
/// wait.
class Player {
public:
    /// All arguments must outlive the player. With `pace`, neither direction is faster than the speed that
    /// the other side has set. With `once`, Run ends when the port is closed after a completed transfer.
    Player(Port& port, Radio& radio, FaultyLink& link, OutputQueue& output, Journal& journal,
           ReplyTimes& replyTimes, bool pace, bool once);

    /// Plays until a request, the unplug fault, `once` or the loss of the port ends it.
    void Run(Requests& requests);

private:
    void Wait(const Requests& requests);
    void TakeRequests(Requests& requests);
    void TakeInput();
    void FeedRadio(size_t count, int baud);
    void Deliver();
    void HandleVisits();
    void Leave();
    void EndVisit();
    std::optional<TimePoint> QuietEnd() const;
    void NoteByte();
    void Tune();
    int Baud() const { return m_pace ? m_port.Speed() : 0; }

    Port& m_port;
    Radio& m_radio;
    FaultyLink& m_link;
    OutputQueue& m_output;
    Journal& m_journal;
    ReplyTimes& m_replyTimes;
    bool m_pace;
    bool m_once;
    bool m_stop = false;
    std::optional<TimePoint> m_lastByte; // of a visit to a port that doesn't see them, either way
    int m_speed = 9600;                  // the user's speed at his last input
    std::string m_heard;                 // read from the port, but still on the way at the line's speed
    std::string m_pending;               // due, but the port had no room
    BaudClock m_hearing;
};

} // namespace Simulator
