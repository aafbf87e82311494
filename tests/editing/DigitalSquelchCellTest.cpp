// Talk groups and NACs typed into cells.
#include "editing/DigitalSquelchCell.h"

#include "tests/editing/TextCellTest.h"
#include "tests/support/Modals.h"

using namespace testbench;
using Values = std::vector<std::string>;

namespace {

class DigitalSquelchCell : public TextCellTest {
protected:
    void SetUp() override {
        TextCellTest::SetUp();
        Retarget(Kdrv716B, 0);
        for (int col : {RTGP, TTGP})
            Install(1, col, new DigitalSquelchEditor(4, 0, 65535));
        for (int col : {RNAC, TNAC})
            Install(1, col, new DigitalSquelchEditor(3, 0, 4095));
    }

    static Values Row1() { return {Text(1, RTGP), Text(1, TTGP), Text(1, RNAC), Text(1, TNAC)}; }
};

} // namespace

TEST_F(DigitalSquelchCell, PadsATalkGroupAndCarriesItToTransmit) {
    TypeIntoCell(*CurrentGrid(), 1, RTGP, "ab");
    EXPECT_EQ(Row1(), (Values{"00AB", "00AB", "293", "293"}));
    EXPECT_EQ(m_newValues, Values{"00AB"});
    TypeIntoCell(*CurrentGrid(), 1, RTGP, "1a");
    EXPECT_EQ(Text(1, RTGP), "001A");
}

TEST_F(DigitalSquelchCell, PadsANacAndCarriesItToTransmit) {
    TypeIntoCell(*CurrentGrid(), 1, RNAC, "1a");
    EXPECT_EQ(Row1(), (Values{"0001", "0001", "01A", "01A"}));
    EXPECT_EQ(m_newValues, Values{"01A"});
}

TEST_F(DigitalSquelchCell, LeavesReceiveAloneWhenTransmitIsTyped) {
    TypeIntoCell(*CurrentGrid(), 1, TTGP, "beef");
    TypeIntoCell(*CurrentGrid(), 1, TNAC, "f");
    EXPECT_EQ(Row1(), (Values{"0001", "BEEF", "293", "00F"}));
}

TEST_F(DigitalSquelchCell, TakesHexadecimalDigitsAlone) {
    const DigitalSquelchValidator validator;
    const std::string digits = "0123456789abcdefABCDEF";
    for (int code = 0; code < 1000; ++code)
        EXPECT_EQ(code > 0 && code < 128 && digits.find(static_cast<char>(code)) != std::string::npos,
                  validator.IsValidChar(code))
            << code;
    GoTo(1, RTGP);
    TypeText("g");
    EXPECT_FALSE(IsOpen());
    TypeText("1");
    EXPECT_EQ(Typed(), "1");
    TypeText("gx .-");
    EXPECT_EQ(Typed(), "1");
    TypeText("f");
    EXPECT_EQ(Typed(), "1F");
    PressKey("Return");
    EXPECT_EQ(Text(1, RTGP), "001F");
}

TEST_F(DigitalSquelchCell, HoldsNoMoreThanItsWidth) {
    TypeIntoCell(*CurrentGrid(), 1, RTGP, "12345");
    TypeIntoCell(*CurrentGrid(), 1, RNAC, "12345");
    EXPECT_EQ(Row1(), (Values{"1234", "1234", "123", "123"}));
}

TEST_F(DigitalSquelchCell, TakesAnyValueOfItsWidth) {
    TypeIntoCell(*CurrentGrid(), 1, RTGP, "ffff");
    EXPECT_EQ(Text(1, RTGP), "FFFF");
    Install(1, RTGP, new DigitalSquelchEditor(4, 0, 1));
    TypeIntoCell(*CurrentGrid(), 1, RTGP, "fffe");
    EXPECT_EQ(Text(1, RTGP), "FFFE") << "the range isn't looked at";
}

TEST_F(DigitalSquelchCell, TakesAPasteWholeOrNotAtAll) {
    OpenEmpty(1, RTGP);
    Paste("abcg");
    EXPECT_EQ(Typed(), "");
    Paste("abcd");
    EXPECT_EQ(Typed(), "ABCD");
    PressKey("Return");
    EXPECT_EQ(Row1(), (Values{"ABCD", "ABCD", "293", "293"}));
}

TEST_F(DigitalSquelchCell, ThatIsEmptiedBecomesZeros) {
    OpenEmpty(1, RTGP);
    PressKey("Return");
    OpenEmpty(1, RNAC);
    PressKey("Return");
    EXPECT_EQ(Row1(), (Values{"0000", "0000", "000", "000"}));
}

TEST_F(DigitalSquelchCell, ChangesNothingWhenTheSameTextIsTyped) {
    SetCell(1, TTGP, "0009");
    TypeIntoCell(*CurrentGrid(), 1, RTGP, "0001");
    EXPECT_EQ(Row1(), (Values{"0001", "0009", "293", "293"}));
    EXPECT_EQ(m_newValues, Values{});
    TypeIntoCell(*CurrentGrid(), 1, RTGP, "1");
    EXPECT_EQ(Row1(), (Values{"0001", "0001", "293", "293"}));
    EXPECT_EQ(m_newValues, Values{"0001"});
}

TEST_F(DigitalSquelchCell, StaysAsItWasAfterEscape) {
    GoTo(1, RTGP);
    TypeText("ab");
    PressKey("Escape");
    EXPECT_EQ(Row1(), (Values{"0001", "0001", "293", "293"}));
    EXPECT_EQ(m_newValues, Values{});
}

TEST_F(DigitalSquelchCell, OfABlankRowIsCarriedOverTheDefaults) {
    Install(5, RTGP, new DigitalSquelchEditor(4, 0, 65535));
    TypeIntoCell(*CurrentGrid(), 5, RTGP, "ab");
    EXPECT_EQ(Text(5, MNUM), "005");
    EXPECT_EQ(Text(5, RTGP), "00AB");
    EXPECT_EQ(Text(5, TTGP), "00AB");
    EXPECT_EQ(Text(5, TNAC), "293");
}

TEST_F(DigitalSquelchCell, ValidatorMovesItsValueToAndFromTheControl) {
    auto* control = new wxTextCtrl(MainFrame, wxID_ANY);
    wxString value = "00AB";
    DigitalSquelchValidator validator(&value, 0, 65535);
    EXPECT_FALSE(validator.TransferToWindow());
    EXPECT_FALSE(validator.TransferFromWindow());
    validator.SetWindow(control);
    EXPECT_TRUE(validator.TransferToWindow());
    EXPECT_EQ(control->GetValue(), "00AB");
    control->ChangeValue("00CD");
    EXPECT_TRUE(validator.TransferFromWindow());
    EXPECT_EQ(value, "00CD");
    DigitalSquelchValidator without;
    EXPECT_TRUE(without.TransferToWindow());
    EXPECT_TRUE(without.TransferFromWindow());
}

TEST_F(DigitalSquelchCell, ValidatorIsMadeByNameAndClonedWithItsFields) {
    const auto made = MakeByName<DigitalSquelchValidator>("DigitalSquelchValidator");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->GetMin(), 0);
    EXPECT_EQ(made->GetMax(), 0);
    EXPECT_EQ(made->GetValuePointer(), nullptr);
    wxString value;
    DigitalSquelchValidator validator(&value, 1, 2);
    validator.SetRange(3, 4095);
    const std::unique_ptr<DigitalSquelchValidator> clone(
        dynamic_cast<DigitalSquelchValidator*>(validator.Clone()));
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->GetMin(), 3);
    EXPECT_EQ(clone->GetMax(), 4095);
    EXPECT_EQ(clone->GetValuePointer(), &value);
}

TEST_F(DigitalSquelchCell, ValidatorsBoxComesForGoodAndBadTexts) {
    auto* control = new wxTextCtrl(MainFrame, wxID_ANY, "xyz");
    DigitalSquelchValidator validator;
    validator.SetWindow(control);
    DialogScript dialogs;
    dialogs.ExpectMessage("Validation conflict", "'xyz' contains invalid character(s)")
        .Style(wxOK | wxICON_EXCLAMATION);
    EXPECT_FALSE(validator.Validate(MainFrame));
    control->ChangeValue("00AB");
    dialogs.ExpectMessage("Validation conflict", "'00AB' has been validated")
        .Style(wxOK | wxICON_EXCLAMATION);
    EXPECT_FALSE(validator.Validate(MainFrame));
    control->Disable();
    EXPECT_TRUE(validator.Validate(MainFrame));
}
