#include "simulator/MemoryList.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/simulator/RadioLines.h"

#include <gtest/gtest.h>

namespace {

using namespace testbench;
using namespace Simulator;

const AnalogModel& Krv214() {
    return **FindAnalogModel("KRV-214", "");
}

MemoryList Memories(std::initializer_list<int> numbers) {
    MemoryList list;
    for (int number : numbers)
        list[number] = *ParseLongLine(VhfLine(NumberField(number)), Krv214(), 102);
    return list;
}

TEST(MemoryFile, GivesBackWhatWasSaved) {
    const TempFolder folder;
    const MemoryList saved = Memories({1, 17, 102});
    ASSERT_EQ(SaveMemories(folder.File("radio.txt"), Krv214(), saved), std::nullopt);
    EXPECT_EQ(ReadFile(folder.File("radio.txt")), "# KRV-214 FM 138-174\n" + VhfLine("001") + "\n" +
                                                      VhfLine("017") + "\n" + VhfLine("102") + "\n");
    EXPECT_EQ(ReadFileIfAny(folder.File("radio.txt.new")), "");
    MemoryList loaded;
    ASSERT_EQ(LoadMemories(folder.File("radio.txt"), Krv214(), loaded), std::nullopt);
    EXPECT_EQ(loaded, saved);
}

TEST(MemoryFile, ThatIsMissingIsAnEmptyRadio) {
    const TempFolder folder;
    MemoryList loaded;
    EXPECT_EQ(LoadMemories(folder.File("none.txt"), Krv214(), loaded), std::nullopt);
    EXPECT_TRUE(loaded.empty());
}

TEST(MemoryFile, MayHoldCommentsEmptyLinesAndDosLineEnds) {
    const TempFolder folder;
    WriteFile(folder.File("radio.txt"), "# mine\r\n\r\n" + VhfLine("003") + "\r\n\n#end");
    MemoryList loaded;
    ASSERT_EQ(LoadMemories(folder.File("radio.txt"), Krv214(), loaded), std::nullopt);
    EXPECT_EQ(loaded, Memories({3}));
}

TEST(MemoryFile, WithALineThatTheRadioCannotHoldIsRefusedWithItsPlace) {
    const TempFolder folder;
    WriteFile(folder.File("radio.txt"), VhfLine("003") + "\n" + VhfLine("103") + "\n");
    MemoryList loaded = Memories({9});
    const Failure failure = LoadMemories(folder.File("radio.txt"), Krv214(), loaded);
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->find("radio.txt:2: position 0"), std::string::npos) << *failure;
    EXPECT_EQ(loaded, Memories({9}));
}

TEST(MemoryFile, ThatCannotBeWrittenIsReported) {
    const TempFolder folder;
    const Failure failure = SaveMemories(folder.File("no/such/folder.txt"), Krv214(), Memories({1}));
    ASSERT_TRUE(failure);
    EXPECT_FALSE(failure->empty());
}

} // namespace
