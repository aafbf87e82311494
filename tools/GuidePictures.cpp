// Takes all pictures of the user guide from the running program, with simulated radios.
#include "frame/ZelkApp.h"
#include "frame/ZelkMain.h"
#include "robot/OpenDialogs.h"
#include "robot/Robot.h"
#include "robot/RunScript.h"
#include "robot/TempFolder.h"
#include "tools/GuideScenes.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

using namespace testbench;
namespace fs = std::filesystem;

namespace {

Guide::Places places;
fs::path pictures;
int exitCode = 1;

void TakeAll(Robot& robot) {
    Tour::TourHand hand(robot, places.scratch / "steps");
    Guide::Camera camera(robot, pictures);
    hand.Need(robot.WaitFor([] { return MainFrame && MainFrame->IsShownOnScreen(); }), "no window");
    hand.Need(robot.WaitForWindow("Orv Zelk: Page 1 of 1\\."), "the window has no focus");
    Guide::TakeFirstTransfer(hand, camera, places);
    Guide::TakePages(hand, camera, places);
    Guide::TakeImport(hand, camera, places);
    Guide::TakePrinting(hand, camera, places);
    Guide::TakeTransferBoxes(hand, camera, places);
}

class GuideApp : public ZelkApp {
public:
    bool OnInit() override {
        if (!ZelkApp::OnInit())
            return false;
        WatchDialogs();
        CallAfter([] {
            const auto troubles = RunScript(TakeAll);
            for (const std::string& trouble : troubles)
                std::printf("FAILED: %s\n", trouble.c_str());
            exitCode = troubles.empty() ? 0 : 1;
            MainFrame->Destroy();
        });
        return true;
    }
};

/// The home folder that the pictures show: short, and the same each time, where that can be had.
class PicturedHome {
public:
    PicturedHome() {
        const fs::path wanted = fs::temp_directory_path() / "you";
        if (fs::create_directory(wanted))
            m_path = wanted;
        else
            m_other = std::make_unique<TempFolder>("you");
    }
    ~PicturedHome() {
        std::error_code ignored;
        if (!m_path.empty())
            fs::remove_all(m_path, ignored);
    }
    PicturedHome(const PicturedHome&) = delete;
    PicturedHome& operator=(const PicturedHome&) = delete;

    const fs::path& Path() const { return m_other ? m_other->Path() : m_path; }

private:
    fs::path m_path;
    std::unique_ptr<TempFolder> m_other;
};

} // namespace

wxIMPLEMENT_APP_NO_MAIN(GuideApp);

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s ZELK-RADIO EXAMPLES PICTURES\n", argv[0]);
        return 2;
    }
    places.radio = fs::absolute(argv[1]);
    places.examples = fs::absolute(argv[2]);
    pictures = fs::absolute(argv[3]);
    const PicturedHome home;
    const TempFolder scratch("zelk-guide");
    places.scratch = scratch.Path();
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        setenv(name, home.Path().c_str(), 1);
    setenv("GSETTINGS_BACKEND", "memory", 1);
    int noArguments = 1;
    wxEntry(noArguments, argv);
    return exitCode;
}
