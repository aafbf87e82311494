// The first transfer of the user guide, without the mouse.
#include "frame/SelectionDialogs.h"
#include "robot/OpenDialogs.h"
#include "robot/TempFolder.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/transfer/RadioUnderTest.h"
#include "tests/transfer/TransferTest.h"

#include <filesystem>

using namespace testbench;
using namespace transfertest;

namespace {

/// Position of a menu in the menu bar.
enum class Menu { File, Page, Data, Settings };

/// A person at the keyboard.
class Typist {
public:
    explicit Typist(Robot& robot) : m_robot(robot) {}

    void Press(const std::string& key) {
        m_robot.Press(key);
        m_robot.Settle();
    }

    /// Chooses an entry of a menu by its underlined letter.
    void Choose(Menu menu, const char* letter) {
        m_robot.Settle();
        Press("F10");
        for (int left = static_cast<int>(menu); left > 0; --left)
            Press("Right");
        Press("Down");
        m_robot.Press(letter);
    }

    /// Reads a box and answers it by its default button.
    void Answer(const char* caption, const std::string& message) {
        ASSERT_NE(m_robot.WaitForDialog(caption, 30000), nullptr) << caption;
        EXPECT_EQ(OpenDialogs().back().message, message);
        m_robot.Press("Return");
    }

    /// Goes to an entry of the list that the dialog begins with, and accepts it.
    void ChooseInList(const char* caption, wxChoice*& list, const wxString& entry) {
        ASSERT_NE(m_robot.WaitForDialog(caption), nullptr) << caption;
        m_robot.Settle();
        const auto selection = [&] { return m_robot.Ask([&] { return list->GetSelection(); }); };
        const int wanted = m_robot.Ask([&] { return list->FindString(entry, true); });
        ASSERT_GE(wanted, 0) << entry.utf8_string();
        // One key a step: a key that is lost would be a fault.
        for (int steps = std::abs(wanted - selection()); steps > 0; --steps)
            Press(selection() < wanted ? "Down" : "Up");
        ASSERT_EQ(selection(), wanted) << entry.utf8_string();
        ASSERT_TRUE(m_robot.WaitFor([&] { return list->GetParent()->FindWindow(wxID_OK)->IsEnabled(); }));
        m_robot.Press("Alt+O");
    }

    /// Types the name of a file into the desktop's dialog.
    void NameFile(const char* caption, const std::filesystem::path& file) {
        ASSERT_NE(m_robot.WaitForDialog(caption), nullptr) << caption;
        m_robot.Settle();
        m_robot.Type(file.string());
        // The dialog refuses Return until it has read the folder.
        bool closed = false;
        for (int tries = 0; tries < 20 && !closed; ++tries) {
            m_robot.Press("Return");
            closed = m_robot.WaitForNoDialog(500);
        }
        ASSERT_TRUE(closed);
    }

    /// Waits until the last dialog has given the keyboard back to the grid.
    void AwaitGrid() {
        ASSERT_TRUE(m_robot.WaitForNoDialog());
        ASSERT_TRUE(m_robot.WaitFor([] { return CurrentGrid()->HasFocus() && MainFrame->IsActive(); }));
        m_robot.Settle();
    }

    /// Goes from the first column of a row to this one.
    void GoTo(int col) {
        const auto cursor = [] { return CurrentGrid()->GetGridCursorCol(); };
        for (int tries = 0; tries < ColumnTotal && m_robot.Ask(cursor) != col; ++tries)
            Press("Tab");
        ASSERT_EQ(m_robot.Ask(cursor), col);
    }

private:
    Robot& m_robot;
};

struct Channel {
    const char *frequency, *description, *tone;
};

constexpr Channel Channels[] = {
    {"155.7525", "CALL", "156.7"}, {"151.1375", "TAC 1", ""}, {"154.4525", "TAC 2", ""}};

class KeyboardTransfer : public TransferTest {
protected:
    void SetUp() override {
        TransferTest::SetUp();
        UseRealTime();
        ShowAndFocus(*MainFrame);
    }

    void TearDown() override {
        std::filesystem::remove_all(m_ports);
        TransferTest::TearDown();
    }

    /// Offers the radio in the list of ports. Returns the name of its entry.
    wxString Offer(const RadioUnderTest& radio) {
        std::filesystem::create_directories(m_ports);
        std::filesystem::create_symlink(std::filesystem::canonical(radio.PortName()), m_ports / "radio");
        return wxString::FromUTF8((m_ports / "radio").string());
    }

    static void ChooseTarget(Typist& typist) {
        typist.ChooseInList("<-- Select Target Radio -->", RadioChoice, "KRV-650");
        typist.ChooseInList("<-- Select Frequency Band -->", BandChoice, "FM: 138-174 MHz");
    }

    static void TypeChannels(Robot& robot, Typist& typist) {
        for (const char* key : {"Ctrl+Home", "Home", "Down"})
            typist.Press(key);
        for (const Channel& channel : Channels) {
            typist.GoTo(DESC);
            robot.Type(channel.description);
            typist.GoTo(RFRQ);
            robot.Type(channel.frequency);
            typist.GoTo(TTON);
            robot.Type(channel.tone);
            typist.Press("Return");
            typist.Press("Home");
        }
    }

    /// What a person has typed, and its copies.
    static std::vector<std::string> TypedCells() {
        std::vector<std::string> cells;
        for (const int row : FilledRows())
            for (const int col : {MNUM, DESC, RFRQ, TFRQ, TTON})
                cells.push_back(Text(Cell(row, col).Trim()));
        return cells;
    }

    const std::filesystem::path m_ports =
        std::filesystem::path(Text(wxStandardPaths::Get().GetUserDataDir())) / "ports";
    const TempFolder m_folder{"zelk-keyboard"};
};

} // namespace

TEST_F(KeyboardTransfer, SendsThreeChannelsAndReadsThemBack) {
    RadioUnderTest radio("KRV-650:FM 138-174");
    const wxString port = Offer(radio);
    const std::filesystem::path file = m_folder.Path() / "first.zelk";
    std::vector<std::string> sent;
    RunWithRobot([&](Robot& robot) {
        Typist typist(robot);
        typist.Choose(Menu::Settings, "t");
        typist.Answer("Change Target\\?",
                      "If there is data on this page,\nthis may result in invalid configuration!");
        ChooseTarget(typist);
        typist.AwaitGrid();
        typist.Choose(Menu::Settings, "p");
        typist.ChooseInList("<-- Select Serial Port -->", PortChoice, port);
        typist.AwaitGrid();
        TypeChannels(robot, typist);
        typist.Choose(Menu::Data, "v");
        typist.Answer("Validate Page", "Validate row data");
        typist.AwaitGrid();

        typist.Choose(Menu::File, "s");
        typist.NameFile("Save .*", file);
        typist.AwaitGrid();
        for (const char* key : {"Ctrl+Home", "Down", "Shift+space", "Shift+Down", "Shift+Down"})
            typist.Press(key);
        ASSERT_TRUE(robot.WaitFor([] { return CurrentGrid()->GetSelectedRows().size() == 3; }));
        typist.Choose(Menu::Data, "s");
        typist.Answer("Write to Radio Status", "Complete");
        typist.AwaitGrid();

        sent = robot.Ask(TypedCells);
        typist.Choose(Menu::Page, "a");
        ChooseTarget(typist);
        ASSERT_TRUE(robot.WaitFor([] { return PageCount == 2; }));
        typist.AwaitGrid();
        typist.Choose(Menu::Data, "g");
        typist.Answer("Read Channel Data from Radio\\?",
                      "This will overwrite any data on this page! Continue?");
        typist.Answer("Read channel data from radio",
                      "Close this dialog, then press ENTER on radio to start");
        typist.Answer("Read from Radio Status", "Complete");
        typist.AwaitGrid();
    });
    ExpectOver();
    EXPECT_TRUE(std::filesystem::exists(file));
    EXPECT_EQ(PortName, port);
    EXPECT_EQ(CurrentPage, 1);
    EXPECT_EQ(TypedCells(), sent);
    EXPECT_EQ(radio.Complaints(), "");
    std::string memories;
    for (const auto& [number, line] : radio.Memories())
        memories += line + '\n';
    EXPECT_EQ(memories, "001 CALL      155.7525RX 155.7525TX CTCSS: 64RX 25TX DPL: 000RX 000TX LOCK N\n"
                        "002 TAC 1     151.1375RX 151.1375TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N\n"
                        "003 TAC 2     154.4525RX 154.4525TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N\n");
}
