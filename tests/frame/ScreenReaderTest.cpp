// What a screen reader hears of the program, over a session bus.
#include "editing/ShadowDialog.h"
#include "frame/SelectionDialogs.h"
#include "robot/Process.h"
#include "robot/Pump.h"
#include "tests/support/Keys.h"
#include "tests/support/Modals.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"
#include "transfer/ProgressFrame.h"

#include <wx/notebook.h>
#include <wx/statusbr.h>

#include <optional>

using namespace testbench;

namespace {

class ScreenReader : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
        CurrentGrid()->SetFocus();
        m_reader.emplace(std::vector<std::string>{ZELK_SCREEN_READER});
        ASSERT_TRUE(PumpUntil([&] { return Heard("ready\n"); }, 20000)) << m_reader->Output();
        // The toolkit sends nothing until it knows of the reader.
        int tries = 0;
        ASSERT_TRUE(PumpUntil(
            [&] {
                MainFrame->SetStatusText(wxString::Format("try %d", ++tries));
                wxWakeUpIdle();
                PumpFor(50);
                return Heard("name label: try ");
            },
            20000))
            << m_reader->Output();
        MainFrame->SetStatusText("Select function");
        ExpectNews("name label: Select function");
    }

    void TearDown() override {
        m_reader.reset();
        ZelkWindowTest::TearDown();
    }

    /// Waits until the reader has heard this line, after the ones of former calls.
    void ExpectNews(const std::string& line) {
        // Idle work follows every event of a user, but nothing that a test calls.
        wxWakeUpIdle();
        const std::string whole = "\n" + line + "\n";
        EXPECT_TRUE(PumpUntil([&] { return m_reader->Output().find(whole, m_told) != std::string::npos; }))
            << "not heard: " << line << "\n"
            << m_reader->Output().substr(m_told);
        const size_t place = m_reader->Output().find(whole, m_told);
        if (place != std::string::npos)
            m_told = place + whole.size() - 1;
    }

    /// Everything that the reader finds on the screen, as tests/support/screen-reader prints it.
    std::string Tree() {
        const size_t before = m_reader->Output().size();
        wxWakeUpIdle();
        PumpUntilIdle();
        m_reader->Write("tree\n");
        EXPECT_TRUE(PumpUntil(
            [&] { return m_reader->Output().find("tree: end", before) != std::string::npos; }, 20000));
        return m_reader->Output().substr(before);
    }

    static void ExpectIn(const std::string& tree, const std::string& line) {
        EXPECT_NE(tree.find(line), std::string::npos) << "not found: " << line << "\n" << tree;
    }

private:
    bool Heard(const std::string& text) { return m_reader->Output().find(text) != std::string::npos; }

    std::optional<Process> m_reader;
    size_t m_told = 0;
};

} // namespace

TEST_F(ScreenReader, HearsEachCellThatTheCursorComesTo) {
    PressKey("Down");
    ExpectNews("focus table cell: Row 1, Chan, empty");
    PressKey("Right");
    ExpectNews("focus table cell: Row 1, Scan, empty");
    PressKey("Up");
    ExpectNews("focus table cell: Default row, Scan, no list");
    PressKey("Left");
    ExpectNews("focus table cell: Default row, Chan, DEF, read only");
    PressKey("Down");
    ExpectNews("focus table cell: Row 1, Chan, empty");
}

TEST_F(ScreenReader, HearsTheEditorsPlaceAndThenTheNewText) {
    CurrentGrid()->SetGridCursor(3, RFRQ);
    ExpectNews("focus table cell: Row 3, RxFreq, empty");
    TypeText("75");
    ExpectNews("focus text: Row 3, RxFreq");
    PressKey("Escape");
    ExpectNews("focus table cell: Row 3, RxFreq, empty");
    TypeText("75");
    ExpectNews("focus text: Row 3, RxFreq");
    PressKey("Return");
    ExpectNews("focus table cell: Row 4, RxFreq, empty");
    PressKey("Up");
    ExpectNews("focus table cell: Row 3, RxFreq, 75.0000");
    // The column's editor serves the next row too.
    PressKey("Down");
    TypeText("76");
    ExpectNews("focus text: Row 4, RxFreq");
    PressKey("Escape");
}

TEST_F(ScreenReader, HearsThatACheckHasRepairedTheCell) {
    TypeIntoCell(*CurrentGrid(), 3, RFRQ, "75");
    CurrentGrid()->ClearSelection();
    SetCell(3, RTON, "1");
    CurrentGrid()->SetGridCursor(3, RTON);
    ExpectNews("focus table cell: Row 3, RxTn, 1");
    DialogScript dialogs;
    dialogs.ExpectMessage("Validate Page", "Validate row data");
    wxCommandEvent event;
    MainFrame->OnValidatePage(event);
    ExpectNews("name table cell: Row 3, RxTn, OFF, repaired");
    MainFrame->OnClearHighlight(event);
    ExpectNews("name table cell: Row 3, RxTn, OFF");
}

TEST_F(ScreenReader, HearsWhatIsSelected) {
    PressKey("Down");
    ExpectNews("focus table cell: Row 1, Chan, empty");
    PressKey("Shift+Down");
    ExpectNews("name table cell: Row 1, Chan, empty, rows 1 to 2 selected");
    PressKey("Shift+Down");
    ExpectNews("name table cell: Row 1, Chan, empty, rows 1 to 3 selected");
    PressKey("Right");
    ExpectNews("focus table cell: Row 1, Scan, empty");
    CurrentGrid()->SelectAll();
    ExpectNews("name table cell: Row 1, Scan, empty, rows 0 to 122 selected");
}

TEST_F(ScreenReader, HearsWhereTheKeyboardIsAfterAPageChange) {
    SetPageParameters(MainFrame, 1, Orv12, 0);
    CreateNewPage(MainFrame, 1);
    CurrentGrid()->SetFocus();
    ExpectNews("focus table cell: Default row, Chan, DEF, read only");
    CurrentGrid()->SetGridCursor(2, RFRQ);
    ExpectNews("focus table cell: Row 2, Freq, empty");
    MainFrame->m_notebook->SetSelection(0);
    CurrentGrid()->SetGridCursor(5, DESC);
    CurrentGrid()->SetFocus();
    ExpectNews("focus table cell: Row 5, Desc, empty");
    const std::string before = Tree();
    ExpectIn(before, "table cell: Row 2, Freq, empty\n");
    ExpectIn(before, "table cell: Row 5, Desc, empty [focused] [showing]");
    // A page that goes takes its cell along.
    MainFrame->m_notebook->DeletePage(1);
    PageCount = 1;
    const std::string after = Tree();
    EXPECT_EQ(after.find("Freq"), std::string::npos) << after;
    ExpectIn(after, "table cell: Row 5, Desc, empty [focused] [showing]");
}

TEST_F(ScreenReader, FindsEveryPartInItsPlace) {
    PressKey("Down");
    TypeText("1"); // leaves an editor, which is a child of the grid too
    PressKey("Escape");
    const std::string tree = Tree();
    ExpectIn(tree, "table: Channels [focused] [showing]");
    ExpectIn(tree, "table cell: Row 1, Chan, empty [focused] [showing]");
    EXPECT_EQ(tree.find("LOST"), std::string::npos) << tree;
    EXPECT_EQ(tree.find("nothing"), std::string::npos) << tree;
}

TEST_F(ScreenReader, HearsTheFieldsOfTheStatusBarByTheirNames) {
    const std::string tree = Tree();
    for (const char* field : {"label: Select function", "label: Radio: KRV-47", "label: Band: FM 66-88",
                              "label: 122 Rows", "label: Port: none"})
        ExpectIn(tree, field);
    MainFrame->SetStatusText("ttyUSB0", 4);
    ExpectNews("name label: Port: ttyUSB0");
}

TEST_F(ScreenReader, HearsTheNamesOfTheChoicesInDialogs) {
    BandList = RadioCatalogue::ListOf(RadioCatalogue::BandName);
    PortDialog ports(MainFrame, "Select");
    RadioDialog radios(MainFrame, "Select", 0);
    BandDialog bands(MainFrame, "Select", 0);
    struct {
        wxDialog* dialog;
        wxChoice* choice;
        std::string name;
    } const cases[] = {
        {&ports, PortChoice, "Port"}, {&radios, RadioChoice, "Radio"}, {&bands, BandChoice, "Band"}};
    for (const auto& one : cases) {
        one.dialog->Show();
        PumpUntilIdle();
        // A machine without ports leaves the choice of ports without an entry.
        if (one.choice->IsEmpty())
            one.choice->Append("ttyUSB0");
        one.choice->SetFocus();
        ExpectNews("focus toggle button: " + one.name);
        ExpectIn(Tree(), "combo box: " + one.name + " [");
        one.dialog->Hide();
    }
    BandList.clear();
}

TEST_F(ScreenReader, HearsTheNameOfTheShadowsNumber) {
    ShadowDialog dialog(MainFrame, "Create Shadow");
    dialog.Show();
    ExpectNews("focus text: Shadow memory number");
}

TEST_F(ScreenReader, HearsTheNameOfTheLineThatFinds) {
    PressKey("Ctrl+F");
    ExpectNews("focus text: Find");
    PressKey("Escape");
    ExpectNews("focus table cell: Default row, Chan, DEF, read only");
}

TEST_F(ScreenReader, FindsTheNamesOfTheGauges) {
    auto* const window = new ProgressFrame(MainFrame);
    window->Show();
    PumpUntilIdle();
    const std::string tree = Tree();
    delete window;
    ExpectIn(tree, "progress bar: Rows done");
    ExpectIn(tree, "progress bar: Waiting for the radio");
}
