#include "catalogue/RadioCatalogue.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

using namespace RadioCatalogue;

namespace {

using Texts = std::vector<std::string>;

const Texts Tones = {
    // clang-format off
    "OFF", "67.0", "71.9", "74.4", "77.0", "79.7", "82.5", "85.4", "88.5", "91.5", "94.8", "97.4",
    "100.0", "103.5", "107.2", "110.9", "114.8", "118.8", "123.0", "127.3", "131.8", "136.5", "141.3",
    "146.2", "151.4", "156.7", "162.2", "167.9", "173.8", "179.9", "186.2", "192.8", "203.5", "33.0",
    "35.4", "36.6", "37.9", "39.6", "44.4", "47.5", "49.2", "51.2", "53.0", "54.9", "56.8", "58.8",
    "63.0", "69.3", "150.0", "165.5", "171.3", "177.3", "183.5", "189.9", "196.6", "199.5", "206.5",
    "210.7", "218.1", "225.7", "229.1", "233.6", "241.8", "250.3", "OFF",
    // clang-format on
};

const Texts CtcssTones = {
    // clang-format off
    "67.0", "69.3", "71.9", "74.4", "77.0", "79.7", "82.5", "85.4", "88.5", "91.5", "94.8", "97.4",
    "100.0", "103.5", "107.2", "110.9", "114.8", "118.8", "123.0", "127.3", "131.8", "136.5", "141.3",
    "146.2", "151.4", "156.7", "162.2", "167.9", "173.8", "179.9", "186.2", "192.8", "203.5", "210.7",
    "218.1", "225.7", "233.6", "241.8", "250.3", "206.5", "229.1", "254.8",
    // clang-format on
};

const Texts Codes = {
    // clang-format off
    "OFF", "023", "025", "026", "031", "032", "043", "047", "051", "054", "065", "071", "072", "073",
    "074", "114", "115", "116", "125", "131", "132", "134", "143", "152", "155", "156", "162", "165",
    "172", "174", "205", "223", "226", "243", "244", "245", "251", "261", "263", "265", "271", "306",
    "311", "315", "331", "343", "346", "351", "364", "365", "371", "411", "412", "413", "423", "431",
    "432", "445", "464", "465", "466", "503", "506", "516", "532", "546", "565", "606", "612", "624",
    "627", "631", "632", "654", "662", "664", "703", "712", "723", "731", "732", "734", "743", "754",
    // clang-format on
};

const Texts Zones16 = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16"};

const Texts Zones32 = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16",
                       "A", "C", "E", "F", "H", "I", "K", "L", "M", "N",  "P",  "T",  "U",  "V",  "W",  "X"};

Texts TextsOf(const wxArrayString& list) {
    Texts texts;
    for (const wxString& text : list)
        texts.push_back(text.utf8_string());
    return texts;
}

template <size_t count>
Texts TextsOf(const char* const (&list)[count]) {
    return Texts(list, list + count);
}

constexpr int Most = std::numeric_limits<int>::max();
constexpr int Least = std::numeric_limits<int>::min();

class ChoiceLists : public testing::Test {
protected:
    void SetUp() override { FillChoiceLists(); }
};

} // namespace

TEST_F(ChoiceLists, HoldTonesAndCodesInTheOrderOfTheRadioRecords) {
    ASSERT_EQ(Tones.size(), 65u);
    ASSERT_EQ(CtcssTones.size(), 42u);
    ASSERT_EQ(Codes.size(), 84u);
    EXPECT_EQ(TextsOf(ToneList), Tones);
    EXPECT_EQ(TextsOf(CtcssList), CtcssTones);
    EXPECT_EQ(TextsOf(CodeList), Codes);
    EXPECT_EQ(TextsOf(ToneTexts), Tones);
    EXPECT_EQ(TextsOf(CtcssTexts), CtcssTones);
    EXPECT_EQ(TextsOf(CodeTexts), Codes);
}

TEST_F(ChoiceLists, HoldTheZonesOfBothGenerations) {
    EXPECT_EQ(TextsOf(ZoneNames16), Zones16);
    EXPECT_EQ(TextsOf(ZoneNames32), Zones32);
}

TEST_F(ChoiceLists, EndWithTheZonesOfTheGuardRows) {
    EXPECT_EQ(RP25GuardZone, 15);
    EXPECT_EQ(NP25GuardZone, 31);
}

TEST_F(ChoiceLists, ZoneListStartsWithAll32Zones) {
    EXPECT_EQ(TextsOf(ZoneList), Zones32);
}

TEST_F(ChoiceLists, FillingThemAgainDoublesNothing) {
    FillChoiceLists();
    EXPECT_EQ(ToneList.size(), 65u);
    EXPECT_EQ(CtcssList.size(), 42u);
    EXPECT_EQ(CodeList.size(), 84u);
    EXPECT_EQ(ZoneList.size(), 32u);
}

TEST_F(ChoiceLists, HoldTheLettersOfScanModeAndSquelch) {
    EXPECT_EQ(TextsOf(ScanYesNo), (Texts{"Y", "N"}));
    EXPECT_EQ(TextsOf(AnalogModes), (Texts{"W", "N"}));
    EXPECT_EQ(TextsOf(P25Modes), (Texts{"w", "n", "D"}));
    EXPECT_EQ(TextsOf(RxAnalogSquelch), (Texts{"x", "t", "c"}));
    EXPECT_EQ(TextsOf(TxAnalogSquelch), (Texts{"x", "t", "c", "-"}));
    EXPECT_EQ(TextsOf(RxDigitalSquelch), (Texts{"m", "n", "g"}));
    EXPECT_EQ(TextsOf(TxDigitalSquelch), (Texts{"g", "i", "-"}));
    EXPECT_EQ(TextsOf(TxDigitalSquelchRestricted), (Texts{"g", "-"}));
}

TEST_F(ChoiceLists, HoldTheBandsOfBothModules) {
    EXPECT_EQ(TextsOf(MdlxBands3), (Texts{"FM 30-50", "AM 108-138", "AM 225-400"}));
    EXPECT_EQ(TextsOf(MdlxBands8), (Texts{"FM 30-50", "FM 66-88", "AM 108-138", "FM 136-174", "AM 225-400",
                                          "FM_403-512", "FM 7xx-8xx", "FM 896-960"}));
}

TEST_F(ChoiceLists, ToneIndexIsTheFirstPositionOfTheText) {
    for (size_t i = 0; i + 1 < Tones.size(); ++i)
        EXPECT_EQ(GetToneIndex(Tones[i]), static_cast<int>(i)) << Tones[i];
}

TEST_F(ChoiceLists, ToneIndexOfOffIsZeroAndNever64) {
    EXPECT_EQ(GetToneIndex("OFF"), 0);
}

TEST_F(ChoiceLists, ToneAndCtcssIndexOfAnyOtherTextIsMinusOne) {
    for (const char* text : {"", "off", "67", "67.00", " 67.0", "67.0 ", "n/a", "254.9"}) {
        EXPECT_EQ(GetToneIndex(text), -1) << '"' << text << '"';
        EXPECT_EQ(GetCtcssIndex(text), -1) << '"' << text << '"';
    }
    EXPECT_EQ(GetToneIndex("254.8"), -1) << "a tone of P25 radios only";
    EXPECT_EQ(GetCtcssIndex("OFF"), -1);
    EXPECT_EQ(GetCtcssIndex("33.0"), -1) << "a tone of analog radios only";
}

TEST_F(ChoiceLists, CtcssIndexIsThePositionOfTheText) {
    for (size_t i = 0; i < CtcssTones.size(); ++i)
        EXPECT_EQ(GetCtcssIndex(CtcssTones[i]), static_cast<int>(i)) << CtcssTones[i];
}

TEST_F(ChoiceLists, ToneAndCtcssTextsAreTheEntriesAndEmptyPastTheEnds) {
    for (size_t i = 0; i < Tones.size(); ++i)
        EXPECT_EQ(GetToneText(static_cast<int>(i)).utf8_string(), Tones[i]) << i;
    for (size_t i = 0; i < CtcssTones.size(); ++i)
        EXPECT_EQ(GetCtcssText(static_cast<int>(i)).utf8_string(), CtcssTones[i]) << i;
    for (int i : {-1, 65, 66, Most, Least})
        EXPECT_EQ(GetToneText(i), "") << i;
    for (int i : {-1, 42, 43, Most, Least})
        EXPECT_EQ(GetCtcssText(i), "") << i;
}

TEST_F(ChoiceLists, CodeIndexCountsFromOffOnAnalogPagesAndFrom023OnP25Pages) {
    for (int type = 0; type < 8; ++type) {
        const int shift = type == 1 || type == 2 ? 1 : 0;
        for (size_t i = 0; i < Codes.size(); ++i)
            EXPECT_EQ(CodeIndexForType(Codes[i], type), static_cast<int>(i) - shift)
                << Codes[i] << " type " << type;
        for (const char* text : {"", "off", "23", "0023", "000", "024", "n/a"})
            EXPECT_EQ(CodeIndexForType(text, type), -1) << '"' << text << "\" type " << type;
    }
    EXPECT_EQ(CodeIndexForType("023", 1), 0);
    EXPECT_EQ(CodeIndexForType("OFF", 2), -1);
}

TEST_F(ChoiceLists, CodeTextOfZeroIsOffOnAnalogPagesAnd023OnP25Pages) {
    for (int type : {0, 3, 4, 5, 6, 7})
        EXPECT_EQ(GetCodeText(0, type), "OFF") << "type " << type;
    for (int type : {1, 2})
        EXPECT_EQ(GetCodeText(0, type), "023") << "type " << type;
}

TEST_F(ChoiceLists, CodeTextIsTheEntryAndEmptyPastTheEnds) {
    for (size_t i = 0; i < Codes.size(); ++i)
        EXPECT_EQ(GetCodeText(static_cast<int>(i), 0).utf8_string(), Codes[i]) << i;
    for (size_t i = 0; i + 1 < Codes.size(); ++i)
        for (int type : {1, 2})
            EXPECT_EQ(GetCodeText(static_cast<int>(i), type).utf8_string(), Codes[i + 1]) << i;
    for (int i : {84, 85, Most, Least})
        for (int type = 0; type < 8; ++type)
            EXPECT_EQ(GetCodeText(i, type), "") << i << " type " << type;
    EXPECT_EQ(GetCodeText(83, 1), "");
    EXPECT_EQ(GetCodeText(83, 2), "");
    EXPECT_EQ(GetCodeText(-1, 0), "");
}
