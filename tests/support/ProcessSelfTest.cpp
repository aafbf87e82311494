// Child processes, the display script and the watchdog.
#include "robot/Files.h"
#include "robot/Process.h"
#include "robot/TempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

using namespace testbench;

namespace {

std::string OwnProgram() {
    return std::filesystem::read_symlink("/proc/self/exe");
}

} // namespace

TEST(ChildProcess, GivesItsLinesOneAfterTheOther) {
    Process child({"sh", "-c", "echo one; echo two >&2; echo one more"});
    EXPECT_EQ(child.WaitForLine("^one").value_or("none"), "one");
    EXPECT_EQ(child.WaitForLine("one").value_or("none"), "one more");
    EXPECT_FALSE(child.WaitForLine("one", 200));
    EXPECT_EQ(child.WaitForExit().value_or(-1), 0);
    EXPECT_EQ(child.Output(), "one\ntwo\none more\n");
}

TEST(ChildProcess, AnswersWhatIsWrittenToIt) {
    Process child({"cat"});
    EXPECT_TRUE(child.Write("hello\nworld\n"));
    EXPECT_EQ(child.WaitForLine("wor").value_or("none"), "world");
    EXPECT_TRUE(child.IsRunning());
    child.CloseInput();
    EXPECT_EQ(child.WaitForExit().value_or(-1), 0);
    EXPECT_FALSE(child.Write("more\n"));
}

TEST(ChildProcess, TellsItsExitCodeAndItsSignal) {
    EXPECT_EQ(Process({"sh", "-c", "exit 7"}).WaitForExit().value_or(-1), 7);
    Process sleeper({"sleep", "100"});
    EXPECT_FALSE(sleeper.WaitForExit(100));
    EXPECT_EQ(sleeper.Terminate(), 128 + SIGTERM);
    EXPECT_FALSE(sleeper.IsRunning());
}

TEST(ChildProcess, ThatIgnoresTheRequestToEndIsForced) {
    Process stubborn({"sh", "-c", "trap '' TERM; echo ready; while :; do sleep 0.1; done"});
    ASSERT_TRUE(stubborn.WaitForLine("ready"));
    EXPECT_EQ(stubborn.Terminate(), 128 + SIGKILL);
}

TEST(ChildProcess, ThatDoesNotExistIsAnException) {
    EXPECT_THROW(Process({"/no/such/program"}), std::runtime_error);
}

TEST(ChildProcess, StartsInItsFolderWithItsEnvironment) {
    const TempFolder folder;
    Process child({"sh", "-c", "pwd; echo $ZELK_SELFTEST"},
                  {.folder = folder.Path(), .environment = {{"ZELK_SELFTEST", "set"}}});
    EXPECT_EQ(child.WaitForLine("").value_or("none"), folder.Path().string());
    EXPECT_EQ(child.WaitForLine("").value_or("none"), "set");
}

TEST(ChildProcess, EndsWithItsObject) {
    pid_t pid = 0;
    {
        const Process child({"sleep", "100"});
        pid = child.Pid();
        EXPECT_EQ(kill(pid, 0), 0);
    }
    EXPECT_NE(kill(pid, 0), 0);
}

TEST(TemporaryFolder, IsEmptyAndGoesAwayWithWhatItHolds) {
    std::filesystem::path path;
    {
        const TempFolder folder;
        path = folder.Path();
        EXPECT_TRUE(std::filesystem::is_empty(path));
        WriteFile(folder / "file", std::string("a\0\r\nb", 5));
        EXPECT_EQ(ReadFile(folder / "file"), std::string("a\0\r\nb", 5));
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(WholeFiles, ThatCanNotBeReadOrWrittenAreExceptions) {
    const TempFolder folder;
    EXPECT_THROW(ReadFile(folder / "missing"), std::runtime_error);
    EXPECT_THROW(WriteFile(folder / "missing/file", "text"), std::runtime_error);
}

TEST(Watchdog, NamesTheTestThatHangs) {
    const TempFolder temporary;
    Process hanging({OwnProgram(), "--gtest_also_run_disabled_tests", "--gtest_filter=Hanging.*"},
                    {.environment = {{"ZELK_TEST_SECONDS", "2"}, {"TMPDIR", temporary.Path()}}});
    EXPECT_EQ(hanging.WaitForExit(30000).value_or(-1), 128 + SIGABRT);
    EXPECT_NE(hanging.Output().find("Hanging.DISABLED_InADialog takes longer than 2 s"), std::string::npos)
        << hanging.Output();
    EXPECT_NE(hanging.Output().find("open: dialog \"No one answers\""), std::string::npos)
        << hanging.Output();
    EXPECT_TRUE(std::filesystem::is_empty(temporary.Path())) << "left its home behind";
}

TEST(WindowTests, AreListedWithoutADisplay) {
    Process listing({"env", "-u", "DISPLAY", OwnProgram(), "--gtest_list_tests"});
    EXPECT_EQ(listing.WaitForExit().value_or(-1), 0);
    EXPECT_NE(listing.Output().find("AreListedWithoutADisplay"), std::string::npos);
}

TEST(WindowTests, WithoutADisplayFailAndSaySo) {
    Process run({"env", "-u", "DISPLAY", OwnProgram()});
    EXPECT_EQ(run.WaitForExit().value_or(-1), 1);
    EXPECT_NE(run.Output().find("need an X display"), std::string::npos) << run.Output();
}

TEST(WindowTests, KeepOutOfTheUsersHome) {
    const std::string home = std::getenv("HOME");
    EXPECT_NE(home.find("zelk-home-"), std::string::npos);
    EXPECT_EQ(std::string(std::getenv("XDG_CONFIG_HOME")), home + "/config");
    EXPECT_EQ(std::string(std::getenv("XDG_DATA_HOME")), home + "/data");
}

TEST(WithDisplay, RunsACommandUnderAWindowManagerAndCleansUp) {
    const std::string script = "echo display $DISPLAY; echo folder $TMPDIR; exit 5";
    const TempFolder temporary;
    Process run({WITH_DISPLAY, "sh", "-c", script}, {.environment = {{"TMPDIR", temporary.Path()}}});
    const std::string line = run.WaitForLine("^display :[0-9]+", 40000).value_or("");
    ASSERT_FALSE(line.empty()) << run.Output();
    EXPECT_EQ(run.WaitForExit().value_or(-1), 5);
    EXPECT_FALSE(std::filesystem::exists("/tmp/.X11-unix/X" + line.substr(line.find(':') + 1)));
    EXPECT_TRUE(std::filesystem::is_empty(temporary.Path()));
}

TEST(WithDisplay, EndsItsCommandAndServerWhenItIsEnded) {
    const TempFolder temporary;
    Process run({WITH_DISPLAY, "sh", "-c", "echo $$ $DISPLAY; exec sleep 100"},
                {.environment = {{"TMPDIR", temporary.Path()}}});
    const std::string line = run.WaitForLine("^[0-9]+ :[0-9]+", 40000).value_or("");
    ASSERT_FALSE(line.empty()) << run.Output();
    run.Signal(SIGTERM);
    EXPECT_EQ(run.WaitForExit().value_or(-1), 143);
    EXPECT_NE(kill(std::stoi(line), 0), 0) << "the command still runs";
    EXPECT_FALSE(std::filesystem::exists("/tmp/.X11-unix/X" + line.substr(line.find(':') + 1)));
    EXPECT_TRUE(std::filesystem::is_empty(temporary.Path()));
}
