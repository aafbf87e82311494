#include "simulator/DigitalMemoryFile.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/simulator/DigitalBench.h"

namespace {

using namespace Simulator;
using namespace digitaltest;
using namespace testbench;

const DigitalModel& B() {
    return *FindDigitalModel("KDRV-716B", "");
}

DigitalMemoryList Loaded(const std::string& path, const DigitalModel& model = B()) {
    DigitalMemoryList list;
    EXPECT_EQ(LoadDigitalMemories(path, model, list), std::nullopt);
    return list;
}

TEST(DigitalMemoryFile, GivesBackWhatWasSaved) {
    const TempFolder folder;
    const std::string path = folder.File("radio.txt");
    const std::string text = "# KDRV-716B FM 136-174\n2 " + Framed(PlainV2(1)) + "\n2 " +
                             Framed(PlainV2(300)) + "\n2 " + Framed(PlainV2(502)) + "\n";
    WriteFile(path, text);
    const DigitalMemoryList list = Loaded(path);
    EXPECT_EQ(list.size(), 3u);
    ASSERT_EQ(SaveDigitalMemories(folder.File("copy.txt"), B(), Layout::V2, list), std::nullopt);
    EXPECT_EQ(ReadFile(folder.File("copy.txt")), text);
}

TEST(DigitalMemoryFile, UsesTheFirstLayoutWhereItHoldsTheMemoryWhole) {
    const TempFolder folder;
    const std::string path = folder.File("radio.txt");
    const std::string fine = With(PlainV2(7), 44, "081B4A6A"); // 136.00625 MHz: a digit too many for text
    const std::string moved = With(PlainV2(8), 16, "0009");
    WriteFile(path, "1 " + Framed(PlainV1(5)) + "\n2 " + Framed(PlainV2(6)) + "\n2 " + Framed(fine) + "\n2 " +
                        Framed(moved) + "\n2 " + Framed(PlainV2(300)) + "\n1 " + Framed(PlainV1(231)) + "\n");
    ASSERT_EQ(SaveDigitalMemories(folder.File("copy.txt"), B(), Layout::V1, Loaded(path)), std::nullopt);
    EXPECT_EQ(ReadFile(folder.File("copy.txt")), "# KDRV-716B FM 136-174\n1 " + Framed(PlainV1(5)) + "\n1 " +
                                                     Framed(PlainV1(6)) + "\n2 " + Framed(fine) + "\n2 " +
                                                     Framed(moved) + "\n2 " + Framed(PlainV2(300)) + "\n1 " +
                                                     Framed(PlainV1(231)) + "\n");
    EXPECT_EQ(Loaded(folder.File("copy.txt")), Loaded(path));
}

TEST(DigitalMemoryFile, ThatIsMissingIsAnEmptyRadio) {
    const TempFolder folder;
    EXPECT_TRUE(Loaded(folder.File("none")).empty());
}

TEST(DigitalMemoryFile, MayHoldCommentsEmptyLinesAndDosLineEnds) {
    const TempFolder folder;
    WriteFile(folder.File("radio.txt"), "# mine\r\n\r\n1 " + Framed(PlainV1(3)) + "\r\n#end");
    EXPECT_EQ(Loaded(folder.File("radio.txt")).count(3), 1u);
}

TEST(DigitalMemoryFile, WithALineThatTheRadioCannotHoldIsRefusedWithItsPlaceAndLeftAlone) {
    const TempFolder folder;
    const std::string path = folder.File("radio.txt");
    const std::string good = "1 " + Framed(PlainV1(3));
    const struct {
        const char* what;
        std::string line;
        const char* why;
    } cases[] = {
        {"no layout", Framed(PlainV1(4)), "begins with neither"},
        {"layout 3", "3 " + Framed(PlainV1(4)), "begins with neither"},
        {"the other layout", "2 " + Framed(PlainV1(4)), "position "},
        {"memory out of range", "2 " + Framed(PlainV2(503)), "position 4"},
        {"shadows", "1 " + Framed(With(PlainV1(4), 108, "01")), "position 108"},
        {"checksum", "1 " + PlainV1(4) + "00", "checksum"},
        {"text", "hello", "begins with neither"},
    };
    for (const auto& bad : cases) {
        const std::string text = good + "\n" + bad.line + "\n";
        WriteFile(path, text);
        DigitalMemoryList list;
        list[9].number = 9;
        const Failure failure = LoadDigitalMemories(path, B(), list);
        ASSERT_TRUE(failure) << bad.what;
        EXPECT_NE(failure->find("radio.txt:2: "), std::string::npos) << bad.what << ": " << *failure;
        EXPECT_NE(failure->find(bad.why), std::string::npos) << bad.what << ": " << *failure;
        EXPECT_EQ(list.size(), 1u) << bad.what;
        EXPECT_EQ(ReadFile(path), text) << bad.what;
    }
}

TEST(DigitalMemoryFile, IsWrittenAtTheEndRecordAndNotAfterARead) {
    const TempFolder folder;
    const std::string path = folder.File("radio.txt");
    Bench bench({"KDRV-716", "--memories", path});
    bench.OpenWrite();
    bench.Tell(Framed(PlainV1(5)));
    EXPECT_EQ(ReadFileIfAny(path), "");
    bench.Tell(End);
    EXPECT_EQ(ReadFile(path), "# KDRV-716 FM 136-174\n1 " + Framed(PlainV1(5)) + "\n");
    WriteFile(path, "");
    bench.ReadAll();
    EXPECT_EQ(bench.Radio().Store(), std::nullopt);
    EXPECT_EQ(ReadFileIfAny(path), "") << "nothing has changed since";
}

TEST(DigitalMemoryFile, LosesWhatWasErased) {
    const TempFolder folder;
    const std::string path = folder.File("radio.txt");
    WriteFile(path, "1 " + Framed(PlainV1(5)) + "\n1 " + Framed(PlainV1(6)) + "\n");
    Bench bench({"KDRV-716", "--memories", path});
    bench.OpenWrite();
    bench.Tell(Framed("T204000510"));
    bench.Tell(End);
    EXPECT_EQ(ReadFile(path), "# KDRV-716 FM 136-174\n1 " + Framed(PlainV1(6)) + "\n");
    bench.OpenWrite();
    bench.Tell(Purge);
    bench.Tell(End);
    EXPECT_EQ(ReadFile(path), "# KDRV-716 FM 136-174\n");
}

} // namespace
