// What a user reads about a column heading.
#include "catalogue/ColumnTerms.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

using namespace testbench;

namespace {

class HeadingTips : public ZelkWindowTest {
protected:
    /// A hand moves through many points, of which the toolkit may pass over one.
    static void PointTo(Robot& robot, const wxPoint& spot) {
        for (int step = 3; step >= 0; --step)
            robot.Move(spot - wxPoint(step, 0));
    }

    /// Points to a heading and expects this tool tip.
    static void ExpectTip(Robot& robot, int col, const char* tip) {
        PointTo(robot, robot.Ask([=] { return ColumnLabelSpot(*CurrentGrid(), col); }));
        EXPECT_TRUE(robot.WaitFor([=] { return Tip() == tip; })) << tip << " is not " << robot.Ask(Tip);
    }

    static std::string Tip() {
        return CurrentGrid()->GetGridColLabelWindow()->GetToolTipText().utf8_string();
    }
};

} // namespace

TEST_F(HeadingTips, TellTheFullTermAndUnitOfTheColumnUnderThePointer) {
    ShowAndFocus(*MainFrame);
    RunWithRobot([](Robot& robot) {
        ExpectTip(robot, RFRQ, "Receive frequency in MHz");
        ExpectTip(robot, RTON, "Receive CTCSS tone in Hz");
        ExpectTip(robot, TCOD, "Transmit DPL code");
        // Where no column is.
        PointTo(robot, robot.Ask([] { return ColumnLabelSpot(*CurrentGrid(), TCOD); }) + wxPoint(100, 0));
        EXPECT_TRUE(robot.WaitFor([] { return Tip().empty(); })) << robot.Ask(Tip);
    });
}

TEST_F(HeadingTips, AreThoseOfAPageScrolledSideways) {
    Retarget(Kdrv716B, 0);
    MainFrame->SetSize(500, 400);
    ShowAndFocus(*MainFrame);
    RunWithRobot([](Robot& robot) {
        ExpectTip(robot, TNAC, "Transmit network access code (NAC), hexadecimal");
        ExpectTip(robot, TIDC, "Transmit unit identity, 0 to 9999999");
    });
    int left = 0;
    CurrentGrid()->GetViewStart(&left, nullptr);
    EXPECT_GT(left, 0) << "the page isn't scrolled";
}

TEST(ColumnTerms, ExistForEveryHeading) {
    using namespace RadioCatalogue;
    for (int type = 0; type < TypeTotal; ++type)
        for (int col = 0; col < ColumnTotal; ++col)
            EXPECT_EQ(*ColumnTerm(type, col) != 0, *ColumnHeading[type][col] != 0)
                << RadioTypeName[type] << ", " << ColumnTag[col];
}
