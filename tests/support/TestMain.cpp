// Main program of window tests, which run inside the toolkit's main loop.
#include "robot/TempFolder.h"
#include "tests/support/AssertsOff.h"
#include "tests/support/Modals.h"
#include "tests/support/TestSurroundings.h"
#include "tests/support/Watchdog.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/image.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/stdpaths.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

// GTK and fontconfig keep some memory until the program ends; if such leaks were reported, no
// window test could pass. Only an address sanitizer calls this, by its own name.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" const char* __asan_default_options() {
    return "detect_leaks=0";
}

namespace testbench {

namespace {

/// Reports a failing toolkit call in a line instead of a dialog.
class ErrorLog : public wxLogStderr {
protected:
    void DoLogRecord(wxLogLevel level, const wxString& text, const wxLogRecordInfo& info) override {
        if (level <= wxLOG_Warning) {
            wxLogStderr::DoLogRecord(level, text, info);
        }
    }
};

class TestApp : public wxApp {
public:
    TestApp() {
        SetAppName("zelk-test");
        // The classic layout would give the configuration file and the data folder the same name.
        wxStandardPaths::Get().SetFileLayout(wxStandardPaths::FileLayout_XDG);
    }

    bool OnInit() override {
        delete wxLog::SetActiveTarget(new ErrorLog);
        // As the application does before it creates its window. Without them the tools have no images.
        wxInitAllImageHandlers();
        RecordAssertions();
        GuardDialogs();
        // A test may open and close any number of frames.
        SetExitOnFrameDelete(false);
        Bind(wxEVT_IDLE, &TestApp::OnFirstIdle, this);
        return true;
    }

    int OnRun() override {
        wxApp::OnRun();
        return m_result;
    }

    bool OnExceptionInMainLoop() override {
        try {
            throw;
        } catch (const std::exception& thrown) {
            ADD_FAILURE() << "exception in an event handler: " << thrown.what();
        } catch (...) {
            ADD_FAILURE() << "exception of unknown type in an event handler";
        }
        return true;
    }

private:
    void OnFirstIdle(wxIdleEvent&) {
        Unbind(wxEVT_IDLE, &TestApp::OnFirstIdle, this);
        m_result = RUN_ALL_TESTS();
        ExitMainLoop();
    }

    int m_result = EXIT_FAILURE;
};

std::chrono::seconds TimeLimit() {
    const char* const seconds = std::getenv("ZELK_TEST_SECONDS");
    return std::chrono::seconds(seconds != nullptr ? std::atoi(seconds) : 100);
}

int RunInMainLoop(int argc, char** argv) {
    if (!HasDisplay()) {
        std::fputs("Window tests need an X display: run them under tests/support/with-display.\n", stderr);
        return EXIT_FAILURE;
    }
    TempFolder home("zelk-home");
    KeepUsersFilesOut(home.Path());
    // The framework owns its listeners.
    testing::UnitTest::GetInstance()->listeners().Append(new Watchdog(TimeLimit(), [&home] {
        EndChildren();
        home.Remove();
    }));
    wxApp::SetInstance(new TestApp);
    return wxEntry(argc, argv);
}

} // namespace

} // namespace testbench

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    return testing::GTEST_FLAG(list_tests) ? RUN_ALL_TESTS() : testbench::RunInMainLoop(argc, argv);
}
