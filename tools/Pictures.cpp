// Opens channel files one after another and pictures the window with each, for documents and for looking at.
#include "catalogue/PageModel.h"
#include "files/ZelkFile_OpenSave.h"
#include "frame/ZelkApp.h"
#include "frame/ZelkMain.h"
#include "robot/OpenDialogs.h"
#include "robot/Robot.h"
#include "robot/RunScript.h"
#include "robot/TempFolder.h"

#include <wx/xml/xml.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <vector>

using namespace testbench;
namespace fs = std::filesystem;

namespace {

fs::path pictures;
std::vector<fs::path> files;
int exitCode = 1;

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

class PicturesApp : public ZelkApp {
public:
    bool OnInit() override {
        if (!ZelkApp::OnInit())
            return false;
        WatchDialogs();
        CallAfter([] {
            const auto troubles = RunScript(TakePictures);
            for (const std::string& trouble : troubles)
                std::printf("FAILED: %s\n", trouble.c_str());
            exitCode = troubles.empty() ? 0 : 1;
            MainFrame->Destroy();
        });
        return true;
    }
};

} // namespace

wxIMPLEMENT_APP_NO_MAIN(PicturesApp);

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s FOLDER CHANNELFILE...\n", argv[0]);
        return 2;
    }
    pictures = argv[1];
    files.assign(argv + 2, argv + argc);
    const TempFolder home("zelk-pictures-home");
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        setenv(name, home.Path().c_str(), 1);
    setenv("GSETTINGS_BACKEND", "memory", 1);
    int noArguments = 1;
    wxEntry(noArguments, argv);
    return exitCode;
}
