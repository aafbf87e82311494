// User guide and About box.
#include "frame/HelpCommands.h"

#include "commands/CommandIds.h"
#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/frame/FrameTools.h"
#include "tests/frame/ToolkitLabels.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <algorithm>
#include <cstdlib>
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
        m_path = std::getenv("PATH");
    }

    void TearDown() override {
        setenv("PATH", m_path.c_str(), 1);
        fs::remove(m_guide);
        ZelkWindowTest::TearDown();
    }

    /// Replaces the system's command that opens a document by one that records its arguments.
    void PutOpenerIntoPlace() {
        const fs::path opener = m_folder / "xdg-open";
        WriteFile(opener, "#!/bin/sh\nprintf '%s' \"$*\" >'" + OpenedFile().string() + ".part'\nmv '" +
                              OpenedFile().string() + ".part' '" + OpenedFile().string() + "'\n");
        fs::permissions(opener, fs::perms::owner_all);
        setenv("PATH", (m_folder.Path().string() + ":" + m_path).c_str(), 1);
    }

    fs::path OpenedFile() const { return m_folder / "opened"; }

    static void ExpectComplaint(DialogScript& dialogs) {
        dialogs
            .ExpectMessage("User Guide",
                           "Unable to open User Guide.\nLook in the install directory for ZelkUserGuide.pdf")
            .Style(PlainBox);
    }

    const fs::path m_program = fs::read_symlink("/proc/self/exe");
    const fs::path m_guide = m_program.parent_path() / "ZelkUserGuide.pdf";
    const TempFolder m_folder;

private:
    std::string m_path;
};

} // namespace

TEST_F(HelpFile, StandsBesideTheExecutable) {
    EXPECT_EQ(UserGuidePath(), m_guide.string());
}

TEST_F(HelpFile, IsOpenedWithTheSystemsApplication) {
    PutOpenerIntoPlace();
    WriteFile(m_guide, "%PDF-1.4\n");
    const DialogScript noDialog;
    RunCommand(IdHelp);
    ASSERT_TRUE(PumpUntil([this] { return fs::exists(OpenedFile()); }));
    EXPECT_EQ(ReadFile(OpenedFile()), m_guide.string());
}

TEST_F(HelpFile, ThatIsMissingIsComplainedAbout) {
    PutOpenerIntoPlace();
    DialogScript dialogs;
    ExpectComplaint(dialogs);
    RunCommand(IdHelp);
    EXPECT_FALSE(fs::exists(OpenedFile()));
}

TEST_F(HelpFile, ThatNoApplicationOpensIsComplainedAbout) {
    WriteFile(m_guide, "%PDF-1.4\n");
    setenv("PATH", m_folder.Path().c_str(), 1);
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
        const std::vector<std::string> shown = robot.Ask([] { return ShownLabels("GtkAboutDialog"); });
        for (const char* text : {"Orv Zelk", "1.0.0",
                                 "Channel loading software for Orv Radios. \n"
                                 "10 JUN 2026 \n\n"
                                 "wxWidgets 3.2.5-Windows-Unicode build",
                                 "Copyright 2026 the Zelk developers"})
            EXPECT_EQ(std::count(shown.begin(), shown.end(), text), 1)
                << text << "\nshown: " << testing::PrintToString(shown);
        robot.Press("Escape");
        EXPECT_TRUE(robot.WaitForWindow("Orv Zelk: Page 1 of 1."));
    });
}
