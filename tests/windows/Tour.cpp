// Plays a day's first jobs in the Windows program under Wine, by real keys and clicks: for an analog and for
// a digital radio it opens a channel file, sends it, reads the radio back into an empty page and saves that
// page. Then it pulls the cable of each in the middle of a transfer, plugs it in again and sends once more.
// With --dark it sends a file alone and looks whether texts can be read. The radios play at pseudo-terminals
// that Wine has for COM1 and COM2.
#include "catalogue/Contrast.h"
#include "catalogue/RadioTables.h"
#include "resources/ToolImages.h"
#include "robot/Hands.h"
#include "robot/Pattern.h"
#include "robot/PictureSpot.h"
#include "robot/RadioProcess.h"
#include "tools/ChannelList.h"
#include "tools/P25Channels.h"

#include <wx/app.h>
#include <wx/image.h>
#include <wx/init.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace fs = std::filesystem;
using namespace testbench;
using Clock = std::chrono::steady_clock;

namespace {

struct Job {
    const char* model;
    const char* label; ///< entry of the dialog of target radios
    const char* port;  ///< what Wine calls the radio's port, and the name of the radio's link
    int portPlace;     ///< in the list of the ports of both radios, from 0
    const char* example;
    const char* sendTitle;
    const char* readTitle;
    bool asksForModes;       ///< the program asks before it sends, as it doesn't know the radio's modes yet
    const char* timeoutText; ///< as window-texts prints it
    int acknowledged;        ///< rows that a radio has acknowledged that disappears at its fifth answer
    Tour::ChannelList (*readBack)(Tour::ChannelList channels);
};

constexpr Job AnalogJob{
    .model = "KRV-214",
    .label = "KRV-214",
    .port = "COM1",
    .portPlace = 0,
    .example = "krv-214-vhf.zelk",
    .sendTitle = "Send to ANFM Radio Progress",
    .readTitle = "Read ANFM Memory Data Progress",
    .asksForModes = false,
    .timeoutText = "Timeout Error\\nVerify Radio is in PC Download mode\\nand correct COM port is selected",
    .acknowledged = 4,
    .readBack = [](Tour::ChannelList channels) { return channels; },
};

/// Changes to 115200 baud.
constexpr Job DigitalJob{
    .model = "KDRV-716B",
    .label = "KDRV-716B-V2",
    .port = "COM2",
    .portPlace = 1,
    .example = "kdrv-716b-p25.zelk",
    .sendTitle = "Send to RP25 Radio Progress",
    .readTitle = "Read NP25 Memory Data Progress",
    .asksForModes = true,
    .timeoutText =
        "Timeout Error\\nVerify Radio is in PC Download mode (3-8)\\nand correct COM port is selected",
    .acknowledged = 3, // the first answer is that to the default row
    .readBack = [](Tour::ChannelList channels) { return AsReadBack(std::move(channels), "023"); },
};

constexpr char MainTitle[] = "Orv Zelk: Page \\d of \\d\\..*";
constexpr char PortTitle[] = "<-- Select Serial Port -->";
constexpr char RadioTitle[] = "<-- Select Target Radio -->";

/// The name that Windows programs under Wine have for a file of this machine.
std::string WindowsName(const fs::path& file) {
    std::string name = "Z:" + fs::absolute(file).string();
    for (char& c : name)
        if (c == '/')
            c = '\\';
    return name;
}

int PlaceOf(const std::string& label) {
    int place = 0;
    for (const char* other : RadioCatalogue::RadioLabel) {
        if (label == other)
            return place;
        ++place;
    }
    throw std::runtime_error("no radio " + label);
}

class WineTour {
public:
    /// `options` holds the folders and programs of the command line.
    explicit WineTour(std::map<std::string, fs::path> options) : m_options(std::move(options)), m_hands(15) {
        fs::create_directories(m_options["--pictures"]);
        fs::create_directories(m_options["--files"]);
    }

    void Play() {
        SaveAForeignName();
        const Process program({"wine", m_options["--zelk"].string(), WindowsName(ExampleOf(AnalogJob))});
        WaitFor(MainTitle, 120);
        Rest(2000);
        Done("start");
        m_window = Desk().FocusedArea();
        {
            const RadioProcess analog = Radio(AnalogJob), digital = Radio(DigitalJob);
            analog.RequireReady();
            digital.RequireReady();
            PlayJob(AnalogJob);
            OpenFile(ExampleOf(DigitalJob));
            PlayJob(DigitalJob);
        }
        PullTheCable(AnalogJob);
        PullTheCable(DigitalJob);
        Close();
    }

    /// Opens and sends a file with the dark colours of the system, which must be set.
    void PlayInTheDark() {
        m_dark = true;
        const Process program({"wine", m_options["--zelk"].string(), WindowsName(ExampleOf(AnalogJob))});
        WaitFor(MainTitle, 120);
        Rest(2000);
        m_window = Desk().FocusedArea();
        const RadioProcess radio = Radio(AnalogJob);
        radio.RequireReady();
        PickPort(AnalogJob, 0);
        Click(ToolImage::SelectAll);
        Click(ToolImage::Upload);
        WaitFor(AnalogJob.sendTitle, 30);
        Rest(1500);
        Done("progress window in the dark");
        const wxRect progress = Desk().FocusedArea();
        NeedReadable(progress, {12, 24, progress.width - 24, 16}, "the progress window");
        WaitFor("Write to Radio Status", 180);
        Done("box in the dark");
        const wxRect box = Desk().FocusedArea();
        NeedReadable(box, {55, 24, box.width - 70, 25}, "the box");
        m_hands.Press("Return");
        WaitFor(MainTitle);
        Click(ToolImage::ClearAll);
        Rest(500);
        Done("page in the dark");
        const wxRect& window = m_window;
        NeedReadable(window, {12, 24, 180, 18}, "the menu bar");
        NeedReadable(window, {100, 76, 500, 18}, "a heading");
        NeedReadable(window, {100, 122, 500, 16}, "a row");
        NeedReadable(window, {8, window.height - 22, 700, 14}, "the status bar");
        Close();
    }

    void Fail() { Picture("failed"); }

private:
    void Close() {
        m_hands.Press("Alt+F4");
        const auto end = Clock::now() + std::chrono::seconds(30);
        while (!m_hands.FocusedTitle().empty() && Clock::now() < end)
            Rest(200);
        Need(m_hands.FocusedTitle().empty(), "the window doesn't close");
    }

    /// Starts the program with a file whose name no code page holds, as a double click does, and saves it.
    void SaveAForeignName() {
        const fs::path example = m_options["--examples"] / AnalogJob.example;
        const fs::path file = m_options["--files"] / u8"f\u00FCnf \u03A9 \u0416 \u4E2D.zelk";
        fs::copy_file(example, file, fs::copy_options::overwrite_existing);
        const auto before = fs::last_write_time(file);
        const Process program({"wine", m_options["--zelk"].string(), WindowsName(file)});
        WaitFor(MainTitle, 120);
        Rest(2000);
        Done("a name in several alphabets");
        Click(ToolImage::Save);
        const auto end = Clock::now() + std::chrono::seconds(20);
        while (fs::last_write_time(file) == before && Clock::now() < end)
            Rest(100);
        Need(fs::last_write_time(file) != before, "the file was not saved");
        Compare(Tour::ChannelsOfFile(example.string()), Tour::ChannelsOfFile(file.string()),
                "the saved file");
        Close();
    }

    RadioProcess Radio(const Job& job, std::vector<std::string> more = {}) {
        fs::remove(Memories(job));
        std::vector<std::string> arguments{"--model",     job.model,
                                           "--name",      job.port,
                                           "--ports-dir", m_options["--ports"].string(),
                                           "--memories",  Memories(job).string(),
                                           "--log",       Log(job).string(),
                                           "--pace"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RadioProcess(m_options["--radio"], arguments);
    }

    fs::path ExampleOf(const Job& job) { return m_options["--examples"] / job.example; }

    /// The page holds the example.
    void PlayJob(const Job& job) {
        std::printf("%s\n", job.model);
        PickPort(job, job.portPlace);
        Send(job, job.asksForModes);
        CompareRadio(job, Tour::ChannelsOfFile(ExampleOf(job).string()));
        AddPage(job);
        Click(ToolImage::Download);
        WaitFor("Read Channel Data from Radio\\?");
        m_hands.Press("Return");
        Transfer("read back", job.readTitle, "Read from Radio Status");
        const fs::path saved = m_options["--files"] / (std::string(job.model) + "-read-back.zelk");
        SaveAs(saved);
        Compare(job.readBack(Tour::ChannelsOfFile(ExampleOf(job).string())),
                Tour::ChannelsOfFile(saved.string()), "the page read back");
    }

    void OpenFile(const fs::path& file) {
        Click(ToolImage::Open);
        WaitFor("Open File\\?");
        m_hands.Press("Return");
        WaitFor("Select Zelk file");
        TypeName(file);
        WaitFor(MainTitle);
        Done("open " + file.filename().string());
    }

    void SaveAs(const fs::path& file) {
        fs::remove(file);
        Click(ToolImage::Save);
        WaitFor("Save \\.zelk file\\.\\.\\.");
        TypeName(file);
        WaitFor(MainTitle);
        const auto end = Clock::now() + std::chrono::seconds(20);
        while (!fs::exists(file) && Clock::now() < end)
            Rest(100);
        Done("save " + file.filename().string());
        Need(fs::exists(file), "the page was not saved");
    }

    void TypeName(const fs::path& file) {
        Rest(1500); // the dialog reads the folder and then takes the keyboard for its list
        m_hands.Press("Alt+N");
        m_hands.Press("Ctrl+A");
        m_hands.Type(WindowsName(file));
        m_hands.Press("Return");
    }

    /// @param place in the list of ports, from 0
    void PickPort(const Job& job, int place) {
        Click(ToolImage::Port);
        WaitFor(PortTitle, 60);
        m_hands.Press("Home");
        m_hands.Press("Down", place);
        Done(std::string("port ") + job.port);
        m_hands.Press("Return");
        WaitFor(MainTitle);
    }

    void AddPage(const Job& job) {
        m_hands.Press("F10");
        m_hands.Press("Right");
        m_hands.Press("Down");
        m_hands.Press("Return");
        WaitFor(RadioTitle);
        m_hands.Press("Home");
        m_hands.Press("Down", PlaceOf(job.label));
        Done(std::string("radio ") + job.label);
        m_hands.Press("Return");
        WaitFor(MainTitle);
        Rest(1000);
    }

    void Send(const Job& job, bool asksForModes) {
        Click(ToolImage::SelectAll);
        Click(ToolImage::Upload);
        if (asksForModes) {
            WaitFor("Radio Operating Modes", 60);
            Done("operating modes");
            m_hands.Press("Return");
        }
        Transfer("send", job.sendTitle, "Write to Radio Status");
    }

    void Transfer(const std::string& step, const std::string& window, const std::string& box) {
        WaitFor(window, 30);
        Rest(1500);
        Done(step);
        WaitFor(box, 180);
        Done(step + " done");
        // Wine centres the first box of a program alone.
        if (std::exchange(m_isFirstBox, false))
            Need(IsCentred(Desk().FocusedArea(), m_window), "the box is not in the middle of the window");
        m_hands.Press("Return");
        WaitFor(MainTitle);
        Done("page after " + step);
    }

    /// The device disappears in the middle of a transfer: texts and rows are those of every system, and the
    /// window works on.
    void PullTheCable(const Job& job) {
        std::printf("a cable that is pulled: %s\n", job.model);
        const Tour::ChannelList channels = Tour::ChannelsOfFile(ExampleOf(job).string());
        {
            const RadioProcess radio = Radio(job, {"--fault", "unplug@5"});
            radio.RequireReady();
            OpenFile(ExampleOf(job));
            PickPort(job, 0); // the other radio's port is not there
            Click(ToolImage::SelectAll);
            Click(ToolImage::Upload);
            WaitFor("Error", 90);
            Done("time-out box");
            NeedText(job.timeoutText);
            m_hands.Press("Return");
            WaitFor("Write to Radio Status", 60);
            Done("status after the loss");
            NeedText("Timeout");
            m_hands.Press("Return");
            WaitFor(MainTitle);
            Done("window after the loss");
            NeedText(std::to_string(job.acknowledged) + " of " + std::to_string(channels.size()) +
                     " selected rows sent");
        }
        const RadioProcess radio = Radio(job);
        radio.RequireReady();
        Send(job, false);
        CompareRadio(job, channels);
    }

    void CompareRadio(const Job& job, const Tour::ChannelList& wanted) {
        // The radio writes its file after it has received the end line.
        const auto end = Clock::now() + std::chrono::seconds(10);
        while (!fs::exists(Memories(job)) && Clock::now() < end)
            Rest(100);
        Compare(wanted, Tour::ChannelsOfRadio(Memories(job).string()), "the radio");
    }

    void Compare(const Tour::ChannelList& wanted, const Tour::ChannelList& found, const std::string& where) {
        const std::vector<std::string> lines = Differences(wanted, found);
        for (const std::string& line : lines)
            std::printf("    %s: %s\n", where.c_str(), line.c_str());
        Need(lines.empty(), where + " does not hold the channels of the file");
        std::printf("    %s holds the %zu channels of the file\n", where.c_str(), found.size());
    }

    /// The window in front must show this text.
    void NeedText(const std::string& text) {
        Process texts({"wine", m_options["--texts"].string()});
        Need(texts.WaitForExit(20000) == 0, "the texts of the window can't be read");
        std::string found;
        for (const char c : texts.Output())
            if (c != '\r')
                found += c;
        Need(("\n" + found).find("\n" + text + "\n") != std::string::npos,
             "the window shows no text \"" + text + "\", but:\n" + found);
        std::printf("    the window shows \"%s\"\n", text.c_str());
    }

    void Click(ToolImage tool) {
        const wxImage picture = GetToolImage(tool, m_dark);
        std::optional<wxPoint> spot;
        for (int tries = 0; tries < 50 && !spot; ++tries) {
            Rest(200);
            spot = FindPicture(Desk().Picture({}), picture);
        }
        Need(spot.has_value(), "a tool is not to be seen");
        m_hands.Click(*spot);
    }

    /// The part of a window, from its upper left corner, must be dark and have texts that stand out.
    static void NeedReadable(const wxRect& window, const wxRect& part, const std::string& what) {
        const wxImage picture =
            Desk().Picture({window.x + part.x, window.y + part.y, part.width, part.height});
        std::map<wxUint32, int> counts;
        std::vector<wxColour> colours;
        for (int y = 0; y < picture.GetHeight(); ++y)
            for (int x = 0; x < picture.GetWidth(); ++x) {
                colours.emplace_back(picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y));
                ++counts[colours.back().GetRGB()];
            }
        const auto most = std::max_element(counts.begin(), counts.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        wxColour background;
        background.SetRGB(most->first);
        double contrast = 1;
        for (const wxColour& colour : colours)
            contrast = std::max(contrast, ContrastOf(background, colour));
        Need(ContrastOf(background, *wxWHITE) >= ReadableContrast, what + " is not dark");
        Need(contrast >= ReadableContrast, what + " has texts that can't be read");
    }

    /// Areas of windows with their frames.
    static bool IsCentred(const wxRect& box, const wxRect& window) {
        constexpr int tolerance = 30;
        const wxPoint apart =
            (box.GetTopLeft() + box.GetBottomRight() - window.GetTopLeft() - window.GetBottomRight()) / 2;
        return std::abs(apart.x) <= tolerance && std::abs(apart.y) <= tolerance;
    }

    /// Waits until a window with this title has the keyboard.
    void WaitFor(const std::string& title, int seconds = 20) {
        const auto end = Clock::now() + std::chrono::seconds(seconds);
        std::string last;
        do {
            Rest(100);
            last = m_hands.FocusedTitle();
            if (MatchesWhole(title, last)) {
                Rest(500); // the window may still be busy with its first drawing
                return;
            }
        } while (Clock::now() < end);
        throw std::runtime_error("no window \"" + title + "\", but \"" + last + "\"");
    }

    void Done(const std::string& step) {
        Rest(500);
        char number[16];
        std::snprintf(number, sizeof number, "%02d", ++m_step);
        std::printf("%s. %s\n", number, step.c_str());
        std::fflush(stdout);
        std::string name = number + ("-" + step);
        for (char& c : name)
            if (c == ' ')
                c = '-';
        Picture(name);
    }

    void Picture(const std::string& name) {
        Desk().Picture({}).SaveFile((m_options["--pictures"] / (name + ".png")).string(), wxBITMAP_TYPE_PNG);
    }

    static void Need(bool condition, const std::string& what) {
        if (!condition)
            throw std::runtime_error(what);
    }

    static void Rest(int milliseconds) {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }

    fs::path Memories(const Job& job) {
        return m_options["--files"] / (std::string(job.model) + "-memories.txt");
    }
    fs::path Log(const Job& job) { return m_options["--files"] / (std::string(job.model) + ".log"); }

    std::map<std::string, fs::path> m_options;
    Hands m_hands;
    int m_step = 0;
    wxRect m_window; ///< of the program
    bool m_isFirstBox = true;
    bool m_dark = false; ///< whether the tools have the outline for dark backgrounds
};

} // namespace

int main(int argc, char** argv) {
    std::map<std::string, fs::path> options;
    for (int k = 1; k + 1 < argc; k += 2)
        options[argv[k]] = argv[k + 1];
    for (const char* name :
         {"--zelk", "--texts", "--radio", "--examples", "--pictures", "--ports", "--files"})
        if (!options.count(name)) {
            std::fprintf(stderr,
                         "usage: %s --zelk PROGRAM --texts PROGRAM --radio PROGRAM --examples FOLDER "
                         "--pictures FOLDER "
                         "--ports FOLDER --files FOLDER [--dark colours]\n",
                         argv[0]);
            return 2;
        }
    wxApp::SetInstance(new wxAppConsole);
    const wxInitializer toolkit;
    wxInitAllImageHandlers();
    WineTour tour(options);
    try {
        options.contains("--dark") ? tour.PlayInTheDark() : tour.Play();
    } catch (const std::exception& failure) {
        tour.Fail();
        std::printf("FAILED: %s\n", failure.what());
        return 1;
    }
    return 0;
}
