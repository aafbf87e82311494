// Effects of each line from a digital radio.
#include "tests/support/PseudoTerminal.h"
#include "tests/transfer/TRecordDriverTest.h"
#include "transfer/TRecordDialogue.h"

using namespace testbench;
using namespace transfertest;

namespace {

class TRecordReply : public TRecordDriverTest {
protected:
    void SetUp() override {
        TRecordDriverTest::SetUp();
        m_port.HoldSlave();
        m_attachment = std::make_unique<Attachment>(m_context, m_port.SlaveName());
        m_context.XferFlags = 0x30;
        m_context.RadioModes = NarrowMode | DigitalMode;
        m_context.Index = 5;
    }
    void TearDown() override {
        m_attachment.reset();
        TRecordDriverTest::TearDown();
    }

    void Take(const std::string& line, int mode, const std::string& standing = "STANDING") {
        m_context.Phase = 1;
        m_context.Status = TransferOk;
        m_context.RxLine = line;
        m_context.TxLine = standing;
        TRecordDialogue dialogue{m_context, CurrentGrid(), static_cast<TransferMode>(mode),
                                 CurrentGrid()->GetNumberRows()};
        TakeReply(dialogue);
        m_offered = dialogue.lacksChecksum ? Text(m_context.TxLine) : "";
    }

    PseudoTerminal m_port;
    std::unique_ptr<Attachment> m_attachment;
    std::string m_offered; ///< a newly set line
};

} // namespace

TEST_F(TRecordReply, DoesWhatItsStateAndModeSay) {
    const std::string ack = "T204000000", nak = "T204000001", end = "T9030000";
    struct {
        const char* what;
        std::string line;
        int mode;
        uint32_t protocol;
        int index;
        uint32_t retries;
        // expected results
        uint32_t phase;
        int status, indexAfter;
        uint32_t retriesAfter;
    } const cases[] = {
        {"hello 0 taken", ack, 0, 0, -10, 1, 0, 0, -6, 0},
        {"hello 1 taken", ack, 0, 1, -10, 0, 0, 0, -9, 0},
        {"hello 2 taken", ack, 0, 2, -10, 0, 0, 0, -10, 0},
        {"hello 3 taken", ack, 0, 3, -10, 0, 0, 0, -10, 0},
        {"speed taken", ack, 0, 2, -9, 1, 0, 0, -9, 0},
        {"row taken", ack, 0, 2, 7, 1, 0, 0, 7, 0},
        {"taken in a read", ack, 1, 2, 7, 1, 0, 0, 7, 0},
        {"hello refused", nak, 0, 0, -10, 1, 1, 0, -10, 1},
        {"refused once", nak, 0, 2, 7, 0, 2, 0, 7, 1},
        {"refused twice", nak, 0, 2, 7, 1, 2, 5, 7, 2},
        {"refused twice in a read", nak, 1, 2, -4, 1, 2, 5, -4, 2},
        {"busy", "T204000002", 0, 2, 7, 1, 3, 0, 7, 1},
        {"version", "T207000023010203", 0, 2, -5, 1, 0, 0, -5, 1},
        {"modes in a write", "T20500003370", 0, 2, -8, 0, 0, 0, -6, 0},
        {"modes in a read", "T20500003370", 1, 2, -8, 0, 0, 0, -8, 0},
        {"modes in a read of protocol 1", "T20500003370", 1, 1, -8, 0, 0, 0, -6, 0},
        {"modes in mode 2", "T20500003370", 2, 2, -8, 0, 0, 0, -6, 0},
        {"modes in mode 3", "T20500003370", 3, 2, -8, 0, 0, 0, -6, 0},
        {"modes in mode 4", "T20500003370", 4, 2, -8, 0, 0, 0, -8, 0},
        {"modes in mode 5", "T20500003370", 5, 2, -8, 0, 0, 0, -8, 0},
        {"count of lines", "T20500003407", 2, 2, -3, 0, 0, 0, -3, 0},
        {"stamp in a write", "T20B00002120240131235959", 0, 2, -4, 1, 0, 0, -4, 1},
        {"stamp in a read", "T20B00002120240131235959", 1, 2, -4, 0, 1, 0, -4, 0},
        {"end in a write", end, 0, 2, 7, 0, 4, 5, 7, 0},
        {"end in a read", end, 1, 2, 7, 0, 1, 1, 7, 0},
        {"end of the hardware at its query", end, 4, 2, -7, 0, 0, 0, -6, 0},
        {"end of the hardware", end, 1, 2, -6, 0, 0, 0, -6, 0},
        {"end of the log", end, 5, 2, 7, 0, 1, 1, 7, 0},
        {"data in a write", "T10400000041", 0, 2, 7, 0, 1, 0, 7, 0},
        {"message in a write", "T204000077", 0, 2, 7, 0, 1, 0, 7, 0},
        {"message in a read", "T204000077", 1, 2, 7, 0, 1, 0, 7, 0},
        {"nothing in a write", "", 0, 2, 7, 0, 1, 0, 7, 0},
        {"nothing in a read", "", 1, 2, 7, 0, 1, 0, 7, 0},
        {"first hardware record", "T104000041", 1, 2, -7, 0, 0, 0, -7, 0},
        {"hardware text", "T104000041", 1, 2, -6, 0, 0, 0, -7, 0},
        {"configuration record", "T104000041", 2, 2, 7, 0, 0, 0, 7, 0},
        {"memory of no row", "T1431000", 1, 2, 7, 0, 1, 0, 7, 0},
        {"log record without a file", "T104000041", 5, 2, 7, 0, 0, 0, 7, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.what) + ": " + c.line);
        m_context.Protocol = c.protocol;
        m_context.Index = c.index;
        m_context.RetryCount = c.retries;
        Take(c.line, c.mode);
        EXPECT_EQ(m_context.Phase, c.phase);
        EXPECT_EQ(m_context.Status, c.status);
        EXPECT_EQ(m_context.Index, c.indexAfter);
        EXPECT_EQ(m_context.RetryCount, c.retriesAfter);
    }
}

TEST_F(TRecordReply, ToAnotherQueryIsPassedOverWhereAWriteNeedsVersionOrStamp) {
    constexpr uint32_t waitOn = 3;
    const std::string ack = "T204000000", version = "T207000023010203", modes = "T20500003370",
                      count = "T20500003407", stamp = "T20B00002120240131235959";
    const std::vector<std::pair<int, std::vector<std::string>>> cases = {
        {-5, {ack, count, stamp}},
        {-4, {ack, count, version, modes}},
    };
    for (const auto& [index, lines] : cases)
        for (const std::string& line : lines) {
            SCOPED_TRACE(std::to_string(index) + ": " + line);
            m_context.Index = index;
            Take(line, 0);
            EXPECT_EQ(m_context.Phase, waitOn);
            EXPECT_EQ(m_context.Status, 0);
            EXPECT_EQ(m_context.Index, index);
        }
}

TEST_F(TRecordReply, ThatRefusesTheHelloOffersTheNextProtocolWithoutLimit) {
    m_context.Index = -10;
    const char* const lines[] = {"T007000021030000", "T007000022030000", "T007000023030000",
                                 "T007000024030000"};
    for (const char* line : lines) {
        Take("T204000001", 0);
        EXPECT_EQ(m_offered, line);
    }
    EXPECT_EQ(m_context.Protocol, 4u);
    EXPECT_EQ(m_context.RetryCount, 0u);
}

TEST_F(TRecordReply, ThatTakesTheHelloSetsTheModesOfThePage) {
    const std::pair<uint32_t, uint32_t> cases[] = {{0, 0x70}, {1, 0x70}, {2, 0x30}, {5, 0x30}};
    for (const auto& [protocol, modes] : cases) {
        m_context.Protocol = protocol;
        m_context.Index = -10;
        m_context.RadioModes = NarrowMode | DigitalMode;
        OpModes[0] = 0;
        Take("T204000000", 0);
        EXPECT_EQ(m_context.RadioModes, modes) << "protocol " << protocol;
        EXPECT_EQ(OpModes[0], modes) << "protocol " << protocol;
    }
}

TEST_F(TRecordReply, ThatTakesTheSpeedChangesIt) {
    EXPECT_EQ(m_port.Speed(), static_cast<speed_t>(B9600));
    m_context.Index = -9;
    Take("T204000000", 0);
    EXPECT_EQ(m_port.Speed(), static_cast<speed_t>(B115200));
}

TEST_F(TRecordReply, ThatTakesAnythingElseLeavesTheSpeed) {
    Take("T204000000", 0);
    EXPECT_EQ(m_port.Speed(), static_cast<speed_t>(B9600));
}

TEST_F(TRecordReply, BusyAddsAPointToTheLabel) {
    m_context.Progress->SetStatus("Sending");
    Take("T204000002", 0);
    Take("T204000002", 0);
    EXPECT_EQ(m_attachment->Label(), "Sending..");
}

TEST_F(TRecordReply, WithModesSetsThoseOfThePage) {
    Take("T20500003350", 1);
    EXPECT_EQ(m_context.RadioModes, 0x50u);
    EXPECT_EQ(OpModes[0], 0x50u);
}

TEST_F(TRecordReply, WithAVersionChoosesTheRecordsAndChecksTheFirmware) {
    struct {
        const char* version;
        uint32_t protocol;
        bool fitsV1;
        uint32_t recordVersion;
        int status;
    } const cases[] = {
        {"020100", 2, true, 2, 0},  {"020100", 2, false, 2, 0}, {"020100", 1, true, 1, 0},
        {"020100", 1, false, 1, 8}, {"020100", 3, true, 1, 0},  {"020100", 3, false, 1, 0},
        {"010100", 2, true, 1, 0},  {"010100", 2, false, 1, 8}, {"030100", 2, true, 1, 0},
        {"030100", 2, false, 1, 0}, {"010100", 0, true, 1, 0},  {"010100", 0, false, 1, 8},
        {"", 2, false, 1, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.version) + ", protocol " + std::to_string(c.protocol) +
                     (c.fitsV1 ? ", old layout" : ", new layout"));
        m_context.Protocol = c.protocol;
        m_context.XferFlags = c.fitsV1 ? 0x30 : 0x10;
        Take(std::string("T207000023") + c.version, 0);
        EXPECT_EQ(Text(RadioVersion), c.version);
        EXPECT_EQ(m_context.RecordVersion, c.recordVersion);
        EXPECT_EQ(m_context.Status, c.status);
    }
}

TEST_F(TRecordReply, WithAnotherStampMakesItAnotherRadio) {
    Take("T20B00002120240131235959", 0);
    EXPECT_EQ(m_context.XferFlags, 0x30u);
    Take("T20B00002120240131235958", 0);
    EXPECT_EQ(m_context.XferFlags, 0x38u);
    m_context.XferFlags = 0x30;
    Take("T20B000021", 0);
    EXPECT_EQ(m_context.XferFlags, 0x38u);
}

TEST_F(TRecordReply, WithAnyStampMakesItAnotherRadioWhileNoneIsKnown) {
    RadioStamp = "";
    for (const char* stamp : {"T20B00002120240131235959", "T20B000021"}) {
        m_context.XferFlags = 0x30;
        Take(stamp, 0);
        EXPECT_EQ(m_context.XferFlags, 0x38u) << stamp;
    }
    EXPECT_EQ(Text(RadioStamp), "") << "it is kept when the write is complete";
}

TEST_F(TRecordReply, ThatAcknowledgesAMemoryMarksItAsHeldByTheRadioByDeparture) {
    struct {
        const char* what;
        int row;
        const char* sent;
        int mode;
        const char* before;
        const char* after;
        bool counts;
    } const cases[] = {
        {"made here", 5, "T1430005", 0, "A1", "E1", true},
        {"read before", 5, "T1430005", 0, "C9", "C9", true},
        {"guard", 502, "T1430502", 0, "A1", "E1", true},
        {"erased", 5, "T204000510E4", 0, "C3", "83", true},
        {"default row", 0, "T1430000", 0, "A1", "A1", false},
        {"purge", -2, "T204000011EA", 0, "A1", "A1", false},
        {"configuration", 5, "T1070000435230304A", 3, "A1", "A1", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        m_context.Index = c.row;
        m_context.RowsSent.clear();
        const int row = std::max(c.row, 0);
        SetCell(row, TFLG, c.before);
        Take("T204000000", c.mode, c.sent);
        EXPECT_EQ(CellText(row, TFLG), c.after);
        EXPECT_EQ(m_context.RowsSent.count(row), c.counts ? 1u : 0u);
    }
    m_context.Index = 5;
    SetCell(5, TFLG, "A1");
    Take("T204000001", 0, "T1430005");
    EXPECT_EQ(CellText(5, TFLG), "A1") << "it was refused";
}

TEST_F(TRecordReply, WithACountOfLinesBeginsThemAnew) {
    m_context.ConfigLines.push_back("former");
    Take("T20500003414", 2);
    EXPECT_EQ(m_context.ConfigCount, 20u);
    EXPECT_EQ(m_attachment->Gauge()->GetRange(), 20);
    EXPECT_TRUE(m_context.ConfigLines.empty());
}

TEST_F(TRecordReply, WithAByteThatIsNoneCountsItsBadDigitsAsZero) {
    Take("T205000034-5", 2);
    EXPECT_EQ(m_context.ConfigCount, 5u);
    EXPECT_EQ(m_attachment->Gauge()->GetRange(), 5);
    Take("T205000034", 2);
    EXPECT_EQ(m_context.ConfigCount, 0u);
    EXPECT_EQ(m_attachment->Gauge()->GetRange(), 0);
    Take("T205000033-1", 1);
    EXPECT_EQ(OpModes[0], 1u);
}

TEST_F(TRecordReply, WithAConfigurationTextMovesTheGaugeToItsNumberAlsoIfTheTextIsBad) {
    m_attachment->Gauge()->SetRange(20);
    const auto record = [](const std::string& text) {
        std::string line = "T1000000";
        for (const char c : text)
            line += Text(wxString::Format("%02X", static_cast<int>(c)));
        return line;
    };
    Take(record("CR0A:bad"), 2);
    EXPECT_EQ(m_attachment->Gauge()->GetValue(), 11);
    Take(record("CR13:bad"), 2);
    EXPECT_EQ(m_attachment->Gauge()->GetValue(), 20);
    Take(record("CR14:bad"), 2);
    EXPECT_EQ(m_attachment->Gauge()->GetValue(), 20) << "after the last line";
    Take(record("CR-5:bad"), 2);
    EXPECT_EQ(m_attachment->Gauge()->GetValue(), 20) << "before the first line";
    EXPECT_TRUE(m_context.ConfigLines.empty());
}

TEST_F(TRecordReply, WithAMemoryOfNoRowIsRefusedAndChangesNothing) {
    const std::string before = PageText();
    for (const char* line : {"T1431000", "T14301F7", "T143FFFF"}) {
        Take(line, 1);
        EXPECT_EQ(m_offered, "T204000001") << line;
    }
    EXPECT_EQ(PageText(), before);
}

TEST_F(TRecordReply, WithAMemoryMovesTheGauge) {
    m_context.RecordVersion = 2;
    Take("T1430101" + std::string(128, '0'), 1);
    EXPECT_EQ(m_context.Phase, 0u);
    EXPECT_EQ(m_attachment->Gauge()->GetValue(), 257);
}
