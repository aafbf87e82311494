// The five boxes of a scan cell, worked by mouse and keys.
#include "catalogue/ScanBoxes.h"
#include "editing/ScanListCell.h"
#include "tests/editing/CellTools.h"

#include <wx/dcmemory.h>
#include <wx/image.h>

using namespace testbench;

namespace {

const wxString Empty = wxString::FromUTF8("\xE2\x98\x90");
const wxString Crossed = wxString::FromUTF8("\xE2\x98\x92");

class ScanCells : public CellTest {
protected:
    void SetUp() override {
        CellTest::SetUp();
        Fill({5});
    }

    /// Width in pixels of the boxes of a cell with a number.
    static int BoxesWidth() {
        const wxFont font = Grid()->GetCellFont(5, SCAN);
        int width = 0, height = 0;
        Grid()->GetGridWindow()->GetTextExtent(ScanMaskText(0), &width, &height, nullptr, nullptr, &font);
        return width;
    }

    /// Clicks this many pixels right of the left edge of the row's scan cell, with the cursor on it.
    /// A first click on another cell would only move the cursor there, as in every cell.
    static void ClickScan(int row, int offset) {
        Grid()->SetGridCursor(row, SCAN);
        PumpUntilIdle();
        const wxRect cell = Grid()->CellToRect(row, SCAN);
        const wxPoint spot = Grid()->CalcScrolledPosition(wxPoint(cell.x + offset, cell.y + cell.height / 2));
        ClickAt(*Grid()->GetGridWindow(), spot);
        // Wait, so that the next click doesn't make a double click.
        PumpFor(450);
    }

    /// The cell's text after one click on a memory with this text.
    static std::string ClickedFrom(const char* text, int offset) {
        SetCell(5, SCAN, text);
        ClickScan(5, offset);
        return Text(5, SCAN);
    }

    static std::string KeyedFrom(const char* text, const std::string& key) {
        SetCell(5, SCAN, text);
        GoTo(5, SCAN);
        PressKey(key);
        return Text(5, SCAN);
    }
};

} // namespace

TEST_F(ScanCells, DrawABoxForEachList) {
    EXPECT_EQ(ScanMaskText(0), Empty + Empty + Empty + Empty + Empty);
    EXPECT_EQ(ScanMaskText(31), Crossed + Crossed + Crossed + Crossed + Crossed);
    EXPECT_EQ(ScanMaskText(1), Crossed + Empty + Empty + Empty + Empty);
    EXPECT_EQ(ScanMaskText(16), Empty + Empty + Empty + Empty + Crossed);
    EXPECT_EQ(ScanMaskText(5), Crossed + Empty + Crossed + Empty + Empty);
    EXPECT_EQ(ScanMaskText(-1), "");
    EXPECT_EQ(ScanMaskText(-2), "");
    for (int mask = 0; mask < 32; ++mask)
        for (int list = 0; list < 5; ++list)
            EXPECT_EQ(wxString(ScanMaskText(mask)[list]), mask / (1 << list) % 2 ? Crossed : Empty)
                << mask << ", list " << list + 1;
}

TEST_F(ScanCells, HoldANumberFrom0To31) {
    const std::pair<const char*, int> lines[] = {{"31", 31}, {"0", 0},   {"", 0},           {"17", 17},
                                                 {"032", 0}, {"32", 0},  {"-1", 0},         {"Y", 0},
                                                 {"N", 0},   {"007", 7}, {"99999999999", 0}};
    for (const auto& [text, mask] : lines) {
        SetCell(5, SCAN, text);
        EXPECT_EQ(GetScanMask(Grid(), 5, SCAN), mask) << text;
    }
}

TEST_F(ScanCells, OfARowWithoutANumberHaveNoBoxes) {
    SetCell(5, MNUM, "");
    for (const char* text : {"0", "31", ""}) {
        SetCell(5, SCAN, text);
        EXPECT_EQ(GetScanMask(Grid(), 5, SCAN), -1) << text;
    }
}

TEST_F(ScanCells, AreDrawnByTheirRenderer) {
    auto* renderer = dynamic_cast<ScanlistRenderer*>(RendererAt(5, SCAN));
    ASSERT_NE(renderer, nullptr);
    wxBitmap bitmap(10, 10);
    wxMemoryDC dc(bitmap);
    const wxGridCellAttrPtr attr = Grid()->GetOrCreateCellAttrPtr(5, SCAN);
    const std::pair<const char*, int> lines[] = {{"31", 31}, {"0", 0}, {"", 0}, {"6", 6}};
    for (const auto& [text, mask] : lines) {
        SetCell(5, SCAN, text);
        EXPECT_EQ(renderer->TextOf(*Grid(), 5, SCAN), ScanMaskText(mask)) << text;
        const wxSize best = renderer->GetBestSize(*Grid(), *attr, dc, 5, SCAN);
        EXPECT_EQ(best, dc.GetTextExtent(ScanMaskText(mask))) << text;
    }
    SetCell(5, MNUM, "");
    EXPECT_EQ(renderer->TextOf(*Grid(), 5, SCAN), "");
}

TEST_F(ScanCells, AreDrawnWithLinesWhateverTheFontHas) {
    auto* renderer = dynamic_cast<ScanlistRenderer*>(RendererAt(5, SCAN));
    ASSERT_NE(renderer, nullptr);
    const wxGridCellAttrPtr attr = Grid()->GetOrCreateCellAttrPtr(5, SCAN);
    SetCell(5, SCAN, "2"); // the second box is crossed
    const wxRect cell(0, 0, 100, 23);
    wxBitmap bitmap(cell.GetSize());
    int width = 0;
    {
        wxMemoryDC dc(bitmap);
        renderer->Draw(*Grid(), *attr, dc, cell, 5, SCAN, false);
        width = RadioCatalogue::ScanBoxWidth(dc.GetTextExtent(ScanMaskText(2)));
    }
    const wxImage image = bitmap.ConvertToImage();
    const auto isDark = [&image](int x, int y) { return image.GetGreen(x, y) < 128; };
    // A line through the middle of a box meets its two sides, and between them the cross.
    for (int box = 0; box < 5; ++box) {
        const int left = 1 + box * width;
        int lines = 0;
        int middle = 0;
        int below = 0;
        for (; below < cell.height && lines == 0; ++below)
            for (int x = left; x < left + width; ++x)
                lines += isDark(x, below);
        EXPECT_GE(lines, width / 2) << "no upper side of box " << box;
        for (int x = left + width / 3; x < left + width * 2 / 3; ++x)
            for (int y = below + 1; y < below + width / 2; ++y)
                middle += isDark(x, y);
        EXPECT_EQ(middle > 0, box == 1) << "box " << box;
    }
}

TEST_F(ScanCells, KeepRoomForASquareWhereAFontHasOnlyNarrowSigns) {
    EXPECT_EQ(RadioCatalogue::ScanBoxWidth(wxSize(60, 17)), 12);
    EXPECT_EQ(RadioCatalogue::ScanBoxWidth(wxSize(66, 27)), 13) << "a fixed width of 16 points";
    EXPECT_EQ(RadioCatalogue::ScanBoxWidth(wxSize(20, 15)), 11);
    EXPECT_EQ(RadioCatalogue::ScanBoxWidth(wxSize(0, 15)), 0) << "no boxes";
}

TEST_F(ScanCells, AreSetUpWithTheirText) {
    const wxGridCellAttrPtr attr = Grid()->GetOrCreateCellAttrPtr(5, SCAN);
    wxGridCellEditor* const before = EditorAt(5, SCAN);
    before->IncRef();
    attr->SetFont(wxFont(wxFontInfo(30)));
    SetScanCell(Grid(), 5, SCAN, "21", false);
    EXPECT_EQ(Text(5, SCAN), "21");
    EXPECT_NE(before, EditorAt(5, SCAN));
    before->DecRef();
    EXPECT_EQ(EditorClass(5, SCAN), "ScanlistEditor");
    EXPECT_EQ(RendererClass(5, SCAN), "ScanlistRenderer");
    EXPECT_EQ(Grid()->GetCellFont(5, SCAN), Grid()->GetDefaultCellFont());
}

TEST_F(ScanCells, TurnABoxOverByKey) {
    struct Line {
        const char *from, *key, *to;
    };
    for (const Line& line : std::initializer_list<Line>{{"5", "3", "1"},
                                                        {"0", "1", "1"},
                                                        {"0", "2", "2"},
                                                        {"0", "3", "4"},
                                                        {"0", "4", "8"},
                                                        {"0", "5", "16"},
                                                        {"31", "1", "30"},
                                                        {"31", "5", "15"},
                                                        {"", "2", "2"},
                                                        {"99", "2", "2"}})
        EXPECT_EQ(KeyedFrom(line.from, line.key), line.to) << line.from << ", key " << line.key;
}

TEST_F(ScanCells, IgnoreOtherKeys) {
    for (const char* key : {"6", "0", "9", "x", "space", "F2", "plus"})
        EXPECT_EQ(KeyedFrom("5", key), "5") << key;
}

TEST_F(ScanCells, TurnABoxOverByClick) {
    const int box = BoxesWidth() / 5;
    ASSERT_GT(box, 3);
    ASSERT_GT(Grid()->GetColSize(SCAN), 5 * box + 2) << "there is room after the boxes";
    EXPECT_EQ(ClickedFrom("0", box / 2), "1") << "the first box";
    EXPECT_EQ(ClickedFrom("1", box / 2), "0") << "the first box";
    EXPECT_EQ(ClickedFrom("0", box + box / 2), "2");
    EXPECT_EQ(ClickedFrom("0", 2 * box + box / 2), "4");
    EXPECT_EQ(ClickedFrom("31", 3 * box + box / 2), "23");
    EXPECT_EQ(ClickedFrom("0", 4 * box + 1), "16") << "the last box";
    EXPECT_EQ(ClickedFrom("31", 5 * box - 1), "15") << "the last box, at its right edge";
}

TEST_F(ScanCells, OnlyTakeTheCursorAtTheFirstClick) {
    SetCell(5, SCAN, "5");
    GoTo(2, DESC);
    ClickAt(CellSpot(*Grid(), 5, SCAN));
    EXPECT_EQ(Text(5, SCAN), "5");
    EXPECT_EQ(Grid()->GetGridCursorCoords(), wxGridCellCoords(5, SCAN));
}

TEST_F(ScanCells, IgnoreAClickBehindTheBoxes) {
    const int boxes = BoxesWidth() / 5 * 5;
    EXPECT_EQ(ClickedFrom("5", boxes), "5");
    EXPECT_EQ(ClickedFrom("5", Grid()->GetColSize(SCAN) - 2), "5");
}

TEST_F(ScanCells, AreFoundByClicksOnAScrolledPage) {
    MainFrame->SetSize(260, 400);
    PumpUntilIdle();
    Grid()->Scroll(3, 0);
    PumpUntilIdle();
    ASSERT_GT(Grid()->CalcUnscrolledPosition(wxPoint(0, 0)).x, 0);
    const int box = BoxesWidth() / 5;
    EXPECT_EQ(ClickedFrom("0", 3 * box + box / 2), "8");
}

TEST_F(ScanCells, OfARowWithoutANumberRefuseTheMouseWithABox) {
    SetCell(5, MNUM, "");
    DialogScript dialogs;
    dialogs.ExpectMessage("ERROR", "Chan number cannot be empty!")
        .Style(wxOK | wxCENTRE | wxICON_INFORMATION);
    EXPECT_EQ(ClickedFrom("5", 5), "5");
    EXPECT_EQ(dialogs.Missing(), 0u);
    EXPECT_EQ(Text(5, MNUM), "");
}

TEST_F(ScanCells, OfARowWithoutANumberTurnOverABitOfMinusOneByKey) {
    SetCell(5, MNUM, "");
    EXPECT_EQ(KeyedFrom("5", "1"), "-2");
    EXPECT_EQ(KeyedFrom("5", "5"), "-17");
}

TEST_F(ScanCells, TakeNoOrderFromTheProgram) {
    SetCell(5, SCAN, "5");
    GoTo(5, SCAN);
    Grid()->EnableCellEditControl();
    PumpUntilIdle();
    EXPECT_EQ(Text(5, SCAN), "5");
    EXPECT_FALSE(Grid()->IsCellEditControlShown());
}

TEST_F(ScanCells, OfGuardRowsAreFixed) {
    Fill({121});
    SetCell(121, SCAN, "5");
    Grid()->GoToCell(121, SCAN);
    ClickScan(121, 5);
    EXPECT_EQ(Text(121, SCAN), "5");
    PressKey("3");
    EXPECT_EQ(Text(121, SCAN), "5");
}

TEST_F(ScanCells, StandLeftAfterAPageOfYesAndNo) {
    Retarget(Kdar2000, 0);
    EXPECT_EQ(OfferedIn(1, SCAN), (Texts{"Y", "N"}));
    EXPECT_EQ(RendererClass(1, SCAN), "wxGridCellStringRenderer");
    Retarget(Krv47, 0);
    Fill({5});
    EXPECT_EQ(ClickedFrom("0", BoxesWidth() / 5 + 3), "2");
    Retarget(Kdar2000, 0);
    EXPECT_EQ(RendererClass(1, SCAN), "wxGridCellStringRenderer");
}
