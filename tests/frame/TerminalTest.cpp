// What the toolkit writes to the terminal.
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/ZelkWindowTest.h"

#include <sstream>

using namespace testbench;

namespace {

/// Reads what comes to the terminal from the window's beginning on.
class Terminal : public ZelkWindowTest {
protected:
    void SetUp() override {
        testing::internal::CaptureStderr();
        ZelkWindowTest::SetUp();
    }

    /// Warnings of the toolkit so far. Ends the reading.
    static std::string Complaints() {
        std::istringstream lines(testing::internal::GetCapturedStderr());
        std::string complaints;
        for (std::string line; std::getline(lines, line);)
            if (line.find("-WARNING") != std::string::npos || line.find("-CRITICAL") != std::string::npos)
                complaints += line + '\n';
        return complaints;
    }
};

} // namespace

TEST_F(Terminal, HasNoComplaintsAboutAWindowOfSixPages) {
    ShowAndFocus(*MainFrame);
    for (const int radio : {Krv21, Orv12, Krv214, Kdar2000, Kdrv716B}) {
        AddPage(radio);
        PumpUntilIdle();
    }
    EXPECT_EQ(PageCount, 6);
    for (int changes = 0; changes < 6; ++changes)
        PressKey("Ctrl+Page_Up");
    DeletePage();
    PumpUntilIdle();
    EXPECT_EQ(Complaints(), "");
}
