#include "simulator/Options.h"

#include <gtest/gtest.h>

namespace {

using namespace Simulator;
using namespace std::chrono_literals;

Options Parsed(const std::vector<std::string>& arguments) {
    Options options;
    EXPECT_EQ(ParseOptions(arguments, options), std::nullopt);
    return options;
}

TEST(CommandLine, SetsEveryOption) {
    const Options options = Parsed({"--model",
                                    "KRV-650:FM 30-50",
                                    "--memories",
                                    "m.txt",
                                    "--port",
                                    "COM5",
                                    "--ports-dir=/p",
                                    "--name",
                                    "left",
                                    "--pace",
                                    "--banner",
                                    "",
                                    "--short",
                                    "--guard-names",
                                    "--all",
                                    "--no-end",
                                    "--parity=all",
                                    "--key-delay",
                                    "7",
                                    "--fault",
                                    "torn@3",
                                    "--fault=cut@4/2",
                                    "--late",
                                    "80",
                                    "--log",
                                    "l.txt",
                                    "--reply-times",
                                    "r.txt",
                                    "--once"});
    ASSERT_NE(options.model, nullptr);
    EXPECT_EQ(options.model->name, "KRV-650");
    EXPECT_EQ(options.model->band, "FM 30-50");
    EXPECT_EQ(options.habits.memoryFile, "m.txt");
    EXPECT_EQ(options.port, "COM5");
    EXPECT_EQ(options.portsFolder, "/p");
    EXPECT_EQ(options.name, "left");
    EXPECT_TRUE(options.pace);
    EXPECT_EQ(options.habits.banner, "");
    EXPECT_TRUE(options.habits.shortForm);
    EXPECT_TRUE(options.habits.guardNames);
    EXPECT_TRUE(options.habits.allRows);
    EXPECT_FALSE(options.habits.endLine);
    EXPECT_EQ(options.habits.parity, Parity::All);
    EXPECT_EQ(options.habits.keyDelay, 7ms);
    ASSERT_EQ(options.faults.size(), 2u);
    EXPECT_EQ(FaultText(options.faults[0]), "torn@3");
    EXPECT_EQ(FaultText(options.faults[1]), "cut@4/2");
    EXPECT_EQ(options.late, 80ms);
    EXPECT_EQ(options.logFile, "l.txt");
    EXPECT_EQ(options.replyTimesFile, "r.txt");
    EXPECT_TRUE(options.once);
}

TEST(CommandLine, WithoutOptionsPlaysAQuietRadioUnderItsName) {
    const Options options = Parsed({"--model", "KRV-214"});
    EXPECT_EQ(options.name, "KRV-214");
    EXPECT_FALSE(options.habits.banner);
    EXPECT_EQ(options.habits.parity, Parity::None);
    EXPECT_EQ(options.habits.keyDelay, 500ms);
    EXPECT_EQ(options.late, 5500ms);
    EXPECT_TRUE(options.faults.empty());
    EXPECT_FALSE(options.pace);
    EXPECT_FALSE(options.once);
    EXPECT_FALSE(options.habits.shortForm);
    EXPECT_FALSE(options.habits.guardNames);
    EXPECT_FALSE(options.habits.allRows);
    EXPECT_TRUE(options.habits.endLine);
}

TEST(CommandLine, ParityWithoutAValueIsOnAllCharacters) {
    EXPECT_EQ(Parsed({"--model", "KRV-214", "--parity"}).habits.parity, Parity::All);
}

TEST(CommandLine, ParityIsOnTextOnAllCharactersOrOnEveryByte) {
    EXPECT_EQ(Parsed({"--model", "KRV-214", "--parity=text"}).habits.parity, Parity::Text);
    EXPECT_EQ(Parsed({"--model", "KRV-214", "--parity=all"}).habits.parity, Parity::All);
    EXPECT_EQ(Parsed({"--model", "KRV-214", "--parity=bytes"}).habits.parity, Parity::Bytes);
}

TEST(CommandLine, ListAndHelpNeedNoModel) {
    EXPECT_EQ(Parsed({"--list"}).task, Options::Task::List);
    EXPECT_EQ(Parsed({"--help"}).task, Options::Task::Help);
}

TEST(CommandLine, ThatCannotBeUnderstoodIsRefused) {
    const std::vector<std::vector<std::string>> bad = {
        {},
        {"--model"},
        {"--model", "KRV-650"},
        {"--model", "KRV-99"},
        {"--model", "KRV-214:FM 30-50"},
        {"KRV-214"},
        {"--modle", "KRV-214"},
        {"--model", "KRV-214", "--pace=9600"},
        {"--model", "KRV-214", "--key-delay", "soon"},
        {"--model", "KRV-214", "--key-delay", "-1"},
        {"--model", "KRV-214", "--late", "1.5"},
        {"--model", "KRV-214", "--parity=even"},
        {"--model", "KRV-214", "--port", ""},
        {"--model", "KRV-214", "--name", "a/b"},
        {"--model", "KRV-214", "--name", ".hidden"},
        {"--model", "KRV-214", "--name", ""},
        {"--model", "KRV-214", "--fault", "silence"},
        {"--model", "KRV-214", "--fault", "silence@"},
        {"--model", "KRV-214", "--fault", "silence@0"},
        {"--model", "KRV-214", "--fault", "silence@2x"},
        {"--model", "KRV-214", "--fault", "silence@2/0"},
        {"--model", "KRV-214", "--fault", "silence@2/"},
        {"--model", "KRV-214", "--fault", "smoke@2"},
    };
    for (const auto& arguments : bad) {
        Options options;
        const Failure failure = ParseOptions(arguments, options);
        ASSERT_TRUE(failure) << testing::PrintToString(arguments);
        EXPECT_FALSE(failure->empty()) << testing::PrintToString(arguments);
    }
}

TEST(CommandLine, KnowsEveryKindOfFault) {
    for (const char* text :
         {"silence@1", "late-ack@2", "no-ack@3", "noise@4", "torn@5", "cut@6", "unplug@7", "unplug@7/3"}) {
        const auto fault = ParseFault(text);
        ASSERT_TRUE(fault) << fault.Reason();
        EXPECT_EQ(FaultText(*fault), text);
    }
}

TEST(CommandLine, ListNamesEveryModelAndBand) {
    const std::string list = ListText();
    for (const AnalogModel& model : AnalogModels())
        EXPECT_NE(list.find(std::string(model.name)), std::string::npos) << model.name;
    EXPECT_NE(list.find("KRV-214B     FM 138-174  122 memories, 2 of them guards, rt 1\n"), std::string::npos)
        << list;
    EXPECT_NE(list.find("KDRV-8400    AM 225-400  200 memories, HOME starts reading\n"), std::string::npos);
}

} // namespace
