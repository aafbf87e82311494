// Texts that don't fit the fields of the status bar, and names of files.
#include "frame/StatusFields.h"

#include "commands/StatusOutcome.h"
#include "robot/Desk.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/notebook.h>

using namespace testbench;

namespace {

constexpr const char* LongPort = "/dev/serial/by-id/usb-1a86_USB_Serial_Converter_A5XK3RJT-if00-port0";

class FieldsOfTheStatusBar : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
    }

    static wxString ToolTip() { return MainFrame->m_statusBar->GetToolTipText(); }
    static wxString FirstField() { return MainFrame->m_statusBar->GetStatusText(0); }

    /// The screen area of the middle of a field's left or right half.
    static wxRect HalfOf(int field, bool right) {
        wxRect area;
        MainFrame->m_statusBar->GetFieldRect(field, area);
        const wxPoint at = MainFrame->m_statusBar->ClientToScreen(area.GetPosition());
        return {at.x + (right ? area.width / 2 : 2), at.y, area.width / 2 - 4, area.height};
    }

    static std::string Seen(const wxRect& part) {
        const wxImage picture = Desk().Picture(part);
        const auto* bytes = reinterpret_cast<const char*>(picture.GetData());
        return {bytes, static_cast<size_t>(picture.GetWidth() * picture.GetHeight() * 3)};
    }

    /// What is seen of a field with this text.
    static std::string SeenWith(int field, const wxString& text, bool right) {
        MainFrame->m_statusBar->SetStatusText(text, field);
        PumpFor(60);
        return Seen(HalfOf(field, right));
    }

    /// The tool tip with the pointer on a field.
    static wxString TipOn(int field) {
        wxRect area;
        MainFrame->m_statusBar->GetFieldRect(field, area);
        const wxPoint middle =
            MainFrame->m_statusBar->ClientToScreen(area.GetPosition() + area.GetSize() / 2);
        wxString tip;
        RunWithRobot([&](Robot& robot) {
            robot.Move(middle);
            robot.Move(middle + wxPoint(3, 1));
            robot.Settle();
            tip = robot.Ask(ToolTip);
        });
        return tip;
    }

    static void AddPageWithFile(const wxString& folder, const wxString& name) {
        AddPage(Krv21);
        PageStrings[CurrentPage].FileDir = folder;
        PageStrings[CurrentPage].FileName = name;
    }
};

} // namespace

TEST_F(FieldsOfTheStatusBar, CutALongPortAtItsStart) {
    const std::string nothing = SeenWith(PortField, "", false);
    const std::string one = SeenWith(PortField, LongPort, false);
    EXPECT_TRUE(one != nothing);
    EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(PortField), LongPort);
    EXPECT_TRUE(one == SeenWith(PortField, wxString("/another/folder") + LongPort, false))
        << "the start is not shown";
    EXPECT_TRUE(one != SeenWith(PortField, LongPort + wxString("7"), false)) << "the end is shown";
}

TEST_F(FieldsOfTheStatusBar, CutOtherTextsAtTheirEnd) {
    const wxString text = "Write a list of the page for other programs and radios " + wxString('x', 60);
    const std::string one = SeenWith(0, text, true);
    EXPECT_TRUE(one == SeenWith(0, text + "more", true)) << "the end is not shown";
    // An ellipsis stands where a text that was only clipped goes on.
    MainFrame->m_statusBar->SetWindowStyleFlag(MainFrame->m_statusBar->GetWindowStyleFlag() &
                                               ~wxSTB_ELLIPSIZE_END);
    EXPECT_TRUE(one != SeenWith(0, text, true));
}

TEST_F(FieldsOfTheStatusBar, ShowATextThatIsCutAsToolTip) {
    MainFrame->SetStatusText(LongPort, PortField);
    PumpFor(60);
    EXPECT_EQ(TipOn(PortField), LongPort);
    EXPECT_EQ(TipOn(1), "");
    TellOutcome("Saved a.zelk", "the story");
    EXPECT_EQ(TipOn(1), "the story");
    EXPECT_EQ(TipOn(PortField), LongPort);
    EXPECT_EQ(TipOn(0), "the story");
    ForgetOutcome();
    MainFrame->SetStatusText("COM3", PortField);
    PumpFor(60);
    EXPECT_EQ(TipOn(PortField), "");
}

TEST_F(FieldsOfTheStatusBar, NameTheFileOfThePageThatIsChangedTo) {
    AddPageWithFile("/home/ann/radios/", "county fire");
    EXPECT_EQ(FirstField(), "Select function");
    MainFrame->m_notebook->SetSelection(0);
    EXPECT_EQ(FirstField(), "Select function") << "a page without a file";
    MainFrame->m_notebook->SetSelection(1);
    EXPECT_EQ(FirstField(), "county fire.zelk");
    DeletePage();
    EXPECT_EQ(FirstField(), "Select function");
}

TEST_F(FieldsOfTheStatusBar, NameTheFileOfThePageThatIsLeftByADelete) {
    PageStrings[0].FileName = "first";
    AddPageWithFile("/home/ann/radios/", "second");
    MainFrame->m_notebook->SetSelection(0);
    DeletePage();
    EXPECT_EQ(FirstField(), "second.zelk");
}

TEST_F(FieldsOfTheStatusBar, AreHelpedByTheToolTipOfATabThatNamesItsFile) {
    AddPageWithFile("/home/ann/radios/", "county fire");
    const wxNotebook* book = MainFrame->m_notebook;
    const auto tabSpot = [book](int page) {
        wxPoint at(0, 12);
        while (at.x < book->GetSize().x && book->HitTest(at) != page)
            ++at.x;
        return book->ClientToScreen(at + wxPoint(12, 0));
    };
    RunWithRobot([&](Robot& robot) {
        const auto tipAt = [&](const wxPoint& spot) {
            robot.Move(spot);
            robot.Move(spot + wxPoint(2, 1));
            robot.Settle();
            return robot.Ask([book] { return book->GetToolTipText(); });
        };
        EXPECT_EQ(tipAt(robot.Ask([&] { return tabSpot(1); })), "/home/ann/radios/county fire.zelk");
        EXPECT_EQ(tipAt(robot.Ask([&] { return tabSpot(0); })), "") << "a page without a file";
        tipAt(robot.Ask([&] { return tabSpot(1); }));
        EXPECT_EQ(tipAt(robot.Ask([] { return CellSpot(*CurrentGrid(), 5, DESC); })), "") << "the grid";
    });
}
