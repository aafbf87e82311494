// Choices selected by typed characters.
#include "editing/TypeAhead.h"

#include <gtest/gtest.h>

namespace {

wxArrayString List(std::initializer_list<const char*> texts) {
    wxArrayString list;
    for (const char* text : texts)
        list.Add(text);
    return list;
}

const wxArrayString Tones = List({"OFF", "67.0", "100.0", "151.4", "156.7", "162.2"});
const wxArrayString Modes = List({"w", "n", "D"});

/// The position chosen after the last of the characters.
int After(const char* typed, const wxArrayString& choices) {
    TypeAhead ahead;
    int position = wxNOT_FOUND;
    for (const char* character = typed; *character; ++character)
        position = ahead.Type(*character, choices);
    return position;
}

} // namespace

TEST(TypeAhead, ChoosesTheFirstChoiceThatBeginsSo) {
    EXPECT_EQ(After("1", Tones), 2);
    EXPECT_EQ(After("15", Tones), 3);
    EXPECT_EQ(After("156", Tones), 4);
    EXPECT_EQ(After("156.7", Tones), 4);
    EXPECT_EQ(After("off", Tones), 0);
    EXPECT_EQ(After("", Tones), wxNOT_FOUND);
}

TEST(TypeAhead, PrefersTheSameCase) {
    const wxArrayString both = List({"n", "N", "aX", "ax"});
    EXPECT_EQ(After("n", both), 0);
    EXPECT_EQ(After("N", both), 1);
    EXPECT_EQ(ChoiceBeginningWith(List({"n"}), "N"), 0);
    EXPECT_EQ(ChoiceBeginningWith(both, "ax"), 3);
    EXPECT_EQ(ChoiceBeginningWith(both, "AX"), 2);
}

TEST(TypeAhead, FindsNothingUntilWhatFitsNothingIsTakenBack) {
    TypeAhead ahead;
    for (char character : {'1', '5', '6'})
        ahead.Type(character, Tones);
    EXPECT_EQ(ahead.Type('7', Tones), wxNOT_FOUND);
    EXPECT_EQ(ahead.Type('6', Tones), wxNOT_FOUND) << "67.0 is not meant";
    EXPECT_EQ(ahead.TakeBack(Tones), wxNOT_FOUND);
    EXPECT_EQ(ahead.TakeBack(Tones), 4);
    EXPECT_EQ(ahead.TakeBack(Tones), 3);
    EXPECT_EQ(ahead.TakeBack(Tones), 2);
    EXPECT_FALSE(ahead.IsEmpty());
    EXPECT_EQ(ahead.TakeBack(Tones), wxNOT_FOUND);
    EXPECT_TRUE(ahead.IsEmpty());
    EXPECT_EQ(ahead.TakeBack(Tones), wxNOT_FOUND);
}

TEST(TypeAhead, BeginsAnewWithEachCharacterWhereChoicesHaveOne) {
    EXPECT_EQ(After("nw", Modes), 0);
    EXPECT_EQ(After("nnd", Modes), 2);
    EXPECT_EQ(After("nx", Modes), wxNOT_FOUND);
}

TEST(TypeAhead, KnowsWhetherACharacterFits) {
    const wxArrayString bands = List({"FM 30-50", "AM 108-138"});
    TypeAhead ahead;
    EXPECT_FALSE(ahead.Fits(' ', bands));
    ahead.Type('a', bands);
    ahead.Type('m', bands);
    EXPECT_TRUE(ahead.Fits(' ', bands));
    ahead.Forget();
    EXPECT_FALSE(ahead.Fits(' ', bands));
}

TEST(TypeAhead, FindsNothingInAnEmptyList) {
    EXPECT_EQ(After("1", wxArrayString()), wxNOT_FOUND);
}

TEST(ChoiceMeant, ByAWholeTextIsTheSameTextInAnyCaseOrTheSameNumber) {
    const wxArrayString codes = List({"023", "025", "231"});
    const struct {
        const char* text;
        const wxArrayString& choices;
        int position;
    } cases[] = {
        {"OFF", Tones, 0},
        {"off", Tones, 0},
        {"151.4", Tones, 3},
        {"67", Tones, 1},
        {"67,0", Tones, 1},
        {"100", Tones, 2},
        {"100.00", Tones, 2},
        {"d", Modes, 2},
        {"W", Modes, 0},
        {"23", codes, 0},
        {"0231", codes, 2},
        {"1", Tones, wxNOT_FOUND},
        {"15", Tones, wxNOT_FOUND},
        {"2", codes, wxNOT_FOUND},
        {"", Tones, wxNOT_FOUND},
        {"67.0 ", Tones, wxNOT_FOUND},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ChoiceMeantBy(c.choices, c.text), c.position) << '"' << c.text << '"';
    EXPECT_EQ(ChoiceMeantBy(List({"w", "W"}), "W"), 1) << "the same case comes first";
}
