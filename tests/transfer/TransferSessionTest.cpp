// How a transfer leaves its port.
#include "transfer/TransferSession.h"

#include "tests/support/PseudoTerminal.h"
#include "transfer/ProgressFrame.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TRecordDriver.h"
#include "transfer/TransferContext.h"
#include "transfer/wxAsyncSerial.h"

#include <chrono>
#include <gtest/gtest.h>
#include <wx/memconf.h>

namespace {

constexpr const char* EndOfTransfer = "T9030000FC\r";

class TransferEnd : public ::testing::Test {
protected:
    TransferEnd() : m_formerConfig(wxConfigBase::Set(new wxMemoryConfig)) {
        m_device.HoldSlave();
        m_context.Progress = new ProgressFrame(nullptr, wxID_ANY, "Ending");
        m_context.Port = new wxAsyncSerial(nullptr, m_device.SlaveName(), 9600);
    }
    ~TransferEnd() override { delete wxConfigBase::Set(m_formerConfig); }

    PseudoTerminal m_device;
    TRecordContext m_context;
    wxConfigBase* m_formerConfig;
};

} // namespace

TEST_F(TransferEnd, GivesTheEndRecordToTheRadioBeforeThePortIsClosed) {
    SendEndRecord(m_context);
    TakeDown(m_context);
    EXPECT_EQ(m_device.ReadUntil('\r', std::chrono::milliseconds(100)), EndOfTransfer);
}

TEST_F(TransferEnd, OverAStuckLineWaitsALittleForTheEndRecordAndThenDropsIt) {
    m_device.HoldBack(true);
    SendEndRecord(m_context);
    const auto start = std::chrono::steady_clock::now();
    TakeDown(m_context);
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_GE(took, std::chrono::milliseconds(200));
    EXPECT_LT(took, std::chrono::seconds(10));
    EXPECT_EQ(m_context.Port, nullptr);
    EXPECT_EQ(m_context.Progress, nullptr);
    m_device.HoldBack(false);
    wxAsyncSerial next(nullptr, m_device.SlaveName(), 9600);
    ASSERT_TRUE(next.isOpen());
    next.write("next\r");
    EXPECT_EQ(m_device.ReadUntil('\r'), "next\r");
}
