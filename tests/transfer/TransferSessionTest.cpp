// State of the port and the other windows after a transfer.
#include "transfer/TransferSession.h"

#include "robot/TempFolder.h"
#include "tests/transfer/RadioPeerEnd.h"
#include "transfer/ProgressFrame.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/wxAsyncSerial.h"

#include <gtest/gtest.h>
#include <wx/memconf.h>

#include <chrono>
#include <memory>
#include <optional>
#include <stdexcept>

namespace {

constexpr const char* EndOfTransfer = "T9030000FC\r";

class TransferEnd : public ::testing::Test {
protected:
    TransferEnd() : m_formerConfig(wxConfigBase::Set(new wxMemoryConfig)) {
        m_session.emplace(m_context, Means());
    }
    ~TransferEnd() override {
        m_session.reset();
        delete wxConfigBase::Set(m_formerConfig);
    }

    TransferMeans Means() {
        return {std::make_unique<ProgressFrame>(nullptr, wxID_ANY, "Ending"),
                std::make_unique<wxAsyncSerial>(nullptr, m_device->PortName(), 9600)};
    }

    std::unique_ptr<transfertest::RadioPeerEnd> m_device = transfertest::MakeRealEnd();
    TRecordContext m_context;
    std::optional<TransferSession> m_session;
    wxConfigBase* m_formerConfig;
};

} // namespace

TEST_F(TransferEnd, GivesTheEndRecordToTheRadioBeforeThePortIsClosed) {
    SendEndRecord(m_context);
    m_session.reset();
    EXPECT_EQ(m_device->ReadLine(std::chrono::seconds(10)), EndOfTransfer);
}

TEST_F(TransferEnd, ByAnExceptionFreesPortAndWindowsAndClosesTheFiles) {
    m_session.reset();
    wxFrame other(nullptr, wxID_ANY, "Other");
    other.Show();
    const testbench::TempFolder folder;
    m_context.DebugLogFile.Open((folder / "log").string(), "w");
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
    EXPECT_TRUE(wxAsyncSerial(nullptr, m_device->PortName(), 9600).isOpen());
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
