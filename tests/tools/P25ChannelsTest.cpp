#include "tools/P25Channels.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tools/ChannelList.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Tour;
using testbench::TempFolder;

namespace {

/// A primary and its shadow as the simulated radio keeps them, layout and record: address, flags, primary
/// and number, zone; description; mode; receive side with squelch value and NAC; transmit side; unit id.
constexpr const char* PrimaryLine = "2 T143"
                                    "0023001000230023" // memory 35
                                    "0050"             // zone "6"
                                    "5032352052505420" // "P25 RPT "
                                    "2044"
                                    "093C5970" // 154.95 MHz
                                    "52670101A68A2711"
                                    "097A9AF0" // 159.03 MHz
                                    "54670101068A271100000001"
                                    "0000000000000000000000000000"
                                    "00000000"
                                    "00\n";
constexpr const char* ShadowLine = "2 T143"
                                   "0024000100230024" // memory 36, first shadow of 35
                                   "0000"
                                   "525054204F50454E" // "RPT OPEN"
                                   "2044"
                                   "093C5970"
                                   "526D0102A68A2711"
                                   "097A9AF0"
                                   "542D025302931234000003E9"
                                   "0000000000000000000000000000"
                                   "00000000"
                                   "00\n";
constexpr const char* ScannedLine = "2 T143"
                                    "01F6000801F601F6" // memory 502, scanned
                                    "01F0"             // zone "X"
                                    "4755415244202020" // "GUARD"
                                    "206E"
                                    "0A0D1E48" // 168.631880 MHz
                                    "5278010002930001"
                                    "0A0D1E48"
                                    "54782A0002930001000F423F"
                                    "0000000000000000000000000000"
                                    "00000000"
                                    "00\n";
constexpr const char* DefaultsLine = "2 T143"
                                     "0000000000000000"
                                     "0000"
                                     "5648462020313336"
                                     "206E"
                                     "081B3200"
                                     "52780101A2930001"
                                     "0A5F0780"
                                     "547801010293000100000001"
                                     "0000000000000000000000000000"
                                     "00000000"
                                     "00\n";

constexpr const char* FileHead = R"(<?xml version="1.0" encoding="UTF-8"?>
<ZelkMem>
  <Version>1.0.0</Version><Date>1</Date><Time>1</Time><FType>NP25</FType><FRadio>KDRV-716B</FRadio><FBand>FM 136-174</FBand>
  <MEMORY row="0"><MF>0</MF><MN>0</MN><PR>0</PR><SH>N</SH><DS>VHF  136</DS></MEMORY>
)";
constexpr const char* PrimaryRow =
    R"(<MEMORY row="35"><MF>10</MF><MN>035</MN><PR>035</PR><SH>P-1</SH><SC type="RP25">N</SC><ZN>6</ZN><DS>P25 RPT</DS><MD>D</MD>
<RF>154.9500</RF><RS>g</RS><RV>10</RV><RT>67.0</RT><RC>023</RC><RG>2711</RG><RN>68A</RN>
<TF>159.0300</TF><TS>g</TS><TT>67.0</TT><TC>023</TC><TG>2711</TG><TN>68A</TN><TI>0000001</TI>
<S0>036</S0><S1>0</S1><S2>0</S2><S3>0</S3><S4>0</S4><S5>0</S5><S6>0</S6></MEMORY>
)";
constexpr const char* ShadowRow =
    R"(<MEMORY row="36"><MF>01</MF><MN>036</MN><PR>035</PR><SH>S-035</SH><SC type="RP25">N</SC><ZN></ZN><DS>RPT OPEN</DS><MD>D</MD>
<RF>154.9500</RF><RS>m</RS><RV>10</RV><RT>67.0</RT><RC>025</RC><RG>2711</RG><RN>68A</RN>
<TF>159.0300</TF><TS>-</TS><TT>69.3</TT><TC>754</TC><TG>1234</TG><TN>293</TN><TI>0001001</TI>
<S0>0</S0><S1>0</S1><S2>0</S2><S3>0</S3><S4>0</S4><S5>0</S5><S6>0</S6></MEMORY>
)";

class P25Channels : public ::testing::Test {
protected:
    ChannelList OfRadio(const std::string& text) {
        testbench::WriteFile(m_folder / "radio.txt", text);
        return ChannelsOfRadio((m_folder / "radio.txt").string());
    }
    ChannelList OfFile(const std::string& rows) {
        testbench::WriteFile(m_folder / "file.zelk", FileHead + rows + "</ZelkMem>\n");
        return ChannelsOfFile((m_folder / "file.zelk").string());
    }

    TempFolder m_folder;
};

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
    const size_t place = text.find(what);
    EXPECT_NE(place, std::string::npos) << what;
    return place == std::string::npos ? text : text.replace(place, what.size(), by);
}

} // namespace

TEST_F(P25Channels, OfARadioAreReadByThePlacesOfTheNewLayout) {
    const ChannelList channels = OfRadio(ShadowLine);
    ASSERT_EQ(channels.size(), 1u);
    const Channel& channel = channels.at(36);
    EXPECT_EQ(channel.description, "RPT OPEN");
    EXPECT_EQ(channel.receive, "154.95");
    EXPECT_EQ(channel.transmit, "159.03");
    EXPECT_EQ(channel.receiveTone, "67.0");
    EXPECT_EQ(channel.transmitTone, "69.3");
    EXPECT_EQ(channel.receiveCode, "025");
    EXPECT_EQ(channel.transmitCode, "754");
    EXPECT_EQ(channel.scan, 0);
    EXPECT_EQ(channel.mode, 'D');
    ASSERT_TRUE(channel.p25.has_value());
    const P25Facts& facts = *channel.p25;
    EXPECT_EQ(facts.receiveSquelch, "m");
    EXPECT_EQ(facts.transmitSquelch, "-");
    EXPECT_EQ(facts.receiveGroup, "2711");
    EXPECT_EQ(facts.transmitGroup, "1234");
    EXPECT_EQ(facts.receiveNac, "68A");
    EXPECT_EQ(facts.transmitNac, "293");
    EXPECT_EQ(facts.squelchValue, 10);
    EXPECT_EQ(facts.unitId, 1001);
    EXPECT_EQ(facts.zone, "");
    EXPECT_EQ(facts.primary, 35);
    EXPECT_EQ(facts.shadowPlace, 1);
    EXPECT_EQ(facts.link, "S-035");
}

TEST_F(P25Channels, OfARadioTellScanZoneAndFrequenciesToTheHertz) {
    const ChannelList channels = OfRadio(ScannedLine);
    ASSERT_EQ(channels.size(), 1u);
    const Channel& channel = channels.at(502);
    EXPECT_EQ(channel.scan, 1);
    EXPECT_EQ(channel.mode, 'n');
    EXPECT_EQ(channel.receive, "168.63188");
    EXPECT_EQ(channel.transmitTone, "254.8");
    EXPECT_EQ(channel.transmitCode, "OFF");
    EXPECT_EQ(channel.p25->zone, "X");
    EXPECT_EQ(channel.p25->squelchValue, 0);
    EXPECT_EQ(channel.p25->unitId, 999999);
    EXPECT_EQ(channel.p25->link, "N");
}

TEST_F(P25Channels, LeaveOutTheDefaultsOfRadioAndFile) {
    EXPECT_TRUE(OfRadio(std::string("# KDRV-716B\n\n") + DefaultsLine).empty());
    EXPECT_TRUE(OfFile("").empty());
    EXPECT_EQ(OfRadio(std::string(DefaultsLine) + ShadowLine).size(), 1u);
}

TEST_F(P25Channels, OfTheOldLayoutAreRefused) {
    EXPECT_THROW(OfRadio(Replaced(ShadowLine, "2 T1", "1 T1")), std::runtime_error);
    EXPECT_THROW(OfRadio("2 T143002400\n"), std::runtime_error);
}

TEST_F(P25Channels, GivePrimariesTheShadowsThatNameThem) {
    const ChannelList channels = OfRadio(std::string(PrimaryLine) + ShadowLine);
    EXPECT_EQ(channels.at(35).p25->link, "P-1");
    EXPECT_EQ(channels.at(35).p25->shadows, (std::array{36, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(OfRadio(PrimaryLine).at(35).p25->link, "N") << "without a shadow";

    // The third place, by the shadow's flags.
    const ChannelList third =
        OfRadio(PrimaryLine + Replaced(ShadowLine, "0024000100230024", "0024000300230024"));
    EXPECT_EQ(third.at(35).p25->shadows, (std::array{0, 0, 36, 0, 0, 0, 0}));
}

TEST_F(P25Channels, OfFileAndRadioAreEqualWhenTheyMeanTheSame) {
    const std::string radio = std::string(DefaultsLine) + PrimaryLine + ShadowLine;
    EXPECT_EQ(Differences(OfFile(std::string(PrimaryRow) + ShadowRow), OfRadio(radio)),
              std::vector<std::string>{});
}

TEST_F(P25Channels, TakeNumbersFrequenciesAndUnitIdsByTheirValue) {
    std::string row = Replaced(PrimaryRow, "<MN>035</MN><PR>035</PR>", "<MN>35</MN><PR>35</PR>");
    row = Replaced(row, "154.9500", "154.95000");
    row = Replaced(row, "<S0>036</S0>", "<S0>36</S0>");
    row = Replaced(row, "0000001", "1");
    EXPECT_EQ(Differences(OfFile(PrimaryRow), OfFile(row)), std::vector<std::string>{});
    EXPECT_EQ(OfFile(row).at(35).receive, "154.95");
}

TEST_F(P25Channels, TellEveryKindOfDifference) {
    const ChannelList wanted = OfFile(ShadowRow);
    struct Case {
        const char* what;
        const char* element;
        const char* other;
    };
    for (const Case& c : {Case{"flags", "<MF>01", "<MF>02"},
                          Case{"primary", "<PR>035", "<PR>034"},
                          Case{"link", "<SH>S-035", "<SH>S-034"},
                          Case{"scan", ">N</SC>", ">Y</SC>"},
                          Case{"zone", "<ZN>", "<ZN>6"},
                          Case{"description", "RPT OPEN", "RPT OPEM"},
                          Case{"mode", "<MD>D", "<MD>n"},
                          Case{"receive", "154.9500", "154.9501"},
                          Case{"receive squelch", "<RS>m", "<RS>g"},
                          Case{"squelch value", "<RV>10", "<RV>11"},
                          Case{"receive tone", "67.0", "69.3"},
                          Case{"receive code", "<RC>025", "<RC>026"},
                          Case{"receive group", "<RG>2", "<RG>3"},
                          Case{"receive NAC", "<RN>6", "<RN>7"},
                          Case{"transmit", "159.0300", "159.0310"},
                          Case{"transmit squelch", "<TS>-", "<TS>g"},
                          Case{"transmit tone", "<TT>69.3", "<TT>71.9"},
                          Case{"transmit code", "<TC>754", "<TC>743"},
                          Case{"transmit group", "<TG>1", "<TG>3"},
                          Case{"transmit NAC", "<TN>2", "<TN>7"},
                          Case{"unit id", "0001001", "0001002"},
                          Case{"first shadow", "<S0>0", "<S0>1"},
                          Case{"last shadow", "<S6>0", "<S6>1"}}) {
        const std::string row = Replaced(ShadowRow, c.element, c.other);
        EXPECT_EQ(Differences(wanted, OfFile(row)).size(), 1u) << c.what;
    }
    // The report names the difference.
    const auto lines = Differences(wanted, OfFile(Replaced(ShadowRow, "<RN>68A", "<RN>F7E")));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("NACs 68A/293"), std::string::npos) << lines[0];
    EXPECT_NE(lines[0].find("NACs F7E/293"), std::string::npos) << lines[0];
}

TEST_F(P25Channels, ComeBackWithEachCodeOnePlaceFurtherDownTheList) {
    const ChannelList back = AsReadBack(OfFile(std::string(PrimaryRow) + ShadowRow), "031");
    EXPECT_EQ(back.at(35).receiveCode, "025");
    EXPECT_EQ(back.at(35).transmitCode, "025");
    EXPECT_EQ(back.at(36).receiveCode, "026");
    // After the list's end comes the default row's code, which has moved as well.
    EXPECT_EQ(back.at(36).transmitCode, "032");
    EXPECT_EQ(back.at(36).p25, OfFile(ShadowRow).at(36).p25) << "nothing else moves";
}
