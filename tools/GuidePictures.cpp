// Takes all pictures of the user guide from the running program, with simulated radios.
#include "frame/ZelkMain.h"
#include "robot/Robot.h"
#include "robot/TempFolder.h"
#include "tools/GuideScenes.h"
#include "tools/ScriptedProgram.h"

#include <cstdio>
#include <filesystem>
#include <memory>

using namespace testbench;
namespace fs = std::filesystem;

namespace {

Guide::Places places;
fs::path pictures;

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

/// The home folder that the pictures show. Its path is short and the same each time, unless it is taken.
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
    return Tour::RunScripted(argv[0], home.Path(), TakeAll);
}
