// Printing and preview as a user works with them: by menu, mouse and keys, onto real sheets.
#include "commands/CommandIds.h"
#include "robot/Desk.h"
#include "tests/files/PdfText.h"
#include "tests/files/PrintDialogs.h"
#include "tests/files/PrintTest.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/AssertsOff.h"
#include "tests/support/Keys.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RunWithRobot.h"

#include <wx/print.h>
#include <wx/statusbr.h>

#include <chrono>
#include <iterator>
#include <stdexcept>
#include <thread>

using namespace printtest;
using namespace testbench;
namespace fs = std::filesystem;

namespace {

constexpr const char* PrintTrouble =
    "There was a problem printing. Perhaps your current printer is not set correctly?";

class PrintCommands : public PrintTest {
protected:
    void SetUp() override {
        PrintTest::SetUp();
        // By default, printing to a file writes into the current folder.
        m_former = fs::current_path();
        fs::current_path(m_folder.Path());
        // The toolkit looks up the folder of half-printed sheets only once, when it prints the first one.
        if (const char* folder = std::getenv("TMPDIR"))
            m_formerSpool = folder;
        setenv("TMPDIR", Spool().c_str(), 1);
        CurrentGrid()->SetFocus();
        ShowAndFocus(*MainFrame);
    }
    void TearDown() override {
        if (m_formerSpool.empty())
            unsetenv("TMPDIR");
        else
            setenv("TMPDIR", m_formerSpool.c_str(), 1);
        fs::current_path(m_former);
        PrintTest::TearDown();
    }

    static const fs::path& Spool() {
        static const TempFolder folder("zelk-spool");
        return folder.Path();
    }

    /// Prints to a file, the only printer available in the print dialog.
    static void AcceptPrintDialog(Robot& robot) {
        ASSERT_TRUE(robot.WaitForWindow("Print"));
        robot.Press("Tab");
        // The list of printers appears a moment after the dialog.
        for (int tries = 0; tries < 50 && robot.FocusedTitle() == "Print"; ++tries) {
            robot.Press("Down");
            robot.Press("Alt+P");
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        EXPECT_TRUE(robot.WaitForNoDialog(30000));
    }

    void PrintToFile(Robot& robot) {
        AcceptPrintDialog(robot);
        EXPECT_TRUE(fs::exists(Output()));
    }

    /// Moves the grid's cursor down by a key, whatever window had the keyboard.
    static void ExpectKeysInTheGrid(Robot& robot) {
        const int row = robot.Ask([] { return CurrentGrid()->GetGridCursorRow(); });
        robot.Press("Down");
        EXPECT_TRUE(robot.WaitFor([row] { return CurrentGrid()->GetGridCursorRow() == row + 1; }));
    }

    fs::path Output() const { return m_folder / "output.pdf"; }

    /// Prints the current page by menu and dialog.
    void PrintPage() {
        // The toolkit's grid asks for clipping on paper. The toolkit's printer device doesn't support it and
        // asserts.
        const AssertsOff quiet;
        fs::remove(Output());
        RunWithRobot([this](Robot& robot) {
            ChooseFromFileMenu(robot, PrintEntry);
            PrintToFile(robot);
            EXPECT_TRUE(robot.WaitForWindow("Orv Zelk.*"));
        });
    }

    /// Expects these pages, each with its heading, and every row of the page once and in order.
    void ExpectEveryRow(int pages, int rowsPerPage) {
        const std::vector<std::vector<std::string>> sheets = PdfLines(Output());
        ASSERT_EQ(sheets.size(), static_cast<size_t>(pages));
        int row = 0;
        for (size_t sheet = 0; sheet < sheets.size(); ++sheet) {
            const std::vector<std::string>& lines = sheets[sheet];
            ASSERT_GE(lines.size(), 3u);
            EXPECT_EQ(lines[0].find(PageStrings[0].RadioName.utf8_string()), 0u) << lines[0];
            const std::string number = "Page " + std::to_string(sheet + 2) + " of " + std::to_string(pages);
            EXPECT_EQ(lines[0].rfind(number), lines[0].size() - number.size()) << lines[0];
            EXPECT_EQ(WordsOf(lines[1]), ShownHeadings());
            for (size_t line = 2; line < lines.size(); ++line, ++row)
                ASSERT_EQ(WordsOf(lines[line]), ShownTexts(row)) << "sheet " << sheet + 1;
            EXPECT_EQ(row, std::min<int>(rowsPerPage * static_cast<int>(sheet + 1), Rows()));
        }
        EXPECT_EQ(row, Rows());
    }

    static int Rows() { return CurrentGrid()->GetNumberRows(); }

    static std::vector<std::string> WordsOf(const std::string& line) {
        std::istringstream in(line);
        return {std::istream_iterator<std::string>(in), {}};
    }

    static std::vector<std::string> ShownHeadings() {
        std::string line;
        for (int col = 0; col < ColumnTotal; ++col)
            if (CurrentGrid()->IsColShown(col))
                line += " " + CurrentGrid()->GetColLabelValue(col).utf8_string();
        return WordsOf(line);
    }

    /// The words of a row after its label, as the window shows it.
    static std::vector<std::string> ShownTexts(int row) {
        std::string line = CurrentGrid()->GetRowLabelValue(row).utf8_string();
        for (int col = 0; col < ColumnTotal; ++col)
            if (CurrentGrid()->IsColShown(col))
                line += " " + Shown(row, col);
        return WordsOf(line);
    }

    static std::string Shown(int row, int col) {
        std::string text = Text(row, col);
        if (row == 0 && col == MNUM)
            return "DEF";
        if (col == MNUM && (row == GD1 || row == GD2))
            return row == GD1 ? "GD1" : "GD2";
        if (col == TIDC)
            return text.substr(text.size() > 7 ? text.size() - 7 : 0);
        if (col != SCAN || CurrentPageIsP25() || text.find_first_not_of("0123456789") != std::string::npos)
            return text;
        std::string boxes;
        for (int bit = 1; bit <= 16; bit *= 2)
            boxes += std::stoi(text) & bit ? "\u2612" : "\u2610";
        return boxes;
    }

    /// Fills the page with memories that differ from each other.
    static void FillPageWithScanLists() {
        FillPage();
        if (CurrentPageIsP25() || Text(1, SCAN).find_first_not_of("0123456789") != std::string::npos)
            return;
        for (int row = 1; row < Rows(); ++row)
            SetCell(row, SCAN, std::to_string(row % 32));
    }

    static wxPreviewFrame* FindPreview() {
        for (wxWindow* window : wxTopLevelWindows)
            if (auto* frame = dynamic_cast<wxPreviewFrame*>(window))
                return frame;
        return nullptr;
    }

    static wxPreviewFrame& Preview() {
        wxPreviewFrame* const frame = FindPreview();
        if (!frame)
            throw std::runtime_error("no print preview is open");
        return *frame;
    }

    static wxPrintPreviewBase* PreviewedPages() { return Preview().GetControlBar()->GetPrintPreview(); }

    /// Clicks a control of the preview.
    static void ClickInPreview(Robot& robot, int id) {
        robot.Click(robot.Ask([id] { return MiddleOf(*Preview().GetControlBar()->FindWindow(id)); }));
        robot.Settle();
    }

    static void ExpectPreviewed(Robot& robot, int page) {
        EXPECT_TRUE(robot.WaitFor([page] { return PreviewedPages()->GetCurrentPage() == page; })) << page;
        const std::string status = "Page " + std::to_string(page) + " of 4";
        EXPECT_TRUE(robot.WaitFor([&] { return Preview().GetStatusBar()->GetStatusText() == status; }))
            << status;
    }

    /// The preview's picture of its page.
    static wxImage PreviewPicture(Robot& robot) {
        robot.Settle();
        const wxRect canvas = robot.Ask([] {
            for (wxWindow* child : Preview().GetChildren())
                if (dynamic_cast<wxPreviewCanvas*>(child))
                    return child->GetScreenRect();
            return wxRect();
        });
        return Desk().Picture(canvas);
    }

    static bool AreSame(const wxImage& one, const wxImage& other) {
        const int bytes = one.GetWidth() * one.GetHeight() * 3;
        return one.GetSize() == other.GetSize() &&
               std::equal(one.GetData(), one.GetData() + bytes, other.GetData());
    }

    /// The window's picture of the grid.
    static wxImage GridPicture() {
        PumpUntilIdle();
        return Desk().Picture(CurrentGrid()->GetScreenRect());
    }

private:
    fs::path m_former;
    std::string m_formerSpool;
};

struct SheetsCase {
    const char* type;
    int pages, rowsPerPage;
};

void PrintTo(const SheetsCase& sheets, std::ostream* out) {
    *out << sheets.type;
}

class PrintToFile : public PrintCommands, public testing::WithParamInterface<SheetsCase> {};

} // namespace

TEST_P(PrintToFile, PutsEveryRowOnceAndInOrderOntoPaper) {
    RetargetTo(GetParam().type);
    FillPageWithScanLists();
    const GridLook before = LookOf(*CurrentGrid());
    PrintPage();
    ExpectEveryRow(GetParam().pages, GetParam().rowsPerPage);
    EXPECT_TRUE(before == LookOf(*CurrentGrid()));
    for (const PdfPage& page : PdfWords(Output())) {
        EXPECT_NEAR(page.width, 210, 0.5);
        EXPECT_NEAR(page.height, 297, 0.5);
    }
}

INSTANTIATE_TEST_SUITE_P(PageOf, PrintToFile,
                         testing::Values(SheetsCase{"ANFM", 3, 39}, SheetsCase{"RP25", 4, 66},
                                         SheetsCase{"NP25", 8, 69}, SheetsCase{"MDLX", 12, 44},
                                         SheetsCase{"O12", 1, 7}, SheetsCase{"KDAR", 5, 24},
                                         SheetsCase{"ANAM", 9, 23}, SheetsCase{"FXAM", 7, 29}),
                         [](const auto& param) { return param.param.type; });

TEST_F(PrintCommands, APageOfMemoriesIsPrintedInLandscapeWhenThePageSetupSaysSo) {
    SetUpPage(wxID_OK, ClickLandscape);
    RetargetTo("NP25");
    FillPage();
    PrintPage();
    ExpectEveryRow(17, 31);
    const PdfPage page = PdfWords(Output()).front();
    EXPECT_NEAR(page.width, 297, 0.5);
    EXPECT_NEAR(page.height, 210, 0.5);
    EXPECT_EQ(PrintData->GetOrientation(), wxLANDSCAPE) << "as before";
}

TEST_F(PrintCommands, PaperHasItsHeadingInTheStripAndTheGridBetweenTheMargins) {
    FillPage();
    PrintPage();
    const std::vector<PdfPage> pages = PdfWords(Output());
    ASSERT_EQ(pages.size(), 4u);
    for (const PdfPage& page : pages) {
        ASSERT_GT(page.words.size(), 20u);
        double left = 1000, right = 0;
        for (const PdfWord& word : page.words) {
            // Coordinates are rounded to pixels of the screen, a quarter of a millimetre.
            EXPECT_GE(word.left, 14.7) << word.text;
            EXPECT_LE(word.right, 195.3) << word.text;
            EXPECT_LE(word.bottom, 282) << word.text;
            EXPECT_TRUE(word.top > 14.5 && (word.bottom < 20.5 || word.top > 21)) << word.text;
            left = std::min(left, word.left);
            right = std::max(right, word.right);
        }
        EXPECT_NEAR(left, 15, 0.3) << "the title";
        EXPECT_NEAR(right, 195, 0.3) << "the page number";
    }
}

TEST_F(PrintCommands, PrintingLeavesTheWindowAsItWas) {
    RetargetTo("O12");
    FillPage();
    CurrentGrid()->SelectRow(2);
    const wxImage before = GridPicture();
    PrintPage();
    EXPECT_TRUE(MainFrame->IsEnabled());
    EXPECT_TRUE(PumpUntil([&] { return AreSame(before, GridPicture()); }));
    RunWithRobot(ExpectKeysInTheGrid);
}

TEST_F(PrintCommands, WhileThePrintDialogStandsThePageCannotGo) {
    const AssertsOff quiet;
    RunWithRobot([this](Robot& robot) {
        ChooseFromFileMenu(robot, PrintEntry);
        ASSERT_TRUE(robot.WaitForWindow("Print"));
        EXPECT_FALSE(robot.Ask([] { return MainFrame->IsEnabled(); }));
        PrintToFile(robot);
        EXPECT_TRUE(robot.WaitFor([] { return MainFrame->IsEnabled(); }));
    });
}

TEST_F(PrintCommands, CancelInThePrintDialogSaysNothingAndChangesNothing) {
    FillPage();
    SetLandscape();
    const std::string before = Masked(Save("before"));
    const testbench::LogKeeper log;
    const GridLook look = LookOf(*CurrentGrid());
    RunWithRobot([](Robot& robot) {
        ChooseFromFileMenu(robot, PrintEntry);
        ASSERT_TRUE(robot.WaitForWindow("Print"));
        robot.Press("Escape");
        EXPECT_TRUE(robot.WaitForNoDialog());
        EXPECT_TRUE(robot.WaitForWindow("Orv Zelk.*"));
        ExpectKeysInTheGrid(robot);
    });
    EXPECT_FALSE(fs::exists(Output()));
    EXPECT_EQ(log.lines, std::vector<std::string>{});
    EXPECT_EQ(log.errors, std::vector<std::string>{});
    EXPECT_EQ(PrintData->GetOrientation(), wxLANDSCAPE);
    EXPECT_EQ(PrintData->GetNoCopies(), 1);
    EXPECT_EQ(Masked(Save("before")), before);
    EXPECT_TRUE(look == LookOf(*CurrentGrid()));
    EXPECT_TRUE(MainFrame->IsEnabled());
}

TEST_F(PrintCommands, WhatWasChosenInThePrintDialogIsKeptForTheNextTime) {
    const auto answer = [](int id, int copies) {
        DialogScript script;
        script.Expect(DialogKind::Print, AnyText()).Answer(id).Set([=](wxDialog* dialog) {
            auto* print = dynamic_cast<wxPrintDialogBase*>(dialog);
            ASSERT_NE(print, nullptr);
            print->GetPrintDialogData().GetPrintData().SetOrientation(wxLANDSCAPE);
            print->GetPrintDialogData().GetPrintData().SetNoCopies(copies);
        });
        RunCommand(IdPrint);
    };
    answer(wxID_CANCEL, 2);
    EXPECT_EQ(PrintData->GetOrientation(), wxPORTRAIT);
    EXPECT_EQ(PrintData->GetNoCopies(), 1);
    answer(wxID_NO, 2);
    EXPECT_EQ(PrintData->GetOrientation(), wxPORTRAIT) << "not printed";
    answer(wxID_OK, 3);
    EXPECT_EQ(PrintData->GetOrientation(), wxLANDSCAPE);
    EXPECT_EQ(PrintData->GetNoCopies(), 3);
    EXPECT_EQ(PageSetupData->GetPrintData().GetOrientation(), wxPORTRAIT) << "the page set-up has its own";
}

TEST_F(PrintCommands, AFailureIsToldInTheLogAndTheStatusBar) {
    const testbench::LogKeeper log;
    for (const auto& [answer, reported] :
         {std::pair(wxID_NO, true), {wxID_CANCEL, false}, {wxID_OK, false}}) {
        const size_t before = log.lines.size();
        DialogScript script;
        script.Expect(DialogKind::Print, AnyText()).Answer(answer);
        RunCommand(IdPrint);
        ASSERT_EQ(log.lines.size(), before + (reported ? 1 : 0)) << answer;
        EXPECT_EQ(Status(0), reported ? "There was a problem printing." : "Select function") << answer;
        EXPECT_EQ(MainFrame->m_statusBar->GetToolTipText().utf8_string(), reported ? PrintTrouble : "")
            << answer;
    }
    EXPECT_EQ(log.lines, std::vector<std::string>{PrintTrouble});
}

TEST_F(PrintCommands, WithoutRoomForTheSheetsPrintingFailsAndIsToldInTheLogAndTheStatusBar) {
    const AssertsOff quiet;
    const testbench::LogKeeper log;
    const GridLook before = LookOf(*CurrentGrid());
    fs::remove_all(Spool());
    RunWithRobot([](Robot& robot) {
        ChooseFromFileMenu(robot, PrintEntry);
        AcceptPrintDialog(robot);
        EXPECT_TRUE(robot.WaitForWindow("Orv Zelk.*"));
    });
    fs::create_directory(Spool());
    EXPECT_EQ(wxPrinter::GetLastError(), wxPRINTER_ERROR);
    EXPECT_EQ(log.lines, std::vector<std::string>{PrintTrouble});
    EXPECT_EQ(Status(0), "There was a problem printing.");
    EXPECT_EQ(PrintData->GetOrientation(), wxPORTRAIT);
    EXPECT_TRUE(before == LookOf(*CurrentGrid()));
    EXPECT_TRUE(MainFrame->IsEnabled());
    EXPECT_FALSE(fs::exists(Output()));
}

TEST_F(PrintCommands, PrintTheSelectedPage) {
    SetPageParameters(MainFrame, 1, Orv12, 0);
    CreateNewPage(MainFrame, 1);
    UpdateStatus(MainFrame, 1);
    FillPage();
    PrintPage();
    const auto sheets = PdfLines(Output());
    ASSERT_EQ(sheets.size(), 1u);
    EXPECT_EQ(WordsOf(sheets[0][0]), (std::vector<std::string>{"ORV-12", "Page", "2", "of", "1"}));
    ASSERT_EQ(sheets[0].size(), 9u);
    for (int row = 0; row < 7; ++row)
        EXPECT_EQ(WordsOf(sheets[0][static_cast<size_t>(row) + 2]), ShownTexts(row));
}

TEST_F(PrintCommands, ThePreviewIsPagedSizedAndClosed) {
    FillPage();
    const GridLook look = LookOf(*CurrentGrid());
    RunWithRobot([&](Robot& robot) {
        ChooseFromFileMenu(robot, PreviewEntry);
        ASSERT_TRUE(robot.WaitForWindow("Print Preview"));
        EXPECT_EQ(robot.Ask([] { return Preview().GetParent(); }), MainFrame);
        EXPECT_FALSE(robot.Ask([] { return MainFrame->IsEnabled(); }));
        ExpectPreviewed(robot, 1);
        const wxImage first = PreviewPicture(robot);
        const std::pair<int, int> steps[] = {{wxID_PREVIEW_NEXT, 2},
                                             {wxID_PREVIEW_LAST, 4},
                                             {wxID_PREVIEW_PREVIOUS, 3},
                                             {wxID_PREVIEW_FIRST, 1}};
        for (const auto& [button, page] : steps) {
            ClickInPreview(robot, button);
            ExpectPreviewed(robot, page);
            EXPECT_EQ(AreSame(first, PreviewPicture(robot)), page == 1) << page;
            EXPECT_TRUE(robot.Ask([&] { return look == LookOf(*CurrentGrid()); })) << page;
        }
        ClickInPreview(robot, wxID_PREVIEW_GOTO);
        robot.Press("Ctrl+A");
        robot.Type("3\n");
        ExpectPreviewed(robot, 3);

        const int zoom = robot.Ask([] { return PreviewedPages()->GetZoom(); });
        const wxImage before = PreviewPicture(robot);
        ClickInPreview(robot, wxID_PREVIEW_ZOOM_IN);
        EXPECT_TRUE(robot.WaitFor([=] { return PreviewedPages()->GetZoom() > zoom; }));
        EXPECT_FALSE(AreSame(before, PreviewPicture(robot)));
        ClickInPreview(robot, wxID_PREVIEW_ZOOM_OUT);
        EXPECT_TRUE(robot.WaitFor([=] { return PreviewedPages()->GetZoom() == zoom; }));
        EXPECT_TRUE(AreSame(before, PreviewPicture(robot)));

        ClickInPreview(robot, wxID_PREVIEW_CLOSE);
        EXPECT_TRUE(robot.WaitFor([] { return !FindPreview(); }));
        EXPECT_TRUE(robot.WaitForWindow("Orv Zelk.*"));
        EXPECT_TRUE(robot.Ask([] { return MainFrame->IsEnabled(); }));
        ExpectKeysInTheGrid(robot);
    });
    EXPECT_TRUE(look == LookOf(*CurrentGrid()));
}

TEST_F(PrintCommands, ThePreviewPrintsWhatItShows) {
    const AssertsOff quiet;
    RetargetTo("O12");
    FillPage();
    RunWithRobot([this](Robot& robot) {
        ChooseFromFileMenu(robot, PreviewEntry);
        ASSERT_TRUE(robot.WaitForWindow("Print Preview"));
        ClickInPreview(robot, wxID_PREVIEW_PRINT);
        PrintToFile(robot);
        EXPECT_TRUE(robot.WaitForWindow("Print Preview"));
        robot.Press("Alt+F4");
        EXPECT_TRUE(robot.WaitFor([] { return !FindPreview(); }));
    });
    ExpectEveryRow(1, 7);
}

TEST_F(PrintCommands, ThePreviewLiesOnItsSideInLandscape) {
    SetLandscape();
    RunWithRobot([](Robot& robot) {
        ChooseFromFileMenu(robot, PreviewEntry);
        ASSERT_TRUE(robot.WaitForWindow("Print Preview"));
        EXPECT_TRUE(robot.WaitFor([] { return PreviewedPages()->GetMaxPage() == 8; }));
        robot.Press("Alt+F4");
        EXPECT_TRUE(robot.WaitFor([] { return !FindPreview(); }));
    });
}

TEST_F(PrintCommands, ThePreviewGoesWithTheMainWindow) {
    RunWithRobot([](Robot& robot) {
        ChooseFromFileMenu(robot, PreviewEntry);
        ASSERT_TRUE(robot.WaitForWindow("Print Preview"));
    });
    ASSERT_NE(FindPreview(), nullptr);
    TearDown();
    EXPECT_EQ(FindPreview(), nullptr);
    SetUp();
}
