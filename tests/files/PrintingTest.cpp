// Sheets of a page, drawn on a bitmap.
#include "editing/ScanListCell.h"
#include "tests/files/Paper.h"
#include "tests/files/PrintTest.h"

#include <wx/dcgraph.h>
#include <wx/utils.h>

#include <map>
#include <stdexcept>

namespace {

const wxColour Red(255, 0, 0), Blue(0, 0, 255), Yellow(255, 255, 0), Black(0, 0, 0);
const wxColour PaleGrey(245, 245, 245), DarkGrey(48, 48, 48);

/// Records the grid's look while its cells are drawn.
class LookSpy : public wxGridCellStringRenderer {
public:
    explicit LookSpy(std::vector<GridLook>& seen) : m_seen(seen) {}
    void Draw(wxGrid& grid, wxGridCellAttr&, wxDC&, const wxRect&, int, int, bool) override {
        m_seen.push_back(LookOf(grid));
    }
    wxGridCellRenderer* Clone() const override { return new LookSpy(m_seen); }

private:
    std::vector<GridLook>& m_seen;
};

class ThrowingRenderer : public wxGridCellStringRenderer {
public:
    void Draw(wxGrid&, wxGridCellAttr&, wxDC&, const wxRect&, int, int, bool) override {
        throw std::runtime_error("no ink");
    }
    wxGridCellRenderer* Clone() const override { return new ThrowingRenderer; }
};

/// A device that accepts no document.
class RefusingDevice : public wxDC {
public:
    RefusingDevice() : wxDC(new Device(this)) {}

private:
    class Device : public wxGCDCImpl {
    public:
        using wxGCDCImpl::wxGCDCImpl;
        bool StartDoc(const wxString&) override { return false; }
    };
};

class Printing : public PrintTest {
protected:
    static ZelkPrintout Printout() { return ZelkPrintout(MainFrame, CurrentGrid(), "KRV-47"); }

    /// Number of pages for the grid.
    static int Pages(ZelkPrintout& printout) {
        int min = -1, max = -1, from = -1, to = -1;
        printout.GetPageInfo(&min, &max, &from, &to);
        EXPECT_EQ(min, 1);
        EXPECT_EQ(from, 1);
        EXPECT_EQ(to, max);
        return max;
    }

    static int RowsAPage() {
        ZelkPrintout printout(MainFrame, CurrentGrid(), "");
        printout.CalculateRowsPerPage();
        return printout.RowsPerPage();
    }

    static wxImage Draw(int page) {
        ZelkPrintout printout = Printout();
        Pages(printout);
        Sheet sheet(printout);
        EXPECT_TRUE(printout.OnPrintPage(page));
        return sheet.Picture();
    }

    /// The texts of a page in drawing order.
    static std::vector<DrawnText> Trace(int page) {
        ZelkPrintout printout = Printout();
        Pages(printout);
        Sheet sheet(printout);
        std::vector<DrawnText> texts;
        TracingDevice device(sheet.Dc(), texts);
        printout.SetDC(&device);
        EXPECT_TRUE(printout.OnPrintPage(page));
        return texts;
    }

    /// The row labels of a page, as often as they are drawn.
    static std::vector<std::string> RowLabels(int page) {
        std::vector<std::string> labels;
        for (const DrawnText& drawn : Trace(page))
            if (drawn.text.size() == 3 && drawn.place.x < 250 &&
                drawn.text.find_first_not_of("0123456789") == std::string::npos)
                labels.push_back(drawn.text);
        return labels;
    }
};

} // namespace

TEST_F(Printing, BeginsInPortraitWithMarginsOf15Millimetres) {
    EXPECT_EQ(PrintData->GetOrientation(), wxPORTRAIT);
    EXPECT_EQ(PageSetupData->GetPrintData().GetOrientation(), wxPORTRAIT);
    EXPECT_EQ(PageSetupData->GetMarginTopLeft(), wxPoint(15, 15));
    EXPECT_EQ(PageSetupData->GetMarginBottomRight(), wxPoint(15, 15));
}

TEST_F(Printing, HasAPrintoutWithTheTitleGiven) {
    EXPECT_EQ(Printout().GetTitle(), "KRV-47");
}

TEST_F(Printing, CountsNothingBeforeThePageInfo) {
    ZelkPrintout printout = Printout();
    EXPECT_EQ(printout.DocumentPages(), 0);
    EXPECT_EQ(printout.RowsPerPage(), 0);
    EXPECT_FALSE(printout.HasPage(1));
}

TEST_F(Printing, APageOfFewRowsIsPrintedWholeAllTheSame) {
    ASSERT_EQ(FilledRows(0), std::vector<int>{0});
    ZelkPrintout printout = Printout();
    EXPECT_EQ(Pages(printout), 4) << "123 rows, blank ones too";
    EXPECT_EQ(printout.RowsPerPage(), 39);
    FillPage();
    EXPECT_EQ(Pages(printout), 4);
}

TEST_F(Printing, CountsThePagesOfEveryType) {
    const struct {
        const char* type;
        int rows, pages, landscapeRows, landscapePages;
    } cases[] = {{"ANFM", 39, 3, 17, 7},   {"RP25", 66, 4, 30, 8}, {"NP25", 69, 8, 31, 17},
                 {"MDLX", 44, 12, 20, 26}, {"O12", 7, 1, 7, 1},    {"KDAR", 24, 5, 11, 10},
                 {"ANAM", 23, 9, 10, 21},  {"FXAM", 29, 7, 13, 16}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.type);
        InitPrinting();
        RetargetTo(each.type);
        ZelkPrintout printout = Printout();
        EXPECT_EQ(Pages(printout), each.pages);
        EXPECT_EQ(printout.RowsPerPage(), each.rows);
        SetLandscape();
        EXPECT_EQ(Pages(printout), each.landscapePages);
        EXPECT_EQ(printout.RowsPerPage(), each.landscapeRows);
    }
}

TEST_F(Printing, InLandscapeFewerRowsGoOntoAPage) {
    EXPECT_EQ(RowsAPage(), 39);
    SetLandscape();
    EXPECT_EQ(RowsAPage(), 17);
    // The print data alone decide on the orientation.
    PageSetupData->GetPrintData().SetOrientation(wxLANDSCAPE);
    PrintData->SetOrientation(wxPORTRAIT);
    EXPECT_EQ(RowsAPage(), 39);
}

TEST_F(Printing, TakesPaperAndMarginsFromThePageSetup) {
    PageSetupData->SetPaperSize(wxSize(148, 210));
    EXPECT_EQ(RowsAPage(), 39) << "118 x 174 mm: 914 pixels";
    PageSetupData->SetMarginTopLeft(wxPoint(0, 0));
    EXPECT_EQ(RowsAPage(), 38) << "133 x 189 mm: 881 pixels";
    PageSetupData->SetMarginBottomRight(wxPoint(10, 100));
    EXPECT_EQ(RowsAPage(), 20) << "138 x 104 mm: 467 pixels";
    PageSetupData->SetMarginBottomRight(wxPoint(10, 204));
    EXPECT_EQ(RowsAPage(), 1) << "nothing left";
}

TEST_F(Printing, WiderColumnsBringMoreRowsOntoAPage) {
    CurrentGrid()->SetColSize(DESC, 290); // 200 more: 820 x 1.45 = 1189
    EXPECT_EQ(RowsAPage(), 51);
}

TEST_F(Printing, HiddenColumnsCountNothing) {
    CurrentGrid()->HideCol(TFRQ); // 80 less: 540 x 1.45 = 783
    EXPECT_EQ(RowsAPage(), 34);
}

TEST_F(Printing, ARowHigherThanThePageHasOneToItself) {
    CurrentGrid()->SetRowSize(0, 900); // of 899 pixels
    ZelkPrintout printout = Printout();
    EXPECT_EQ(Pages(printout), 123);
    EXPECT_EQ(printout.RowsPerPage(), 1);
    CurrentGrid()->SetRowSize(0, 899);
    EXPECT_EQ(RowsAPage(), 1);
    CurrentGrid()->SetRowSize(0, 853);
    EXPECT_EQ(RowsAPage(), 3);
}

TEST_F(Printing, HasThePagesFromOneToTheirCount) {
    ZelkPrintout printout = Printout();
    ASSERT_EQ(Pages(printout), 4);
    EXPECT_EQ(printout.DocumentPages(), 4);
    for (int page : {1, 2, 4})
        EXPECT_TRUE(printout.HasPage(page)) << page;
    for (int page : {-1, 0, 5})
        EXPECT_FALSE(printout.HasPage(page)) << page;
}

TEST_F(Printing, DrawsNothingWithoutADevice) {
    ZelkPrintout printout = Printout();
    Pages(printout);
    EXPECT_FALSE(printout.OnPrintPage(1));
    Sheet sheet(printout);
    EXPECT_TRUE(printout.OnPrintPage(1));
}

TEST_F(Printing, BeginsADocumentIfTheDeviceDoes) {
    ZelkPrintout printout = Printout();
    {
        Sheet sheet(printout);
        EXPECT_TRUE(printout.OnBeginDocument(1, 4));
    }
    RefusingDevice device;
    printout.SetDC(&device);
    EXPECT_FALSE(printout.OnBeginDocument(1, 4));
}

TEST_F(Printing, TakesMarginsFromThePrintersPixels) {
    ZelkPrintout printout = Printout();
    Sheet sheet(printout);
    PageSetupData->SetMarginTopLeft(wxPoint(10, 20));
    PageSetupData->SetMarginBottomRight(wxPoint(30, 40));
    wxPoint topLeft, bottomRight;
    printout.GetPageMargins(0.25, topLeft, bottomRight, 6);
    EXPECT_EQ(topLeft, wxPoint(100, 260));
    EXPECT_EQ(bottomRight, wxPoint(300, 400));
    printout.SetPPIPrinter(127, 508);
    printout.GetPageMargins(3, topLeft, bottomRight, 0);
    EXPECT_EQ(topLeft, wxPoint(50, 400));
    EXPECT_EQ(bottomRight, wxPoint(150, 800));
}

TEST_F(Printing, TakesMarginsOfAPreviewFromTheScreensPixels) {
    auto* printout = new ZelkPrintout(MainFrame, CurrentGrid(), "KRV-47");
    wxPrintPreview preview(printout, nullptr, PrintData.get());
    printout->SetPPIScreen(127, 254);
    printout->SetPPIPrinter(1200, 1200);
    wxPoint topLeft, bottomRight;
    printout->GetPageMargins(0.5, topLeft, bottomRight, 6); // 2.5 and 5 pixels a millimetre
    EXPECT_EQ(topLeft, wxPoint(37, 105));
    EXPECT_EQ(bottomRight, wxPoint(37, 75));
    printout->GetPageMargins(1, topLeft, bottomRight, 0);
    EXPECT_EQ(topLeft, wxPoint(75, 150));
}

TEST_F(Printing, FillsTheWidthBetweenTheMarginsAndLeavesThemFree) {
    FillPage();
    const wxImage picture = Draw(1);
    const wxRect ink = WhereInk(picture, picture.GetSize());
    EXPECT_NEAR(ink.GetLeft(), 150, 3);
    EXPECT_NEAR(ink.GetRight(), 1950, 3);
    EXPECT_NEAR(ink.GetTop(), 150, 15) << "above small letters a font has room";
    EXPECT_LE(ink.GetBottom(), 2820);
    EXPECT_GE(ink.GetBottom(), 2600) << "39 rows and their head are as high as the page";
    const wxRect below = WhereInk(picture, wxRect(0, 215, Width, Height - 215));
    EXPECT_NEAR(below.GetLeft(), 150, 3) << "row labels";
}

TEST_F(Printing, HeadsThePageInTheStripAboveTheGrid) {
    const wxImage picture = Draw(1);
    // The grid begins 6 mm below the margin. The space between its head and the heading's line is empty.
    const wxRect line = WhereColour(picture, wxRect(0, 150, Width, 60), Black);
    EXPECT_NEAR(line.GetLeft(), 150, 3);
    EXPECT_NEAR(line.GetRight(), 1950, 3);
    EXPECT_LE(line.height, 3);
    EXPECT_LT(line.GetBottom(), 205);
    const wxRect texts = WhereInk(picture, wxRect(0, 0, Width, line.GetTop()));
    EXPECT_GE(texts.GetTop(), 150);
    EXPECT_NEAR(texts.GetLeft(), 150, 6) << "the title begins at the left margin";
    EXPECT_NEAR(texts.GetRight(), 1950, 6) << "the page number ends at the right margin";
    EXPECT_LE(texts.GetRight(), 1950);
    const wxRect gap = WhereInk(picture, wxRect(600, 150, 600, line.GetTop() - 150));
    EXPECT_TRUE(gap.IsEmpty()) << "between both";
}

TEST_F(Printing, HeadsThreePagesWith2Of3And3Of3And4Of3) {
    RetargetTo("ANFM");
    std::vector<std::string> headings;
    for (int page : {1, 2, 3}) {
        const std::vector<DrawnText> texts = Trace(page);
        ASSERT_GE(texts.size(), 2u);
        EXPECT_EQ(texts[texts.size() - 2].text, "KRV-47") << "drawn after the grid";
        headings.push_back(texts.back().text);
    }
    EXPECT_EQ(headings, (std::vector<std::string>{"Page 2 of 3", "Page 3 of 3", "Page 4 of 3"}));
}

TEST_F(Printing, SplitsRowsAtTheSamePlaceForEachPage) {
    const std::pair<const char*, const char*> ends[] = {
        {"000", "038"}, {"039", "077"}, {"078", "116"}, {"117", "122"}};
    for (int page = 1; page <= 4; ++page) {
        const std::vector<std::string> labels = RowLabels(page);
        ASSERT_FALSE(labels.empty()) << page;
        EXPECT_EQ(labels.front(), ends[page - 1].first);
        EXPECT_EQ(labels.back(), ends[page - 1].second);
        EXPECT_EQ(labels.size(), page < 4 ? 39u : 6u) << page;
    }
}

TEST_F(Printing, DrawsTheLastPageOnlyToTheLastRow) {
    const wxImage whole = Draw(3), last = Draw(4);
    const wxRect all = whole.GetSize();
    const int rowHeight = (WhereInk(whole, all).GetBottom() - 210) / 40; // 40 rows with the head
    EXPECT_NEAR(210 + 7 * rowHeight, WhereInk(last, all).GetBottom(), 8);
}

TEST_F(Printing, PutsTheDefaultRowFirst) {
    SetCell(0, DESC, "DEFAULT");
    SetCell(1, DESC, "FIRST");
    std::map<std::string, int> tops;
    for (const DrawnText& drawn : Trace(1))
        tops[drawn.text] = drawn.place.y;
    ASSERT_EQ(tops.count("DEFAULT"), 1u);
    EXPECT_NEAR(tops["FIRST"] - tops["DEFAULT"], 63, 2) << "one row above";
    EXPECT_EQ(RowLabels(1).front(), "000");
}

TEST_F(Printing, ShowsTheColumnsOfThePageInTheirOrderOnTheScreen) {
    const struct {
        const char* type;
        std::vector<std::string> headings;
    } cases[] = {
        {"ANFM", {"Chan", "Scan", "Desc", "Mode", "RxFreq", "RxTn", "RxCd", "TxFreq", "TxTn", "TxCd"}},
        {"RP25",
         {"Mem", "Shad", "Scan", "Zone", "Desc", "Mode", "RxFreq", "RxSq", "RxTn", "RxCd", "RxTG", "RxNAC",
          "TxFreq", "TxSq", "TxTn", "TxCd", "TxTG", "TxNAC", "TxIDC"}},
        {"NP25", {"Mem",  "Shad", "Scan",  "Zone",   "Desc", "Mode", "RxFreq", "RxSq", "NSqV",  "RxTn",
                  "RxCd", "RxTG", "RxNAC", "TxFreq", "TxSq", "TxTn", "TxCd",   "TxTG", "TxNAC", "TxIDC"}},
        {"MDLX",
         {"Chan", "Band", "Scan", "Desc", "Mode", "RxFreq", "RxTn", "RxCd", "TxFreq", "TxTn", "TxCd"}},
        {"O12", {"Chan", "Freq"}},
        {"KDAR", {"Mem", "Scan", "Desc", "RxFreq", "TxFreq", "RxOnly"}},
        {"ANAM", {"Chan", "Scan", "Desc", "RxFreq", "TxFreq"}},
        {"FXAM", {"Chan", "Scan", "Desc", "RxFreq", "RxTn", "TxFreq", "TxTn"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.type);
        RetargetTo(each.type);
        CurrentGrid()->ClearGrid();
        std::vector<std::string> headings;
        int right = 0;
        for (const DrawnText& drawn : Trace(1)) {
            if (drawn.place.y < 210 || drawn.place.x < 190 || drawn.text.empty() || isdigit(drawn.text[0]))
                continue;
            headings.push_back(drawn.text);
            EXPECT_GT(drawn.place.x, right) << drawn.text;
            right = drawn.place.x + drawn.size.x;
        }
        EXPECT_EQ(headings, each.headings);
    }
}

TEST_F(Printing, HiddenColumnsTakeNoRoom) {
    const auto paint = [](int col, const wxColour& colour) {
        CurrentGrid()->SetCellBackgroundColour(1, col, colour);
    };
    paint(MNUM, Red);
    paint(RFRQ, Blue);
    const auto gap = [] {
        const wxImage picture = Draw(1);
        return WhereColour(picture, Blue).GetLeft() - WhereColour(picture, Red).GetRight();
    };
    EXPECT_GT(gap(), 400) << "scan list, description and mode are in between";
    for (int col : {SCAN, DESC, MODE})
        CurrentGrid()->HideCol(col);
    EXPECT_LT(gap(), 15);
    CurrentGrid()->ShowCol(MODE);
    paint(MODE, Yellow);
    const wxImage picture = Draw(1);
    EXPECT_LT(WhereColour(picture, Red).GetRight(), WhereColour(picture, Yellow).GetLeft());
    EXPECT_LT(WhereColour(picture, Yellow).GetRight(), WhereColour(picture, Blue).GetLeft());
}

TEST_F(Printing, TextsOfHiddenColumnsAreNotDrawn) {
    SetCell(1, PRIM, "HIDDEN");
    SetCell(1, TFLG, "A7");
    for (const DrawnText& drawn : Trace(1))
        EXPECT_TRUE(drawn.text != "HIDDEN" && drawn.text != "A7" && drawn.text != "A0") << drawn.text;
}

TEST_F(Printing, ColoursOfRowsGoOntoPaper) {
    // A marked row, a repaired cell, and the default row as painted by a user.
    for (int col = 0; col < ColumnTotal; ++col) {
        CurrentGrid()->SetCellBackgroundColour(5, col, MarkColour);
        CurrentGrid()->SetCellBackgroundColour(0, col, Yellow);
    }
    CurrentGrid()->SetCellBackgroundColour(7, RFRQ, FailColour);
    CurrentGrid()->SetCellTextColour(1, DESC, Red);
    SetCell(1, DESC, "RED");
    const wxImage picture = Draw(1);
    const wxRect marked = WhereColour(picture, MarkColour), repaired = WhereColour(picture, FailColour),
                 first = WhereColour(picture, Yellow);
    EXPECT_GT(marked.width, 1600) << "from the first column to the last";
    EXPECT_NEAR(marked.GetRight(), 1950, 6);
    EXPECT_NEAR(marked.height, 62, 4) << "a row's height on paper";
    EXPECT_NEAR(repaired.width, 210, 12) << "a frequency's width on paper";
    EXPECT_EQ(first.width, marked.width);
    EXPECT_NEAR(5 * 63, marked.GetTop() - first.GetTop(), 5);
    EXPECT_NEAR(2 * 63, repaired.GetTop() - marked.GetTop(), 5);
    EXPECT_FALSE(WhereColour(picture, Red).IsEmpty());
}

TEST_F(Printing, DrawsInTheLookOfPaper) {
    wxGrid* grid = CurrentGrid();
    std::vector<GridLook> seen;
    grid->SetCellRenderer(1, DESC, new LookSpy(seen));
    Draw(1);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].line, PaleGrey);
    EXPECT_EQ(seen[0].labelBackground, PaleGrey);
    EXPECT_EQ(seen[0].labelText, DarkGrey);
    EXPECT_EQ(seen[0].cellBackground, *wxWHITE);
    EXPECT_EQ(seen[0].cellText, DarkGrey);
    for (const wxFont& font : {seen[0].label, seen[0].cell}) {
        EXPECT_EQ(font.GetPointSize(), 10);
        EXPECT_EQ(font.GetFamily(), wxFONTFAMILY_SWISS);
        EXPECT_EQ(font.GetStyle(), wxFONTSTYLE_NORMAL);
        EXPECT_EQ(font.GetWeight(), wxFONTWEIGHT_NORMAL);
        EXPECT_FALSE(font.GetUnderlined());
    }
}

TEST_F(Printing, TextsAndLinesHaveTheColoursOfPaper) {
    wxGrid* grid = CurrentGrid();
    grid->SetDefaultCellBackgroundColour(Yellow);
    grid->SetDefaultCellTextColour(Red);
    grid->SetLabelTextColour(Blue);
    grid->SetGridLineColour(Red);
    FillPage();
    for (const DrawnText& drawn : Trace(1)) {
        EXPECT_EQ(drawn.colour, DarkGrey) << drawn.text;
        EXPECT_EQ(drawn.font.GetPointSize(), 10) << drawn.text;
        EXPECT_EQ(drawn.font.GetWeight(), wxFONTWEIGHT_NORMAL) << drawn.text;
    }
    const wxImage picture = Draw(1);
    EXPECT_TRUE(Where(picture, picture.GetSize(),
                      [](const Pixel& c) { return c.red > c.blue + 60 || c.blue > c.red + 60; })
                    .IsEmpty())
        << "nothing of the screen's colours";
    // A blank column shows only the lines between rows.
    const wxRect lines = WhereColour(picture, wxRect(1000, 1000, 1, 1000), PaleGrey);
    EXPECT_FALSE(lines.IsEmpty());
}

TEST_F(Printing, TextsOfEveryColumnHaveTheFontOfPaper) {
    CurrentGrid()->SetDefaultCellFont(wxFontInfo(14));
    for (const char* type : {"ANFM", "RP25", "NP25", "KDAR"}) {
        SCOPED_TRACE(type);
        RetargetTo(type);
        FillPage();
        SetScanCell(CurrentGrid(), 2, SCAN, "2", false);
        for (const DrawnText& drawn : Trace(1))
            EXPECT_EQ(drawn.font.GetPointSize(), 10) << drawn.text;
        EXPECT_EQ(CurrentGrid()->GetCellFont(1, SCAN).GetPointSize(), 14) << "the screen has its own";
    }
}

TEST_F(Printing, TheLookOfPaperDoesNotStayOnTheScreen) {
    wxGrid* grid = CurrentGrid();
    grid->SetLabelFont(wxFontInfo(8).Italic());
    grid->SetDefaultCellFont(wxFontInfo(9).Bold().Underlined());
    grid->SetDefaultCellBackgroundColour(Yellow);
    grid->SetDefaultCellTextColour(Red);
    grid->SetLabelBackgroundColour(Yellow);
    grid->SetLabelTextColour(Blue);
    grid->SetGridLineColour(Red);
    const GridLook before = LookOf(*grid);
    for (int page : {1, 4}) {
        Draw(page);
        const GridLook after = LookOf(*grid);
        EXPECT_EQ(after.line, before.line);
        EXPECT_EQ(after.labelBackground, before.labelBackground);
        EXPECT_EQ(after.labelText, before.labelText);
        EXPECT_EQ(after.cellBackground, before.cellBackground);
        EXPECT_EQ(after.cellText, before.cellText);
        EXPECT_EQ(after.label, before.label);
        EXPECT_EQ(after.cell, before.cell);
        EXPECT_EQ(grid->GetBatchCount(), 0);
    }
}

TEST_F(Printing, TheLookOfPaperDoesNotStayOnTheScreenWhenDrawingFails) {
    const GridLook before = LookOf(*CurrentGrid());
    CurrentGrid()->SetCellRenderer(1, DESC, new ThrowingRenderer);
    EXPECT_THROW(Draw(1), std::runtime_error);
    EXPECT_TRUE(before == LookOf(*CurrentGrid()));
    EXPECT_EQ(CurrentGrid()->GetBatchCount(), 0);
}

TEST_F(Printing, IsNotPalerWhileTheWindowTakesNoCommands) {
    const wxWindowDisabler quiet;
    ASSERT_FALSE(MainFrame->IsEnabled());
    for (const DrawnText& drawn : Trace(1))
        EXPECT_EQ(drawn.colour, DarkGrey) << drawn.text;
    EXPECT_FALSE(MainFrame->IsEnabled());
}

TEST_F(Printing, LeavesTextsSelectionAndCursor) {
    FillPage();
    CurrentGrid()->SelectRow(3);
    CurrentGrid()->SetGridCursor(7, DESC);
    const std::string before = Masked(Save("before"));
    const wxArrayInt selected = CurrentGrid()->GetSelectedRows();
    const wxImage picture = Draw(1);
    EXPECT_EQ(CurrentGrid()->GetSelectedRows(), selected);
    EXPECT_EQ(CurrentGrid()->GetGridCursorCoords(), wxGridCellCoords(7, DESC));
    EXPECT_EQ(Masked(Save("before")), before);
    EXPECT_TRUE(WhereColour(picture, CurrentGrid()->GetSelectionBackground()).IsEmpty())
        << "no selection on paper";
}

TEST_F(Printing, MarginsAsWideAsThePaperLeaveTheHeadingAlone) {
    for (int margin : {105, 106, 144, 148, 210, 500, 100000}) {
        SCOPED_TRACE(margin);
        PageSetupData->SetMarginTopLeft(wxPoint(margin, margin));
        PageSetupData->SetMarginBottomRight(wxPoint(margin, margin));
        EXPECT_EQ(RowsAPage(), 1);
        EXPECT_EQ(Trace(1).size(), 2u);
    }
}

TEST_F(Printing, DrawsSmallAsWellOnASliverOfPaper) {
    PageSetupData->SetMarginTopLeft(wxPoint(104, 144));
    PageSetupData->SetMarginBottomRight(wxPoint(104, 144));
    Draw(1);
}

TEST_F(Printing, APreviewShowsWhatIsPrinted) {
    FillPage();
    auto* printout = new ZelkPrintout(MainFrame, CurrentGrid(), "KRV-47");
    wxPrintPreview preview(printout, nullptr, PrintData.get());
    ASSERT_EQ(Pages(*printout), 4);
    // A quarter of the paper's size on a screen of 127 pixels per inch, for a printer of 254.
    Sheet sheet(*printout, Width / 4, Height / 4);
    printout->SetPageSizePixels(Width, Height);
    ASSERT_TRUE(printout->OnPrintPage(1));
    printout->SetDC(nullptr);
    const wxImage picture = sheet.Picture();
    const wxRect ink = WhereInk(picture, picture.GetSize());
    EXPECT_NEAR(150 / 4.0, ink.GetLeft(), 2);
    EXPECT_NEAR(1950 / 4.0, ink.GetRight(), 2);
    EXPECT_LE(ink.GetBottom(), 2820 / 4);
    EXPECT_GE(ink.GetBottom(), 2600 / 4);
}
