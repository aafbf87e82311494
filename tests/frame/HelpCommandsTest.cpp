// User guide and About box.
#include "frame/HelpCommands.h"

#include "commands/CommandIds.h"
#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/frame/DocumentOpener.h"
#include "tests/frame/FrameTools.h"
#include "tests/frame/ToolkitLabels.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <algorithm>
#include <filesystem>

using namespace testbench;
namespace fs = std::filesystem;

namespace {

/// The guide next to this program. It is absent before and after each test.
class HelpFile : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
        fs::remove(m_guide);
    }

    void TearDown() override {
        fs::remove(m_guide);
        ZelkWindowTest::TearDown();
    }

    static void ExpectComplaint(DialogScript& dialogs) {
        dialogs
            .ExpectMessage("User Guide",
                           "Unable to open User Guide.\nLook in the install directory for ZelkUserGuide.pdf")
            .Style(PlainBox);
    }

    const fs::path m_guide = ThisProgram().parent_path() / "ZelkUserGuide.pdf";
    const TempFolder m_folder;
};

} // namespace

TEST_F(HelpFile, StandsBesideTheExecutable) {
    EXPECT_EQ(UserGuidePath(), m_guide.string());
}

TEST_F(HelpFile, IsOpenedWithTheSystemsApplication) {
    const DocumentOpener opener(m_folder.Path(), DocumentOpener::Kind::Recording);
    WriteFile(m_guide, "%PDF-1.4\n");
    const DialogScript noDialog;
    RunCommand(IdHelp);
    ASSERT_TRUE(PumpUntil([&] { return !opener.Opened().empty(); }));
    EXPECT_EQ(opener.Opened(), m_guide.string());
}

TEST_F(HelpFile, ThatIsMissingIsComplainedAbout) {
    const DocumentOpener opener(m_folder.Path(), DocumentOpener::Kind::Recording);
    DialogScript dialogs;
    ExpectComplaint(dialogs);
    RunCommand(IdHelp);
    EXPECT_EQ(opener.Opened(), "");
}

TEST_F(HelpFile, ThatNoApplicationOpensIsComplainedAbout) {
    const DocumentOpener opener(m_folder.Path(), DocumentOpener::Kind::Missing);
    WriteFile(m_guide, "%PDF-1.4\n");
    DialogScript dialogs;
    ExpectComplaint(dialogs);
    RunCommand(IdHelp);
}

TEST(AboutBox, HoldsTheseTexts) {
    const wxAboutDialogInfo info = MakeAboutInfo();
    EXPECT_EQ(info.GetName(), "Orv Zelk");
    EXPECT_EQ(info.GetVersion(), "1.0.0");
    EXPECT_EQ(info.GetDescription(), "Channel loading software for Orv Radios. \n"
                                     "10 JUN 2026 \n\n"
                                     "wxWidgets 3.2.5-Windows-Unicode build");
    EXPECT_EQ(info.GetCopyright(), "Copyright 2026 the Zelk developers");
    EXPECT_FALSE(info.HasWebSite());
    EXPECT_FALSE(info.HasLicence());
    EXPECT_FALSE(info.HasDevelopers());
}

TEST_F(HelpFile, AboutBoxComesUpAndGoes) {
    RunWithRobot([](Robot& robot) {
        TellGui([] { RunCommand(IdAbout); });
        EXPECT_TRUE(robot.WaitForWindow("About Orv Zelk"));
        const std::vector<std::string> shown = robot.Ask([] { return AboutBoxLabels(); });
        std::vector<std::string> wanted = NameLabels("Orv Zelk", "1.0.0");
        wanted.insert(wanted.end(), {"Channel loading software for Orv Radios. \n"
                                     "10 JUN 2026 \n\n"
                                     "wxWidgets 3.2.5-Windows-Unicode build",
                                     "Copyright 2026 the Zelk developers"});
        for (const std::string& text : wanted)
            EXPECT_EQ(std::count(shown.begin(), shown.end(), text), 1)
                << text << "\nshown: " << testing::PrintToString(shown);
        robot.Press("Escape");
        EXPECT_TRUE(robot.WaitForWindow("Orv Zelk: Page 1 of 1."));
    });
}
