// Frequencies typed into cells.
#include "editing/FrequencyCell.h"

#include "tests/editing/TextCellTest.h"
#include "tests/support/Modals.h"

using namespace testbench;
using Values = std::vector<std::string>;

namespace {

class FrequencyCell : public TextCellTest {
protected:
    /// Installs frequency editors in both frequency cells of a row in use.
    static void InstallBoth(int row, int band, int step) {
        UseRow(row);
        for (int col : {RFRQ, TFRQ})
            Install(row, col, new FrequencyEditor(row, band, step));
    }

    static wxColour Paint(int row, int col) { return CurrentGrid()->GetCellBackgroundColour(row, col); }
};

} // namespace

TEST_F(FrequencyCell, TakesGoodKeysOneByOneAndNoOthers) {
    InstallBoth(5, 5, 2500);
    struct Key {
        const char *key, *text;
    };
    constexpr Key keys[] = {
        {"a", "(no edit)"},
        {"period", "(no edit)"},
        {"minus", "(no edit)"},
        {"space", "(no edit)"},
        {"1", "1"},
        {"a", "1"},
        {"3", "13"},
        {"minus", "13"},
        {"8", "138"},
        {"space", "138"},
        {"period", "138."},
        {"period", "138."},
        {"0", "138.0"},
        {"1", "138.01"},
        {"3", "138.01"},
        {"4", "138.01"},
        {"2", "138.012"},
        {"4", "138.012"},
        {"5", "138.0125"},
        {"0", "138.0125"},
    };
    GoTo(5, RFRQ);
    for (const Key& key : keys) {
        PressKey(key.key);
        EXPECT_EQ(Typed(), key.text) << "after " << key.key;
    }
    PressKey("Return");
    EXPECT_EQ(Text(5, RFRQ), "138.0125");
    EXPECT_EQ(Text(5, TFRQ), "138.0125");
    EXPECT_EQ(m_newValues, Values{"138.0125"});
}

TEST_F(FrequencyCell, DropsTheKeyThatLeavesTheStepAndCompletesTheRest) {
    struct Line {
        int step, band;
        const char *typed, *control, *cell;
    };
    constexpr Line lines[] = {
        {2500, 5, "138.0134", "138.01", "138.0100"},    {2500, 5, "174.1", "174.", "174.0000"},
        {2500, 0, "30.0131", "30.01", "30.0100"},       {2500, 5, "155.0126", "155.012", "155.0125"},
        {1250, 4, "150.00635", "150.006", "150.00625"}, {8333, 3, "121.0123", "121.01", "121.010"},
        {8333, 2, "117.974", "117.97", "117.975"},      {6250, 5, "155.013", "155.01", "155.0125"},
        {12500, 5, "155.013", "155.01", "155.0125"},    {25000, 5, "155.01", "155.0", "155.0000"},
    };
    int row = 1;
    for (const Line& line : lines) {
        SCOPED_TRACE(line.typed);
        InstallBoth(++row, line.band, line.step);
        GoTo(row, RFRQ);
        TypeText(line.typed);
        EXPECT_EQ(Typed(), line.control);
        PressKey("Return");
        EXPECT_EQ(Text(row, RFRQ), line.cell);
        EXPECT_EQ(Text(row, TFRQ), line.cell);
    }
}

TEST_F(FrequencyCell, RefusesTheKeysThatLeaveItsStepAndGoesOnWithTheNextGoodOne) {
    struct Key {
        char key;
        const char* text;
    };
    struct Line {
        int step, band;
        const char* begun;
        std::vector<Key> keys;
        const char* cell;
    };
    const Line lines[] = {
        {25000,
         5,
         "155.0",
         {{'1', "155.0"},
          {'2', "155.02"},
          {'0', "155.02"},
          {'5', "155.025"},
          {'5', "155.025"},
          {'0', "155.0250"}},
         "155.0250"},
        {12500,
         5,
         "155.01",
         {{'3', "155.01"}, {'2', "155.012"}, {'0', "155.012"}, {'5', "155.0125"}},
         "155.0125"},
        {8333, 3, "121.01", {{'2', "121.01"}, {'0', "121.010"}, {'0', "121.010"}}, "121.010"},
        {6250,
         5,
         "155.01",
         {{'0', "155.01"}, {'8', "155.018"}, {'5', "155.018"}, {'7', "155.0187"}},
         "155.0187"},
        {2500,
         5,
         "155.01",
         {{'3', "155.01"}, {'7', "155.017"}, {'0', "155.017"}, {'5', "155.0175"}},
         "155.0175"},
        {1250,
         4,
         "150.006",
         {{'3', "150.006"}, {'2', "150.0062"}, {'0', "150.0062"}, {'5', "150.00625"}},
         "150.00625"},
    };
    int row = 1;
    for (const Line& line : lines) {
        SCOPED_TRACE(line.step);
        InstallBoth(++row, line.band, line.step);
        GoTo(row, RFRQ);
        TypeText(line.begun);
        ASSERT_EQ(Typed(), line.begun);
        for (const auto& [key, text] : line.keys) {
            TypeText(std::string(1, key));
            EXPECT_EQ(Typed(), text) << "after " << key;
        }
        PressKey("Return");
        EXPECT_EQ(Text(row, RFRQ), line.cell);
        EXPECT_EQ(Text(row, TFRQ), line.cell);
    }
}

TEST_F(FrequencyCell, IsCompletedInBothColumns) {
    InstallBoth(5, 5, 2500);
    TypeIntoCell(*CurrentGrid(), 5, RFRQ, "155.2");
    EXPECT_EQ(Text(5, RFRQ), "155.2000");
    EXPECT_EQ(Text(5, TFRQ), "155.2000");
    TypeIntoCell(*CurrentGrid(), 5, TFRQ, "156.2");
    EXPECT_EQ(Text(5, RFRQ), "155.2000");
    EXPECT_EQ(Text(5, TFRQ), "156.2000");
    EXPECT_EQ(m_newValues, (Values{"155.2000", "156.2000"}));
}

TEST_F(FrequencyCell, IsNotOpenedByAPeriod) {
    InstallBoth(5, 5, 2500);
    SetCell(5, RFRQ, "");
    GoTo(5, RFRQ);
    PressKey("period");
    EXPECT_FALSE(IsOpen());
    PressKey("Return");
    EXPECT_EQ(Text(5, RFRQ), "");
    EXPECT_EQ(m_newValues, Values{});
}

TEST_F(FrequencyCell, RefusesStartingKeysByTheSkipFlag) {
    InstallBoth(5, 5, 2500);
    const wxGridCellEditorPtr editor = EditorOf(5, RFRQ);
    for (const wxUniChar key : wxString(".a- ")) {
        wxKeyEvent event(wxEVT_CHAR);
        event.m_uniChar = static_cast<wxChar>(key.GetValue());
        event.m_keyCode = static_cast<long>(key.GetValue());
        event.Skip(true);
        editor->StartingKey(event);
        EXPECT_FALSE(event.GetSkipped()) << wxString(key);
    }
}

TEST_F(FrequencyCell, StaysAsItWasWhenTheTextIsNoFrequency) {
    InstallBoth(5, 5, 2500);
    for (const char* typed : {"99", "1", "1555", "175"}) {
        TypeIntoCell(*CurrentGrid(), 5, RFRQ, typed);
        EXPECT_EQ(Text(5, RFRQ), "140.0000") << typed;
        EXPECT_EQ(Text(5, TFRQ), "141.0000") << typed;
    }
    OpenEmpty(5, RFRQ);
    EXPECT_EQ(Typed(), "");
    PressKey("Return");
    EXPECT_EQ(Text(5, RFRQ), "140.0000");
    EXPECT_EQ(m_newValues, Values{});
}

TEST_F(FrequencyCell, ChangesNothingWhenTheSameTextIsTyped) {
    InstallBoth(5, 5, 2500);
    TypeIntoCell(*CurrentGrid(), 5, RFRQ, "140.0000");
    EXPECT_EQ(Text(5, RFRQ), "140.0000");
    EXPECT_EQ(Text(5, TFRQ), "141.0000");
    EXPECT_EQ(m_newValues, Values{});
}

TEST_F(FrequencyCell, IsCarriedWhenAnotherTextGivesTheSameFrequency) {
    InstallBoth(5, 5, 2500);
    TypeIntoCell(*CurrentGrid(), 5, RFRQ, "140");
    EXPECT_EQ(Text(5, RFRQ), "140.0000");
    EXPECT_EQ(Text(5, TFRQ), "140.0000");
    EXPECT_EQ(m_newValues, Values{"140.0000"});
}

TEST_F(FrequencyCell, ThatIsWiderThanItsControlIsNotChangedByLooking) {
    InstallBoth(5, 2, 8333);
    SetCell(5, RFRQ, "118.0000");
    SetCell(5, TFRQ, "119.000");
    GoTo(5, RFRQ);
    PressKey("F2");
    ASSERT_TRUE(IsOpen());
    PressKey("Return");
    EXPECT_EQ(Text(5, RFRQ), "118.0000");
    EXPECT_EQ(Text(5, TFRQ), "119.000");
}

TEST_F(FrequencyCell, StaysAsItWasAfterEscape) {
    InstallBoth(5, 5, 2500);
    GoTo(5, RFRQ);
    TypeText("155.2");
    PressKey("Escape");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Text(5, RFRQ), "140.0000");
    EXPECT_EQ(Text(5, TFRQ), "141.0000");
    EXPECT_EQ(m_newValues, Values{});
}

TEST_F(FrequencyCell, IsOpenedByBackspaceAndDelete) {
    InstallBoth(5, 5, 2500);
    GoTo(5, RFRQ);
    PressKey("BackSpace");
    EXPECT_TRUE(IsOpen());
    TypeText("5");
    PressKey("Escape");
    EXPECT_EQ(Text(5, RFRQ), "140.0000");
    GoTo(5, RFRQ);
    PressKey("Delete");
    EXPECT_TRUE(IsOpen());
    PressKey("Escape");
    EXPECT_EQ(Text(5, RFRQ), "140.0000");
}

TEST_F(FrequencyCell, CanBeTakenBackKeyByKey) {
    InstallBoth(5, 5, 2500);
    GoTo(5, RFRQ);
    TypeText("155.2");
    PressKey("BackSpace");
    PressKey("BackSpace");
    EXPECT_EQ(Typed(), "155");
    PressKey("Home");
    PressKey("Delete");
    EXPECT_EQ(Typed(), "55");
    TypeText("1");
    EXPECT_EQ(Typed(), "155");
    PressKey("Return");
    EXPECT_EQ(Text(5, RFRQ), "155.0000");
}

TEST_F(FrequencyCell, IsJudgedWithTheKeyAtTheCaret) {
    InstallBoth(5, 5, 2500);
    GoTo(5, RFRQ);
    TypeText("155.12");
    PressKey("Left");
    TypeText("3"); // 155.132
    EXPECT_EQ(Typed(), "155.132");
    PressKey("BackSpace");
    TypeText("0"); // 155.102
    EXPECT_EQ(Typed(), "155.102");
    TypeText("00"); // 155.1002 is off the channel step
    EXPECT_EQ(Typed(), "155.102");
    for (int i = 0; i < 3; ++i)
        PressKey("Left");
    TypeText("9"); // four digits of MHz
    EXPECT_EQ(Typed(), "155.102");
    PressKey("Return");
    EXPECT_EQ(Text(5, RFRQ), "155.1025");
}

TEST_F(FrequencyCell, IsReplacedByAKeyWhenAllIsSelected) {
    InstallBoth(5, 5, 2500);
    GoTo(5, RFRQ);
    PressKey("F2"); // all is selected
    TypeText("155.2");
    EXPECT_EQ(Typed(), "155.2");
    PressKey("Return");
    EXPECT_EQ(Text(5, RFRQ), "155.2000");
}

TEST_F(FrequencyCell, CountsWhatIsSelectedWhenAPasteComes) {
    InstallBoth(5, 5, 2500);
    GoTo(5, RFRQ);
    PressKey("F2"); // all is selected
    Paste("155");
    EXPECT_EQ(Typed(), "140.0000");
    PressKey("Escape");
    EXPECT_EQ(Text(5, RFRQ), "140.0000");
}

TEST_F(FrequencyCell, TakesAPasteOfBareDigits) {
    InstallBoth(5, 5, 2500);
    OpenEmpty(5, RFRQ);
    Paste("155");
    EXPECT_EQ(Typed(), "155");
    TypeText(".2");
    PressKey("Return");
    EXPECT_EQ(Text(5, RFRQ), "155.2000");
}

TEST_F(FrequencyCell, RefusesAPasteThatBringsAPoint) {
    InstallBoth(5, 5, 2500);
    OpenEmpty(5, RFRQ);
    for (const char* text : {"155.2", "155.2000", "155.", "."}) {
        Paste(text);
        EXPECT_EQ(Typed(), "") << text;
    }
    PressKey("Escape");
}

TEST_F(FrequencyCell, RefusesAPasteBehindThePoint) {
    InstallBoth(5, 5, 2500);
    GoTo(5, RFRQ);
    TypeText("155.");
    Paste("2");
    EXPECT_EQ(Typed(), "155.");
    PressKey("Escape");
}

TEST_F(FrequencyCell, TakesAPasteBeforeThePointWhereThereIsRoomForOneMoreCharacter) {
    InstallBoth(5, 0, 2500);
    GoTo(5, RFRQ);
    TypeText("30.5");
    PressKey("Home");
    PressKey("Delete");
    PressKey("Delete");
    Paste("31");
    EXPECT_EQ(Typed(), "31.5");
    PressKey("Return");
    EXPECT_EQ(Text(5, RFRQ), "31.5000");

    // Three digits don't fit.
    InstallBoth(6, 5, 2500);
    GoTo(6, RFRQ);
    TypeText("155.2");
    PressKey("Home");
    for (int i = 0; i < 3; ++i)
        PressKey("Delete");
    Paste("156");
    EXPECT_EQ(Typed(), ".2");
    PressKey("Escape");
}

TEST_F(FrequencyCell, RefusesAPasteOfOtherCharactersWhole) {
    InstallBoth(5, 5, 2500);
    OpenEmpty(5, RFRQ);
    for (const char* text : {"n/a", "15a", " 155", "155 MHz", "1\n5"}) {
        Paste(text);
        EXPECT_EQ(Typed(), "") << text;
    }
    PressKey("Escape");
}

TEST_F(FrequencyCell, LosesThePaintOfARepairWithItsTransmitTwin) {
    InstallBoth(5, 5, 2500);
    for (int col : {RFRQ, TFRQ})
        CurrentGrid()->SetCellBackgroundColour(5, col, FailColour);
    TypeIntoCell(*CurrentGrid(), 5, RFRQ, "155.2");
    EXPECT_EQ(Paint(5, RFRQ), Paint(0, 0));
    EXPECT_EQ(Paint(5, TFRQ), Paint(0, 0));

    for (int col : {RFRQ, TFRQ})
        CurrentGrid()->SetCellBackgroundColour(5, col, FailColour);
    TypeIntoCell(*CurrentGrid(), 5, TFRQ, "156");
    EXPECT_EQ(Paint(5, RFRQ), FailColour);
    EXPECT_EQ(Paint(5, TFRQ), Paint(0, 0));
}

TEST_F(FrequencyCell, OfAReceiveOnlyFrequencyLeavesTransmitAlone) {
    InstallBoth(5, 2, 8333);
    TypeIntoCell(*CurrentGrid(), 5, RFRQ, "117.900");
    EXPECT_EQ(Text(5, RFRQ), "117.900");
    EXPECT_EQ(Text(5, TFRQ), "141.0000");
    TypeIntoCell(*CurrentGrid(), 5, RFRQ, "108");
    EXPECT_EQ(Text(5, RFRQ), "108.000");
    EXPECT_EQ(Text(5, TFRQ), "141.0000");
    TypeIntoCell(*CurrentGrid(), 5, RFRQ, "118.000");
    EXPECT_EQ(Text(5, TFRQ), "118.000");
}

// No step accepts 117.974 as typed text, so the edit takes it from the cell.
TEST_F(FrequencyCell, Of117974LeavesTransmitAlone) {
    InstallBoth(5, 2, 8333);
    SetCell(5, RFRQ, "117.974");
    GoTo(5, RFRQ);
    PressKey("F2");
    EditorOf(5, RFRQ)->ApplyEdit(5, RFRQ, CurrentGrid());
    PressKey("Escape");
    EXPECT_EQ(Text(5, RFRQ), "117.974");
    EXPECT_EQ(Text(5, TFRQ), "141.0000");
}

TEST_F(FrequencyCell, OfTransmitBecomesNotAvailableWhereNobodyTransmits) {
    InstallBoth(5, 2, 8333);
    CurrentGrid()->SetCellBackgroundColour(5, TFRQ, FailColour);
    TypeIntoCell(*CurrentGrid(), 5, TFRQ, "117.900");
    EXPECT_EQ(Text(5, TFRQ), "n/a");
    EXPECT_EQ(Text(5, RFRQ), "140.0000");
    EXPECT_EQ(Paint(5, TFRQ), Paint(0, 0));
    EXPECT_EQ(m_newValues, Values{"117.900"});
    TypeIntoCell(*CurrentGrid(), 5, TFRQ, "118");
    EXPECT_EQ(Text(5, TFRQ), "118.000");
    EXPECT_EQ(Text(5, RFRQ), "140.0000");
}

TEST_F(FrequencyCell, OfABlankRowIsCarriedOverTheDefaults) {
    for (int col : {RFRQ, TFRQ})
        Install(7, col, new FrequencyEditor(7, 5, 2500));
    TypeIntoCell(*CurrentGrid(), 7, RFRQ, "155.2");
    EXPECT_EQ(Text(7, MNUM), "007");
    EXPECT_EQ(Text(7, MODE), "N");
    EXPECT_EQ(Text(7, RFRQ), "155.2000");
    EXPECT_EQ(Text(7, TFRQ), "155.2000");
    for (int col : {RFRQ, TFRQ})
        Install(8, col, new FrequencyEditor(8, 5, 2500));
    TypeIntoCell(*CurrentGrid(), 8, TFRQ, "155.2");
    EXPECT_EQ(Text(8, RFRQ), "138.0000");
    EXPECT_EQ(Text(8, TFRQ), "155.2000");
}

TEST_F(FrequencyCell, OfADigitalRowWithoutShadowsWritesNoOtherRow) {
    Retarget(Kdrv716B, 0);
    for (int col : {RFRQ, TFRQ})
        Install(1, col, new FrequencyEditor(1, 4, 1250));
    TypeIntoCell(*CurrentGrid(), 1, RFRQ, "150.006");
    EXPECT_EQ(Text(1, RFRQ), "150.00625");
    EXPECT_EQ(Text(1, TFRQ), "150.00625");
    EXPECT_EQ(Text(0, RFRQ), "136.0000");
    EXPECT_EQ(Text(2, RFRQ), "");
}

TEST_F(FrequencyCell, FollowsNewBandAndStep) {
    auto* editor = new FrequencyEditor(5, 5, 2500);
    UseRow(5);
    Install(5, RFRQ, editor);
    GoTo(5, RFRQ);
    TypeText("155.2");
    PressKey("Escape");
    // The control already exists: the change must reach it too.
    editor->SetEditorFreqParams(3, 8333);
    GoTo(5, RFRQ);
    TypeText("121.0123");
    EXPECT_EQ(Typed(), "121.01");
    PressKey("Escape");
    GoTo(5, RFRQ);
    TypeText("155.2");
    EXPECT_EQ(Typed(), "1552");
    PressKey("Escape");
}

TEST_F(FrequencyCell, OfTheModuleHasTheBandOfItsRow) {
    Retarget(Kdrv4xxx, ModuleSlot);
    SetCell(3, BAND, "AM 108-138");
    SetCell(4, BAND, "AM 225-400");
    SetCell(5, BAND, "FM 30-50");
    SetCell(6, BAND, "no band");
    EXPECT_EQ(GetRowBand(CurrentGrid(), 3), 2);
    EXPECT_EQ(GetRowBand(CurrentGrid(), 4), 6);
    EXPECT_EQ(GetRowBand(CurrentGrid(), 5), 0);
    EXPECT_EQ(GetRowBand(CurrentGrid(), 6), 0);
    EXPECT_EQ(FrequencyValidator(nullptr, 3, 8, 8333).GetBand(), 2);
    EXPECT_EQ(FrequencyValidator(nullptr, 4, 8, 2500).GetBand(), 6);
    EXPECT_EQ(FrequencyValidator(nullptr, 5, 8, 2500).GetBand(), 0);
    EXPECT_EQ(FrequencyValidator(nullptr, 6, 8, 2500).GetBand(), 0);

    UseRow(3);
    UseRow(4);
    Install(3, RFRQ, new FrequencyEditor(3, 2, 8333));
    Install(4, RFRQ, new FrequencyEditor(4, 6, 2500));
    TypeIntoCell(*CurrentGrid(), 3, RFRQ, "121.02");
    TypeIntoCell(*CurrentGrid(), 4, RFRQ, "300.5");
    EXPECT_EQ(Text(3, RFRQ), "121.025");
    EXPECT_EQ(Text(4, RFRQ), "300.5000");
}

TEST_F(FrequencyCell, OfOtherPagesKeepsTheBandGiven) {
    SetCell(3, BAND, "AM 108-138");
    EXPECT_EQ(FrequencyValidator(nullptr, 3, 5, 2500).GetBand(), 5);
}

TEST_F(FrequencyCell, ValidatorIsMadeByNameWithItsDefaults) {
    const auto validator = MakeByName<FrequencyValidator>("FrequencyValidator");
    ASSERT_TRUE(validator);
    EXPECT_EQ(validator->GetBand(), 0);
    EXPECT_EQ(validator->GetStep(), 25000);
    EXPECT_EQ(validator->GetValuePointer(), nullptr);
    EXPECT_TRUE(validator->IsKindOf(wxCLASSINFO(wxValidator)));
}

TEST_F(FrequencyCell, ValidatorsCloneHasAllItsFields) {
    wxString value;
    FrequencyValidator validator(&value, 3, 7, 6250);
    validator.SetFreqParams(6, 12500);
    validator.SetWindow(MainFrame);
    const std::unique_ptr<FrequencyValidator> clone(dynamic_cast<FrequencyValidator*>(validator.Clone()));
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->GetBand(), 6);
    EXPECT_EQ(clone->GetStep(), 12500);
    EXPECT_EQ(clone->GetValuePointer(), &value);
    EXPECT_EQ(clone->GetWindow(), MainFrame);
}

TEST_F(FrequencyCell, ValidatorsBoxComesForGoodAndBadTexts) {
    auto* control = new wxTextCtrl(MainFrame, wxID_ANY);
    FrequencyValidator validator;
    validator.SetWindow(control);
    DialogScript dialogs;
    for (const auto& [text, answer] :
         {std::pair{"155.2", "'155.2' has been validated"},
          std::pair{"n/a", "'n/a' contains invalid character(s)"}, std::pair{"", "'' has been validated"}}) {
        EXPECT_EQ(validator.IsValid(text), answer);
        control->ChangeValue(text);
        dialogs.ExpectMessage("Validation conflict", answer).Style(wxOK | wxICON_EXCLAMATION);
        EXPECT_FALSE(validator.Validate(MainFrame)) << text;
        EXPECT_EQ(dialogs.Missing(), 0u);
    }
    control->Disable();
    EXPECT_TRUE(validator.Validate(MainFrame));
    validator.SetWindow(MainFrame);
    EXPECT_FALSE(validator.Validate(MainFrame)) << "not a text control";
    validator.SetWindow(nullptr);
    EXPECT_FALSE(validator.Validate(MainFrame)) << "no window";
}
