// Descriptions typed into cells.
#include "editing/DescriptionCell.h"

#include "tests/editing/TextCellTest.h"
#include "tests/support/Modals.h"

using namespace testbench;
using Values = std::vector<std::string>;

namespace {

class DescriptionCell : public TextCellTest {
protected:
    static void InstallOn(int row, size_t maxChars, int mode) {
        UseRow(row);
        Install(row, DESC, new ZelkDescriptionEditor(maxChars, mode));
    }
};

} // namespace

TEST_F(DescriptionCell, TakesTheCharactersOfItsMode) {
    const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const std::string plain = letters + "-./0123456789:+ ?_";
    const std::string to122 = plain + "!\"#$%&'()*,;<=>@[\\]^`";
    const std::string to126 = to122 + "{|}~";
    const std::string byMode[] = {plain, to122, to122, plain, plain, to126, plain, plain};
    for (int mode = 0; mode < 8; ++mode) {
        const ZelkDescriptionValidator validator(nullptr, mode);
        for (int code = 0; code < 1000; ++code) {
            const bool expected =
                code > 0 && code < 128 && byMode[mode].find(static_cast<char>(code)) != std::string::npos;
            EXPECT_EQ(validator.IsValidChar(code), expected) << "mode " << mode << " code " << code;
        }
    }
}

TEST_F(DescriptionCell, IsWrittenUpperCaseInModes06And7) {
    int row = 1;
    for (int mode : {0, 6, 7}) {
        InstallOn(++row, 9, mode);
        GoTo(row, DESC);
        TypeText("a");
        EXPECT_EQ(Typed(), "A") << mode;
        TypeText("b c");
        EXPECT_EQ(Typed(), "AB C") << mode;
        PressKey("Return");
        EXPECT_EQ(Text(row, DESC), "AB C") << mode;
    }
}

TEST_F(DescriptionCell, KeepsItsCaseInOtherModes) {
    int row = 1;
    for (int mode : {1, 2, 3, 4, 5}) {
        InstallOn(++row, 9, mode);
        TypeIntoCell(*CurrentGrid(), row, DESC, "aB c");
        EXPECT_EQ(Text(row, DESC), "aB c") << mode;
    }
}

TEST_F(DescriptionCell, KeepsTheCaretWhenItIsMadeUpperCase) {
    InstallOn(5, 9, 0);
    GoTo(5, DESC);
    TypeText("ad");
    PressKey("Left");
    TypeText("bc");
    EXPECT_EQ(Typed(), "ABCD");
    PressKey("Return");
    EXPECT_EQ(Text(5, DESC), "ABCD");
}

TEST_F(DescriptionCell, RefusesKeysOutsideItsMode) {
    struct Line {
        int mode;
        const char *typed, *expected;
    };
    constexpr Line lines[] = {
        {0, "#A{B!C~D", "ABCD"},
        {1, "{A#B~C", "A#BC"},
        {5, "{A#~", "{A#~"},
        {0, "1.2:3?_+", "1.2:3?_+"},
    };
    int row = 1;
    for (const Line& line : lines) {
        InstallOn(++row, 9, line.mode);
        TypeIntoCell(*CurrentGrid(), row, DESC, line.typed);
        EXPECT_EQ(Text(row, DESC), line.expected) << line.typed;
    }
}

TEST_F(DescriptionCell, IsNotOpenedByAKeyThatItRefuses) {
    InstallOn(5, 9, 0);
    GoTo(5, DESC);
    TypeText("#");
    EXPECT_FALSE(IsOpen());
    PressKey("BackSpace");
    EXPECT_TRUE(IsOpen());
    PressKey("Escape");
    PressKey("Delete");
    EXPECT_TRUE(IsOpen());
    PressKey("Escape");
}

TEST_F(DescriptionCell, HoldsNoMoreThanItsWidth) {
    InstallOn(5, 8, 1);
    TypeIntoCell(*CurrentGrid(), 5, DESC, "abcdefghijk");
    EXPECT_EQ(Text(5, DESC), "abcdefgh");
    InstallOn(6, 9, 0);
    TypeIntoCell(*CurrentGrid(), 6, DESC, "abcdefghijk");
    EXPECT_EQ(Text(6, DESC), "ABCDEFGHI");
}

TEST_F(DescriptionCell, TakesAPasteWholeOrNotAtAll) {
    InstallOn(5, 9, 0);
    OpenEmpty(5, DESC);
    Paste("ab#cd");
    EXPECT_EQ(Typed(), "");
    Paste("ab cd");
    EXPECT_EQ(Typed(), "AB CD");
    PressKey("Return");
    EXPECT_EQ(Text(5, DESC), "AB CD");
}

TEST_F(DescriptionCell, StaysAsItWasAfterEscape) {
    InstallOn(5, 9, 0);
    SetCell(5, DESC, "KEPT");
    GoTo(5, DESC);
    TypeText("abc");
    PressKey("Escape");
    EXPECT_EQ(Text(5, DESC), "KEPT");
    EXPECT_EQ(m_newValues, Values{});
}

TEST_F(DescriptionCell, ValidatorIsMadeByNameAndClonedWithItsFields) {
    const auto made = MakeByName<ZelkDescriptionValidator>("ZelkDescriptionValidator");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->GetMode(), 0);
    EXPECT_EQ(made->GetValuePointer(), nullptr);
    wxString value;
    ZelkDescriptionValidator validator(&value, 5);
    validator.SetWindow(MainFrame);
    const std::unique_ptr<ZelkDescriptionValidator> clone(
        dynamic_cast<ZelkDescriptionValidator*>(validator.Clone()));
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->GetMode(), 5);
    EXPECT_EQ(clone->GetValuePointer(), &value);
    EXPECT_EQ(clone->GetWindow(), MainFrame);
}

TEST_F(DescriptionCell, ValidatorsBoxComesForGoodAndBadTexts) {
    auto* control = new wxTextCtrl(MainFrame, wxID_ANY, "AB#");
    ZelkDescriptionValidator validator;
    validator.SetWindow(control);
    DialogScript dialogs;
    dialogs.ExpectMessage("Validation conflict", "'AB#' contains invalid character(s)")
        .Style(wxOK | wxICON_EXCLAMATION);
    EXPECT_FALSE(validator.Validate(MainFrame));
    control->ChangeValue("AB");
    dialogs.ExpectMessage("Validation conflict", "'AB' has been validated").Style(wxOK | wxICON_EXCLAMATION);
    EXPECT_FALSE(validator.Validate(MainFrame));
}
