// Information and configuration of an analog radio, which no command of the window starts.
#include "tests/transfer/AnalogDriverTest.h"
#include "transfer/RadioIdentity.h"

using namespace testbench;
using namespace transfertest;

namespace {

// "CR" and the line's number, then fields. The third to the sixth add up to 255.
const std::string Config0 = "CR00:x:01:02:03:F9";
const std::string Config1 = "CR01:x:FF:::";
const std::string BadConfig = "CR02:x:01:02:03:F8";
const std::string Opening = "SV\rrt\r10\r";

class AnalogConfig : public AnalogDriverTest {
protected:
    void SetUp() override {
        AnalogDriverTest::SetUp();
        UseAskingRadio(500);
        m_context.ConfigLines.push_back(Config0);
        m_context.ConfigLines.push_back(Config1);
        m_context.ConfigLines.push_back("CR02:y");
    }
};

/// Answers the query for the information block, then receives the opening command.
void AnswerOpening(RadioPeer& radio, const std::string& block = "A1.23:SN42:150:3:abc:def\r") {
    radio.HearLine();
    radio.Say(block);
    for (int line = 0; line < 3; ++line)
        radio.HearLine();
}

} // namespace

TEST_F(AnalogConfig, OfARadioWithoutLinesIsNotSupported) {
    Retarget(Krv650, 1);
    RadioPeer peer([](RadioPeer&) {});
    DialogScript script;
    ExpectDriverBox(script, "The requested function is not supported\nby the firware in the Radio");
    EXPECT_EQ(Transfer(ReadConfigMode, peer), TransferUnsupported);
    EXPECT_EQ(peer.Rest(), "");
}

TEST_F(AnalogConfig, IsReadUntilTheRadioEndsIt) {
    AskForLog();
    RadioPeer peer([](RadioPeer& radio) {
        AnswerOpening(radio);
        radio.Say(Config0 + "\r\n" + BadConfig + "\r" + Config1 + "\rCRXX\rCR00:x:01:02:03:F9\r");
    });
    EXPECT_EQ(Transfer(ReadConfigMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), Opening + "UC\r");
    ASSERT_EQ(m_context.ConfigLines.size(), 2u);
    EXPECT_EQ(Text(m_context.ConfigLines[0]), Config0);
    EXPECT_EQ(Text(m_context.ConfigLines[1]), Config1);
    EXPECT_EQ(m_context.Index, 1);
    EXPECT_EQ(LogText(), "Initializing....\nReading Config Data....\n<" + Config0 + "\n<" + BadConfig +
                             "\n<" + Config1 + "\n<CRXX\nTransfer Complete.\n");
}

TEST_F(AnalogConfig, OfARadioThatSetsBitSevenIsRead) {
    AskForLog();
    RadioPeer peer([](RadioPeer& radio) {
        AnswerOpening(radio, Marked("A1.23:SN42:150:3:abc:def\r"));
        radio.Say(Marked(Config0 + "\r\n" + BadConfig + "\r" + Config1 + "\rCRXX\r"));
    });
    EXPECT_EQ(Transfer(ReadConfigMode, peer), TransferComplete);
    ASSERT_EQ(m_context.ConfigLines.size(), 2u);
    EXPECT_EQ(Text(m_context.ConfigLines[0]), Config0);
    EXPECT_EQ(Text(m_context.ConfigLines[1]), Config1);
    EXPECT_EQ(m_context.ConfigCount, 3u);
    EXPECT_EQ(LogText(), "Initializing....\nReading Config Data....\n<" + Config0 + "\n<" + BadConfig +
                             "\n<" + Config1 + "\n<CRXX\nTransfer Complete.\n");
}

TEST_F(AnalogConfig, ForARadioThatSetsBitSevenIsWrittenLineByLine) {
    RadioPeer peer([](RadioPeer& radio) {
        AnswerOpening(radio, Marked("A1.23:SN42:150:3:abc:def\r"));
        for (int line = 0; line < 3; ++line) {
            radio.HearLine();
            radio.Say(Marked("CWOK\r"));
        }
        radio.HearLine();
    });
    EXPECT_EQ(Transfer(WriteConfigMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), Opening + "DC\r" + Config0 + "\r" + Config1 + "\rCR02:y\rEND\r");
}

TEST_F(AnalogConfig, InformationOfARadioThatSetsBitSevenIsKept) {
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.Say(Marked(" B7.89:SN43:150:9:abc:def \r\nrest"));
    });
    EXPECT_EQ(Transfer(ReadInformationMode, peer), TransferComplete);
    EXPECT_EQ(Text(RadioVersion), "7.89");
    EXPECT_EQ(Text(RadioSerial), "SN43");
    EXPECT_EQ(m_context.ProductCode, 11u);
    EXPECT_EQ(m_context.ConfigCount, 9u);
    EXPECT_EQ(Text(m_context.RxBuffer), "rest");
}

TEST_F(AnalogConfig, OfARadioThatFallsSilentTimesOut) {
    RadioPeer peer([](RadioPeer& radio) {
        AnswerOpening(radio);
        radio.Say(Config0 + "\r");
    });
    DialogScript script;
    ExpectDriverBox(script, "Timeout Error\nVerify Radio is in PC Download mode\n"
                            "and correct COM port is selected");
    EXPECT_EQ(Transfer(ReadConfigMode, peer), TransferTimeout);
    EXPECT_EQ(m_context.ConfigLines.size(), 1u);
}

TEST_F(AnalogConfig, CancelledInReadingEndsAtOnce) {
    RadioPeer peer([](RadioPeer& radio) {
        AnswerOpening(radio);
        PressCancel();
    });
    const DialogScript noBox;
    EXPECT_EQ(Transfer(ReadConfigMode, peer), TransferCancelled);
    EXPECT_EQ(peer.Rest(), "");
}

TEST_F(AnalogConfig, WithoutLinesToWriteIsRefused) {
    Retarget(Krv650, 1);
    m_context.ConfigLines.clear();
    RadioPeer peer([](RadioPeer&) {});
    DialogScript script;
    ExpectDriverBox(script, "No data selected for transfer to Radio");
    EXPECT_EQ(Transfer(WriteConfigMode, peer), TransferNoDataSelected);
    EXPECT_EQ(peer.Rest(), "");
}

TEST_F(AnalogConfig, ForARadioWithoutLinesEndsBehindTheCommand) {
    Retarget(Krv650, 1);
    RadioPeer peer([](RadioPeer& radio) { radio.HearLine(); });
    EXPECT_EQ(Transfer(WriteConfigMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "DC\r");
    EXPECT_EQ(peer.Rest(), "");
}

TEST_F(AnalogConfig, IsWrittenLineByLine) {
    AskForLog();
    RadioPeer peer([](RadioPeer& radio) {
        AnswerOpening(radio);
        for (int line = 0; line < 3; ++line) {
            radio.HearLine();
            radio.Say("CWOK\r");
        }
        radio.HearLine();
    });
    EXPECT_EQ(Transfer(WriteConfigMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), Opening + "DC\r" + Config0 + "\r" + Config1 + "\rCR02:y\rEND\r");
    EXPECT_EQ(LogText(), "Initializing....\nWriting Config Data....\n>" + Config0 + "\n<CWOK\n>" + Config1 +
                             "\n<CWOK\n>CR02:y\n<CWOK\n>END\nTransfer Complete.\n");
}

TEST_F(AnalogConfig, ThatIsRefusedStopsAndNamesTheLine) {
    RadioPeer peer([](RadioPeer& radio) {
        AnswerOpening(radio);
        radio.HearLine();
        radio.Say("CWOK\r");
        radio.HearLine();
        radio.Say("CWNO\r");
        radio.HearLine();
    });
    DialogScript script;
    ExpectDriverBox(script, "Radio rejected item: 1");
    EXPECT_EQ(Transfer(WriteConfigMode, peer), TransferCommunicationError);
    EXPECT_EQ(peer.Heard(), Opening + "DC\r" + Config0 + "\r" + Config1 + "\rEND\r");
}

TEST_F(AnalogConfig, ThatIsNotAnsweredCountsAsRefused) {
    RadioPeer peer([](RadioPeer& radio) {
        AnswerOpening(radio);
        radio.HearLine();
        radio.HearLine();
    });
    DialogScript script;
    ExpectDriverBox(script, "Radio rejected item: 0");
    EXPECT_EQ(Transfer(WriteConfigMode, peer), TransferCommunicationError);
    EXPECT_EQ(peer.Heard(), Opening + "DC\r" + Config0 + "\rEND\r");
}

TEST_F(AnalogConfig, CancelledInWritingSendsNothingFurther) {
    RadioPeer peer([](RadioPeer& radio) {
        AnswerOpening(radio);
        radio.HearLine();
        PressCancel();
    });
    const DialogScript noBox;
    EXPECT_EQ(Transfer(WriteConfigMode, peer), TransferCancelled);
    EXPECT_EQ(peer.Heard(), Opening + "DC\r" + Config0 + "\r");
    EXPECT_EQ(peer.Rest(), "");
}

TEST_F(AnalogConfig, InformationIsKept) {
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.Say(" B7.89:SN43:150:9:abc:def \r\nrest");
    });
    EXPECT_EQ(Transfer(ReadInformationMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "SV\r");
    EXPECT_EQ(peer.Rest(), "");
    EXPECT_EQ(Text(RadioVersion), "7.89");
    EXPECT_EQ(Text(RadioSerial), "SN43");
    EXPECT_EQ(Text(m_context.RadioSerial), "SN43");
    EXPECT_EQ(m_context.ProductCode, 11u);
    EXPECT_EQ(m_context.RowCapacity, 500u) << "the page's rows count";
    EXPECT_EQ(m_context.ConfigCount, 9u);
    EXPECT_EQ(Text(m_context.InfoField4), "abc");
    EXPECT_EQ(Text(m_context.InfoField5), "def");
    ASSERT_EQ(m_context.InfoLines.size(), 6u);
    EXPECT_EQ(Text(m_context.InfoLines[1]), "SN43");
    EXPECT_EQ(Text(m_context.RxBuffer), "rest");
    EXPECT_LT(m_took.count(), 900) << "a read of the information has no pause at its end";
}

TEST_F(AnalogConfig, InformationOfARadioThatDoesNotAnswerIsUnknown) {
    RadioPeer peer([](RadioPeer& radio) { radio.HearLine(); });
    EXPECT_EQ(Transfer(ReadInformationMode, peer), TransferComplete);
    EXPECT_EQ(Text(RadioVersion), "UNKNOWN");
    EXPECT_EQ(Text(RadioSerial), "UNKNOWN");
    EXPECT_EQ(m_context.RowCapacity, 500u);
    EXPECT_EQ(m_context.ConfigCount, 0u);
}

TEST_F(AnalogConfig, InformationOfARadioThatIsNotAskedIsUnknown) {
    Retarget(Krv47, 0);
    RadioPeer peer([](RadioPeer&) {});
    EXPECT_EQ(Transfer(ReadInformationMode, peer), TransferComplete);
    EXPECT_EQ(peer.Rest(), "");
    EXPECT_EQ(Text(RadioVersion), "UNKNOWN");
    EXPECT_EQ(m_context.RowCapacity, 122u);
}

TEST_F(AnalogConfig, InformationCancelledSendsNothingFurther) {
    RadioPeer peer([](RadioPeer& radio) {
        radio.Hear(2);
        PressCancel();
        radio.HearLine();
    });
    const DialogScript noBox;
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferCancelled);
    EXPECT_EQ(peer.Heard(), "SV\r");
    EXPECT_EQ(peer.Rest(), "");
}
