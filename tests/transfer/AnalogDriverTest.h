// The analog driver against a radio that the test plays.
#pragma once

#include "tests/transfer/RadioPeer.h"
#include "tests/transfer/TransferTest.h"
#include "transfer/AnalogDriver.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"
#include "transfer/TransferStatus.h"

#include <chrono>
#include <thread>
#include <wx/gauge.h>

namespace transfertest {

class AnalogDriverTest : public TransferTest {
protected:
    /// One transfer; also sees to what every transfer must leave.
    int Transfer(int mode, const std::string& port) {
        const auto start = std::chrono::steady_clock::now();
        const int status = TransferData(m_context, CurrentGrid(), mode, port, "Test");
        m_took =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
        EXPECT_EQ(m_context.Port, nullptr);
        EXPECT_EQ(m_context.Progress, nullptr);
        ExpectOver();
        return status;
    }

    /// A transfer with a peer that stays plugged in: its port must be free afterwards.
    int Transfer(int mode, RadioPeer& peer) {
        const int status = Transfer(mode, peer.PortName());
        peer.Finish();
        EXPECT_TRUE(PortIsFree(peer.PortName())) << "the port was not given back";
        return status;
    }

    /// Gives the module's page, of 500 rows, the radio that is asked for its information block.
    static void UseAskingRadio(int rows) {
        Retarget(Kdrv4xxx, 5);
        CurrentParameters().Radio = AskingRadio;
        CurrentParameters().Rows = rows;
    }

    void TearDown() override {
        // The window's own code knows no such radio.
        if (CurrentParameters().Radio == AskingRadio)
            CurrentParameters().Radio = Kdrv4xxx;
        TransferTest::TearDown();
    }

    /// Does what the Cancel button does, from the peer's thread: a transfer takes no events but the user's,
    /// so nothing can be handed to the window thread meanwhile. The waits poll the flag.
    void Cancel() { m_context.Progress->Cancelled = true; }

    /// The main gauge's value, from the peer's thread, once it is at least that or some time has passed.
    int GaugeValue(int atLeast) const {
        const wxGauge* gauge = m_context.Progress->MainGauge();
        for (int tries = 0; tries < 300 && gauge->GetValue() < atLeast; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return gauge->GetValue();
    }

    TransferContext m_context;
    std::chrono::milliseconds m_took{0};
};

} // namespace transfertest
