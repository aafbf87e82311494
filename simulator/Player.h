// Plays a radio on a simulated port until it is told to stop.
#pragma once

#include "simulator/FaultyLink.h"
#include "simulator/Journal.h"
#include "simulator/Outlet.h"
#include "simulator/PseudoTerminal.h"
#include "simulator/Radio.h"

#include <string>

namespace Simulator {

/// The loop that moves bytes between a port and a radio, with pacing and pauses. Waits in poll only.
class Player {
public:
    /// Everything must outlive the player. With `pace`, neither direction is faster than the speed that
    /// the other side has set. With `once`, it ends when the port is closed after a completed transfer.
    Player(PseudoTerminal& port, Radio& radio, FaultyLink& link, Outlet& outlet, Journal& journal, bool pace,
           bool once);

    /// Plays until SIGTERM, SIGINT, SIGHUP, the unplug fault or `once` ends it. `signals` is a signalfd
    /// of these and of SIGUSR1, which presses the radio's key.
    void Run(int signals);

private:
    void Wait(int signals);
    void TakeSignals(int signals);
    void TakeInput();
    void FeedRadio(std::size_t count, int baud);
    void Deliver();
    void HandleVisits();
    void Leave();
    int Baud() const { return m_pace ? m_port.Speed() : 0; }

    PseudoTerminal& m_port;
    Radio& m_radio;
    FaultyLink& m_link;
    Outlet& m_outlet;
    Journal& m_journal;
    bool m_pace;
    bool m_once;
    bool m_stop = false;
    int m_speed = 9600;    // the user's when he was last heard
    std::string m_heard;   // arrived, but not yet through at the line's speed
    std::string m_pending; // due, but the port had no room
    BaudClock m_hearing;
};

} // namespace Simulator
