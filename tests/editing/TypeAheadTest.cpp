// Which choice typed characters choose.
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

/// What is chosen after each character.
int After(const char* typed, const wxArrayString& choices) {
    TypeAhead ahead;
    int position = wxNOT_FOUND;
    for (const char* character = typed; *character; ++character)
        position = ahead.Type(*character, choices);
    return position;
}

} // namespace

TEST(TypeAhead, ChoosesTheFirstChoiceThatBeginsSo) {
    EXPECT_EQ(2, After("1", Tones));
    EXPECT_EQ(3, After("15", Tones));
    EXPECT_EQ(4, After("156", Tones));
    EXPECT_EQ(4, After("156.7", Tones));
    EXPECT_EQ(0, After("off", Tones));
    EXPECT_EQ(wxNOT_FOUND, After("", Tones));
}

TEST(TypeAhead, PrefersTheSameCase) {
    const wxArrayString both = List({"n", "N", "aX", "ax"});
    EXPECT_EQ(0, After("n", both));
    EXPECT_EQ(1, After("N", both));
    EXPECT_EQ(0, ChoiceBeginningWith(List({"n"}), "N"));
    EXPECT_EQ(3, ChoiceBeginningWith(both, "ax"));
    EXPECT_EQ(2, ChoiceBeginningWith(both, "AX"));
}

TEST(TypeAhead, FindsNothingUntilWhatFitsNothingIsTakenBack) {
    TypeAhead ahead;
    for (char character : {'1', '5', '6'})
        ahead.Type(character, Tones);
    EXPECT_EQ(wxNOT_FOUND, ahead.Type('7', Tones));
    EXPECT_EQ(wxNOT_FOUND, ahead.Type('6', Tones)) << "67.0 is not meant";
    EXPECT_EQ(wxNOT_FOUND, ahead.TakeBack(Tones));
    EXPECT_EQ(4, ahead.TakeBack(Tones));
    EXPECT_EQ(3, ahead.TakeBack(Tones));
    EXPECT_EQ(2, ahead.TakeBack(Tones));
    EXPECT_FALSE(ahead.IsEmpty());
    EXPECT_EQ(wxNOT_FOUND, ahead.TakeBack(Tones));
    EXPECT_TRUE(ahead.IsEmpty());
    EXPECT_EQ(wxNOT_FOUND, ahead.TakeBack(Tones));
}

TEST(TypeAhead, BeginsAnewWithEachCharacterWhereChoicesHaveOne) {
    EXPECT_EQ(0, After("nw", Modes));
    EXPECT_EQ(2, After("nnd", Modes));
    EXPECT_EQ(wxNOT_FOUND, After("nx", Modes));
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
    EXPECT_EQ(wxNOT_FOUND, After("1", wxArrayString()));
}
