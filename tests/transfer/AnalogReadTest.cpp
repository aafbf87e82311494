// Reading channels from an analog radio.
#include "tests/transfer/AnalogDriverTest.h"

using namespace testbench;
using namespace transfertest;

namespace {

constexpr const char* TimeoutBox = "Timeout Error\nVerify Radio is in PC Download mode\n"
                                   "and correct COM port is selected";

class AnalogRead : public AnalogDriverTest {
protected:
    void SetUp() override {
        AnalogDriverTest::SetUp();
        Retarget(Kdrv4xxx, 2); // 200 rows of VHF, no guards, no opening number, no key to press
    }
};

/// A script that receives the opening command and sends a text.
std::function<void(RadioPeer&)> Sending(const std::string& text) {
    return [text](RadioPeer& radio) {
        radio.HearLine();
        radio.Say(text);
    };
}

} // namespace

TEST_F(AnalogRead, FillsTheRowsThatTheRadioSends) {
    AskForLog();
    RadioPeer peer(Sending(RadioLine("001") + RadioLine("007", "139.0000") + "300\r"));
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "ul\r");
    EXPECT_EQ(peer.Rest(), "");
    EXPECT_EQ(FilledRows().size(), 2u);
    EXPECT_EQ(CellText(7, MNUM), "007");
    EXPECT_EQ(CellText(7, RFRQ), "139.0000");
    EXPECT_EQ(CellText(7, TFLG), "C0");
    EXPECT_EQ(CellText(7, BAND), "");
    const auto received = [](std::string line) {
        line.back() = '\n';
        return "<" + line;
    };
    EXPECT_EQ(LogText(), "Initializing....\nReceiving Memory Data....\n" + received(RadioLine("001")) +
                             received(RadioLine("007", "139.0000")) + "Transfer Complete.\n");
}

TEST_F(AnalogRead, IgnoresWhatComesBeforeTheFirstChannel) {
    RadioPeer peer(Sending("RADIO MEMORY LIST\r\n" + RadioLine("005") + "300\rEND\r" +
                           std::string(10000, 'x') + "\r\xFF\xFE\r" + RadioLine("001") + RadioLine("002") +
                           "300\r"));
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(FilledRows().size(), 2u);
    EXPECT_FALSE(RowHasData(5));
}

TEST_F(AnalogRead, CutsTheFirstLineAtItsChannelNumber) {
    RadioPeer peer(Sending("CHANNELS FOLLOW " + RadioLine("001", "138.5000") + "300\r"));
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(FilledRows().size(), 1u);
    EXPECT_EQ(CellText(1, RFRQ), "138.5000");
    EXPECT_EQ(CellText(1, DESC), "RADIO    ");
}

TEST_F(AnalogRead, TakesLineFeedsAndLinesInPieces) {
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        const std::string lines = "\n" + RadioLine("001") + "\n" + RadioLine("002") + "\nEND\r\n";
        for (size_t at = 0; at < lines.size(); at += 13) {
            radio.Say(lines.substr(at, 13));
            radio.Pause(20);
        }
    });
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(FilledRows().size(), 2u);
}

TEST_F(AnalogRead, PassesOverLinesThatNameNoRow) {
    AskForLog();
    RadioPeer peer(
        Sending(RadioLine("001") + RadioLine("201") + RadioLine("abc") + "\r" + RadioLine("002") + "300\r"));
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(FilledRows().size(), 2u);
    EXPECT_EQ(LogText().find("<201"), std::string::npos);
    EXPECT_NE(LogText().find("<002"), std::string::npos);
}

TEST_F(AnalogRead, OfASilentRadioLeavesAnEmptyPageAndTwoBoxes) {
    FillRow(3, "138.0000");
    RadioPeer peer([](RadioPeer& radio) { radio.HearLine(); });
    PortName = peer.PortName();
    DialogScript script;
    ExpectQuestion(script);
    ExpectDriverBox(script, TimeoutBox);
    ExpectBox(script, "Read from Radio Status", "Timeout");
    Download();
    EXPECT_EQ(FilledRows().size(), 0u);
    ExpectOver();
    EXPECT_TRUE(PortIsFree(peer.PortName()));
}

TEST_F(AnalogRead, ThatFallsSilentBeforeTheLastRowTimesOut) {
    AskForLog();
    RadioPeer peer(Sending(RadioLine("001") + RadioLine("198")));
    DialogScript script;
    ExpectDriverBox(script, TimeoutBox);
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferTimeout);
    EXPECT_EQ(FilledRows().size(), 2u);
    EXPECT_TRUE(LogText().ends_with("\n<Timeout>\n")) << LogText();
}

TEST_F(AnalogRead, ThatFallsSilentAtTheLastRowIsComplete) {
    // One row before the last counts as the last.
    RadioPeer peer(Sending(RadioLine("001") + RadioLine("199")));
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(FilledRows().size(), 2u);
}

TEST_F(AnalogRead, OfAPageOfTwoHundredAndTwoRowsDoesNotExpectTheLastTwo) {
    Retarget(Krv610, 0);
    ASSERT_EQ(CurrentParameters().Rows, 202);
    RadioPeer peer(Sending(RadioLine("001") + RadioLine("200")));
    DialogScript script;
    ExpectBox(script, "Read channel data from radio",
              "Close this dialog, then press ENTER on radio to start");
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(m_context.RowCapacity, 200u);
}

TEST_F(AnalogRead, AsksForTheKeyThatStartsTheRadio) {
    const char* const enter = "Close this dialog, then press ENTER on radio to start";
    const char* const home = "Close this dialog, then press HOME on radio to start";
    const std::pair<int, const char*> cases[] = {{8, nullptr}, {9, enter}, {15, enter}, {16, home}};
    for (const auto& [radio, text] : cases) {
        Retarget(radio, 0);
        RadioPeer peer(Sending(RadioLine("001") + "300\r"));
        DialogScript script;
        if (text)
            ExpectBox(script, "Read channel data from radio", text);
        EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete) << radio;
        EXPECT_EQ(FilledRows().size(), 1u) << radio;
    }
}

TEST_F(AnalogRead, OfARadioThatIsOpenedSendsABlankBehindTheCommand) {
    Retarget(Krv305, 0);
    RadioPeer peer([](RadioPeer& radio) {
        radio.Hear(9);
        radio.Say(RadioLine("001", "403.0000") + RadioLine("GD1", "404.0000") + RadioLine("GD2", "405.0000") +
                  "300\r");
    });
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "rt\r3\rul\r ");
    EXPECT_EQ(FilledRows().size(), 3u);
    EXPECT_EQ(CellText(121, MNUM), "121");
    EXPECT_EQ(CellText(122, RFRQ), "405.0000");
}

TEST_F(AnalogRead, OfMoreThanTwoHundredRowsTakesThreeHundredForAChannel) {
    UseAskingRadio(500);
    RadioPeer peer([](RadioPeer& radio) {
        radio.Hear(3 + 6 + 7); // SV, rt and 10, the command and its blank
        radio.Say(RadioLine("001", "031.0000") + RadioLine("300", "225.0000") + "END\r");
    });
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "SV\rrt\r10\rUL500\r ");
    EXPECT_EQ(CellText(300, RFRQ), "225.0000");
    EXPECT_EQ(CellText(300, BAND), "AM 225-400");
}

TEST_F(AnalogRead, OfAModuleRepairsABandThatTheModuleLacks) {
    Retarget(Kdrv4xxx, ModuleSlot);
    RadioPeer peer(Sending(RadioLine("001", "031.0000") + RadioLine("002", "125.0000") +
                           RadioLine("003", "150.0000") + RadioLine("004", "060.0000") + "300\r"));
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(CellText(1, BAND), "FM 30-50");
    EXPECT_EQ(CellText(2, BAND), "AM 108-138");
    for (const int row : {3, 4}) {
        EXPECT_EQ(CellText(row, BAND), CellText(0, BAND)) << row;
        EXPECT_TRUE(CurrentGrid()->GetCellBackgroundColour(row, BAND) == FailColour) << row;
    }
}

TEST_F(AnalogRead, MovesTheMainGaugeToTheRow) {
    int value = -1;
    RadioPeer peer([&](RadioPeer& radio) {
        radio.HearLine();
        radio.Say(RadioLine("001") + RadioLine("120"));
        value = GaugeValue(radio, 120);
        radio.Say("300\r");
    });
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferComplete);
    EXPECT_EQ(value, 120);
}

TEST_F(AnalogRead, CancelledBeforeTheFirstChannelReadsAndSendsNothingFurther) {
    AskForLog();
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.Say("HEADING\r");
        PressCancel();
    });
    const DialogScript noBox;
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferCancelled);
    EXPECT_EQ(peer.Rest(), "");
    EXPECT_EQ(FilledRows().size(), 0u);
    EXPECT_TRUE(LogText().ends_with("\nTransfer cancelled by user.\n")) << LogText();
}

TEST_F(AnalogRead, CancelledAmongTheChannelsKeepsThoseThatCame) {
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.Say(RadioLine("001") + RadioLine("002"));
        GaugeValue(radio, 2);
        PressCancel();
    });
    const DialogScript noBox;
    EXPECT_EQ(Transfer(ReadChannelsMode, peer), TransferCancelled);
    EXPECT_EQ(peer.Rest(), "");
    EXPECT_EQ(FilledRows().size(), 2u);
}

TEST_F(AnalogRead, CancelledThroughTheCommandTellsSoInTheStatusBox) {
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        PressCancel();
    });
    PortName = peer.PortName();
    DialogScript script;
    ExpectQuestion(script);
    ExpectBox(script, "Read from Radio Status", "Cancelled by User");
    Download();
    EXPECT_EQ(FilledRows().size(), 0u);
    ExpectOver();
}

TEST_F(AnalogRead, OverAPortThatVanishesTimesOutAndKeepsWhatCame) {
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.Say(RadioLine("001") + RadioLine("002").substr(0, 30));
        GaugeValue(radio, 1);
        radio.Vanish();
    });
    DialogScript script;
    ExpectDriverBox(script, TimeoutBox);
    EXPECT_EQ(Transfer(ReadChannelsMode, peer.PortName()), TransferTimeout);
    EXPECT_EQ(FilledRows().size(), 1u);
}
