#include "tools/ScriptedProgram.h"

#include "frame/ZelkApp.h"
#include "frame/ZelkMain.h"
#include "robot/OpenDialogs.h"
#include "robot/RunScript.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

namespace {

std::function<void(testbench::Robot&)> userScript;
int exitCode = 1;

class ScriptedApp : public ZelkApp {
public:
    bool OnInit() override {
        if (!ZelkApp::OnInit())
            return false;
        testbench::WatchDialogs();
        CallAfter([] {
            const auto failures = testbench::RunScript(userScript);
            for (const std::string& failure : failures)
                std::printf("FAILED: %s\n", failure.c_str());
            exitCode = failures.empty() ? 0 : 1;
            MainFrame->Destroy();
        });
        return true;
    }
};

} // namespace

namespace Tour {

int RunScripted(const char* program, const std::filesystem::path& home,
                std::function<void(testbench::Robot&)> script) {
    userScript = std::move(script);
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        setenv(name, home.c_str(), 1);
    // Without a session bus the toolkit's settings service would only print warnings.
    setenv("GSETTINGS_BACKEND", "memory", 1);
    wxApp::SetInstance(new ScriptedApp);
    std::string name = program;
    char* arguments[] = {name.data(), nullptr};
    int noArguments = 1;
    wxEntry(noArguments, arguments);
    return exitCode;
}

} // namespace Tour
