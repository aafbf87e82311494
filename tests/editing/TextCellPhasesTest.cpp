// Typed cells between the phases of an edit, and the results of a check afterwards.
#include "editing/DescriptionCell.h"
#include "editing/DigitalSquelchCell.h"
#include "editing/FrequencyCell.h"
#include "editing/ZelkEdit.h"
#include "tests/editing/TextCellTest.h"

using namespace testbench;

namespace {

class TextCellPhases : public TextCellTest {
protected:
    /// Whether the validator passes the key on to its control.
    template <class Validator>
    static bool LetsPass(Validator& validator, int key) {
        wxKeyEvent event(wxEVT_CHAR);
        event.m_keyCode = key;
        event.m_uniChar = static_cast<wxChar>(key);
        validator.ProcessEvent(event);
        return event.GetSkipped();
    }

    template <class Validator>
    static void ExpectKeys(Validator&& validator, char good, char bad) {
        EXPECT_TRUE(LetsPass(validator, bad)) << "no window";
        validator.SetWindow(new wxTextCtrl(MainFrame, wxID_ANY));
        EXPECT_TRUE(LetsPass(validator, good));
        EXPECT_FALSE(LetsPass(validator, bad));
        for (int key : {8, 9, 13, 27, 31, 127})
            EXPECT_TRUE(LetsPass(validator, key)) << key;
        validator.SetWindow(nullptr);
    }

    /// Expects that an edit returns its text once, and nothing the second time.
    static void ExpectTextHandedOverOnce(int col, const char* text) {
        SetCell(1, col, text);
        GoTo(1, col);
        PressKey("F2");
        ASSERT_TRUE(IsOpen()) << col;
        EditorOf(1, col)->ApplyEdit(1, col, CurrentGrid());
        EXPECT_EQ(Text(1, col), text) << col;
        EditorOf(1, col)->ApplyEdit(1, col, CurrentGrid());
        EXPECT_EQ(Text(1, col), "") << col;
        PressKey("Escape");
    }
};

} // namespace

TEST_F(TextCellPhases, RefuseKeysOnlyWhereThereIsAControl) {
    ExpectKeys(FrequencyValidator(), '1', 'a');
    ExpectKeys(ZelkDescriptionValidator(), 'a', '#');
    ExpectKeys(DigitalSquelchValidator(), 'f', 'g');
}

TEST_F(TextCellPhases, HandTheirTextOverOnce) {
    Retarget(Kdrv716B, 0);
    ExpectTextHandedOverOnce(RFRQ, "140.00000");
    ExpectTextHandedOverOnce(TFRQ, "141.00000");
    ExpectTextHandedOverOnce(RTGP, "00AB");
    ExpectTextHandedOverOnce(RNAC, "0AB");
}

TEST_F(TextCellPhases, TakeCharactersThatACheckBlanksAfterwards) {
    struct Line {
        int radio, slot;
        const char *typed, *checked;
    };
    for (const Line& line : std::initializer_list<Line>{{Kdrv4xxx, ModuleSlot, "a#b(c", "a b c"},
                                                        {Kdar2000, 0, "a{b~c", "a b c"},
                                                        {Kdrv716, 0, "a#b(c", "a#b(c"}}) {
        Retarget(line.radio, line.slot);
        TypeIntoCell(*CurrentGrid(), 3, DESC, line.typed);
        EXPECT_EQ(Text(3, DESC), line.typed) << line.radio;
        CheckRow(CurrentGrid(), 3);
        EXPECT_EQ(Text(3, DESC), line.checked) << line.radio;
    }
}
