#include "catalogue/RadioCatalogue.h"
#include "tests/catalogue/PrintedRadios.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

using namespace RadioCatalogue;

namespace {

constexpr int Most = std::numeric_limits<int>::max();
constexpr int Least = std::numeric_limits<int>::min();

std::vector<std::string> ChoicesOf(int radio) {
    wxArrayString list;
    MakeBandList(radio, list);
    std::vector<std::string> texts;
    for (const wxString& text : list)
        texts.push_back(text.utf8_string());
    return texts;
}

} // namespace

TEST(RadioType, IsKeptOnAmBandsByRadiosWithATypeOfTheirOwn) {
    EXPECT_EQ(GetRadioType(2, 3), printed::O12);
    EXPECT_EQ(GetRadioType(8, 3), printed::KDAR);
    EXPECT_EQ(GetRadioType(17, 3), printed::ANAM);
    EXPECT_EQ(GetRadioType(17, 8), printed::MDLX);
    EXPECT_EQ(GetRadioType(10, 6), printed::ANAM);
}

TEST(RadioType, OfTheModuleIsAlsoGivenToItsSecondGeneration) {
    EXPECT_EQ(GetRadioType(17, 9), printed::MDLX);
    for (int radio = 0; radio < 17; ++radio)
        EXPECT_NE(GetRadioType(radio, 9), printed::MDLX) << "radio " << radio;
}

TEST(RadioType, OfEachRadioAndBandFollowsTheRule) {
    // Type of a radio on bands 0 to 9, whether it has them or not.
    struct Line {
        std::vector<int> radios;
        const char* types; ///< by band id: F is ANFM, A is ANAM, see letters for the others
    };
    const Line lines[] = {
        {{0, 1, 3, 4, 5, 9, 10, 11, 12, 13, 14, 15, 16}, "FFAAFFAFFF"},
        {{2}, "OOOOOOOOOO"},
        {{6}, "RRRRRRRRRR"},
        {{7}, "NNNNNNNNNN"},
        {{8}, "KKKKKKKKKK"},
        {{17}, "FFAAFFAFMM"},
    };
    const std::string letters = "FRNMOKAX";
    for (const Line& line : lines)
        for (int radio : line.radios)
            for (int band = 0; band <= 9; ++band)
                EXPECT_EQ(letters[static_cast<size_t>(GetRadioType(radio, band))], line.types[band])
                    << "radio " << radio << " band " << band;
}

TEST(RadioType, IsNeverTheAmTypeWithTones) {
    for (int radio = -1; radio <= 18; ++radio)
        for (int band = -1; band <= 10; ++band)
            EXPECT_NE(GetRadioType(radio, band), printed::FXAM) << radio << " " << band;
}

TEST(RadioType, OfARadioThatDoesNotExistGoesByTheBandAlone) {
    for (int radio : {-1, 18, 99, Most, Least}) {
        EXPECT_EQ(GetRadioType(radio, 5), printed::ANFM) << radio;
        EXPECT_EQ(GetRadioType(radio, 3), printed::ANAM) << radio;
        EXPECT_EQ(GetRadioType(radio, -1), printed::ANFM) << radio;
        EXPECT_EQ(GetRadioType(radio, 9), printed::ANFM) << radio;
    }
}

TEST(ChannelStep, OfRadio16OnBand2Is8333ThoughItLacksThatBand) {
    EXPECT_EQ(GetChannelStep(16, 2), 8333);
    EXPECT_EQ(GetChannelStep(17, 2), 8333);
}

TEST(ChannelStep, OfEachRadioAndBandFollowsTheRule) {
    for (int radio = -1; radio <= 99; ++radio)
        for (int band = -1; band <= 9; ++band) {
            int expected = 2500;
            if (radio == 2 || radio == 8)
                expected = 8333;
            if (radio == 7)
                expected = 1250;
            if ((radio == 16 || radio == 17) && (band == 2 || band == 3))
                expected = 8333;
            EXPECT_EQ(GetChannelStep(radio, band), expected) << "radio " << radio << " band " << band;
        }
}

TEST(P25Type, IsTheFirstAndSecondGenerationAlone) {
    for (int type = -1; type <= 9; ++type)
        EXPECT_EQ(IsP25Type(type), type == 1 || type == 2) << type;
}

TEST(FindRadio, TakesTheInternalNameExactly) {
    for (const printed::Radio& radio : printed::Radios)
        EXPECT_EQ(FindRadio(radio.name), radio.index) << radio.name;
    for (const char* text :
         {"", "krv-21", "KRV-21 ", " KRV-21", "KRV-2", "KDRV-716[A|B]", "KDRV-716B-V2", "KRV-630QNT", "none"})
        EXPECT_EQ(FindRadio(text), -1) << '"' << text << '"';
}

TEST(FindRadioType, TakesTheTagExactly) {
    for (const printed::TypeLine& type : printed::Types)
        EXPECT_EQ(FindRadioType(type.tag), type.type) << type.tag;
    for (const char* text : {"", "anfm", "ANFM ", "ANF", "P25", "o12"})
        EXPECT_EQ(FindRadioType(text), -1) << '"' << text << '"';
}

TEST(FindBand, TakesTheNameExactly) {
    for (const printed::Band& band : printed::Bands)
        EXPECT_EQ(FindBand(band.name), band.id) << band.name;
    for (const char* text : {"", "fm 30-50", "FM 30-50 ", "FM: 30-50 MHz", "FM_403-512", "FM 7xx-8xx", "K7"})
        EXPECT_EQ(FindBand(text), -1) << '"' << text << '"';
}

TEST(FindBandIndex, IsTheSlotOfEachBandThatARadioHas) {
    for (const printed::Radio& radio : printed::Radios)
        for (const printed::Slot& slot : radio.slots)
            EXPECT_EQ(FindBandIndex(radio.index, slot.band), slot.slot) << radio.name << " " << slot.bandName;
}

TEST(FindBandIndex, IsMinusOneForABandThatTheRadioLacks) {
    for (const printed::Radio& radio : printed::Radios)
        for (int band = -2; band <= 10; ++band) {
            bool has = false;
            for (const printed::Slot& slot : radio.slots)
                has = has || slot.band == band;
            if (!has) {
                EXPECT_EQ(FindBandIndex(radio.index, band), -1) << radio.name << " band " << band;
            }
        }
    EXPECT_EQ(FindBandIndex(17, 1), -1) << "all six slots filled";
    EXPECT_EQ(FindBandIndex(0, 5), -1) << "a single slot filled";
    EXPECT_EQ(FindBandIndex(0, -1), -1) << "what marks an empty slot is no band";
}

TEST(FindBandIndex, IsMinusOneForARadioThatDoesNotExist) {
    for (int radio : {-1, 18, 99, Most, Least})
        EXPECT_EQ(FindBandIndex(radio, 0), -1) << radio;
}

TEST(BandChoices, AreThoseOfTheRadioInTheOrderOfItsSlots) {
    struct Line {
        int radio;
        std::vector<std::string> texts;
    };
    const Line lines[] = {
        {9, {"FM: 138-174 MHz", "FM: 403-512 MHz"}},
        {10, {"FM: 138-174 MHz", "AM: 225-400 MHz"}},
        {11, {"FM: 30-50 MHz", "FM: 138-174 MHz"}},
        {12, {"FM: 30-50 MHz", "FM: 138-174 MHz"}},
        {13, {"FM: 30-50 MHz", "FM: 138-174 MHz", "FM: 403-512 MHz"}},
        {14, {"FM: 66-88 MHz", "FM: 138-174 MHz", "FM: 403-512 MHz"}},
        {15, {"FM: 66-88 MHz", "FM: 138-174 MHz"}},
        {16, {"FM: 30-50 MHz", "AM: 118-138 MHz", "FM: 138-174 MHz", "AM: 225-400 MHz", "FM: 403-512 MHz"}},
        {17,
         {"FM: 30-50 MHz", "AM: 118-138 MHz", "FM: 138-174 MHz", "AM: 225-400 MHz", "FM: 403-512 MHz",
          "K6: 3-BAND"}},
    };
    for (const Line& line : lines)
        EXPECT_EQ(ChoicesOf(line.radio), line.texts) << "radio " << line.radio;
}

TEST(BandChoices, OfRadiosWithOneBandAndOfUnknownOnesIsAnErrorText) {
    for (int radio : {0, 1, 2, 3, 4, 5, 6, 7, 8, -1, 18, 99, Most, Least})
        EXPECT_EQ(ChoicesOf(radio), std::vector<std::string>{"Error Bad Band Config"}) << radio;
}

TEST(BandChoices, AreAppendedToWhatTheListHolds) {
    wxArrayString list;
    list.push_back("before");
    MakeBandList(15, list);
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[0], "before");
    EXPECT_EQ(list[1], "FM: 66-88 MHz");
    MakeBandList(0, list);
    ASSERT_EQ(list.size(), 4u);
    EXPECT_EQ(list[3], "Error Bad Band Config");
}

TEST(ModeIndex, TakesBothCasesOfWideAndNarrowAndDigitalInCapitals) {
    struct Line {
        const char* text;
        int index;
    };
    for (const Line& line : std::initializer_list<Line>{{"w", 0},
                                                        {"W", 0},
                                                        {"n", 1},
                                                        {"N", 1},
                                                        {"D", 2},
                                                        {"d", -1},
                                                        {"", -1},
                                                        {"WW", -1},
                                                        {"n ", -1},
                                                        {" w", -1},
                                                        {"n/a", -1}})
        EXPECT_EQ(GetModeIndex(line.text), line.index) << '"' << line.text << '"';
}

TEST(SquelchLetters, AreThoseOfTheColumn) {
    struct Line {
        const char* text;
        bool analogRx, analogTx, digitalRx, digitalTx;
    };
    constexpr Line lines[] = {
        {"x", true, true, false, false},    {"t", true, true, false, false},
        {"c", true, true, false, false},    {"-", false, true, false, true},
        {"m", false, false, true, false},   {"n", false, false, true, false},
        {"g", false, false, true, true},    {"i", false, false, false, true},
        {"", false, false, false, false},   {"X", false, false, false, false},
        {"G", false, false, false, false},  {"xt", false, false, false, false},
        {"x ", false, false, false, false},
    };
    for (const Line& line : lines) {
        SCOPED_TRACE(line.text);
        EXPECT_EQ(IsAnalogSquelch(line.text, 10), line.analogRx);
        EXPECT_EQ(IsDigitalSquelch(line.text, 10), line.digitalRx);
        // Any column except RSQL counts as the transmit one.
        for (int column : {17, 0, -1, 11, 99, Most, Least}) {
            EXPECT_EQ(IsAnalogSquelch(line.text, column), line.analogTx) << column;
            EXPECT_EQ(IsDigitalSquelch(line.text, column), line.digitalTx) << column;
        }
    }
}
