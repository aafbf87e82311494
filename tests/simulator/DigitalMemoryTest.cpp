#include "simulator/DigitalMemory.h"

#include "tests/simulator/DigitalBench.h"

namespace {

using namespace Simulator;
using namespace digitaltest;

const DigitalModel& A() {
    return *FindDigitalModel("KDRV-716", "");
}
const DigitalModel& B() {
    return *FindDigitalModel("KDRV-716B", "");
}
const DigitalModel& Module() {
    return *FindDigitalModel("KDRV-4xxx", "K7");
}

DigitalMemory Parsed(Layout layout, const std::string& body, const DigitalModel& model) {
    std::string problem;
    const auto memory = ParseMemory(layout, Framed(body), model, problem);
    EXPECT_TRUE(memory) << body << ": " << problem;
    return memory.value_or(DigitalMemory{});
}

// Memory 5 "TOWER 1": zone 4, narrow, 154.1234 and 155.0125 MHz, squelch t and c.
constexpr char WorkedV1[] = "T143"
                            "0005"
                            "08"
                            "05"
                            "05"
                            "30"
                            "544F574552203120"
                            "20"
                            "6E"
                            "3135342E31323334"
                            "52"
                            "74"
                            "0001"
                            "0C"
                            "05"
                            "0293"
                            "3135352E30313235"
                            "54"
                            "63"
                            "FFFF"
                            "00"
                            "07"
                            "1ABC"
                            "00003039"
                            "00000000000000"
                            "0A"
                            "0000"
                            "02"
                            "000000"
                            "4E";
// Memory 501 "GUARD 1": zone X, digital, 154.1234 and 155.0125 MHz, squelch m and g.
constexpr char WorkedV2[] = "T143"
                            "01F5"
                            "0011"
                            "01F5"
                            "01F5"
                            "01F0"
                            "4755415244203120"
                            "20"
                            "44"
                            "092FBC88"
                            "52"
                            "6D"
                            "00"
                            "53"
                            "A293"
                            "ABCD"
                            "093D4D94"
                            "54"
                            "67"
                            "2A"
                            "01"
                            "0F7E"
                            "0001"
                            "0098967F"
                            "0000000000000000000000000000"
                            "00000000"
                            "0D";

TEST(MemoryRecordV1, IsReadFieldByField) {
    std::string problem;
    const auto memory = ParseMemory(Layout::V1, WorkedV1, A(), problem);
    ASSERT_TRUE(memory) << problem;
    EXPECT_EQ(memory->address, 5);
    EXPECT_EQ(memory->number, 5);
    EXPECT_EQ(memory->primary, 5);
    EXPECT_EQ(memory->flags, 0x208);
    EXPECT_EQ(memory->zone, 3);
    EXPECT_EQ(memory->description, "TOWER 1 ");
    EXPECT_EQ(memory->mode, 'n');
    EXPECT_EQ(memory->rxFrequency, 154'123'400);
    EXPECT_EQ(memory->rxSquelch, 't');
    EXPECT_EQ(memory->rxTalkGroup, 1);
    EXPECT_EQ(memory->rxTone, 12);
    EXPECT_EQ(memory->rxCode, 6) << "received codes count from 0";
    EXPECT_EQ(memory->rxNac, 0x293);
    EXPECT_EQ(memory->txFrequency, 155'012'500);
    EXPECT_EQ(memory->txSquelch, 'c');
    EXPECT_EQ(memory->txTalkGroup, 0xFFFF);
    EXPECT_EQ(memory->txTone, 0);
    EXPECT_EQ(memory->txCode, 7);
    EXPECT_EQ(memory->txNac, 0x1ABC);
    EXPECT_EQ(memory->txId, 12345);
    EXPECT_EQ(memory->squelchValue, 10);
    EXPECT_EQ(FormatMemory(Layout::V1, *memory, {}, A()), WorkedV1);
}

TEST(MemoryRecordV2, IsReadFieldByField) {
    std::string problem;
    const auto memory = ParseMemory(Layout::V2, WorkedV2, B(), problem);
    ASSERT_TRUE(memory) << problem;
    EXPECT_EQ(memory->address, 501);
    EXPECT_EQ(memory->number, 501);
    EXPECT_EQ(memory->primary, 501);
    EXPECT_EQ(memory->flags, 0x11);
    EXPECT_EQ(memory->zone, 31);
    EXPECT_EQ(memory->description, "GUARD 1 ");
    EXPECT_EQ(memory->mode, 'D');
    EXPECT_EQ(memory->rxFrequency, 154'123'400);
    EXPECT_EQ(memory->rxSquelch, 'm');
    EXPECT_EQ(memory->rxTone, 0);
    EXPECT_EQ(memory->rxCode, 83);
    EXPECT_EQ(memory->squelchValue, 10);
    EXPECT_EQ(memory->rxNac, 0x293);
    EXPECT_EQ(memory->rxTalkGroup, 0xABCD);
    EXPECT_EQ(memory->txFrequency, 155'012'500);
    EXPECT_EQ(memory->txSquelch, 'g');
    EXPECT_EQ(memory->txTone, 42);
    EXPECT_EQ(memory->txCode, 1);
    EXPECT_EQ(memory->txNac, 0xF7E);
    EXPECT_EQ(memory->txTalkGroup, 1);
    EXPECT_EQ(memory->txId, 9'999'999);
    EXPECT_EQ(FormatMemory(Layout::V2, *memory, {}, B()), WorkedV2);
}

TEST(MemoryRecordV1, GuardsOfTheLongerListTravelAs231And232) {
    for (unsigned wire : {231u, 232u}) {
        const DigitalMemory guard = Parsed(Layout::V1, PlainV1(wire), B());
        EXPECT_EQ(guard.address, static_cast<int>(wire) + 270);
        EXPECT_EQ(guard.number, guard.address);
        EXPECT_EQ(guard.primary, guard.address);
        EXPECT_EQ(guard.flags, 0) << "the guard mark is no flag";
        EXPECT_EQ(FormatMemory(Layout::V1, guard, {}, B()), Framed(PlainV1(wire)));
        EXPECT_EQ(FormatMemory(Layout::V2, guard, {}, B()), Framed(PlainV2(wire + 270)));
        EXPECT_EQ(Parsed(Layout::V1, PlainV1(wire), A()).address, static_cast<int>(wire));
    }
}

TEST(MemoryRecordV1, HasNoNumberForTheMiddleOfTheLongerList) {
    for (unsigned number : {231u, 300u, 500u})
        EXPECT_EQ(FormatMemory(Layout::V1, Parsed(Layout::V2, PlainV2(number), B()), {}, B()), "") << number;
    EXPECT_NE(FormatMemory(Layout::V1, Parsed(Layout::V2, PlainV2(230), B()), {}, B()), "");
}

TEST(MemoryRecord, OfOneLayoutTellsTheSameInTheOther) {
    for (unsigned number : {0u, 1u, 230u})
        EXPECT_EQ(Parsed(Layout::V1, With(PlainV1(number), 62, "05"), B()),
                  Parsed(Layout::V2, With(PlainV2(number), 58, "06"), B()))
            << number;
}

// Odd values that a program may send.
TEST(MemoryRecordV1, TakesEveryOddValueThatIsAllowed) {
    const struct {
        const char* what;
        size_t position;
        const char* text;
    } cases[] = {
        {"all flags", 8, "7F"},
        {"both high flags", 128, "03"},
        {"no primary", 10, "00"},
        {"highest primary", 10, "E8"},
        {"highest zone", 14, "F0"},
        {"empty description", 16, "2020202020202020"},
        {"description with a brace", 16, "7B7D7E2020202020"},
        {"wide mode", 34, "77"},
        {"digital mode", 34, "44"},
        {"no receive frequency", 36, "3030302E30303030"},
        {"high end of the band", 36, "3137342E30303030"},
        {"low end of the band", 68, "3133362E30303030"},
        {"no transmit frequency", 68, "3030302E30303030"},
        {"no receive tone", 60, "00"},
        {"last receive tone", 60, "2A"},
        {"no receive code", 62, "FF"},
        {"last receive code", 62, "52"},
        {"no transmit code", 94, "00"},
        {"last transmit code", 94, "53"},
        {"last transmit tone", 92, "2A"},
        {"highest receive NAC", 64, "0FFF"},
        {"transmit NAC of 16 bits", 96, "FFFF"},
        {"highest transmit ID", 100, "0098967F"},
        {"no squelch value", 122, "00"},
        {"highest squelch value", 122, "0F"},
        {"receive squelch x", 54, "78"},
        {"receive squelch c", 54, "63"},
        {"receive squelch n", 54, "6E"},
        {"receive squelch g", 54, "67"},
        {"transmit squelch -", 86, "2D"},
        {"transmit squelch i", 86, "69"},
    };
    for (const auto& good : cases)
        for (const DigitalModel* model : {&A(), &B()}) {
            const std::string body = With(PlainV1(7), good.position, good.text);
            const DigitalMemory memory = Parsed(Layout::V1, body, *model);
            EXPECT_EQ(FormatMemory(Layout::V1, memory, {}, *model), Framed(body)) << good.what;
        }
}

TEST(MemoryRecordV2, TakesEveryOddValueThatIsAllowed) {
    const struct {
        const char* what;
        size_t position;
        const char* text;
    } cases[] = {
        {"a number that isn't its place", 16, "0141"},
        {"all flags", 8, "03FF"},
        {"no primary", 12, "0000"},
        {"highest primary", 12, "01F6"},
        {"no number", 16, "0000"},
        {"unknown zone", 20, "0000"},
        {"highest zone", 20, "01F0"},
        {"no receive frequency", 44, "00000000"},
        {"high end of the band", 44, "0A5F0780"},
        {"no transmit frequency", 68, "00000000"},
        {"no receive tone", 56, "00"},
        {"no receive code", 58, "00"},
        {"last receive code", 58, "53"},
        {"squelch value and NAC at their highest", 60, "FFFF"},
        {"last transmit code", 82, "53"},
        {"transmit NAC of 16 bits", 84, "FFFF"},
        {"highest transmit ID", 92, "0098967F"},
    };
    for (const auto& good : cases) {
        const std::string body = With(PlainV2(7), good.position, good.text);
        EXPECT_EQ(FormatMemory(Layout::V2, Parsed(Layout::V2, body, B()), {}, B()), Framed(body))
            << good.what;
    }
}

TEST(MemoryRecordV2, OfTheModuleKnowsItsBandsAndItsAnalogChannels) {
    const std::string blank = With(With(PlainV2(500), 54, "20"), 78, "20");
    for (const char* mode : {"57", "4E", "20"})
        Parsed(Layout::V2, With(blank, 42, mode), Module());
    for (const char* hertz : {"01C9C380", "01D905C0", "0280DE80", "03EF1480", "066FF300", "081B3200",
                              "0D693A40", "18054AC0", "2E9DF500", "39387000"})
        Parsed(Layout::V2, With(With(blank, 44, hertz), 68, hertz), Module());
    Parsed(Layout::V2, With(With(blank, 58, "54"), 82, "54"), Module());
    std::string problem;
    EXPECT_FALSE(ParseMemory(Layout::V2, Framed(With(blank, 44, "03938700")), Module(), problem)) << "60 MHz";
    EXPECT_FALSE(ParseMemory(Layout::V2, Framed(PlainV2(501)), Module(), problem)) << "no memory 501";
    EXPECT_FALSE(ParseMemory(Layout::V2, Framed(blank), B(), problem)) << "a P25 radio needs squelch letters";
}

TEST(ShadowFields, ArePutTogetherFromTheShadowsThatAreHeld) {
    DigitalMemoryList list;
    list[5] = Parsed(Layout::V2, With(PlainV2(5), 8, "0010"), B());
    list[9] = Parsed(Layout::V2, With(With(PlainV2(9), 8, "0001"), 12, "0005"), B());
    list[300] = Parsed(Layout::V2, With(With(PlainV2(300), 8, "0007"), 12, "0005"), B());
    list[11] = Parsed(Layout::V2, With(PlainV2(11), 8, "0002"), B());  // follows itself
    list[12] = Parsed(Layout::V2, With(PlainV2(12), 12, "0005"), B()); // no shadow
    EXPECT_EQ(ShadowsOf(list[5], list), (ShadowSlots{9, 0, 0, 0, 0, 0, 300}));
    EXPECT_EQ(ShadowsOf(list[11], list), ShadowSlots{});
    EXPECT_EQ(FormatMemory(Layout::V2, list[5], ShadowsOf(list[5], list), B()),
              Framed(With(With(With(PlainV2(5), 8, "0010"), 100, "0009"), 124, "012C")));
    EXPECT_EQ(FormatMemory(Layout::V1, list[5], {9, 0, 0, 0, 0, 0, 230}, B()),
              Framed(With(With(With(PlainV1(5), 8, "10"), 108, "09"), 120, "E6")));
}

} // namespace
