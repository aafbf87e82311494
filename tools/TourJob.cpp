#include "tools/TourJob.h"

#include "frame/SelectionDialogs.h"
#include "frame/ZelkMain.h"
#include "robot/OpenDialogs.h"
#include "robot/Process.h"
#include "robot/RadioProcess.h"
#include "robot/ScreenSpots.h"
#include "transfer/ChosenPort.h"

#include <wx/choice.h>
#include <wx/grid.h>

#include <cstdio>
#include <utility>

using namespace testbench;
namespace fs = std::filesystem;

namespace Tour {

namespace {

std::string MessageOfOpenDialog() {
    const auto open = OpenDialogs();
    return open.empty() ? "" : open.back().message;
}

/// Text with the primaries, each with its shadows; empty if there are none.
std::string ShadowsOf(const ChannelList& channels) {
    std::string text;
    for (const auto& [number, channel] : channels) {
        if (!channel.p25 || !channel.p25->link.starts_with("P-"))
            continue;
        text += (text.empty() ? "" : "; ") + std::to_string(number) + " with";
        for (const int shadow : channel.p25->shadows)
            if (shadow != 0)
                text += ' ' + std::to_string(shadow);
    }
    return text;
}

std::string TitleOfWindow() {
    return MainFrame->GetTitle().utf8_string();
}

} // namespace

TourJob::TourJob(TourHand& hand, const Job& job, fs::path radioProgram, fs::path examples)
    : m_hand(hand), m_robot(hand.TheRobot()), m_job(job), m_radioProgram(std::move(radioProgram)),
      m_examples(std::move(examples)) {}

void TourJob::Play() {
    const RadioProcess radio(
        m_radioProgram, {"--model", m_job.model, "--name", m_job.model, "--memories", Memories(), "--pace"});
    radio.RequireReady();
    OpenExample();
    PickPort();
    SelectAll();
    Send();
    CompareRadio();
    AddPage();
    ReadBack();
    ComparePage();
}

void TourJob::OpenExample() {
    const fs::path file = fs::absolute(m_examples) / m_job.example;
    m_hand.ClickTool(ToolImage::Open);
    m_hand.AnswerWithReturn("Open File\\?");
    m_hand.Need(m_robot.WaitForDialog("Select Zelk file") != nullptr, "no file dialog");
    // Typing a path that begins with a slash opens the dialog's entry for paths.
    m_robot.Type(file.string());
    m_robot.Settle();
    m_robot.Press("Return");
    const wxString name = wxString::FromUTF8(file.stem().string());
    m_hand.Need(m_robot.WaitFor([&] { return PageStrings[CurrentPage].FileName == name; }, 10000),
                "the example was not opened");
    m_wanted = ChannelsOfFile(file.string());
    const ChannelList shown = m_robot.Ask([] { return ChannelsOfGrid(*CurrentGrid()); });
    Compare(m_wanted, shown, "the page");
    m_robot.Settle();
    m_robot.Screenshot(m_hand.Pictures() / (std::string("window-") + m_job.model + ".png"),
                       m_robot.Ask([] { return MainFrame->GetScreenRect(); }));
    m_hand.Done("open " + std::string(m_job.example), std::to_string(shown.size()) + " channels on the page");
}

void TourJob::PickPort() {
    m_hand.ClickTool(ToolImage::Port);
    const std::string port = PortText();
    m_hand.Choose("choose port", "<-- Select Serial Port -->", PortChoice, port);
    m_hand.Need(m_robot.Ask([&] { return PortName == wxString::FromUTF8(port); }), "the port was not taken");
}

/// Returns the simulated radio's entry in the port dialog. Waits for that dialog to be open.
std::string TourJob::PortText() {
    m_hand.Need(m_robot.WaitForDialog("<-- Select Serial Port -->") != nullptr, "no port dialog");
    std::string text = m_robot.Ask([this] {
        for (const wxString& entry : PortChoice->GetStrings())
            if (entry.EndsWith(wxString("/") + m_job.model))
                return entry.utf8_string();
        return std::string();
    });
    m_hand.Need(!text.empty(), "the port dialog does not offer the simulated radio");
    return text;
}

void TourJob::SelectAll() {
    m_hand.ClickTool(ToolImage::SelectAll);
    const int last = m_robot.Ask([] { return CurrentParameters().Rows; });
    m_hand.Need(m_robot.WaitFor([last] { return CurrentGrid()->IsInSelection(last, 0); }),
                "nothing selected");
    m_hand.Done("select all", std::to_string(last) + " rows");
}

void TourJob::Transfer(const std::string& step, const std::string& title, const std::string& caption,
                       bool asksForModes) {
    if (asksForModes) {
        m_hand.Need(m_robot.WaitForDialog("Radio Operating Modes", 20000) != nullptr, "no question of modes");
        m_hand.Done("operating modes", "asked, since the page has not heard this radio's modes yet: Yes");
        m_robot.Press("Return");
        m_hand.Need(m_robot.WaitForNoDialog(), "the question of modes stays open");
    } else {
        m_hand.Need(m_robot.WaitForWindow(title, 10000), "no window " + title);
    }
    m_hand.Done(step, "under way");
    m_hand.Need(m_robot.WaitForDialog(caption, 180000) != nullptr, "no dialog " + caption);
    const std::string message = MessageOfOpenDialog();
    m_hand.Done(step + " done", message);
    m_robot.Press("Return");
    m_hand.Need(m_robot.WaitForNoDialog(), "the status box stays open");
    m_hand.Need(message == "Complete", step + " ended with: " + message);
}

void TourJob::Send() {
    m_hand.ClickTool(ToolImage::Upload);
    Transfer("send", m_job.sendTitle, "Write to Radio Status", m_job.asksForModes);
}

void TourJob::ReadBack() {
    m_hand.ClickTool(ToolImage::Download);
    m_hand.AnswerWithReturn("Read Channel Data from Radio\\?");
    Transfer("read back", m_job.readTitle, "Read from Radio Status", false);
}

void TourJob::Compare(const ChannelList& wanted, const ChannelList& found, const std::string& where) {
    const std::vector<std::string> lines = Differences(wanted, found);
    for (const std::string& line : lines)
        std::printf("    %s: %s\n", where.c_str(), line.c_str());
    m_hand.Need(lines.empty(), where + " does not hold the channels of the file");
}

void TourJob::CompareRadio() {
    ChannelList found;
    // The radio writes its file after it has received the end line.
    m_robot.WaitFor([&] {
        found = ChannelsOfRadio(Memories().string());
        return Differences(m_wanted, found).empty();
    });
    Compare(m_wanted, found, "the radio");
    m_hand.Done("radio against file",
                "equal, " + std::to_string(found.size()) + " channels" + m_job.radioRule);
}

void TourJob::AddPage() {
    const int before = m_robot.Ask([] { return PageCount; });
    m_hand.OpenPageMenu();
    if (!m_robot.WaitForDialog("<-- Select Target Radio -->", 1500))
        m_robot.Press("Return");
    m_hand.Choose("choose radio", "<-- Select Target Radio -->", RadioChoice, m_job.choice);
    m_hand.Need(m_robot.WaitFor([before] { return PageCount == before + 1 && CurrentPage == PageCount - 1; }),
                "no new page");
    m_hand.Done("empty page", m_robot.Ask(TitleOfWindow));
}

void TourJob::ComparePage() {
    const ChannelList found = m_robot.Ask([] { return ChannelsOfGrid(*CurrentGrid()); });
    Compare(m_job.readBack(m_wanted), found, "the page read back");
    m_hand.Done("page against file", "equal, " + std::to_string(found.size()) + " channels" + m_job.pageRule);
    if (const std::string shadows = ShadowsOf(found); !shadows.empty()) {
        // Click into the page and scroll down to the shadows.
        m_robot.Click(m_robot.Ask([] { return MiddleOf(*CurrentGrid()); }));
        m_robot.Press("Next");
        m_robot.Press("Down", 6);
        m_hand.Done("shadows", shadows);
    }
}

} // namespace Tour
