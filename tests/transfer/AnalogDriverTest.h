// Analog driver tests in which the test plays the radio.
#pragma once

#include "tests/transfer/RadioPeer.h"
#include "tests/transfer/TransferTest.h"
#include "transfer/AnalogDriver.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"
#include "transfer/TransferStatus.h"

#include <wx/gauge.h>

#include <chrono>

namespace transfertest {

class AnalogDriverTest : public TransferTest {
protected:
    /// Runs one transfer and checks what every transfer must leave.
    int Transfer(int mode, const std::string& port) {
        m_context.Clock = &CurrentTransferSystem().Clock();
        const auto start = Now();
        const int status = AnalogProtocol::TransferData(m_context, CurrentGrid(), mode, port, "Test");
        m_took = std::chrono::duration_cast<std::chrono::milliseconds>(Now() - start);
        EXPECT_EQ(m_context.Port, nullptr);
        EXPECT_EQ(m_context.Progress, nullptr);
        ExpectOver();
        return status;
    }

    /// Runs a transfer with a peer that stays plugged in. Its port must be free afterwards.
    int Transfer(int mode, RadioPeer& peer) {
        const int status = Transfer(mode, peer.PortName());
        peer.Finish();
        EXPECT_TRUE(PortIsFree(peer.PortName())) << "the port was not given back";
        return status;
    }

    /// Sets the module's page, of 500 rows, to the radio that is asked for its information block.
    static void UseAskingRadio(int rows) {
        Retarget(Kdrv4xxx, ModuleSlot);
        CurrentParameters().Radio = AskingRadio;
        CurrentParameters().Rows = rows;
    }

    void TearDown() override {
        // The window's own code knows no such radio.
        if (CurrentParameters().Radio == AskingRadio)
            CurrentParameters().Radio = Kdrv4xxx;
        TransferTest::TearDown();
    }

    // Of the main gauge; -1 if no transfer runs.
    static int GaugeRange() { return OfGauge(&wxGauge::GetRange); }
    static int GaugeValue() { return OfGauge(&wxGauge::GetValue); }
    static int OfGauge(int (wxGauge::*property)() const) {
        ProgressFrame* progress = OpenProgress();
        return progress ? (progress->MainGauge()->*property)() : -1;
    }

    /// The main gauge's value, once it is at least that or after three seconds.
    static int GaugeValue(RadioPeer& radio, int atLeast) {
        for (int tries = 0; tries < 300 && GaugeValue() >= 0 && GaugeValue() < atLeast; ++tries)
            radio.Pause(10);
        return GaugeValue();
    }

    TransferContext m_context;
    std::chrono::milliseconds m_took{0};
};

} // namespace transfertest
