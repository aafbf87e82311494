// What only the example files of P25 radios contain: zones, shadows, digital squelch.
#include "tests/examples/ExampleFiles.h"

#include <map>
#include <set>

using namespace exampletest;

namespace {

/// The files of P25 radios.
std::vector<ExampleFile> P25Files() {
    std::vector<ExampleFile> files;
    std::copy_if(Files.begin(), Files.end(), std::back_inserter(files), IsP25);
    return files;
}

class P25ExampleFiles : public ExampleFiles {
protected:
    const Memory* FindNumber(const std::string& number) const {
        const auto found = std::find_if(m_memories.begin(), m_memories.end(), [&](const Memory& memory) {
            return memory.row != 0 && memory.Get("MN") == number;
        });
        return found == m_memories.end() ? nullptr : &*found;
    }
};

INSTANTIATE_TEST_SUITE_P(, P25ExampleFiles, testing::ValuesIn(P25Files()), NameOfFile);

constexpr const char* ShadowSlots[] = {"S0", "S1", "S2", "S3", "S4", "S5", "S6"};

} // namespace

TEST_P(P25ExampleFiles, HoldTwoPrimariesWithThreeAndTwoShadows) {
    std::map<std::string, std::string> links;
    for (const Memory& memory : GetChannels()) {
        if (memory.Get("SH") != "N") {
            links[memory.Get("DS")] = memory.Get("SH");
        }
    }
    const Memory* p25Tac1 = FindNumber("031");
    ASSERT_NE(p25Tac1, nullptr);
    EXPECT_EQ(p25Tac1->Get("DS"), "P25 TAC1");
    const std::map<std::string, std::string> expected{
        {"P25 TAC1", "P-3"}, {"TAC1 ALL", "S-031"}, {"TAC1 CMD", "S-031"}, {"TAC1 FM", "S-031"},
        {"P25 RPT", "P-2"},  {"RPT OPEN", "S-035"}, {"RPT DPL", "S-035"},
    };
    EXPECT_EQ(links, expected);
}

TEST_P(P25ExampleFiles, NameEachShadowAtItsPlaceInItsPrimary) {
    for (const Memory& memory : GetChannels()) {
        SCOPED_TRACE("row " + std::to_string(memory.row));
        const unsigned flags = GetFlags(memory);
        const unsigned place = flags & 0x07;
        EXPECT_EQ(flags & ~0x1Fu, 0u);
        EXPECT_EQ(place != 0, IsShadow(memory));
        EXPECT_EQ((flags & 0x10) != 0, memory.Get("SH").starts_with("P-"));
        if (!IsShadow(memory)) {
            EXPECT_EQ(memory.Get("PR"), memory.Get("MN")) << "is its own primary";
            continue;
        }
        EXPECT_EQ(memory.Get("SH"), "S-" + memory.Get("PR"));
        EXPECT_EQ(memory.Get("ZN"), "");
        const Memory* primary = FindNumber(memory.Get("PR"));
        ASSERT_NE(primary, nullptr);
        EXPECT_EQ(primary->Get(ShadowSlots[place - 1]), memory.Get("MN"));
        EXPECT_EQ(memory.Get("RF"), primary->Get("RF"));
        EXPECT_EQ(memory.Get("TF"), primary->Get("TF"));
        for (const char* slot : ShadowSlots) {
            EXPECT_EQ(memory.Get(slot), "0") << "a shadow has none";
        }
    }
}

TEST_P(P25ExampleFiles, CountInEachPrimaryTheShadowsOfItsList) {
    for (const Memory& memory : GetChannels()) {
        SCOPED_TRACE("row " + std::to_string(memory.row));
        int shadows = 0;
        for (const char* slot : ShadowSlots) {
            const std::string number = memory.Get(slot);
            if (number == "0") {
                continue;
            }
            ++shadows;
            const Memory* shadow = FindNumber(number);
            ASSERT_NE(shadow, nullptr) << number;
            EXPECT_EQ(shadow->Get("PR"), memory.Get("MN")) << number;
            EXPECT_TRUE(IsShadow(*shadow)) << number;
        }
        if (!IsShadow(memory)) {
            EXPECT_EQ(memory.Get("SH"), shadows == 0 ? "N" : "P-" + std::to_string(shadows));
        }
    }
}

TEST_P(P25ExampleFiles, PutAtMostSixteenMemoriesIntoAZoneAndTheGuardsIntoTheLast) {
    const bool isSecond = std::string(GetParam().type) == "NP25";
    const std::string last = isSecond ? "X" : "16";
    const std::set<std::string> zones{"1", "2", "3", "4", "5", "6", last};
    std::map<std::string, int> counts;
    for (const Memory& memory : GetChannels()) {
        if (IsShadow(memory)) {
            continue;
        }
        const std::string zone = memory.Get("ZN");
        EXPECT_TRUE(zones.contains(zone)) << "row " << memory.row << " zone " << zone;
        EXPECT_EQ(zone == last, IsGuard(GetParam(), memory)) << "row " << memory.row;
        ++counts[zone];
    }
    EXPECT_EQ(counts.size(), zones.size());
    for (const auto& [zone, count] : counts) {
        EXPECT_LE(count, 16) << "zone " << zone;
    }
}

TEST_P(P25ExampleFiles, KeepSquelchTonesCodesAndIdsInTheirLimits) {
    const std::set<std::string> analogReceive{"x", "t", "c"}, analogTransmit{"x", "t", "c", "-"};
    const std::set<std::string> digitalReceive{"m", "n", "g"}, digitalTransmit{"g", "i", "-"};
    // The files use only these of the 42 tones and 83 codes of P25 radios.
    const std::set<std::string> tones{"67.0", "110.9", "136.5", "156.7"}, codes{"023", "754"};
    const auto isHex = [](const std::string& text, size_t length) {
        return text.size() == length && text.find_first_not_of("0123456789ABCDEF") == std::string::npos;
    };
    for (const Memory& memory : GetChannels()) {
        SCOPED_TRACE("row " + std::to_string(memory.row));
        const std::string mode = memory.Get("MD");
        EXPECT_TRUE(mode == "w" || mode == "n" || mode == "D") << mode;
        EXPECT_TRUE((mode == "D" ? digitalReceive : analogReceive).contains(memory.Get("RS")));
        EXPECT_TRUE((mode == "D" ? digitalTransmit : analogTransmit).contains(memory.Get("TS")));
        for (const char* element : {"RT", "TT"}) {
            EXPECT_TRUE(tones.contains(memory.Get(element))) << element << ' ' << memory.Get(element);
        }
        for (const char* element : {"RC", "TC"}) {
            EXPECT_TRUE(codes.contains(memory.Get(element))) << element << ' ' << memory.Get(element);
        }
        for (const char* element : {"RG", "TG"}) {
            EXPECT_TRUE(isHex(memory.Get(element), 4)) << element << ' ' << memory.Get(element);
        }
        for (const char* element : {"RN", "TN"}) {
            EXPECT_TRUE(isHex(memory.Get(element), 3)) << element << ' ' << memory.Get(element);
        }
        EXPECT_EQ(memory.Get("TI"), "0000001");
        EXPECT_EQ(memory.Get("RV"), std::string(GetParam().type) == "NP25" ? "10" : "");
    }
}
