// Text put into an open edit by mouse: pasted with the middle button, or dropped.
#include "editing/DescriptionCell.h"
#include "editing/DigitalSquelchCell.h"
#include "editing/FrequencyCell.h"
#include "tests/editing/TextCellTest.h"
#include "tests/support/RunWithRobot.h"

using namespace testbench;

namespace {

class MousePaste : public TextCellTest {
protected:
    /// Makes this the text that a middle click pastes.
    static void SelectElsewhere(const std::string& text) {
        const wxClipboardLocker lock;
        ASSERT_TRUE(!!lock);
        wxTheClipboard->UsePrimarySelection(true);
        const bool set = wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(text)));
        wxTheClipboard->UsePrimarySelection(false);
        ASSERT_TRUE(set);
    }

    /// Middle-clicks at the right end of the open edit, or near its left end.
    static void PasteWithMouse(const std::string& text, bool atEnd = true) {
        // Two clicks at the same spot would be a double click, which pastes nothing.
        static int aside = 5;
        aside = -aside;
        SelectElsewhere(text);
        const wxTextCtrl& control = *Control();
        const wxSize size = control.GetClientSize();
        ClickAt(control.ClientToScreen(wxPoint((atEnd ? size.x - 8 : 9) + aside, size.y / 2)), 2);
        PumpFor(50);
    }

    /// A text typed into an empty cell, one pasted after it, and the text that the edit then holds.
    struct Paste {
        const char *typed, *pasted, *text;
    };

    static void ExpectTexts(int col, wxGridCellEditor* editor, std::initializer_list<Paste> pastes) {
        Install(5, col, editor);
        for (const Paste& paste : pastes) {
            OpenEmpty(5, col);
            TypeText(paste.typed);
            PasteWithMouse(paste.pasted);
            EXPECT_EQ(Typed(), paste.text) << '"' << paste.typed << "\" and \"" << paste.pasted << '"';
            PressKey("Escape");
        }
    }
};

} // namespace

TEST_F(MousePaste, OfADescriptionIsTakenWholeOrNotAtAll) {
    UseRow(5);
    ExpectTexts(DESC, new ZelkDescriptionEditor(9, 0),
                {{"", "a~\u00e9|b", ""},
                 {"qu", "a~b", "QU"},
                 {"qu", "ay 3", "QUAY 3"},
                 {"qu", "a text that is too long", "QU"}});
    ExpectTexts(DESC, new ZelkDescriptionEditor(8, 5), {{"qu", "~|", "qu~|"}, {"qu", "\u00e9", "qu"}});
}

TEST_F(MousePaste, OfATalkGroupOrNacTakesHexadecimalDigitsAlone) {
    UseRow(5);
    ExpectTexts(RTGP, new DigitalSquelchEditor(4, 0, 65535),
                {{"", "x.y", ""}, {"1", "2g", "1"}, {"1", "2af", "12AF"}, {"12", "345", "12"}});
}

TEST_F(MousePaste, OfAFrequencyIsThatOfTheKeyboard) {
    UseRow(5);
    ExpectTexts(RFRQ, new FrequencyEditor(5, 5, 2500),
                {{"", "155", "155"},
                 {"1", "55", "155"},
                 {"", "155.2", "155.2"}, // keys could have typed it too
                 {"155.", "2", "155.2"},
                 {"155.0", "13", "155.0"}, // off the channel step
                 {"", "199.5", ""},        // out of band
                 {"", "155.2c", ""},
                 {"1", "x", "1"}});
}

TEST_F(MousePaste, ThatIsRefusedLeavesWhatWasSelected) {
    UseRow(5);
    Install(5, DESC, new ZelkDescriptionEditor(9, 0));
    SetCell(5, DESC, "KEPT");
    for (const char* text : {"a~b", "a text that is too long"}) {
        GoTo(5, DESC);
        PressKey("F2");
        PressKey("Ctrl+A");
        PasteWithMouse(text, false);
        EXPECT_EQ(Typed(), "KEPT") << text;
        PressKey("Return");
        EXPECT_EQ(Text(5, DESC), "KEPT") << text;
    }
}

TEST_F(MousePaste, LeavesTheEditUsable) {
    UseRow(5);
    Install(5, DESC, new ZelkDescriptionEditor(9, 0));
    OpenEmpty(5, DESC);
    TypeText("qu");
    PasteWithMouse("~");
    TypeText("a");
    PasteWithMouse("y");
    PressKey("BackSpace");
    TypeText("y");
    PressKey("Return");
    EXPECT_EQ(Text(5, DESC), "QUAY");
}

TEST_F(MousePaste, OfATextThatAFileBroughtMayBeEditedOn) {
    UseRow(5);
    Install(5, DESC, new ZelkDescriptionEditor(9, 0));
    SetCell(5, DESC, "A~B");
    GoTo(5, DESC);
    PressKey("F2");
    EXPECT_EQ(Typed(), "A~B");
    PressKey("End");
    TypeText("c");
    EXPECT_EQ(Typed(), "A~BC");
    PressKey("Escape");
    EXPECT_EQ(Text(5, DESC), "A~B");
}

// Dragged within the edit: a drag from another window would end the edit before the drop.
TEST_F(MousePaste, DroppedTextPassesTheSameRules) {
    UseRow(5);
    Install(5, DESC, new ZelkDescriptionEditor(9, 0));
    const auto dragFirstToEnd = [](const char* text) {
        SetCell(5, DESC, text);
        GoTo(5, DESC);
        PressKey("F2");
        PressKey("Home");
        PressKey("Shift+Right");
        const wxTextCtrl& control = *Control();
        const int y = control.GetClientSize().y / 2;
        const wxPoint from = control.ClientToScreen(wxPoint(4, y));
        const wxPoint to = control.ClientToScreen(wxPoint(control.GetClientSize().x - 4, y));
        RunWithRobot([&](Robot& robot) {
            robot.Drag(from, to);
            robot.Settle();
        });
        PumpFor(200);
        std::string typed = Typed();
        PressKey("Escape");
        return typed;
    };
    EXPECT_EQ(dragFirstToEnd("ABC"), "BCA");
    EXPECT_EQ(dragFirstToEnd("~BC"), "~BC");
}

TEST_F(MousePaste, InsertedBehindTheToolkitsBackPassesTheSameRules) {
    UseRow(5);
    Install(5, DESC, new ZelkDescriptionEditor(9, 0));
    OpenEmpty(5, DESC);
    TypeText("ab");
    Control()->WriteText("~");
    EXPECT_EQ(Typed(), "AB");
    Control()->WriteText("c");
    EXPECT_EQ(Typed(), "ABC");
    PressKey("Escape");
}
