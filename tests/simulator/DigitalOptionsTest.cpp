#include "simulator/DigitalOptions.h"

#include "simulator/Options.h"

#include <gtest/gtest.h>

namespace {

using namespace Simulator;

Options Parsed(std::vector<std::string> arguments) {
    Options options;
    std::string problem;
    arguments.insert(arguments.begin(), {"--model"});
    EXPECT_TRUE(ParseOptions(arguments, options, problem)) << problem;
    return options;
}

TEST(DigitalModels, AreThoseOfTheProductList) {
    const struct {
        const char* text;
        const char* name;
        const char* band;
        int highest;
        int protocol;
        const char* firmware;
    } radios[] = {
        {"KDRV-716", "KDRV-716", "FM 136-174", 232, 0, "010203"},
        {"KDRV-716:FM 136-174", "KDRV-716", "FM 136-174", 232, 0, "010203"},
        {"KDRV-716B", "KDRV-716B", "FM 136-174", 502, 2, "020103"},
        {"KDRV-4xxx:K7", "KDRV-4xxx", "K7", 500, 2, "020103"},
    };
    for (const auto& radio : radios) {
        const Options options = Parsed({radio.text});
        ASSERT_NE(options.digitalModel, nullptr) << radio.text;
        EXPECT_EQ(options.model, nullptr) << radio.text;
        EXPECT_EQ(options.digitalModel->name, radio.name);
        EXPECT_EQ(options.digitalModel->band, radio.band);
        EXPECT_EQ(options.digitalModel->highest, radio.highest);
        EXPECT_EQ(options.digital.habits.protocol, radio.protocol);
        EXPECT_EQ(options.digital.habits.firmware, radio.firmware);
        EXPECT_EQ(options.digital.habits.modes, 0x70);
        EXPECT_EQ(options.name, radio.name);
    }
    EXPECT_EQ(DigitalModels().size(), 3u);
}

TEST(DigitalModels, ShareNoNameWithAnalogBandsButTheModule) {
    EXPECT_EQ(Parsed({"KDRV-4xxx:K6 3-BAND"}).digitalModel, nullptr);
    EXPECT_EQ(FindDigitalModel("KDRV-4xxx", ""), nullptr);
    EXPECT_EQ(FindDigitalModel("KDRV-716", "K7"), nullptr);
    EXPECT_EQ(FindDigitalModel("KRV-214", ""), nullptr);
}

TEST(DigitalCommandLine, SetsEveryOption) {
    const Options options = Parsed({"KDRV-716B", "--protocol", "1", "--firmware", "01020A", "--modes", "5",
                                    "--stamp", "20260102030405", "--serial", "S 7", "--hardware", "h",
                                    "--config", "c", "--debug-log", "d", "--memories", "m"});
    EXPECT_EQ(options.digital.habits.protocol, 1);
    EXPECT_EQ(options.digital.habits.firmware, "01020A");
    EXPECT_EQ(options.digital.habits.modes, 5);
    EXPECT_EQ(options.digital.habits.stamp, "20260102030405");
    EXPECT_EQ(options.digital.habits.serial, "S 7");
    EXPECT_EQ(options.digital.hardwareFile, "h");
    EXPECT_EQ(options.digital.habits.configFile, "c");
    EXPECT_EQ(options.digital.logFile, "d");
    EXPECT_EQ(options.digital.habits.memoryFile, "m");
}

TEST(DigitalCommandLine, PassesOverWhatConcernsTheOtherKindOfRadio) {
    EXPECT_NE(Parsed({"KRV-214", "--protocol", "2", "--firmware", "020103"}).model, nullptr);
    const Options options = Parsed({"KDRV-716", "--key-delay", "0", "--banner", "X", "--parity=all"});
    ASSERT_NE(options.digitalModel, nullptr);
    EXPECT_EQ(options.digital.habits.protocol, 0);
}

TEST(DigitalCommandLine, ThatCannotBeUnderstoodIsRefused) {
    const std::vector<std::vector<std::string>> bad = {
        {"KDRV-716", "--protocol", "3"},
        {"KDRV-716", "--protocol", "02"},
        {"KDRV-716", "--protocol", ""},
        {"KDRV-716B", "--firmware", "2.1"},
        {"KDRV-716B", "--firmware", "02010"},
        {"KDRV-716B", "--firmware", "02010g"},
        {"KDRV-716B", "--firmware", "0201ab"},
        {"KDRV-716B", "--modes", "170"},
        {"KDRV-716B", "--modes", "x"},
        {"KDRV-716B", "--modes", ""},
        {"KDRV-716B", "--stamp", "2026010203040"},
        {"KDRV-716B", "--stamp", "2026010203040A"},
        {"KDRV-716B", "--serial", ""},
        {"KDRV-716B", "--serial", "a\tb"},
        {"KDRV-716B:K7"},
        {"KDRV-4xxx"},
        {"KDRV-716", "--protocol", "2", "--firmware", "020103"}, // V2 records
        {"KDRV-4xxx:K7", "--protocol", "1"},                     // V1 records
        {"KDRV-4xxx:K7", "--firmware", "010203"},
    };
    for (auto arguments : bad) {
        Options options;
        std::string problem;
        arguments.insert(arguments.begin(), {"--model"});
        EXPECT_FALSE(ParseOptions(arguments, options, problem)) << testing::PrintToString(arguments);
        EXPECT_FALSE(problem.empty()) << testing::PrintToString(arguments);
    }
}

TEST(DigitalCommandLine, KnowsEveryKindOfFault) {
    for (const char* text : {"checksum@1", "checksum-always@2", "nak@3", "nak-always@4", "wait@5/2",
                             "joined@6", "linefeed@7", "end@8", "deaf@1", "busy@1"}) {
        std::string problem;
        const auto fault = ParseFault(text, problem);
        ASSERT_TRUE(fault) << text << ": " << problem;
        EXPECT_EQ(FaultText(*fault), text);
        EXPECT_NE(HelpText().find(std::string(text).substr(0, std::string(text).find('@'))),
                  std::string::npos);
    }
}

TEST(DigitalCommandLine, ListNamesTheDigitalRadios) {
    const std::string list = ListText();
    EXPECT_NE(
        list.find(
            "KDRV-716     FM 136-174  232 memories, 2 of them guards, digital, V1 records, protocol 0\n"),
        std::string::npos)
        << list;
    EXPECT_NE(list.find("KDRV-4xxx    K7          500 memories, digital, V2 records, protocol 2\n"),
              std::string::npos)
        << list;
}

} // namespace
