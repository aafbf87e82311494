#include "tools/ChannelList.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"

#include <gtest/gtest.h>

using namespace Tour;
using testbench::TempFolder;

namespace {

/// A channel as the simulated radio keeps it: tone 25 is 156.7, scan lists 1 and 3.
constexpr const char* RadioLine =
    "007 VCALL10   155.7525RX 039.4600TX CTCSS: 25RX 64TX DPL: 000RX 023TX 1_3__N\n";

constexpr const char* FileText = R"(<?xml version="1.0" encoding="UTF-8"?>
<ZelkMem>
  <Version>1.0.0</Version><Date>1</Date><Time>1</Time><FType>ANFM</FType><FRadio>KRV-214</FRadio><FBand>FM 138-174</FBand>
  <MEMORY row="0"><MN>000</MN><DS>DEFAULT</DS></MEMORY>
  <MEMORY row="7"><MN>007</MN><SC type="ANFM">5</SC><DS>VCALL10</DS><MD>N</MD><RF>155.7525</RF><RT>156.7</RT><RC>n/a</RC><TF>39.4600</TF><TT>OFF</TT><TC>023</TC></MEMORY>
</ZelkMem>
)";

class ChannelLists : public ::testing::Test {
protected:
    ChannelList OfRadio(const std::string& text) {
        testbench::WriteFile(m_folder / "radio.txt", text);
        return ChannelsOfRadio((m_folder / "radio.txt").string());
    }
    ChannelList OfFile(const std::string& text) {
        testbench::WriteFile(m_folder / "file.zelk", text);
        return ChannelsOfFile((m_folder / "file.zelk").string());
    }

    TempFolder m_folder;
};

} // namespace

TEST_F(ChannelLists, OfARadioAreReadByColumn) {
    const ChannelList channels = OfRadio(std::string("# a comment\n\n") + RadioLine);
    ASSERT_EQ(channels.size(), 1u);
    const Channel& channel = channels.at(7);
    EXPECT_EQ(channel.description, "VCALL10");
    EXPECT_EQ(channel.receive, "155.7525");
    EXPECT_EQ(channel.transmit, "39.4600");
    EXPECT_EQ(channel.receiveTone, "156.7");
    EXPECT_EQ(channel.transmitTone, "OFF");
    EXPECT_EQ(channel.receiveCode, "OFF");
    EXPECT_EQ(channel.transmitCode, "023");
    EXPECT_EQ(channel.scan, 5);
    EXPECT_EQ(channel.mode, 'N');
}

TEST_F(ChannelLists, OfAFileLeaveOutTheDefaultRow) {
    const ChannelList channels = OfFile(FileText);
    ASSERT_EQ(channels.size(), 1u);
    EXPECT_EQ(channels.begin()->first, 7);
}

TEST_F(ChannelLists, OfFileAndRadioAreEqualWhenTheyMeanTheSame) {
    EXPECT_EQ(Differences(OfFile(FileText), OfRadio(RadioLine)), std::vector<std::string>{});
}

TEST_F(ChannelLists, TellEveryKindOfDifference) {
    const ChannelList wanted = OfFile(FileText);
    struct Case {
        const char* what;
        size_t position;
        const char* text;
    };
    for (const Case& c :
         {Case{"description", 4, "X"}, Case{"receive", 21, "0"}, Case{"transmit", 32, "5"},
          Case{"receive tone", 43, "24"}, Case{"transmit tone", 48, "01"}, Case{"receive code", 58, "025"},
          Case{"transmit code", 64, "000"}, Case{"scan", 70, "_"}, Case{"mode", 75, "W"}}) {
        std::string line = RadioLine;
        line.replace(c.position, std::string(c.text).size(), c.text);
        EXPECT_EQ(Differences(wanted, OfRadio(line)).size(), 1u) << c.what << ": " << line;
    }
}

TEST_F(ChannelLists, TellChannelsThatOneSideLacks) {
    const ChannelList one = OfRadio(RadioLine);
    EXPECT_EQ(Differences(one, {}).size(), 1u);
    EXPECT_EQ(Differences({}, one).size(), 1u);
}
