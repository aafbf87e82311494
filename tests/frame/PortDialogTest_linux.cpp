// The dialog for the port.
#include "commands/CommandIds.h"
#include "frame/SerialPorts.h"
#include "tests/frame/FrameTools.h"
#include "tests/frame/SelectingTest.h"
#include "tests/support/PseudoTerminal.h"
#include "transfer/ChosenPort.h"

#include <wx/statusbr.h>
#include <wx/stdpaths.h>
#include <wx/tooltip.h>

#include <sys/file.h>

#include <filesystem>

using namespace testbench;

namespace {

/// A port list under the test's sole control.
class SelectingAPort : public Selecting {
protected:
    void SetUp() override {
        Selecting::SetUp();
        // Locks this machine's own ports, so that they don't count as free.
        for (const wxString& port : ListSerialPorts()) {
            const int descriptor = ::open(port.utf8_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
            if (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
                m_held.push_back(descriptor);
        }
        ASSERT_TRUE(ListSerialPorts().empty());
    }

    void TearDown() override {
        for (int descriptor : m_held)
            ::close(descriptor);
        std::filesystem::remove_all(Folder());
        Selecting::TearDown();
    }

    static std::filesystem::path Folder() {
        return std::filesystem::path(wxStandardPaths::Get().GetUserDataDir().utf8_string()) / "ports";
    }

    /// Creates a link to the pseudo-terminal in the folder of simulated radios. Returns its full name.
    static wxString Offer(PseudoTerminal& port, const std::string& name) {
        port.HoldSlave();
        std::filesystem::create_directories(Folder());
        std::filesystem::create_symlink(port.SlaveName(), Folder() / name);
        return wxString((Folder() / name).string());
    }

    static ExpectedDialog& ExpectPort(DialogScript& dialogs) {
        return dialogs.Expect(DialogKind::Other, PortTitle);
    }

    static wxString StatusField() { return MainFrame->m_statusBar->GetStatusText(4); }

private:
    std::vector<int> m_held;
};

} // namespace

TEST_F(SelectingAPort, WithNonePresentOffersNothing) {
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        ExpectForm(dialog, "Port", PortChoice);
        EXPECT_EQ(PortChoice->GetCount(), 0u);
        EXPECT_TRUE(PortList.empty());
        PumpFor(100);
        EXPECT_FALSE(OkCanBePressed(dialog));
        ClickDeadButton(dialog, wxID_OK);
        PressKey("Return");
        EXPECT_TRUE(dialog->IsModal()) << "the dialog is still open";
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, "none");
    EXPECT_EQ(StatusField(), "");
}

TEST_F(SelectingAPort, WithNonePresentIsLeftWithEscape) {
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        PumpFor(100);
        CancelWithKey(dialog);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, "none");
}

TEST_F(SelectingAPort, BeginsInItsList) {
    PseudoTerminal first, second;
    Offer(first, "radio1");
    const wxString name = Offer(second, "radio2");
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        PumpFor(100);
        EXPECT_TRUE(PortChoice->HasFocus());
        PressKey(KeyOfOk);
        EXPECT_TRUE(dialog->IsModal()) << "nothing is chosen";
        for (int tries = 0; tries < 3 && PortChoice->GetSelection() != 1; ++tries)
            PressKey("Down");
        EXPECT_EQ(PortChoice->GetSelection(), 1);
        PumpUntil([dialog] { return OkCanBePressed(dialog); });
        PressKey(KeyOfOk);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, name);
}

TEST_F(SelectingAPort, StoresItAndShowsItInTheStatusBar) {
    PseudoTerminal first, second;
    const wxString names[] = {Offer(first, "radio1"), Offer(second, "radio2")};
    DialogScript dialogs;
    ExpectPort(dialogs).Do([&names](wxDialog* dialog) {
        ExpectForm(dialog, "Port", PortChoice);
        EXPECT_EQ(ChoicesOf(PortChoice), (Texts{names[0].utf8_string(), names[1].utf8_string()}));
        EXPECT_EQ(PortList.size(), 2u);
        EXPECT_EQ(PortChoice->GetSelection(), -1);
        ChooseAndAccept(dialog, PortChoice, 1);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, names[1]);
    EXPECT_EQ(StatusField(), names[1]);
    EXPECT_TRUE(PortList.empty());

    // The next time, this port is preselected.
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        EXPECT_EQ(PortChoice->GetSelection(), 1);
        ChooseAndAccept(dialog, PortChoice, 0);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, names[0]);
    EXPECT_EQ(StatusField(), names[0]);
}

TEST_F(SelectingAPort, CancelledKeepsTheFormerOne) {
    PseudoTerminal port;
    Offer(port, "radio1");
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        PortChoice->SetSelection(0);
        PumpUntil([dialog] { return OkCanBePressed(dialog); });
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, "none");
    EXPECT_EQ(StatusField(), "");
    EXPECT_TRUE(PortList.empty());
}

TEST_F(SelectingAPort, ChosenEarlierButNotListedNowIsNotSelectedAndStaysAfterCancel) {
    PseudoTerminal port;
    Offer(port, "radio1");
    PortName = "/dev/ttyUSB7";
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        EXPECT_EQ(PortChoice->GetSelection(), -1);
        PumpFor(100);
        EXPECT_FALSE(OkCanBePressed(dialog));
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
    EXPECT_EQ(PortName, "/dev/ttyUSB7");
}

TEST_F(SelectingAPort, LeavesOutOneThatAnotherProgramHolds) {
    PseudoTerminal first, second;
    Offer(first, "radio1");
    const wxString free = Offer(second, "radio2");
    const int holder = ::open(first.SlaveName().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_EQ(::flock(holder, LOCK_EX | LOCK_NB), 0);
    DialogScript dialogs;
    ExpectPort(dialogs).Do([&free](wxDialog* dialog) {
        EXPECT_EQ(ChoicesOf(PortChoice), Texts{free.utf8_string()});
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
    ::close(holder);
}

TEST_F(SelectingAPort, TellsInATipWhoMayOpenPorts) {
    ASSERT_FALSE(SerialPortGroupHint().empty());
    DialogScript dialogs;
    ExpectPort(dialogs).Do([](wxDialog* dialog) {
        EXPECT_EQ(dialog->GetToolTipText(), SerialPortGroupHint());
        EXPECT_EQ(PortChoice->GetToolTipText(), SerialPortGroupHint());
        ClickButton(dialog, wxID_CANCEL);
    });
    RunCommand(IdSetPort);
}
