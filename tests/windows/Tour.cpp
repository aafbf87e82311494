// Plays a day's first jobs in the Windows program under Wine, by real keys and clicks: for an analog and for
// a digital radio it opens a channel file, sends it, reads the radio back into an empty page and saves that
// page. Then it pulls the cable in the middle of a transfer. The radios play at pseudo-terminals that Wine
// has for COM1 and COM2.
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

#include <chrono>
#include <cstdio>
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
    int portPlace;     ///< place in the list of ports, from 0
    const char* example;
    const char* sendTitle;
    const char* readTitle;
    bool asksForModes; ///< the program asks before it sends, as it doesn't know the radio's modes yet
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
        const Process program({"wine", m_options["--zelk"].string()});
        WaitFor(MainTitle, 120);
        Done("start");
        {
            const RadioProcess analog = Radio(AnalogJob), digital = Radio(DigitalJob);
            analog.RequireReady();
            digital.RequireReady();
            PlayJob(AnalogJob);
            PlayJob(DigitalJob);
        }
        PullTheCable();
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

    void PlayJob(const Job& job) {
        std::printf("%s\n", job.model);
        const fs::path example = m_options["--examples"] / job.example;
        OpenFile(example);
        PickPort(job);
        Send(job);
        CompareRadio(job, Tour::ChannelsOfFile(example.string()));
        AddPage(job);
        Click(ToolImage::Download);
        WaitFor("Read Channel Data from Radio\\?");
        m_hands.Press("Return");
        Transfer("read back", job.readTitle, "Read from Radio Status");
        const fs::path saved = m_options["--files"] / (std::string(job.model) + "-read-back.zelk");
        SaveAs(saved);
        Compare(job.readBack(Tour::ChannelsOfFile(example.string())), Tour::ChannelsOfFile(saved.string()),
                "the page read back");
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

    void PickPort(const Job& job) {
        Click(ToolImage::Port);
        WaitFor(PortTitle, 60);
        m_hands.Press("Home");
        m_hands.Press("Down", job.portPlace);
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

    void Send(const Job& job) {
        Click(ToolImage::SelectAll);
        Click(ToolImage::Upload);
        if (job.asksForModes) {
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
        m_hands.Press("Return");
        WaitFor(MainTitle);
        Done("page after " + step);
    }

    /// The device disappears in the middle of a transfer. The text is that of every system, and the window
    /// works on.
    void PullTheCable() {
        std::printf("a cable that is pulled\n");
        const Job& job = AnalogJob;
        const RadioProcess radio = Radio(job, {"--fault", "unplug@5"});
        radio.RequireReady();
        OpenFile(m_options["--examples"] / job.example);
        PickPort(job);
        Click(ToolImage::SelectAll);
        Click(ToolImage::Upload);
        WaitFor("Error", 60);
        Done("time-out box");
        m_hands.Press("Return");
        WaitFor("Write to Radio Status", 60);
        Done("status after the loss");
        m_hands.Press("Return");
        WaitFor(MainTitle);
        Done("window after the loss");
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

    void Click(ToolImage tool) {
        const wxImage picture = GetToolImage(tool);
        std::optional<wxPoint> spot;
        for (int tries = 0; tries < 50 && !spot; ++tries) {
            Rest(200);
            spot = FindPicture(Desk().Picture({}), picture);
        }
        Need(spot.has_value(), "a tool is not to be seen");
        m_hands.Click(*spot);
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
};

} // namespace

int main(int argc, char** argv) {
    std::map<std::string, fs::path> options;
    for (int k = 1; k + 1 < argc; k += 2)
        options[argv[k]] = argv[k + 1];
    for (const char* name : {"--zelk", "--radio", "--examples", "--pictures", "--ports", "--files"})
        if (!options.count(name)) {
            std::fprintf(stderr,
                         "usage: %s --zelk PROGRAM --radio PROGRAM --examples FOLDER --pictures FOLDER "
                         "--ports FOLDER --files FOLDER\n",
                         argv[0]);
            return 2;
        }
    wxApp::SetInstance(new wxAppConsole);
    const wxInitializer toolkit;
    wxInitAllImageHandlers();
    WineTour tour(options);
    try {
        tour.Play();
    } catch (const std::exception& failure) {
        tour.Fail();
        std::printf("FAILED: %s\n", failure.what());
        return 1;
    }
    return 0;
}
