// The tools in use: their looks, and what a short window offers.
#include "commands/CommandIds.h"
#include "frame/SelectionDialogs.h"
#include "resources/ToolImages.h"
#include "robot/Desk.h"
#include "robot/OpenDialogs.h"
#include "robot/PictureSpot.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/toolbar.h>

#include <algorithm>

using namespace testbench;

namespace {

class ToolsInUse : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
    }

    static bool AreSame(const wxImage& one, const wxImage& other) {
        const int bytes = one.GetWidth() * one.GetHeight() * 3;
        return one.GetSize() == other.GetSize() &&
               std::equal(one.GetData(), one.GetData() + bytes, other.GetData());
    }

    static wxPoint SpotOf(ToolImage tool) {
        const auto spot = FindPicture(Desk().Picture({}), GetToolImage(tool));
        EXPECT_TRUE(spot.has_value()) << static_cast<int>(tool);
        return spot.value_or(wxPoint());
    }

    static wxRect PlaceOfTools() { return MainFrame->m_toolBar->GetScreenRect(); }
};

} // namespace

TEST_F(ToolsInUse, LookAfterTheirDialogAsBefore) {
    RunWithRobot([](Robot& robot) {
        const wxRect place = robot.Ask(PlaceOfTools);
        const wxPoint elsewhere(place.x + 300, place.y - 40);
        robot.Move(elsewhere);
        robot.Settle();
        const wxImage before = Desk().Picture(place);
        const auto looksAsBefore = [&] { return AreSame(Desk().Picture(place), before); };
        for (const ToolImage tool :
             {ToolImage::Open, ToolImage::Upload, ToolImage::Port, ToolImage::Target}) {
            SCOPED_TRACE(static_cast<int>(tool));
            const wxPoint spot = SpotOf(tool);
            robot.Move(spot);
            EXPECT_TRUE(robot.WaitFor([&] { return !looksAsBefore(); })) << "a tool under the pointer";
            robot.Click(spot);
            ASSERT_NE(robot.WaitForDialog(".*"), nullptr);
            robot.Settle();
            robot.Move(elsewhere);
            robot.Press("Escape");
            ASSERT_TRUE(robot.WaitForNoDialog());
            EXPECT_TRUE(robot.WaitFor(looksAsBefore));
        }
    });
}

TEST_F(ToolsInUse, OfAShortWindowAreInAMenuAtTheEndOfTheBar) {
    MainFrame->SetSize(600, 380);
    PumpUntilIdle();
    RunWithRobot([](Robot& robot) {
        const auto isSelected = [] { return CurrentGrid()->IsInSelection(5, MNUM); };
        const wxRect place = robot.Ask(PlaceOfTools);
        const wxPoint arrow(place.x + place.width / 2, place.GetBottom() - 12);
        robot.Click(arrow);
        robot.Settle();
        robot.Press("Down");
        robot.Press("Return");
        EXPECT_TRUE(robot.WaitFor(isSelected)) << "by mouse";

        // The sixth tool of all is the menu here, and its second entry takes the selection back.
        robot.Press("Ctrl+Tab");
        robot.Press("End");
        robot.Press("Return");
        robot.Settle();
        robot.Press("Down");
        robot.Press("Return");
        EXPECT_TRUE(robot.WaitFor([&] { return !isSelected(); })) << "by keys";
    });
}
