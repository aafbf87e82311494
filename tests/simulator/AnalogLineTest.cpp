#include "simulator/AnalogLine.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using namespace Simulator;

const AnalogModel& Model(const char* name, const char* band = "") {
    return **FindAnalogModel(name, band);
}

constexpr char Good[] = "001 TOWER1    150.0000RX 151.2500TX CTCSS: 64RX 12TX DPL: 000RX 023TX 1_3__W";

struct Change {
    const char* name;
    size_t position;
    const char* text;
};

/// The good line of FM 138-174 with one place overwritten.
std::string Changed(const Change& change) {
    std::string line = Good;
    return line.replace(change.position, std::strlen(change.text), change.text);
}

TEST(LongLine, OfEveryFieldIsTakenApart) {
    const auto memory = ParseLongLine(Good, Model("KRV-214"), 102);
    ASSERT_TRUE(memory) << memory.Reason();
    EXPECT_EQ(memory->number, 1);
    EXPECT_EQ(memory->description, "TOWER1   ");
    EXPECT_EQ(memory->rxFrequency, 1500000);
    EXPECT_EQ(memory->txFrequency, 1512500);
    EXPECT_EQ(memory->rxTone, 64);
    EXPECT_EQ(memory->txTone, 12);
    EXPECT_EQ(memory->rxCode, "000");
    EXPECT_EQ(memory->txCode, "023");
    EXPECT_EQ(memory->scan, "1_3__");
    EXPECT_EQ(memory->mode, 'W');
    EXPECT_EQ(FormatLongLine(*memory, "001"), Good);
}

TEST(LongLine, IsTakenWithEveryGoodValueOfAField) {
    const Change good[] = {
        {"last number", 0, "102"},
        {"empty description", 4, "         "},
        {"full description", 4, "NINE-CHAR"},
        {"low edge", 14, "138.0000"},
        {"high edge", 14, "174.0000"},
        {"first tone", 43, "01"},
        {"last tone", 43, "63"},
        {"no tone", 48, "64"},
        {"first code", 58, "023"},
        {"last code", 64, "754"},
        {"no code", 64, "000"},
        {"locked out", 70, "LOCK "},
        {"all lists", 70, "12345"},
        {"last list", 70, "____5"},
        {"narrow", 75, "N"},
        {"wide", 75, "W"},
    };
    for (const Change& change : good) {
        const auto memory = ParseLongLine(Changed(change), Model("KRV-214"), 102);
        EXPECT_TRUE(memory) << change.name << " [" << Changed(change) << "]: " << memory.Reason();
    }
}

TEST(LongLine, IsRefusedForEachMalformedField) {
    const Change bad[] = {
        {"number 0", 0, "000"},
        {"number too high", 0, "103"},
        {"number with a blank", 0, " 01"},
        {"guard name", 0, "GD1"},
        {"no blank after the number", 3, "_"},
        {"description with a blank first", 4, " TOWER1  "},
        {"description with a control character", 4, "TOW\tR1   "},
        {"description with bit 7", 4, "TOW\xC5R1   "},
        {"no blank after the description", 13, "X"},
        {"receive frequency without a point", 14, "15000000"},
        {"receive frequency with a letter", 14, "15O.0000"},
        {"receive frequency with a blank", 14, " 50.0000"},
        {"receive frequency below the band", 14, "137.9999"},
        {"receive frequency above the band", 14, "174.0001"},
        {"receive frequency with a shifted point", 14, "1500.000"},
        {"receive label", 22, "TX "},
        {"receive label without blank", 22, "RX_"},
        {"transmit frequency below the band", 25, "137.9999"},
        {"transmit frequency above the band", 25, "174.0001"},
        {"transmit frequency of zeros", 25, "000.0000"},
        {"transmit frequency with a letter", 25, "151.25x0"},
        {"tone label", 33, "TX CTCSS; "},
        {"receive tone 00", 43, "00"},
        {"receive tone 65", 43, "65"},
        {"receive tone with a blank", 43, " 1"},
        {"second receive label", 45, "TX "},
        {"transmit tone 00", 48, "00"},
        {"transmit tone 99", 48, "99"},
        {"transmit tone with a letter", 48, "1A"},
        {"code label", 50, "TX DPL. "},
        {"receive code that no radio knows", 58, "024"},
        {"receive code with an 8", 58, "089"},
        {"receive code as a word", 58, "OFF"},
        {"third receive label", 61, "   "},
        {"transmit code that no radio knows", 64, "777"},
        {"transmit code with blanks", 64, "23 "},
        {"last label", 67, "RX "},
        {"scan of no list", 70, "_____"},
        {"scan with a digit out of place", 70, "21___"},
        {"scan locked without its blank", 70, "LOCK_"},
        {"scan as a number", 70, "00005"},
        {"mode in lower case", 75, "w"},
        {"mode left out", 75, " "},
    };
    for (const Change& change : bad) {
        const auto memory = ParseLongLine(Changed(change), Model("KRV-214"), 102);
        EXPECT_FALSE(memory) << change.name << " [" << Changed(change) << "]";
        EXPECT_FALSE(memory.Reason().empty()) << change.name;
    }
}

TEST(LongLine, OfAnotherLengthIsRefused) {
    for (const std::string& line :
         {std::string(Good) + " ", std::string(Good).substr(0, 75), std::string(), "\n" + std::string(Good)})
        EXPECT_FALSE(ParseLongLine(line, Model("KRV-214"), 102)) << line;
}

TEST(LongLine, KnowsEverySquelchCode) {
    const char* const codes[] = {
        "023", "025", "026", "031", "032", "043", "047", "051", "054", "065", "071", "072", "073", "074",
        "114", "115", "116", "125", "131", "132", "134", "143", "152", "155", "156", "162", "165", "172",
        "174", "205", "223", "226", "243", "244", "245", "251", "261", "263", "265", "271", "306", "311",
        "315", "331", "343", "346", "351", "364", "365", "371", "411", "412", "413", "423", "431", "432",
        "445", "464", "465", "466", "503", "506", "516", "532", "546", "565", "606", "612", "624", "627",
        "631", "632", "654", "662", "664", "703", "712", "723", "731", "732", "734", "743", "754"};
    int known = 0;
    for (int code = 1; code <= 999; ++code)
        known += ParseLongLine(Changed({"", 58, NumberField(code).c_str()}), Model("KRV-214"), 102) ? 1 : 0;
    EXPECT_EQ(known, 83);
    for (const char* code : codes)
        EXPECT_TRUE(ParseLongLine(Changed({"", 64, code}), Model("KRV-214"), 102)) << code;
}

TEST(LongLine, OfTheModuleKeepsBothFrequenciesInOneRange) {
    const AnalogModel& module = Model("KDRV-4xxx", "K6 3-BAND");
    const struct {
        const char* rx;
        const char* tx;
        bool good;
    } pairs[] = {
        {"030.0000", "050.0000", true},  {"108.0000", "138.0000", true},  {"225.0000", "400.0000", true},
        {"030.0000", "225.0000", false}, {"150.0000", "150.0000", false}, {"900.0000", "900.0000", false},
        {"113.5000", "000.0000", true},  {"117.9999", "000.0000", true},  {"118.0000", "000.0000", false},
        {"030.0000", "000.0000", false},
    };
    for (const auto& pair : pairs) {
        std::string line = Changed({"", 14, pair.rx});
        line.replace(25, 8, pair.tx);
        EXPECT_EQ(static_cast<bool>(ParseLongLine(line, module, 500)), pair.good) << line;
    }
}

TEST(ShortLine, LeavesOutReceiveToneAndReceiveCode) {
    const auto memory = ParseLongLine(Good, Model("KRV-214"), 102);
    ASSERT_TRUE(memory);
    const std::string line = FormatShortLine(*memory, "001");
    EXPECT_EQ(line, "001 TOWER1    150.0000RX 151.2500TX CTCSS: 12TX DPL: 023TX 1_3__W");
    EXPECT_EQ(line.substr(43, 2), "12");
    EXPECT_NE(line[45], 'R');
    EXPECT_EQ(line.substr(53, 3), "023");
    EXPECT_EQ(line.substr(59, 5), "1_3__");
    EXPECT_EQ(line.substr(64), "W");
}

TEST(EmptyMemory, IsAGoodLineOfItsBand) {
    for (const AnalogModel& model : AnalogModels()) {
        const auto memory = ParseLongLine(FormatLongLine(EmptyMemory(model, 1), "001"), model, model.rows);
        EXPECT_TRUE(memory) << model.name << " " << model.band << ": " << memory.Reason();
    }
    EXPECT_EQ(FormatLongLine(EmptyMemory(Model("KRV-21"), 7), "007"),
              "007           030.0000RX 030.0000TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N");
}

} // namespace
