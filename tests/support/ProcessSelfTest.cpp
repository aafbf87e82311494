// Child processes, the display script and the watchdog.
#include "robot/Files.h"
#include "robot/Process.h"
#include "robot/TempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

using namespace testbench;

namespace {

std::string OwnProgram() {
    return std::filesystem::read_symlink("/proc/self/exe");
}

/// A command of the shell that prints the process of the display's server, the first that with-display
/// starts. A test looks for the process, not for the display's socket: a display that is started beside the
/// test takes the number that has become free.
const std::string PrintServer = "read server rest </proc/$PPID/task/$PPID/children; echo server $server; ";

/// The process in a line that PrintServer has printed. None: 0, for which ASSERT_GT fails.
pid_t ServerIn(const std::optional<std::string>& line) {
    return line ? std::stoi(line->substr(line->find_first_of(' '))) : 0;
}

bool Runs(pid_t process) {
    return kill(process, 0) == 0;
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
    const TempFolder temporary;
    Process run({WITH_DISPLAY, "sh", "-c", PrintServer + "echo $TMPDIR; exit 5"},
                {.environment = {{"TMPDIR", temporary.Path()}}});
    const pid_t server = ServerIn(run.WaitForLine("^server +[0-9]+", 40000));
    ASSERT_GT(server, 0) << run.Output();
    EXPECT_EQ(run.WaitForExit().value_or(-1), 5);
    EXPECT_FALSE(Runs(server));
    EXPECT_TRUE(std::filesystem::is_empty(temporary.Path()));
}

TEST(WithDisplay, EndsItsCommandAndServerWhenItIsEnded) {
    const TempFolder temporary;
    Process run({WITH_DISPLAY, "sh", "-c", PrintServer + "echo $$; exec sleep 100"},
                {.environment = {{"TMPDIR", temporary.Path()}}});
    const pid_t server = ServerIn(run.WaitForLine("^server +[0-9]+", 40000));
    ASSERT_GT(server, 0) << run.Output();
    const pid_t command = std::stoi(run.WaitForLine("^[0-9]+").value_or("0"));
    ASSERT_GT(command, 0) << run.Output();
    EXPECT_TRUE(Runs(server));
    EXPECT_TRUE(Runs(command));
    run.Signal(SIGTERM);
    EXPECT_EQ(run.WaitForExit().value_or(-1), 143);
    EXPECT_FALSE(Runs(command));
    EXPECT_FALSE(Runs(server));
    EXPECT_TRUE(std::filesystem::is_empty(temporary.Path()));
}
