// The program's line to a digital radio in each state.
#include "tests/support/PseudoTerminal.h"
#include "tests/transfer/TRecordDriverTest.h"
#include "transfer/TRecordDialogue.h"

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

    /// The chosen line without its checksum.
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
    const std::string stampLine = "T20B000021";
    struct {
        int index, mode;
        std::string line;
    } const cases[] = {
        {HelloState, WriteChannelsMode, "T007000020030000"},
        {HelloState, ReadChannelsMode, "T007000020030000"},
        {HelloState, ReadDebugLogMode, "T007000020030000"},
        {SpeedState, WriteChannelsMode, "T2060000320480"},
        {SpeedState, ReadInformationMode, "T2060000320480"},
        {OpModeState, WriteChannelsMode, "T204000033"},
        {OpModeState, ReadDebugLogMode, "T204000033"},
        {HardwareState, ReadChannelsMode, "T204000031"},
        {HardwareState, WriteChannelsMode, "T204000031"},
        {HardwareTextState, ReadChannelsMode, "T204000000"},
        {HardwareTextState, WriteChannelsMode, "T204000000"},
        {VersionState, WriteChannelsMode, "T204000022"},
        {VersionState, ReadChannelsMode, "T204000022"},
        {VersionState, ReadConfigMode, "T204000022"},
        {VersionState, WriteConfigMode, "T204000022"},
        {VersionState, ReadDebugLogMode, "T204000022"},
        {StampState, WriteChannelsMode, "T204000020"},
        {StampState, ReadChannelsMode, stampLine},
        {StampState, ReadConfigMode, stampLine},
        {StampState, WriteConfigMode, stampLine},
        {StampState, ReadDebugLogMode, stampLine},
        {OpeningState, WriteChannelsMode, "T204000025"},
        {OpeningState, ReadChannelsMode, "T204000024"},
        {OpeningState, ReadConfigMode, "T204000034"},
        {OpeningState, WriteConfigMode, "T204000035"},
        {OpeningState, ReadDebugLogMode, "T204000030"},
        {PurgeState, WriteChannelsMode, ""},
        {PurgeState, ReadChannelsMode, ""},
        {PurgeState, WriteConfigMode, ""},
        {DataState, WriteChannelsMode, ""},
        {DataState, ReadChannelsMode, ""},
        {DataState, ReadConfigMode, ""},
        {DataState, WriteConfigMode, ""},
        {DataState, ReadDebugLogMode, ""},
        {0, ReadChannelsMode, "T204000000"},
        {700, ReadChannelsMode, "T204000000"},
        {0, ReadConfigMode, "T204000000"},
        {0, ReadDebugLogMode, "T204000000"},
        {0, WriteConfigMode, "T107000043523030"},
        {1, WriteConfigMode, "T104000041"},
        {1, WriteChannelsMode, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE("index " + std::to_string(c.index) + ", mode " + std::to_string(c.mode));
        const std::string line = Choose(c.index, c.mode);
        EXPECT_EQ(c.line == stampLine ? stampLine + Text(RadioStamp) : c.line, line);
        if (c.line == stampLine) {
            EXPECT_FALSE(RadioStamp.empty());
        }
        EXPECT_EQ(m_status, 0);
        EXPECT_EQ(m_context.Index, c.index);
    }
}

TEST_F(TRecordState, OfTheHelloNamesTheProtocol) {
    const std::pair<uint32_t, const char*> cases[] = {
        {0, "T007000020030000"}, {1, "T007000021030000"}, {2, "T007000022030000"}, {9, "T007000029030000"}};
    for (const auto& [protocol, line] : cases) {
        m_context.Protocol = protocol;
        EXPECT_EQ(Choose(HelloState, WriteChannelsMode), line);
    }
}

TEST_F(TRecordState, OfTheVersionEndsAReadOfTheHardware) {
    EXPECT_EQ(Choose(VersionState, ReadInformationMode), "");
    EXPECT_EQ(m_status, 1);
}

TEST_F(TRecordState, OfTheVersionAsksForModesOnlyInAWrite) {
    m_context.InvalidModes = AllModes;
    const DialogScript noBox;
    for (const int mode : {ReadChannelsMode, ReadConfigMode, WriteConfigMode, ReadDebugLogMode})
        EXPECT_EQ(Choose(VersionState, mode), "T204000022") << mode;
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
    EXPECT_EQ(Choose(VersionState, WriteChannelsMode), "T204000022");
    EXPECT_EQ(m_status, 0);
}

TEST_F(TRecordState, OfTheOpeningSetsTheGaugesRange) {
    const std::pair<int, int> cases[] = {
        {WriteChannelsMode, 503}, {ReadChannelsMode, 503},    {ReadConfigMode, 503},
        {WriteConfigMode, 2},     {ReadInformationMode, 255}, {ReadDebugLogMode, 255},
    };
    for (const auto& [mode, range] : cases) {
        m_attachment->Gauge()->SetRange(503);
        Choose(OpeningState, mode);
        EXPECT_EQ(m_attachment->Gauge()->GetRange(), range) << "mode " << mode;
    }
}

TEST_F(TRecordState, OfTheOpeningAsksOnlyWhereAnUnknownRadioWouldLoseMoreThanIsSent) {
    FillP25Row(1);
    FillP25Row(502);
    struct {
        uint32_t flags;
        int mode;
        std::initializer_list<int> selected;
        bool asks;
    } const cases[] = {
        {0x08, WriteChannelsMode, {1}, true},       {0x08, WriteChannelsMode, {502}, true},
        {0x08, WriteChannelsMode, {}, true},        {0x0A, WriteChannelsMode, {1}, true},
        {0x08, WriteChannelsMode, {1, 502}, false}, {0x02, WriteChannelsMode, {1}, false},
        {0x04, WriteChannelsMode, {1}, false},      {0x00, WriteChannelsMode, {1}, false},
        {0x08, ReadChannelsMode, {1}, false},       {0x08, WriteConfigMode, {1}, false},
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
            EXPECT_EQ(Choose(OpeningState, c.mode).empty(), refused);
            EXPECT_EQ(m_status, refused ? TransferCancelled : TransferOk);
        }
    }
}

TEST_F(TRecordState, OfThePurgeNeedsOneOfFourReasonsAndAWrite) {
    for (const uint32_t reason : {0x01u, 0x02u, 0x04u, 0x08u}) {
        RadioStamp = KnownStamp;
        m_context.XferFlags = 0x30 | reason;
        EXPECT_EQ(Choose(PurgeState, WriteChannelsMode), "T204000011") << reason;
        EXPECT_EQ(m_context.XferFlags, 0x33 | reason);
        EXPECT_EQ(Text(m_context.StatusText), "Purging Radio....");
        EXPECT_EQ(Text(RadioStamp), "") << "no radio is known until the write is complete";
        m_context.XferFlags = 0x30 | reason;
        RadioStamp = KnownStamp;
        EXPECT_EQ(Choose(PurgeState, ReadChannelsMode), "") << reason;
        EXPECT_EQ(m_context.XferFlags, 0x30 | reason);
        EXPECT_EQ(Text(RadioStamp), KnownStamp);
    }
}

TEST_F(TRecordState, BeforeTheDataHasItsText) {
    const std::pair<int, const char*> cases[] = {
        {WriteChannelsMode, "Sending Primary Memory Data...."},
        {ReadChannelsMode, "Receiving Memory Data...."},
        {ReadConfigMode, "Receiving Config Data...."},
        {WriteConfigMode, "Sending Config Data...."},
        {ReadInformationMode, "Receiving Debug Log Data...."},
        {ReadDebugLogMode, "Receiving Debug Log Data...."},
    };
    for (const auto& [mode, text] : cases) {
        Choose(DataState, mode);
        EXPECT_EQ(Text(m_context.StatusText), text) << "mode " << mode;
    }
}

TEST_F(TRecordState, OfConfigurationLinesEndsBehindTheLast) {
    m_attachment->Gauge()->SetRange(2);
    Choose(1, WriteConfigMode);
    EXPECT_EQ(m_attachment->Gauge()->GetValue(), 2);
    EXPECT_EQ(m_status, 0);
    EXPECT_EQ(Choose(2, WriteConfigMode), "");
    EXPECT_EQ(m_status, 1);
}
