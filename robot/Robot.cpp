#include "robot/Robot.h"

#include "robot/OpenDialogs.h"
#include "robot/Pattern.h"

#include <wx/app.h>
#include <wx/imagpng.h>
#include <wx/wfstream.h>

#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

namespace testbench {

namespace {

using Clock = std::chrono::steady_clock;

void Sleep(int ms) {
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

} // namespace

Robot::Robot(int paceMs) : Hands(paceMs) {
    if (wxTheApp != nullptr) {
        RunInGui(WatchDialogs);
    }
}

bool Robot::Poll(const std::function<bool()>& condition, int ms) const {
    const auto deadline = Clock::now() + std::chrono::milliseconds(ms);
    while (!condition()) {
        if (Clock::now() >= deadline) {
            return false;
        }
        Sleep(10);
    }
    return true;
}

bool Robot::WaitFor(const std::function<bool()>& condition, int ms) {
    return Poll([&] { return AskGui(condition); }, ms);
}

wxDialog* Robot::WaitForDialog(const std::string& caption, int ms) {
    wxDialog* found = nullptr;
    Poll(
        [&] {
            const std::vector<DialogFacts> open = OpenDialogs();
            if (open.empty() || !MatchesWhole(caption, open.back().caption)) {
                return false;
            }
            // The toolkit gives some dialogs no title; then accept any dialog.
            const std::string focused = TheDesk().FocusedTitle();
            if (focused == open.back().caption || (focused.empty() && TheDesk().FocusIsDialog())) {
                found = open.back().dialog;
            }
            return found != nullptr;
        },
        ms);
    return found;
}

bool Robot::WaitForNoDialog(int ms) {
    return Poll([] { return OpenDialogs().empty(); }, ms);
}

bool Robot::WaitForWindow(const std::string& title, int ms) {
    return Poll(
        [&] {
            const std::string focused = TheDesk().FocusedTitle();
            return !focused.empty() && MatchesWhole(title, focused);
        },
        ms);
}

void Robot::Settle(int ms) {
    // Jobs wait until the window thread's event queue is empty. The second job also waits for the events
    // that the first round caused.
    for (int round = 0; round < 2; round++) {
        Sleep(10);
        RunInGui([] {}, ms);
    }
}

void Robot::Screenshot(const std::filesystem::path& file, const wxRect& part) const {
    wxImage picture = TheDesk().Picture(part);
    wxFFileOutputStream out(wxString::FromUTF8(file.string()));
    wxPNGHandler handler;
    if (!out.IsOk() || !handler.SaveFile(&picture, out, false) || !out.Close()) {
        throw std::runtime_error("can't write " + file.string());
    }
}

} // namespace testbench
