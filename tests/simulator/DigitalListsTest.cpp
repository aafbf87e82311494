// Hardware, configuration and debug log: their files and their transfer.
#include "simulator/DigitalLists.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/simulator/DigitalBench.h"
#include "tests/simulator/RadioLines.h"

namespace {

using namespace Simulator;
using namespace digitaltest;
using namespace testbench;

std::string File(const TempFolder& folder, const std::string& text) {
    WriteFile(folder.File("list"), text);
    return folder.File("list");
}

/// Returns what the radio says to acknowledgements until it ends its list.
std::string Rest(Bench& bench) {
    std::string all;
    for (int k = 0; k < 300 && !all.ends_with(Said(End)); ++k)
        all += bench.Tell(Ack);
    return all;
}

TEST(HardwareList, SendsTheSerialNumberAndTheLinesOfTheFile) {
    const TempFolder folder;
    Bench bench({"KDRV-716B", "--serial", "S1", "--hardware", File(folder, "# mine\nAB\n\nC\n")});
    bench.Open();
    EXPECT_EQ(bench.Tell(SendHardware), "T10500005331"
                                        "76|");
    EXPECT_EQ(bench.Tell(Ack), Said(Framed("T10500004142")));
    EXPECT_EQ(bench.Tell(Nak), Said(Framed("T10500004142"))) << "once more";
    EXPECT_EQ(bench.Tell(Ack), Said(Framed("T104000043")));
    EXPECT_EQ(bench.Tell(Ack), Said(End));
    EXPECT_EQ(bench.Tell(SendHardware), "T1050000533176|") << "it may be asked again";
    EXPECT_EQ(bench.Tell(ReadVersion), Said(Framed("T207000023020103"))) << "and left alone";
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(ConfigRule, IsThatTheBytesOfFourFieldsAndOneAddUpToZero) {
    const struct {
        const char* line;
        bool good;
    } cases[] = {
        {"a:b:FF:00:00:00", true},
        {"a:b:FF:::", true},
        {"a:b:FE:00:00:00", false},
        {"a:b:01020304:10:20:C5:NAME", true},
        {"a:b:01020304:10:20:C6:NAME", false},
        {"a\\:x:b:FF:00:00:00", true},
        {"a:b:FFF:00:00:00", false},
        {"a:b:ff:00:00:00", false},
        {"a:b:xy:00:00:00", false},
        {"a:b:FF:00:00", false},
        {"", false},
    };
    for (const auto& test : cases)
        EXPECT_EQ(!CheckConfig(test.line), test.good) << test.line;
    for (const std::string& line : DefaultConfig())
        EXPECT_EQ(CheckConfig(line), std::nullopt) << line;
}

TEST(ConfigList, IsReadWithItsCount) {
    const TempFolder folder;
    Bench bench({"KDRV-716B", "--config", File(folder, "a:b:FF:::\nc:d:FE:01::\n")});
    bench.Open();
    EXPECT_EQ(bench.Tell(SendConfig), Said(Framed("T20500003402")));
    EXPECT_EQ(Rest(bench), Said(Framed("T10C0000613A623A46463A3A3A")) +
                               Said(Framed("T10E0000633A643A46453A30313A3A")) + Said(End));
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(ConfigList, IsWrittenAsAWholeWhenItHasEnded) {
    const TempFolder folder;
    const std::string path = File(folder, "a:b:FF:::\n");
    Bench bench({"KDRV-716B", "--config", path});
    bench.Open();
    EXPECT_EQ(bench.Tell(TakeConfig), Said(Ack));
    EXPECT_EQ(bench.Tell(Framed("T10C0000633A643A46463A3A3A")), Said(Ack)); // c:d:FF:::
    EXPECT_EQ(bench.Radio().Config(), std::vector<std::string>{"a:b:FF:::"});
    EXPECT_EQ(bench.Tell(End), "");
    EXPECT_EQ(bench.Radio().Config(), std::vector<std::string>{"c:d:FF:::"});
    EXPECT_EQ(ReadFile(path), "c:d:FF:::\n");
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(ConfigList, RefusesLinesThatBreakTheRule) {
    Bench bench({"KDRV-716B"});
    bench.Open();
    bench.Tell(TakeConfig);
    EXPECT_EQ(bench.Tell(Framed("T10C0000633A643A46453A3A3A")), Said(Nak)) << "c:d:FE:::";
    EXPECT_EQ(bench.Tell(Framed("T10C0001633A643A46463A3A3A")), Said(Nak)) << "an address";
    EXPECT_EQ(bench.Tell(Framed("T10D0000633A643A46463A3A3A07")), Said(Nak)) << "a control character";
    EXPECT_EQ(bench.Radio().Violations(), 3);
    bench.Tell(End);
    EXPECT_EQ(bench.Radio().Config(), DefaultConfig());
}

TEST(DebugLog, OfTheSecondGenerationHasEightSamplesInEachRecord) {
    const auto log = DefaultLog(2);
    ASSERT_FALSE(log.empty());
    for (const std::string& record : log)
        EXPECT_EQ(record.size(), 138u) << "position 9, eight samples of 16 characters, and a filler";
    // Flags 01, 12:34:56, states 1 and 2, temperatures 25, 26, -1, 27.
    EXPECT_EQ(log[0].substr(4, 21), "0"
                                    "2000"
                                    "01"
                                    "0C"
                                    "62"
                                    "B8"
                                    "191AFF1B");
}

TEST(DebugLog, OfTheFirstGenerationBeginsItsBlockWithErrorCodeAndInsertPointer) {
    const auto log = DefaultLog(0);
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(DefaultLog(1), log);
    EXPECT_EQ(log[0].substr(4, 19), "0"
                                    "2000"
                                    "0003"
                                    "0123"
                                    "415449")
        << "then the trace";
    EXPECT_EQ(log[1].substr(4, 5), "02020");
}

TEST(DebugLog, TravelsRecordByRecord) {
    const TempFolder folder;
    Bench bench({"KDRV-716B", "--debug-log", File(folder, "# log\n2000 0102\nT10400004A\n")});
    bench.Open();
    EXPECT_EQ(bench.Tell(SendLog), Said(Ack));
    EXPECT_EQ(Rest(bench), Said(Framed("T106"
                                       "0"
                                       "2000"
                                       "0102"
                                       "0")) +
                               Said(Framed("T10400004A")) + Said(End));
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(DebugLog, OfEachProtocolComesWithoutAFile) {
    for (const char* protocol : {"0", "1", "2"}) {
        Bench bench({"KDRV-716B", "--protocol", protocol});
        bench.Open();
        EXPECT_EQ(bench.Tell(SendLog), Said(Ack));
        const std::string all = Rest(bench);
        EXPECT_EQ(CountOf(all, "|"), 3) << all;
        const auto record = ParseRecord(all.substr(0, all.find('|')));
        EXPECT_TRUE(record) << record.Reason();
    }
}

TEST(ListFiles, WithBadLinesAreRefusedWithTheirPlace) {
    const TempFolder folder;
    std::vector<std::string> lines = {"old"};
    const auto expectRefusedAtLine2 = [](const Failure& failure, const char* what) {
        ASSERT_TRUE(failure) << what;
        EXPECT_NE(failure->find("list:2: "), std::string::npos) << what << ": " << *failure;
    };
    for (const char* bad :
         {"xyz", "2000 012", "2000 01 02", "20001 02", "2000 ab", "T10400004", "T10500004A", "2000"})
        expectRefusedAtLine2(LoadLog(File(folder, "2000 01\n" + std::string(bad) + "\n"), lines), bad);
    expectRefusedAtLine2(LoadConfig(File(folder, "a:b:FF:::\na:b:FE:::\n"), lines), "configuration");
    expectRefusedAtLine2(LoadHardware(File(folder, "A\n\x07\n"), lines), "hardware");
    EXPECT_TRUE(LoadHardware(File(folder, std::string(253, 'A')), lines));
    EXPECT_TRUE(LoadHardware(folder.File("none"), lines));
    EXPECT_TRUE(LoadLog(folder.File("none"), lines));
    EXPECT_EQ(LoadConfig(folder.File("none"), lines), std::nullopt) << "made when it is first written";
    EXPECT_EQ(lines, std::vector<std::string>{"old"});
}

} // namespace
