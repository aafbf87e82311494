#include "simulator/MemoryList.h"

#include "tests/simulator/PortClient.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

using namespace testbench;
using namespace Simulator;

const AnalogModel& Krv214() {
    std::string problem;
    return *FindAnalogModel("KRV-214", "", problem);
}

MemoryList Memories(std::initializer_list<int> numbers) {
    MemoryList list;
    for (int number : numbers) {
        std::string problem;
        list[number] = *ParseLongLine(VhfLine(NumberField(number)), Krv214(), 102, problem);
    }
    return list;
}

TEST(MemoryFile, GivesBackWhatWasSaved) {
    const TempFolder folder;
    const MemoryList saved = Memories({1, 17, 102});
    std::string problem;
    ASSERT_TRUE(SaveMemories(folder / "radio.txt", Krv214(), saved, problem)) << problem;
    EXPECT_EQ(ReadFile(folder / "radio.txt"), "# KRV-214 FM 138-174\n" + VhfLine("001") + "\n" +
                                                  VhfLine("017") + "\n" + VhfLine("102") + "\n");
    EXPECT_EQ(ReadFileIfAny(folder / "radio.txt.new"), "");
    MemoryList loaded;
    ASSERT_TRUE(LoadMemories(folder / "radio.txt", Krv214(), loaded, problem)) << problem;
    EXPECT_EQ(loaded, saved);
}

TEST(MemoryFile, ThatIsMissingIsAnEmptyRadio) {
    const TempFolder folder;
    MemoryList loaded;
    std::string problem;
    EXPECT_TRUE(LoadMemories(folder / "none.txt", Krv214(), loaded, problem));
    EXPECT_TRUE(loaded.empty());
}

TEST(MemoryFile, MayHoldCommentsEmptyLinesAndDosLineEnds) {
    const TempFolder folder;
    std::ofstream(folder / "radio.txt") << "# mine\r\n\r\n" << VhfLine("003") << "\r\n\n#end";
    MemoryList loaded;
    std::string problem;
    ASSERT_TRUE(LoadMemories(folder / "radio.txt", Krv214(), loaded, problem)) << problem;
    EXPECT_EQ(loaded, Memories({3}));
}

TEST(MemoryFile, WithALineThatTheRadioCannotHoldIsRefusedWithItsPlace) {
    const TempFolder folder;
    std::ofstream(folder / "radio.txt") << VhfLine("003") << "\n" << VhfLine("103") << "\n";
    MemoryList loaded = Memories({9});
    std::string problem;
    EXPECT_FALSE(LoadMemories(folder / "radio.txt", Krv214(), loaded, problem));
    EXPECT_NE(problem.find("radio.txt:2: position 0"), std::string::npos) << problem;
    EXPECT_EQ(loaded, Memories({9}));
}

TEST(MemoryFile, ThatCannotBeWrittenIsReported) {
    const TempFolder folder;
    std::string problem;
    EXPECT_FALSE(SaveMemories(folder / "no/such/folder.txt", Krv214(), Memories({1}), problem));
    EXPECT_FALSE(problem.empty());
}

} // namespace
