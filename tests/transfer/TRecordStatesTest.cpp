// What the program says to a digital radio in each state.
#include "transfer/TRecordDialogue.h"

#include "tests/transfer/TRecordDriverTest.h"

using namespace testbench;
using namespace transfertest;

namespace {

class TRecordState : public TRecordDriverTest {
protected:
    void SetUp() override {
        TRecordDriverTest::SetUp();
        m_port.HoldSlave();
        m_attachment = std::make_unique<Attachment>(m_context, m_port.SlaveName());
        m_context.ConfigLines.push_back("CR00");
        m_context.ConfigLines.push_back("A");
        m_context.XferFlags = 0x30;
    }
    void TearDown() override {
        m_attachment.reset();
        TRecordDriverTest::TearDown();
    }

    /// The line that is chosen, without its checksum.
    std::string Choose(int index, int mode) {
        m_context.Index = index;
        m_context.TxLine = "a former line";
        TRecordDialogue dialogue{m_context, CurrentGrid(), static_cast<TransferMode>(mode),
                                 CurrentGrid()->GetNumberRows()};
        m_status = ChooseLine(dialogue);
        EXPECT_EQ(m_context.TxLine.empty(), !dialogue.lacksChecksum);
        return Text(m_context.TxLine);
    }

    PseudoTerminal m_port;
    std::unique_ptr<Attachment> m_attachment;
    int m_status = 0;
};

} // namespace

TEST_F(TRecordState, HasItsLine) {
    const std::string anyStamp = "T20B000021";
    struct {
        int index, mode;
        std::string line;
    } const cases[] = {
        {-10, 0, "T007000020030000"},
        {-10, 1, "T007000020030000"},
        {-10, 5, "T007000020030000"},
        {-9, 0, "T2060000320480"},
        {-9, 4, "T2060000320480"},
        {-8, 0, "T204000033"},
        {-8, 5, "T204000033"},
        {-7, 1, "T204000031"},
        {-7, 0, "T204000031"},
        {-6, 1, "T204000000"},
        {-6, 0, "T204000000"},
        {-5, 0, "T204000022"},
        {-5, 1, "T204000022"},
        {-5, 2, "T204000022"},
        {-5, 3, "T204000022"},
        {-5, 5, "T204000022"},
        {-4, 0, "T204000020"},
        {-4, 1, anyStamp},
        {-4, 2, anyStamp},
        {-4, 3, anyStamp},
        {-4, 5, anyStamp},
        {-3, 0, "T204000025"},
        {-3, 1, "T204000024"},
        {-3, 2, "T204000034"},
        {-3, 3, "T204000035"},
        {-3, 5, "T204000030"},
        {-2, 0, ""},
        {-2, 1, ""},
        {-2, 3, ""},
        {-1, 0, ""},
        {-1, 1, ""},
        {-1, 2, ""},
        {-1, 3, ""},
        {-1, 5, ""},
        {0, 1, "T204000000"},
        {700, 1, "T204000000"},
        {0, 2, "T204000000"},
        {0, 5, "T204000000"},
        {0, 3, "T107000043523030"},
        {1, 3, "T104000041"},
        {1, 0, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE("index " + std::to_string(c.index) + ", mode " + std::to_string(c.mode));
        const std::string line = Choose(c.index, c.mode);
        EXPECT_EQ(c.line == anyStamp ? line.substr(0, 10) : line, c.line);
        EXPECT_EQ(line.substr(0, 10) != anyStamp || line == anyStamp + Text(RadioStamp), true) << line;
        EXPECT_EQ(m_status, 0);
        EXPECT_EQ(m_context.Index, c.index);
    }
}

TEST_F(TRecordState, OfTheHelloNamesTheProtocol) {
    const std::pair<std::uint32_t, const char*> cases[] = {
        {0, "T007000020030000"}, {1, "T007000021030000"}, {2, "T007000022030000"}, {9, "T007000029030000"}};
    for (const auto& [protocol, line] : cases) {
        m_context.Protocol = protocol;
        EXPECT_EQ(Choose(-10, 0), line);
    }
}

TEST_F(TRecordState, OfTheVersionEndsAReadOfTheHardware) {
    EXPECT_EQ(Choose(-5, 4), "");
    EXPECT_EQ(m_status, 1);
}

TEST_F(TRecordState, OfTheVersionAsksForModesOnlyInAWrite) {
    m_context.InvalidModes = AllModes;
    const DialogScript noBox;
    for (const int mode : {1, 2, 3, 5})
        EXPECT_EQ(Choose(-5, mode), "T204000022") << mode;
}

TEST_F(TRecordState, OfTheVersionNamesAllModesThatTheRadioLacks) {
    m_context.InvalidModes = AllModes;
    DialogScript script;
    script
        .ExpectMessage(
            "Radio Operating Modes",
            "The following operating modes are used in the memory data but not enabled in the radio:\n"
            "    Analog Wideband\n"
            "    Analog Narrowband\n"
            "    P25 Conventional\n"
            "\nThe radio will not transmit in disabled modes (affected memories become receive only).\n"
            "\nDo you wish to continue the transfer?",
            wxID_YES)
        .Style(wxYES_NO | wxICON_WARNING | wxCENTRE);
    EXPECT_EQ(Choose(-5, 0), "T204000022");
    EXPECT_EQ(m_status, 0);
}

TEST_F(TRecordState, OfTheOpeningSetsTheGaugesRange) {
    const std::pair<int, int> cases[] = {{0, 503}, {1, 503}, {2, 503}, {3, 2}, {4, 255}, {5, 255}};
    for (const auto& [mode, range] : cases) {
        m_attachment->Gauge()->SetRange(503);
        Choose(-3, mode);
        EXPECT_EQ(m_attachment->Gauge()->GetRange(), range) << "mode " << mode;
    }
}

TEST_F(TRecordState, OfTheOpeningAsksOnlyWhereAnUnknownRadioWouldLoseMoreThanIsSent) {
    FillP25Row(1);
    FillP25Row(502);
    struct {
        std::uint32_t flags;
        int mode;
        std::initializer_list<int> selected;
        bool asks;
    } const cases[] = {
        {0x08, 0, {1}, true},       {0x08, 0, {502}, true}, {0x08, 0, {}, true},   {0x0A, 0, {1}, true},
        {0x08, 0, {1, 502}, false}, {0x02, 0, {1}, false},  {0x04, 0, {1}, false}, {0x00, 0, {1}, false},
        {0x08, 1, {1}, false},      {0x08, 3, {1}, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        Select(c.selected);
        for (const int answer : {wxID_OK, wxID_CANCEL}) {
            m_context.XferFlags = 0x30 | c.flags;
            DialogScript script;
            if (c.asks)
                ExpectPurgeQuestion(script, answer);
            const bool refused = c.asks && answer == wxID_CANCEL;
            EXPECT_EQ(Choose(-3, c.mode).empty(), refused);
            EXPECT_EQ(m_status, refused ? TransferCancelled : TransferOk);
        }
    }
}

TEST_F(TRecordState, OfThePurgeNeedsOneOfFourReasonsAndAWrite) {
    for (const std::uint32_t reason : {0x01u, 0x02u, 0x04u, 0x08u}) {
        RadioStamp = KnownStamp;
        m_context.XferFlags = 0x30 | reason;
        EXPECT_EQ(Choose(-2, 0), "T204000011") << reason;
        EXPECT_EQ(m_context.XferFlags, 0x33 | reason);
        EXPECT_EQ(Text(m_context.StatusText), "Purging Radio....");
        EXPECT_EQ(Text(RadioStamp), "") << "no radio is known until the write is complete";
        m_context.XferFlags = 0x30 | reason;
        RadioStamp = KnownStamp;
        EXPECT_EQ(Choose(-2, 1), "") << reason;
        EXPECT_EQ(m_context.XferFlags, 0x30 | reason);
        EXPECT_EQ(Text(RadioStamp), KnownStamp);
    }
}

TEST_F(TRecordState, BeforeTheDataHasItsText) {
    const std::pair<int, const char*> cases[] = {
        {0, "Sending Primary Memory Data...."}, {1, "Receiving Memory Data...."},
        {2, "Receiving Config Data...."},       {3, "Sending Config Data...."},
        {4, "Receiving Debug Log Data...."},    {5, "Receiving Debug Log Data...."},
    };
    for (const auto& [mode, text] : cases) {
        Choose(-1, mode);
        EXPECT_EQ(Text(m_context.StatusText), text) << "mode " << mode;
    }
}

TEST_F(TRecordState, OfConfigurationLinesEndsBehindTheLast) {
    m_attachment->Gauge()->SetRange(2);
    Choose(1, 3);
    EXPECT_EQ(m_attachment->Gauge()->GetValue(), 2);
    EXPECT_EQ(m_status, 0);
    EXPECT_EQ(Choose(2, 3), "");
    EXPECT_EQ(m_status, 1);
}
