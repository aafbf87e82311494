#include "robot/RunScript.h"

#include "robot/OpenDialogs.h"
#include "robot/Pump.h"
#include "robot/Robot.h"

#include <wx/app.h>
#include <wx/dialog.h>

#include <atomic>
#include <chrono>
#include <exception>
#include <thread>

namespace testbench {

namespace {

constexpr int LongTime = 24 * 60 * 60 * 1000;

/// Runs the work and adds what it throws to the problems.
void Guarded(const std::string& part, std::vector<std::string>& problems, const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& thrown) {
        problems.push_back(part + ": " + thrown.what());
    } catch (...) {
        problems.push_back(part + ": threw something unknown");
    }
}

/// Cancels the innermost open dialog.
void Dismiss(Robot& robot, const DialogFacts& facts) {
    const bool ended = AskGui([dialog = facts.dialog] {
        const std::vector<DialogFacts> open = OpenDialogs();
        if (open.empty() || open.back().dialog != dialog || !dialog->IsModal()) {
            return false;
        }
        dialog->EndModal(wxID_CANCEL);
        return true;
    });
    if (!ended) {
        robot.Press("Escape");
    }
}

/// Waits until the action in the window thread ends. Cancels its dialogs if it takes too long.
void AwaitAction(Robot& robot, const std::atomic<bool>& actionEnded, size_t openBefore,
                 std::vector<std::string>& problems) {
    const auto finished = [&] { return actionEnded && OpenDialogs().size() <= openBefore; };
    const auto wait = [&](int ms) {
        for (int waited = 0; !finished() && waited < ms; waited += 10) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return finished();
    };
    for (int attempt = 0; attempt < 10 && !wait(attempt == 0 ? 5000 : 1000); attempt++) {
        const std::vector<DialogFacts> open = OpenDialogs();
        if (open.size() > openBefore) {
            problems.push_back("left open at the script's end: " + Describe(open.back()));
            Dismiss(robot, open.back());
        }
    }
}

} // namespace

std::vector<std::string> RunScript(const std::function<void(Robot&)>& script,
                                   const std::function<void()>& guiAction) {
    Robot robot;
    const size_t openBefore = OpenDialogs().size();
    std::vector<std::string> scriptProblems, actionProblems;
    std::atomic<bool> actionEnded = !guiAction;
    std::atomic<bool> scriptEnded = false;
    std::thread thread([&] {
        Guarded("script", scriptProblems, [&] { script(robot); });
        Guarded("after the script", scriptProblems,
                [&] { AwaitAction(robot, actionEnded, openBefore, scriptProblems); });
        scriptEnded = true;
        wxWakeUpIdle();
    });
    if (guiAction) {
        Guarded("window action", actionProblems, guiAction);
        actionEnded = true;
    }
    PumpUntil([&] { return scriptEnded.load(); }, LongTime);
    thread.join();
    scriptProblems.insert(scriptProblems.end(), actionProblems.begin(), actionProblems.end());
    return scriptProblems;
}

} // namespace testbench
