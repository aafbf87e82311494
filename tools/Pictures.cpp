// Opens channel files one after another and pictures the window with each, for documents and for review.
#include "catalogue/PageModel.h"
#include "files/ZelkFile_OpenSave.h"
#include "frame/ZelkMain.h"
#include "robot/Robot.h"
#include "robot/TempFolder.h"
#include "tools/ScriptedProgram.h"

#include <wx/xml/xml.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <vector>

using namespace testbench;
namespace fs = std::filesystem;

namespace {

fs::path pictures;
std::vector<fs::path> files;

void OpenOnFirstPage(const fs::path& file) {
    wxXmlDocument document;
    if (!document.Load(file.string()) || OpenZelkFile(document, CurrentPage) != 0)
        throw std::runtime_error("can't open " + file.string());
}

void TakePictures(Robot& robot) {
    fs::create_directories(pictures);
    robot.WaitFor([] { return MainFrame && MainFrame->IsShownOnScreen(); });
    for (const fs::path& file : files) {
        robot.Ask([&] { OpenOnFirstPage(file); });
        robot.Settle();
        const fs::path picture = pictures / file.stem().concat(".png");
        robot.Screenshot(picture, robot.Ask([] { return MainFrame->GetScreenRect(); }));
        std::printf("%s\n", picture.c_str());
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s FOLDER CHANNELFILE...\n", argv[0]);
        return 2;
    }
    pictures = argv[1];
    files.assign(argv + 2, argv + argc);
    const TempFolder home("zelk-pictures-home");
    return Tour::RunScripted(argv[0], home.Path(), TakePictures);
}
