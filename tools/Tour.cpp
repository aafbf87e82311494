// Plays a day's first job on a display of its own: a channel file into a radio, and the radio back
// into an empty page, by real keys and clicks.
#include "frame/SelectionDialogs.h"
#include "frame/TargetSelection.h"
#include "frame/ZelkApp.h"
#include "frame/ZelkMain.h"
#include "resources/ToolImages.h"
#include "tests/support/robot/OpenDialogs.h"
#include "tests/support/robot/PictureSpot.h"
#include "tests/support/robot/Process.h"
#include "tests/support/robot/Robot.h"
#include "tests/support/robot/RunScript.h"
#include "tests/support/robot/ScreenSpots.h"
#include "tests/support/robot/TempFolder.h"
#include "tools/ChannelList.h"

#include <wx/choice.h>
#include <wx/grid.h>
#include <wx/notebook.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <stdexcept>

using namespace testbench;
namespace fs = std::filesystem;

namespace {

struct TourOptions {
    fs::path radio, examples, pictures;
};

TourOptions options;
int exitCode = 1;

/// The tour's radio and the file that fills it.
constexpr const char* Model = "KRV-214";
constexpr const char* Example = "krv-214-vhf.zelk";
constexpr const char* PortLinkName = "KRV-214";

class TourScript {
public:
    explicit TourScript(Robot& robot) : m_robot(robot) { m_robot.SetPace(15); }

    void Play() {
        fs::create_directories(options.pictures);
        Process radio({options.radio.string(), "--model", Model, "--name", PortLinkName, "--memories",
                       Memories().string(), "--pace"});
        if (!radio.WaitForLine(PortLinkName))
            throw std::runtime_error("the simulated radio does not start: " + radio.Output());
        Start();
        OpenExample();
        PickPort();
        SelectAll();
        Send();
        CompareRadio();
        AddEmptyPage();
        ReadBack();
        ComparePage();
    }

private:
    fs::path Memories() const { return m_folder / "memories.txt"; }

    void Done(const std::string& step, const std::string& outcome) {
        m_robot.Settle();
        char name[16];
        std::snprintf(name, sizeof name, "%02d-", ++m_step);
        std::string file = name + step + ".png";
        for (char& c : file)
            if (c == ' ')
                c = '-';
        m_robot.Screenshot(options.pictures / file);
        std::printf("%2d. %-24s %s\n", m_step, step.c_str(), outcome.c_str());
        std::fflush(stdout);
    }

    void Need(bool condition, const std::string& what) {
        if (condition)
            return;
        m_robot.Screenshot(options.pictures / "failed.png");
        throw std::runtime_error(what);
    }

    void ClickTool(ToolImage tool) {
        const wxImage picture = m_robot.Ask([tool] { return GetToolImage(tool); });
        std::optional<wxPoint> spot;
        for (int tries = 0; tries < 50 && !spot; ++tries) {
            m_robot.Settle();
            spot = FindPicture(XDesk().Picture({}), picture);
        }
        Need(spot.has_value(), "a tool is not to be seen");
        m_robot.Click(*spot);
    }

    /// Answers the open dialog with its default button.
    void AnswerWithReturn(const std::string& caption) {
        Need(m_robot.WaitForDialog(caption) != nullptr, "no dialog " + caption);
        m_robot.Press("Return");
    }

    /// Clicks a choice's entry by walking to it with the keyboard, then OK.
    void Choose(const std::string& what, const std::string& caption, wxChoice*& choice,
                const std::string& text) {
        wxDialog* dialog = m_robot.WaitForDialog(caption);
        Need(dialog != nullptr, "no dialog " + caption);
        m_robot.Settle();
        const wxPoint spot = m_robot.Ask([&] { return MiddleOf(*choice); });
        const auto chosen = [&] { return choice->GetStringSelection() == text; };
        m_robot.Click(spot);
        const int steps = m_robot.Ask([&] {
            const int from = choice->GetSelection();
            return choice->FindString(text) - (from == wxNOT_FOUND ? 0 : from);
        });
        m_robot.Press("Down", std::max(steps, 0));
        m_robot.Press("Return");
        for (int tries = 0; tries < 40 && !m_robot.WaitFor(chosen, 300); ++tries) {
            m_robot.Click(spot);
            m_robot.Press("Down");
            m_robot.Press("Return");
        }
        Need(m_robot.WaitFor(chosen), "can't choose " + text);
        Done(what, text);
        const wxPoint ok = m_robot.Ask([&] { return MiddleOf(*dialog->FindWindow(wxID_OK)); });
        m_robot.Click(ok);
        Need(m_robot.WaitForNoDialog(), caption + " stays open");
    }

    void Start() {
        Need(m_robot.WaitFor([] { return MainFrame && MainFrame->IsShownOnScreen(); }), "no window");
        Need(m_robot.WaitForWindow("Orv Zelk: Page 1 of 1\\."), "the window has no focus");
        Done("start", m_robot.Ask([] { return MainFrame->GetTitle().utf8_string(); }));
    }

    void OpenExample() {
        ClickTool(ToolImage::Open);
        AnswerWithReturn("Open File\\?");
        Need(m_robot.WaitForDialog("Select Zelk file") != nullptr, "no file dialog");
        // A path that begins with a slash opens the dialog's entry for paths.
        m_robot.Type((fs::absolute(options.examples) / Example).string());
        m_robot.Settle();
        m_robot.Press("Return");
        Need(m_robot.WaitFor([] { return PageStrings[0].FileName == "krv-214-vhf"; }, 10000),
             "the example was not opened");
        m_wanted = Tour::ChannelsOfFile((options.examples / Example).string());
        const Tour::ChannelList shown = m_robot.Ask([] { return Tour::ChannelsOfGrid(*CurrentGrid()); });
        Compare(shown, "the page");
        m_robot.Settle();
        m_robot.Screenshot(options.pictures / "window.png",
                           m_robot.Ask([] { return MainFrame->GetScreenRect(); }));
        Done("open " + std::string(Example), std::to_string(shown.size()) + " channels on the page");
    }

    void PickPort() {
        ClickTool(ToolImage::Port);
        const wxString port = PortText();
        Choose("choose port", "<-- Select Serial Port -->", PortChoice, port.utf8_string());
        Need(m_robot.Ask([&] { return PortName == port; }), "the port was not taken");
    }

    /// The simulated radio's entry in the port dialog, which is open.
    wxString PortText() {
        Need(m_robot.WaitForDialog("<-- Select Serial Port -->") != nullptr, "no port dialog");
        const wxString text = m_robot.Ask([] {
            for (const wxString& entry : PortChoice->GetStrings())
                if (entry.EndsWith(wxString("/") + PortLinkName))
                    return entry;
            return wxString();
        });
        Need(!text.empty(), "the port dialog does not offer the simulated radio");
        return text;
    }

    void SelectAll() {
        ClickTool(ToolImage::SelectAll);
        const int last = m_robot.Ask([] { return CurrentParameters().Rows; });
        Need(m_robot.WaitFor([last] { return CurrentGrid()->IsInSelection(last, 0); }), "nothing selected");
        Done("select all", std::to_string(last) + " rows");
    }

    /// Waits for a transfer's window, pictures it, and answers the status box at its end.
    void Transfer(const std::string& what, const std::string& title, const std::string& caption) {
        Need(m_robot.WaitForWindow(title, 10000), "no window " + title);
        Done(what, "under way");
        wxDialog* dialog = m_robot.WaitForDialog(caption, 180000);
        Need(dialog != nullptr, "no dialog " + caption);
        const std::string message = FactsOfOpenDialog();
        Done(what + " done", message);
        m_robot.Press("Return");
        Need(m_robot.WaitForNoDialog(), "the status box stays open");
        Need(message == "Complete", what + " ended with: " + message);
    }

    static std::string FactsOfOpenDialog() {
        const auto open = OpenDialogs();
        return open.empty() ? "" : open.back().message;
    }

    void Send() {
        ClickTool(ToolImage::Upload);
        Transfer("send", "Send to ANFM Radio Progress", "Write to Radio Status");
    }

    void ReadBack() {
        ClickTool(ToolImage::Download);
        AnswerWithReturn("Read Channel Data from Radio\\?");
        Transfer("read back", "Read ANFM Memory Data Progress", "Read from Radio Status");
    }

    void Compare(const Tour::ChannelList& found, const std::string& where) {
        const std::vector<std::string> lines = Tour::Differences(m_wanted, found);
        for (const std::string& line : lines)
            std::printf("    %s: %s\n", where.c_str(), line.c_str());
        Need(lines.empty(), where + " does not hold the channels of the file");
    }

    void CompareRadio() {
        Tour::ChannelList found;
        // The radio writes its file when it has taken the end line.
        m_robot.WaitFor([&] {
            found = Tour::ChannelsOfRadio(Memories().string());
            return Tour::Differences(m_wanted, found).empty();
        });
        Compare(found, "the radio");
        Done("radio against file", "equal, " + std::to_string(found.size()) + " channels");
    }

    void AddEmptyPage() {
        // The second menu, its first entry.
        m_robot.Press("F10");
        m_robot.Settle();
        m_robot.Press("Right");
        m_robot.Settle();
        Done("page menu", "open");
        m_robot.Press("Down");
        m_robot.Press("Return");
        if (!m_robot.WaitForDialog("<-- Select Target Radio -->", 1500))
            m_robot.Press("Return");
        Choose("choose radio", "<-- Select Target Radio -->", RadioChoice, Model);
        Need(m_robot.WaitFor([] { return PageCount == 2 && CurrentPage == 1; }), "no second page");
        Done("empty page", m_robot.Ask([] { return MainFrame->GetTitle().utf8_string(); }));
    }

    void ComparePage() {
        const Tour::ChannelList found = m_robot.Ask([] { return Tour::ChannelsOfGrid(*CurrentGrid()); });
        Compare(found, "the page read back");
        Done("page against file", "equal, " + std::to_string(found.size()) + " channels");
    }

    Robot& m_robot;
    TempFolder m_folder{"zelk-tour"};
    Tour::ChannelList m_wanted;
    int m_step = 0;
};

/// The program itself, and somebody who uses it.
class TourApp : public ZelkApp {
public:
    bool OnInit() override {
        if (!ZelkApp::OnInit())
            return false;
        WatchDialogs();
        CallAfter([] {
            const auto troubles = RunScript([](Robot& robot) { TourScript(robot).Play(); });
            for (const std::string& trouble : troubles)
                std::printf("FAILED: %s\n", trouble.c_str());
            exitCode = troubles.empty() ? 0 : 1;
            std::printf("%s\n", troubles.empty() ? "The radio holds the channels of the file."
                                                 : "The tour did not come to its end.");
            MainFrame->Destroy();
        });
        return true;
    }
};

bool ReadOptions(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string name = argv[i];
        if (name == "--radio")
            options.radio = argv[i + 1];
        else if (name == "--examples")
            options.examples = argv[i + 1];
        else if (name == "--pictures")
            options.pictures = argv[i + 1];
    }
    return !options.radio.empty() && !options.examples.empty() && !options.pictures.empty();
}

} // namespace

wxIMPLEMENT_APP_NO_MAIN(TourApp);

int main(int argc, char** argv) {
    if (!ReadOptions(argc, argv)) {
        std::fprintf(stderr, "usage: %s --radio PROGRAM --examples FOLDER --pictures FOLDER\n", argv[0]);
        return 2;
    }
    // The tour has a home of its own: it neither sees nor touches the user's ports and settings.
    const TempFolder home("zelk-tour-home");
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        setenv(name, home.Path().c_str(), 1);
    // Without a session bus the toolkit's settings service only complains.
    setenv("GSETTINGS_BACKEND", "memory", 1);
    int noArguments = 1;
    wxEntry(noArguments, argv);
    return exitCode;
}
