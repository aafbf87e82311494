// Reports of how a transfer with a digital radio ended.
#include "tests/support/PseudoTerminal.h"
#include "tests/transfer/TRecordDriverTest.h"
#include "transfer/TRecordDialogue.h"

using namespace testbench;
using namespace transfertest;

namespace {

class TRecordReport : public TRecordDriverTest {
protected:
    void SetUp() override {
        TRecordDriverTest::SetUp();
        m_port.HoldSlave();
        m_attachment = std::make_unique<Attachment>(m_context, m_port.SlaveName());
        m_context.Progress->Cancelled = true; // no pause at the end
        m_context.LogFile.Open("report.log", "w");
    }
    void TearDown() override {
        m_attachment.reset();
        TRecordDriverTest::TearDown();
    }

    std::string Log() {
        m_context.LogFile.Flush();
        return ReadFile("report.log");
    }

    PseudoTerminal m_port;
    std::unique_ptr<Attachment> m_attachment;
};

} // namespace

TEST_F(TRecordReport, OfAFailureIsABox) {
    struct {
        int status;
        const char* text;
        bool endRecord;
        std::string log;
    } const cases[] = {
        {2, "Invalid COM Port (or Port in use)", false, ""},
        {3, "Communication Error at channel 17", false, ""},
        {4, TimeoutText, false, "<Timeout>\n"},
        {5, "Radio rejected channel 16", true, ">T9030000FC\n"},
        {6, "Checksum Error on channel 16", false, ""},
        {7, "No data selected for transfer to Radio", false, ""},
        {8, "Selected operation requires updated software in Radio", false, ""},
        {0, "Download Failure 0 17", false, ""},
        {9, "Download Failure 9 17", false, ""},
        {11, "Download Failure 11 17", false, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE("status " + std::to_string(c.status));
        const std::string before = Log();
        m_context.Status = static_cast<TransferStatus>(c.status);
        m_context.Index = 17;
        DialogScript script;
        ExpectDriverBox(script, c.text);
        ReportResult(m_context, WriteChannelsMode);
        EXPECT_EQ(m_port.Read(12, std::chrono::milliseconds(c.endRecord ? 300 : 60)),
                  c.endRecord ? "T9030000FC\r" : "");
        EXPECT_EQ(Log(), before + c.log);
    }
}

TEST_F(TRecordReport, OfACompleteTransferEndsItWhereTheRadioWaitsForThat) {
    struct {
        int mode, index;
        bool endRecord;
    } const cases[] = {{0, 503, true}, {0, -5, true}, {1, 12, false}, {1, -5, true}, {2, 12, false},
                       {3, 12, true},  {4, -5, true}, {4, -6, false}, {5, 12, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE("mode " + std::to_string(c.mode) + ", index " + std::to_string(c.index));
        const std::string before = Log();
        m_context.Status = TransferComplete;
        m_context.Index = c.index;
        const DialogScript noBox;
        ReportResult(m_context, static_cast<TransferMode>(c.mode));
        EXPECT_EQ(m_port.Read(12, std::chrono::milliseconds(c.endRecord ? 300 : 60)),
                  c.endRecord ? "T9030000FC\r" : "");
        EXPECT_EQ(m_attachment->Label(), "Transfer Complete.");
        EXPECT_EQ(Log(), before + (c.endRecord ? ">T9030000FC\n" : "") + "Transfer Complete.\n");
    }
}

TEST_F(TRecordReport, OfACompleteTransferStaysForASecond) {
    m_context.Progress->Cancelled = false;
    m_context.Status = TransferComplete;
    const TransferClock::Moment start = Now();
    ReportResult(m_context, ReadChannelsMode);
    EXPECT_EQ(Now() - start, std::chrono::milliseconds(1000));
}

TEST_F(TRecordReport, OfACancelledTransferEndsItInEveryMode) {
    for (int mode = 0; mode <= 5; ++mode) {
        const std::string before = Log();
        m_context.Status = TransferCancelled;
        const DialogScript noBox;
        ReportResult(m_context, static_cast<TransferMode>(mode));
        EXPECT_EQ(m_port.Read(11, std::chrono::milliseconds(3000)), "T9030000FC\r") << "mode " << mode;
        EXPECT_EQ(m_attachment->Label(), "Transfer Cancelled.");
        EXPECT_EQ(Log(), before + ">T9030000FC\nTransfer cancelled by user.\n");
    }
}
