// Plays a radio on a simulated port until it has to stop.
#pragma once

#include "simulator/FaultyLink.h"
#include "simulator/Journal.h"
#include "simulator/OutputQueue.h"
#include "simulator/PseudoTerminal.h"
#include "simulator/Radio.h"
#include "simulator/ReplyTimes.h"

#include <string>

namespace Simulator {

/// The loop that moves bytes between a port and a radio, with pacing and pauses. Only blocks in poll.
class Player {
public:
    /// All arguments must outlive the player. With `pace`, neither direction is faster than the speed that
    /// the other side has set. With `once`, Run ends when the port is closed after a completed transfer.
    Player(PseudoTerminal& port, Radio& radio, FaultyLink& link, OutputQueue& output, Journal& journal,
           ReplyTimes& replyTimes, bool pace, bool once);

    /// Plays until SIGTERM, SIGINT, SIGHUP, the unplug fault or `once` ends it. `signals` is a signalfd for
    /// these signals and for SIGUSR1, which presses the radio's key.
    void Run(int signals);

private:
    void Wait(int signals);
    void TakeSignals(int signals);
    void TakeInput();
    void FeedRadio(size_t count, int baud);
    void Deliver();
    void HandleVisits();
    void Leave();
    int Baud() const { return m_pace ? m_port.Speed() : 0; }

    PseudoTerminal& m_port;
    Radio& m_radio;
    FaultyLink& m_link;
    OutputQueue& m_output;
    Journal& m_journal;
    ReplyTimes& m_replyTimes;
    bool m_pace;
    bool m_once;
    bool m_stop = false;
    int m_speed = 9600;    // the user's speed at his last input
    std::string m_heard;   // read from the port, but still on the way at the line's speed
    std::string m_pending; // due, but the port had no room
    BaudClock m_hearing;
};

} // namespace Simulator
