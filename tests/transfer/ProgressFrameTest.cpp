// Tests of the window that shows a transfer.
#include "transfer/ProgressFrame.h"

#include "robot/Desk.h"
#include "robot/Pump.h"
#include "robot/ScreenSpots.h"
#include "tests/support/Keys.h"
#include "tests/transfer/WindowEnd.h"
#include "transfer/ProgressDialog.h"
#include "transfer/TransferSession.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/display.h>
#include <wx/gauge.h>
#include <wx/grid.h>
#include <wx/memconf.h>
#include <wx/sizer.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include <chrono>
#include <memory>

using namespace testbench;

namespace {

wxWindow* Child(const wxWindow& parent, const wxClassInfo* kind) {
    for (wxWindow* child : parent.GetChildren()) {
        if (child->IsKindOf(kind))
            return child;
    }
    return nullptr;
}

class ProgressFrameTest : public ::testing::Test {
protected:
    // At first the configuration has no place of a former window.
    ProgressFrameTest() : m_formerConfig(wxConfigBase::Set(new wxMemoryConfig)) {}

    ~ProgressFrameTest() override {
        if (m_frame)
            DestroyFrame();
        delete wxConfigBase::Set(m_formerConfig);
    }

    ProgressFrame& MakeFrame(wxWindow* parent = nullptr) {
        m_frame = new ProgressFrame(parent, wxID_ANY, "Send to RP25 Radio Progress");
        return *m_frame;
    }

    void DestroyFrame() {
        DestroyAndWait(m_frame);
        m_frame = nullptr;
    }

    wxString Label() const {
        return dynamic_cast<wxStaticText&>(*Child(*m_frame, wxCLASSINFO(wxStaticText))).GetLabelText();
    }
    wxButton& CancelButton() const {
        return dynamic_cast<wxButton&>(*Child(*m_frame, wxCLASSINFO(wxButton)));
    }

    ProgressFrame* m_frame = nullptr;
    wxConfigBase* m_formerConfig;
};

void ExpectItem(const wxSizerItem* item, int proportion, int flags, const char* name) {
    ASSERT_NE(item, nullptr) << name;
    EXPECT_EQ(item->GetProportion(), proportion) << name;
    EXPECT_EQ(item->GetFlag() & (wxEXPAND | wxALL), flags) << name;
    EXPECT_EQ(item->GetBorder(), 5) << name;
}

TEST_F(ProgressFrameTest, LaysOutLabelGaugeLineAndARowOfGaugeAndCancel) {
    const ProgressFrame& frame = MakeFrame();
    auto* column = dynamic_cast<wxBoxSizer*>(frame.GetSizer());
    ASSERT_NE(column, nullptr);
    EXPECT_EQ(column->GetOrientation(), wxVERTICAL);
    ASSERT_EQ(column->GetItemCount(), 4u);
    ExpectItem(column->GetItem(size_t(0)), 0, wxEXPAND | wxALL, "label");
    ExpectItem(column->GetItem(size_t(1)), 0, wxEXPAND | wxALL, "main gauge");
    ExpectItem(column->GetItem(size_t(2)), 0, wxEXPAND | wxALL, "line");
    ExpectItem(column->GetItem(size_t(3)), 1, wxEXPAND | wxALL, "row");
    EXPECT_NE(dynamic_cast<wxStaticText*>(column->GetItem(size_t(0))->GetWindow()), nullptr);
    EXPECT_EQ(column->GetItem(size_t(1))->GetWindow(), frame.MainGauge());
    EXPECT_NE(dynamic_cast<wxStaticLine*>(column->GetItem(size_t(2))->GetWindow()), nullptr);

    auto* row = dynamic_cast<wxBoxSizer*>(column->GetItem(size_t(3))->GetSizer());
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->GetOrientation(), wxHORIZONTAL);
    ASSERT_EQ(row->GetItemCount(), 2u);
    ExpectItem(row->GetItem(size_t(0)), 1, wxEXPAND | wxALL, "pulse gauge");
    ExpectItem(row->GetItem(size_t(1)), 0, wxALL, "Cancel");
    EXPECT_EQ(row->GetItem(size_t(0))->GetWindow(), frame.PulseGauge());
    EXPECT_EQ(row->GetItem(size_t(1))->GetWindow(), &CancelButton());
    EXPECT_EQ(CancelButton().GetLabel(), "Cancel");
}

TEST_F(ProgressFrameTest, GaugesAreHorizontalOfRange100AndBeginAt10) {
    const ProgressFrame& frame = MakeFrame();
    EXPECT_NE(frame.MainGauge(), frame.PulseGauge());
    for (const wxGauge* gauge : {frame.MainGauge(), frame.PulseGauge()}) {
        EXPECT_EQ(gauge->GetRange(), 100);
        EXPECT_EQ(gauge->GetValue(), 10);
        EXPECT_FALSE(gauge->IsVertical());
    }
}

TEST_F(ProgressFrameTest, HasItsNameTitleAndAFrameWithoutACloseBox) {
    const ProgressFrame& frame = MakeFrame();
    EXPECT_EQ(frame.GetName(), "ProgressFrame");
    EXPECT_EQ(frame.GetTitle(), "Send to RP25 Radio Progress");
    EXPECT_TRUE(frame.HasFlag(wxCAPTION));
    EXPECT_TRUE(frame.HasFlag(wxRESIZE_BORDER));
    EXPECT_FALSE(frame.HasFlag(wxCLOSE_BOX));
    EXPECT_FALSE(frame.Cancelled);
}

TEST_F(ProgressFrameTest, FitsItsContents) {
    const ProgressFrame& frame = MakeFrame();
    EXPECT_EQ(frame.GetClientSize(), frame.GetSizer()->GetMinSize());
}

TEST_F(ProgressFrameTest, ShowsTheStatusAndWhatIsAppendedToIt) {
    ProgressFrame& frame = MakeFrame();
    EXPECT_EQ(Label(), "");
    frame.SetStatus("Sending Memory Data");
    EXPECT_EQ(Label(), "Sending Memory Data");
    frame.AppendStatus("....");
    frame.AppendStatus(" A & B");
    EXPECT_EQ(Label(), "Sending Memory Data.... A & B");
    frame.SetStatus("Done");
    EXPECT_EQ(Label(), "Done");
    frame.AppendStatus("!");
    EXPECT_EQ(Label(), "Done!");
}

TEST_F(ProgressFrameTest, SetsNoStatusThatIsShownAlready) {
    ProgressFrame& frame = MakeFrame();
    frame.SetStatus("Sending Memory Data");
    wxWindow* label = Child(frame, wxCLASSINFO(wxStaticText));
    ASSERT_NE(label, nullptr);
    label->SetLabel("as it was");
    frame.SetStatus("Sending Memory Data");
    EXPECT_EQ(label->GetLabel(), "as it was");
    frame.SetStatus("Done");
    EXPECT_EQ(label->GetLabel(), "Done");
}

TEST_F(ProgressFrameTest, StandsInTheMiddleOfItsParentOrElseOfTheScreen) {
    auto* parent = new wxFrame(nullptr, wxID_ANY, "Parent", wxPoint(100, 80), wxSize(700, 500));
    ShowAndFocus(*parent);
    // Rounding and the window manager's decorations may shift it by some pixels.
    const auto isNear = [](const wxRect& inner, const wxRect& outer) {
        const wxPoint a = inner.GetPosition() + inner.GetSize() / 2;
        const wxPoint b = outer.GetPosition() + outer.GetSize() / 2;
        return std::abs(a.x - b.x) <= 30 && std::abs(a.y - b.y) <= 30;
    };
    const wxRect overParent = MakeFrame(parent).GetRect();
    EXPECT_TRUE(isNear(overParent, parent->GetRect())) << overParent.x << "," << overParent.y;
    DestroyFrame();
    wxConfigBase::Get()->DeleteAll();
    DestroyAndWait(parent);
    const wxRect alone = MakeFrame().GetRect();
    EXPECT_TRUE(isNear(alone, wxDisplay(0u).GetGeometry())) << alone.x << "," << alone.y;
}

TEST_F(ProgressFrameTest, KeepsItsSizeAndPlaceForTheNextOne) {
    ProgressFrame& first = MakeFrame();
    first.Show();
    PumpUntilIdle();
    first.SetSize(150, 120, 420, 260);
    ASSERT_TRUE(PumpUntil([&] { return first.GetClientSize().x >= 380; }));
    PumpFor(100);
    const wxRect kept = first.GetRect();
    DestroyFrame();
    ProgressFrame& second = MakeFrame();
    second.Show();
    EXPECT_TRUE(PumpUntil([&] { return second.GetSize() == kept.GetSize(); }))
        << second.GetSize().x << " by " << second.GetSize().y;
    EXPECT_TRUE(PumpUntil([&] { return second.GetPosition() == kept.GetPosition(); }))
        << second.GetPosition().x << "," << second.GetPosition().y;
}

TEST_F(ProgressFrameTest, DisablesAllOtherWindowsWhileItLives) {
    auto* other = new wxFrame(nullptr, wxID_ANY, "Other");
    other->Show();
    ProgressFrame& frame = MakeFrame(other);
    EXPECT_FALSE(other->IsEnabled());
    EXPECT_TRUE(frame.IsEnabled());
    DestroyFrame();
    EXPECT_TRUE(other->IsEnabled());
    DestroyAndWait(other);
}

TEST_F(ProgressFrameTest, AClickOnCancelSetsTheFlagAndPassesTheEventOn) {
    ProgressFrame& frame = MakeFrame();
    int passedOn = 0;
    frame.Bind(wxEVT_BUTTON, [&](wxCommandEvent&) { ++passedOn; });
    ShowAndFocus(frame);
    ClickAt(MiddleOf(CancelButton()));
    EXPECT_TRUE(PumpUntil([&] { return frame.Cancelled; }));
    EXPECT_EQ(passedOn, 1);
}

TEST_F(ProgressFrameTest, CloseByTheWindowManagerCountsAsCancelAndLeavesTheWindow) {
    ProgressFrame& frame = MakeFrame();
    ShowAndFocus(frame);
    PressKey("Alt+F4");
    EXPECT_TRUE(PumpUntil([&] { return frame.Cancelled; }));
    PumpUntilIdle();
    EXPECT_FALSE(frame.IsBeingDeleted());
    EXPECT_TRUE(frame.IsShown());
    EXPECT_FALSE(frame.Close()) << "the caller learns that the window stays";
}

TEST_F(ProgressFrameTest, ACloseThatCannotBeRefusedLeavesTheWindowToItsTransfer) {
    ProgressFrame& frame = MakeFrame();
    frame.Show();
    frame.Close(true);
    PumpUntilIdle();
    EXPECT_TRUE(frame.Cancelled);
    EXPECT_FALSE(frame.IsBeingDeleted());
}

/// What a person sees in a rectangle of the screen.
std::string Seen(const wxRect& part) {
    const wxImage picture = Desk().Picture(part);
    const auto* bytes = reinterpret_cast<const char*>(picture.GetData());
    return {bytes, static_cast<size_t>(picture.GetWidth()) * static_cast<size_t>(picture.GetHeight()) * 3};
}

/// A window with a grid, as that of the program, large enough to be seen beside the progress window.
class ProgressOverWindow : public ProgressFrameTest {
protected:
    ProgressOverWindow() {
        m_main = new wxFrame(nullptr, wxID_ANY, "Main", wxPoint(40, 40), wxSize(900, 600));
        m_grid = new wxGrid(m_main, wxID_ANY);
        m_grid->CreateGrid(30, 8);
        ShowAndFocus(*m_main);
    }
    ~ProgressOverWindow() override {
        if (m_frame)
            DestroyFrame();
        DestroyAndWait(m_main);
    }

    ProgressFrame& ShowFrame() {
        MakeFrame(m_grid->GetGridWindow());
        ShowAndFocus(*m_frame);
        return *m_frame;
    }

    wxFrame* m_main;
    wxGrid* m_grid;
};

TEST_F(ProgressOverWindow, StaysAboveItWhateverIsClicked) {
    const ProgressFrame& frame = ShowFrame();
    for (const wxPoint& spot : {wxPoint(20, 20), wxPoint(60, 400), wxPoint(300, -15)}) {
        ClickAt(*m_main, spot);
        PumpFor(150);
    }
    ClickAt(MiddleOf(CancelButton()));
    EXPECT_TRUE(PumpUntil([&] { return frame.Cancelled; }, 1500)) << "the button can't be reached";
}

TEST_F(ProgressOverWindow, TakesEscapeAlsoAfterAClickOnTheWindowBelow) {
    const ProgressFrame& frame = ShowFrame();
    ClickAt(*m_main, {20, 20});
    PumpFor(150);
    PressKey("Escape");
    EXPECT_TRUE(PumpUntil([&] { return frame.Cancelled; }, 1500));
}

TEST_F(ProgressOverWindow, KeepsItsKeysFromIt) {
    int keys = 0;
    m_main->Bind(wxEVT_CHAR_HOOK, [&](wxKeyEvent&) { ++keys; });
    ShowFrame();
    for (const char* key : {"Ctrl+F", "Ctrl+Page_Down", "Ctrl+Tab", "x"})
        PressKey(key);
    EXPECT_EQ(keys, 0);
}

TEST_F(ProgressOverWindow, IsDrawnBeforeAnythingWaits) {
    const TransferMeans means = MeansFor(m_grid, "/dev/no-such-port", "Send to RP25 Radio Progress");
    auto* frame = dynamic_cast<ProgressFrame*>(means.progress.get());
    ASSERT_NE(frame, nullptr);
    const wxRect area(frame->ClientToScreen(wxPoint(0, 0)), frame->GetClientSize());
    const std::string first = Seen(area);
    PumpFor(300);
    EXPECT_EQ(wxRect(frame->ClientToScreen(wxPoint(0, 0)), frame->GetClientSize()), area);
    EXPECT_TRUE(first == Seen(area)) << "it was drawn only by later events";
}

TEST_F(ProgressOverWindow, DrawsEachStatusInThePauseBehindIt) {
    ProgressFrame& frame = ShowFrame();
    PumpFor(300);
    const wxRect area(frame.ClientToScreen(wxPoint(0, 0)), frame.GetClientSize());
    std::string before = Seen(area);
    for (const char* text : {"Initializing....", "Sending Memory Data....", "Transfer Complete."}) {
        frame.SetStatus(text);
        frame.DrawStatus(SystemClock().Now() + std::chrono::seconds(1));
        const std::string now = Seen(area);
        EXPECT_TRUE(now != before) << text << ": not drawn";
        PumpFor(100);
        EXPECT_TRUE(now == Seen(area)) << text << ": not all of it was drawn";
        before = now;
    }
}

// The system's gauge may draw itself at each move.
TEST_F(ProgressFrameTest, MovesTheGaugeOfRowsOnceTheRadioHasItsLine) {
    ProgressFrame& frame = MakeFrame();
    frame.SetValue(0);
    EXPECT_EQ(frame.MainGauge()->GetValue(), 0) << "before it is shown";
    ShowAndFocus(frame);
    frame.SetValue(1);
    EXPECT_EQ(frame.MainGauge()->GetValue(), 0) << "takes the radio's time";
    EXPECT_TRUE(PumpUntil([&] {
        frame.Pulse();
        return frame.MainGauge()->GetValue() == 1;
    })) << "in a wait";
    frame.SetValue(2);
    frame.DrawStatus(SystemClock().Now());
    EXPECT_EQ(frame.MainGauge()->GetValue(), 2) << "in a pause";
    frame.SetValue(3);
    EXPECT_EQ(frame.Window(), &frame);
    EXPECT_EQ(frame.MainGauge()->GetValue(), 3) << "before a box opens";
    frame.SetValue(100);
    frame.SetRange(50);
    EXPECT_EQ(frame.MainGauge()->GetValue(), 50);
    frame.Pulse();
    EXPECT_EQ(frame.MainGauge()->GetValue(), 50);
}

TEST_F(ProgressFrameTest, MovesTheGaugeOfRowsTwentyTimesASecondAtMost) {
    using Clock = std::chrono::steady_clock;
    ProgressFrame& frame = MakeFrame();
    frame.SetValue(0);
    ShowAndFocus(frame);
    int moves = 0, before = 0;
    const auto begin = Clock::now();
    for (int row = 1; row <= 100; ++row) {
        frame.SetValue(row);
        frame.Pulse();
        PumpFor(2);
        const int now = frame.MainGauge()->GetValue();
        moves += now != before ? 1 : 0;
        before = now;
    }
    EXPECT_GT(moves, 2);
    EXPECT_LE(moves, (Clock::now() - begin) / std::chrono::milliseconds(50) + 2);
}

TEST_F(ProgressFrameTest, HasTheIconOfItsParentsWindow) {
    auto* parent = new wxFrame(nullptr, wxID_ANY, "Parent");
    wxBitmap picture(48, 48);
    wxIcon icon;
    icon.CopyFromBitmap(picture);
    parent->SetIcon(icon);
    auto* inner = new wxWindow(parent, wxID_ANY);
    const ProgressFrame& frame = MakeFrame(inner);
    ASSERT_EQ(frame.GetIcons().GetIconCount(), 1u);
    EXPECT_TRUE(frame.GetIcons().GetIcon(wxSize(48, 48)).IsSameAs(icon));
    DestroyFrame();
    DestroyAndWait(parent);
}

TEST_F(ProgressFrameTest, EscapeCountsAsCancel) {
    const ProgressFrame& frame = MakeFrame();
    ShowAndFocus(*m_frame);
    PressKey("Escape");
    EXPECT_TRUE(PumpUntil([&] { return frame.Cancelled; }, 1500));
}

TEST_F(ProgressFrameTest, KeysMeantForAnotherWindowCancelNothingUntilCancelHasTheKeyboard) {
    const ProgressFrame& frame = MakeFrame();
    ShowAndFocus(*m_frame);
    for (const char* key : {"Return", "space", "KP_Enter", "Down", "Right", "Home", "x"}) {
        PressKey(key);
        PumpFor(50);
        EXPECT_FALSE(frame.Cancelled) << key;
        EXPECT_FALSE(CancelButton().HasFocus()) << key;
    }
    PressKey("Tab");
    EXPECT_TRUE(CancelButton().HasFocus());
    PressKey("Return");
    EXPECT_TRUE(PumpUntil([&] { return frame.Cancelled; }, 1500));
}

TEST_F(ProgressFrameTest, SpacePressesCancelThatHasTheKeyboard) {
    const ProgressFrame& frame = MakeFrame();
    ShowAndFocus(*m_frame);
    PressKey("Shift+Tab");
    PressKey("space");
    EXPECT_TRUE(PumpUntil([&] { return frame.Cancelled; }, 1500));
}

TEST(ProgressDialogTest, HoldsOneGaugeOfRange100At0) {
    auto* dialog = new ProgressDialog(nullptr, wxID_ANY, "Progress");
    EXPECT_EQ(dialog->GetTitle(), "Progress");
    const auto* gauge = dynamic_cast<wxGauge*>(Child(*dialog, wxCLASSINFO(wxGauge)));
    ASSERT_NE(gauge, nullptr);
    EXPECT_EQ(dialog->GetChildren().GetCount(), 1u);
    EXPECT_EQ(gauge->GetRange(), 100);
    EXPECT_EQ(gauge->GetValue(), 0);
    EXPECT_FALSE(gauge->IsVertical());
    ASSERT_EQ(dialog->GetSizer()->GetItemCount(), 1u);
    ExpectItem(dialog->GetSizer()->GetItem(size_t(0)), 0, wxALL, "gauge");
    DestroyAndWait(dialog);
}

} // namespace
