// Everything that a program must not send.
#include "tests/simulator/DigitalBench.h"

namespace {

using namespace Simulator;
using namespace digitaltest;

struct Bad {
    const char* what;
    size_t position;
    const char* text;
    int told = -1; ///< position that the radio reports; without it, the field's own
};

constexpr Bad BadV1[] = {
    {"address", 4, "00E9"},
    {"address of 500", 4, "01F4"},
    {"guard mark on an ordinary memory", 8, "80"},
    {"primary", 10, "E9"},
    {"number that isn't the address", 12, "08"},
    {"low digit of the zone", 14, "11", 15},
    {"control character in the description", 16, "07"},
    {"DEL in the description", 30, "7F"},
    {"separator", 32, "00"},
    {"mode of an analog radio", 34, "4E"},
    {"blank mode", 34, "20"},
    {"digital mode in small letters", 34, "64"},
    {"receive frequency below the band", 36, "3133352E39393939"},
    {"receive frequency above the band", 36, "3137342E30303031"},
    {"receive frequency without a point", 36, "3133363030303030"},
    {"receive frequency with a blank", 36, "3133362E30303020"},
    {"n/a as receive frequency", 36, "6E2F612020202020"},
    {"receive tag", 52, "54"},
    {"receive squelch -", 54, "2D"},
    {"receive squelch i", 54, "69"},
    {"blank receive squelch", 54, "20"},
    {"receive tone", 60, "2B"},
    {"receive code", 62, "53"},
    {"receive code FE", 62, "FE"},
    {"receive NAC", 64, "1000"},
    {"transmit frequency", 68, "3137352E30303030"},
    {"transmit tag", 84, "52"},
    {"transmit squelch m", 86, "6D"},
    {"transmit squelch n", 86, "6E"},
    {"transmit tone", 92, "2B"},
    {"transmit code", 94, "54"},
    {"transmit code FF", 94, "FF"},
    {"transmit ID", 100, "00989680"},
    {"first shadow", 108, "01"},
    {"last shadow", 120, "01", 108},
    {"squelch value", 122, "10"},
    {"first reserved field", 124, "0100"},
    {"high flags", 128, "04"},
    {"second reserved field", 130, "000001"},
};

constexpr Bad BadV2[] = {
    {"address", 4, "01F7"},
    {"flags", 8, "0400"},
    {"primary", 12, "01F7"},
    {"number", 16, "01F7"},
    {"zone", 20, "0200"},
    {"low digit of the zone", 20, "0011", 23},
    {"description", 24, "1F"},
    {"separator", 40, "21"},
    {"mode", 42, "57"},
    {"receive frequency below the band", 44, "081B31FF"},
    {"receive frequency above the band", 44, "0A5F0781"},
    {"receive frequency without its millions", 44, "0000009B"},
    {"receive tag", 52, "72"},
    {"receive squelch", 54, "2D"},
    {"receive tone", 56, "2B"},
    {"receive code", 58, "54"},
    {"transmit frequency", 68, "0A5F0781"},
    {"transmit tag", 76, "52"},
    {"transmit squelch", 78, "6D"},
    {"transmit tone", 80, "2B"},
    {"transmit code", 82, "54"},
    {"transmit ID", 92, "00989680"},
    {"first shadow", 100, "0001"},
    {"last shadow", 124, "0001", 100},
    {"reserved field", 128, "0001"},
    {"last reserved field", 132, "0001", 128},
};

/// Expects a refusal at the field's position; the radio answers NAK, counts it and stores nothing.
void ExpectRefused(Bench& bench, Layout layout, const DigitalModel& model, const Bad& bad,
                   const std::string& body) {
    std::string problem;
    EXPECT_FALSE(ParseMemory(layout, Framed(body), model, problem)) << bad.what;
    const int told = bad.told < 0 ? static_cast<int>(bad.position) : bad.told;
    EXPECT_TRUE(problem.starts_with("position " + std::to_string(told) + ": "))
        << bad.what << ": " << problem;
    const int before = bench.Radio().Violations();
    EXPECT_EQ(bench.Tell(Framed(body)), Said(Nak)) << bad.what;
    EXPECT_EQ(bench.Radio().Violations(), before + 1) << bad.what;
    EXPECT_TRUE(bench.Radio().Memories().empty()) << bad.what;
}

TEST(Refusal, OfEveryWrongFieldOfTheFirstLayout) {
    for (const char* name : {"KDRV-716", "KDRV-716B"}) {
        Bench bench({name, "--protocol", "0", "--firmware", "010203"});
        bench.OpenWrite();
        for (const Bad& bad : BadV1)
            ExpectRefused(bench, Layout::V1, *FindDigitalModel(name, ""), bad,
                          With(PlainV1(7), bad.position, bad.text));
        ExpectRefused(bench, Layout::V1, *FindDigitalModel(name, ""), {"guard without its mark", 8, ""},
                      With(PlainV1(231), 8, "00"));
        EXPECT_EQ(bench.Tell(Framed(PlainV1(7))), Said(Ack));
        EXPECT_EQ(bench.Radio().Memories().size(), 1u);
    }
}

TEST(Refusal, OfEveryWrongFieldOfTheSecondLayout) {
    Bench bench({"KDRV-716B"});
    bench.OpenWrite();
    for (const Bad& bad : BadV2)
        ExpectRefused(bench, Layout::V2, *FindDigitalModel("KDRV-716B", ""), bad,
                      With(PlainV2(7), bad.position, bad.text));
    EXPECT_EQ(bench.Tell(Framed(PlainV2(7))), Said(Ack));
}

TEST(Refusal, OfAMemoryRecordOfAnotherLength) {
    for (const char* protocol : {"0", "2"}) {
        Bench bench({"KDRV-716B", "--protocol", protocol});
        bench.OpenWrite();
        const std::string body = protocol[0] == '2' ? PlainV2(7) : PlainV1(7);
        EXPECT_EQ(bench.Tell(Framed("T142" + body.substr(4, body.size() - 6))), Said(Nak));
        EXPECT_EQ(bench.Tell(Framed("T144" + body.substr(4) + "00")), Said(Nak));
        EXPECT_EQ(bench.Radio().Violations(), 2);
    }
}

TEST(Refusal, OfTheOtherLayout) {
    Bench first({"KDRV-716B", "--protocol", "1"});
    first.OpenWrite();
    EXPECT_EQ(first.Tell(Framed(PlainV2(7))), Said(Nak));
    Bench second({"KDRV-716B"});
    second.OpenWrite();
    EXPECT_EQ(second.Tell(Framed(PlainV1(7))), Said(Nak));
}

TEST(Refusal, OfLinesThatAreNoRecords) {
    Bench bench({"KDRV-716"});
    bench.OpenWrite();
    const std::string good = Framed(PlainV1(7));
    std::string small = good;
    small.back() = static_cast<char>(std::tolower(small.back()));
    int count = 0;
    for (const std::string& line :
         {std::string(), "HELLO" + good, "\n" + good, good + "\n", With(good, 4, "0008"), With(good, 2, "44"),
          good + good, good.substr(0, 100), With(good, 16, "xx"), std::string(2000, 'T')}) {
        EXPECT_EQ(bench.Tell(line), Said(Nak)) << line;
        EXPECT_EQ(bench.Radio().Violations(), ++count) << line;
    }
    EXPECT_EQ(bench.Tell(good), Said(Ack));
}

TEST(Refusal, OfMessagesOutOfTheirPlace) {
    const struct {
        const char* what;
        std::vector<std::string> before;
        std::string line;
    } cases[] = {
        {"message before the hello", {}, ReadVersion},
        {"data before the hello", {}, Framed(PlainV1(7))},
        {"data without an announcement", {Hello1}, Framed(PlainV1(7))},
        {"acknowledgement of nothing", {Hello1}, Ack},
        {"refusal of nothing", {Hello1}, Nak},
        {"erasing without an announcement", {Hello1}, Framed("T204000510")},
        {"purge without an announcement", {Hello1}, Purge},
        {"purge while reading", {Hello1, SendMemories}, Purge},
        {"data while reading", {Hello1, SendMemories}, Framed(PlainV1(7))},
        {"acknowledgement while writing", {Hello1, TakeMemories}, Ack},
        {"question while reading", {Hello1, SendMemories}, ReadVersion},
        {"question while writing", {Hello1, TakeMemories}, ReadVersion},
        {"hello while writing", {Hello1, TakeMemories}, Hello1},
        {"speed change in protocol 1", {Hello1}, ChangeSpeed},
        {"hardware in protocol 1", {Hello1}, SendHardware},
        {"patience asked of the radio", {Hello1}, Wait},
        {"unknown message", {Hello1}, Framed("T204000077")},
        {"version answer to the radio", {Hello1}, Framed("T207000023010203")},
        {"message with an address", {Hello1}, Framed("T204000122")},
        {"message with a byte too many", {Hello1}, Framed("T20500002200")},
        {"stamp that is no number", {Hello1}, Framed("T20B0000212026010100000A")},
        {"stamp of 13 bytes", {Hello1}, Framed("T20A000021202601010000")},
        {"hello without its 03", {}, Framed("T007000021040000")},
        {"hello below 20", {}, Framed("T00700001F030000")},
        {"short hello", {}, Framed("T0060000210300")},
        {"hello with an address", {}, Framed("T007000121030000")},
        {"end with an address", {Hello1}, Framed("T9030001")},
        {"erasing memory 0", {Hello1, TakeMemories}, Framed("T204000010")},
        {"erasing memory 1", {Hello1, TakeMemories}, Framed("T204000110")},
        {"erasing a guard", {Hello1, TakeMemories}, Framed("T20400E710")},
    };
    for (const auto& wrong : cases) {
        Bench bench({"KDRV-716", "--protocol", "1"});
        for (const std::string& line : wrong.before)
            ASSERT_EQ(bench.Tell(line), Said(Ack)) << wrong.what;
        ASSERT_EQ(bench.Radio().Violations(), 0) << wrong.what;
        EXPECT_EQ(bench.Tell(wrong.line), Said(Nak)) << wrong.what;
        EXPECT_EQ(bench.Radio().Violations(), 1) << wrong.what;
    }
}

TEST(Refusal, OfEverythingButTheSpeedChangeAtTheOldSpeed) {
    Bench bench({"KDRV-716B"});
    EXPECT_EQ(bench.Tell(Hello2), Said(Ack));
    EXPECT_EQ(bench.Tell(ReadVersion), Said(Nak));
    EXPECT_EQ(bench.Tell(Framed("T2060000320960")), Said(Nak)) << "another speed";
    EXPECT_EQ(bench.Radio().Violations(), 2);
    EXPECT_EQ(bench.Tell(ChangeSpeed), Said(Ack));
    bench.SetSpeed(115200);
    EXPECT_EQ(bench.Tell(ChangeSpeed), Said(Nak)) << "only once";
}

TEST(Refusal, OfErasingBeyondTheOrdinaryMemories) {
    Bench bench({"KDRV-716B"});
    bench.OpenWrite();
    EXPECT_EQ(bench.Tell(Framed("T20401F410")), Said(Ack)) << "500";
    EXPECT_EQ(bench.Tell(Framed("T20401F510")), Said(Nak)) << "501";
    EXPECT_EQ(bench.Radio().Violations(), 1);
}

} // namespace
