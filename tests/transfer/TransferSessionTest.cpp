// State of the port and the other windows after a transfer.
#include "transfer/TransferSession.h"

#include "tests/support/PseudoTerminal.h"
#include "transfer/ProgressFrame.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/wxAsyncSerial.h"

#include <gtest/gtest.h>
#include <wx/memconf.h>

#include <chrono>
#include <optional>
#include <stdexcept>

namespace {

constexpr const char* EndOfTransfer = "T9030000FC\r";

class TransferEnd : public ::testing::Test {
protected:
    TransferEnd() : m_formerConfig(wxConfigBase::Set(new wxMemoryConfig)) {
        m_device.HoldSlave();
        m_session.emplace(m_context, Means());
    }
    ~TransferEnd() override {
        m_session.reset();
        delete wxConfigBase::Set(m_formerConfig);
    }

    TransferMeans Means() {
        return {std::make_unique<ProgressFrame>(nullptr, wxID_ANY, "Ending"),
                std::make_unique<wxAsyncSerial>(nullptr, m_device.SlaveName(), 9600)};
    }

    PseudoTerminal m_device;
    TRecordContext m_context;
    std::optional<TransferSession> m_session;
    wxConfigBase* m_formerConfig;
};

} // namespace

TEST_F(TransferEnd, GivesTheEndRecordToTheRadioBeforeThePortIsClosed) {
    SendEndRecord(m_context);
    m_session.reset();
    EXPECT_EQ(m_device.ReadUntil('\r', std::chrono::milliseconds(100)), EndOfTransfer);
}

TEST_F(TransferEnd, OverAStuckLineWaitsALittleForTheEndRecordAndThenDropsIt) {
    m_device.HoldBack(true);
    SendEndRecord(m_context);
    const auto start = std::chrono::steady_clock::now();
    m_session.reset();
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

TEST_F(TransferEnd, ByAnExceptionFreesPortAndWindowsAndClosesTheFiles) {
    m_session.reset();
    wxFrame other(nullptr, wxID_ANY, "Other");
    other.Show();
    m_context.DebugLogFile.Open("/dev/null", "w");
    const auto fail = [&] {
        TransferSession session(m_context, Means());
        EXPECT_FALSE(other.IsEnabled());
        session.Run([]() -> TransferStatus { throw std::runtime_error("in the exchange"); });
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_TRUE(other.IsEnabled());
    EXPECT_EQ(m_context.Port, nullptr);
    EXPECT_EQ(m_context.Progress, nullptr);
    EXPECT_FALSE(m_context.DebugLogFile.IsOpened());
    EXPECT_TRUE(wxAsyncSerial(nullptr, m_device.SlaveName(), 9600).isOpen());
}

TEST_F(TransferEnd, WithoutAnOpenPortIsAPortErrorAndRunsNothing) {
    m_context.Port->close();
    bool ran = false;
    m_session->Run([&] {
        ran = true;
        return TransferComplete;
    });
    EXPECT_EQ(m_context.Status, TransferPortError);
    EXPECT_FALSE(ran);
}
