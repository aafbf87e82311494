// The window with larger texts than the toolkit's default.
#include "catalogue/TextSizes.h"
#include "editing/ScanListCell.h"
#include "editing/ShadowDialog.h"
#include "files/ZelkFile_OpenSave.h"
#include "frame/FindLine.h"
#include "frame/SelectionDialogs.h"
#include "robot/DesktopLook.h"
#include "tests/files/Paper.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/Places.h"
#include "tests/support/ZelkWindowTest.h"
#include "transfer/ProgressFrame.h"

#include <wx/dcclient.h>
#include <wx/memconf.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <filesystem>

using namespace testbench;

namespace {

/// A size of texts that a user can choose.
struct TextSize {
    const char* name;
    double scale;
    const char* font; ///< null for the default
};

constexpr TextSize TextSizes[] = {{"Scale1", 1, nullptr},       {"Scale1_1", 1.1, nullptr},
                                  {"Scale1_25", 1.25, nullptr}, {"Scale1_5", 1.5, nullptr},
                                  {"Scale2", 2, nullptr},       {"Points16", 1, "Sans 16"},
                                  {"Mono16", 1, "Monospace 16"}};

struct Target {
    const char* type;
    int radio, slot;
};

constexpr Target Targets[] = {
    {"ANFM", Krv214, 0}, {"RP25", Kdrv716, 0},  {"NP25", Kdrv716B, 0}, {"MDLX", Kdrv4xxx, ModuleSlot},
    {"O12", Orv12, 0},   {"KDAR", Kdar2000, 0}, {"ANAM", Krv620, 1},   {"FXAM", Krv620, 1}};

/// Wide texts that the program itself writes into the cells of a column.
std::vector<const char*> WideTexts(int col) {
    switch (col) {
    case MNUM:
        return {"500", "0", "101", "102"};
    case SHAD:
        return {"S-448", "N"};
    case BAND:
        return {"FM_403-512", "AM 108-138", "FM 136-174"};
    case SCAN:
        return {"0", "31", "N"};
    case ZONE:
        return {"16", "W", "M"};
    case MODE:
        return {"W", "D", "n/a"};
    case RFRQ:
    case TFRQ:
        return {"138.0000", "848.88888", "n/a"};
    case RTON:
    case TTON:
        return {"250.3", "OFF", "n/a"};
    case RCOD:
    case TCOD:
        return {"464", "OFF", "n/a"};
    case RTGP:
    case TTGP:
        return {"DDDD", "AAAA"};
    case RNAC:
    case TNAC:
        return {"DDD", "AAA"};
    case RSQL:
    case TSQL:
        return {"m", "-"};
    case RNSV:
        return {"15", "10"};
    case TIDC:
        return {"9999999", "00000001"};
    case RONL:
        return {"N", "Y"};
    default:
        return {""};
    }
}

/// Makes a page of the type of the target.
void RetargetTo(const Target& target, void (*retarget)(int, int)) {
    retarget(target.radio, target.slot);
    // No radio has this type; only files do.
    if (std::string(target.type) == "FXAM") {
        CurrentParameters().Type = RadioCatalogue::FXAM;
        SetGridColumns(CurrentGrid(), RadioCatalogue::FXAM);
        SetPageEditors(CurrentPage);
    }
}

wxSize SizeOf(const wxString& text, const wxFont& font) {
    int width = 0, height = 0;
    CurrentGrid()->GetTextExtent(text, &width, &height, nullptr, nullptr, &font);
    return {width, height};
}

/// Space that a cell's text needs as it is drawn.
wxSize SizeOfCell(int row, int col) {
    wxGrid* grid = CurrentGrid();
    wxClientDC dc(grid->GetGridWindow());
    const wxGridCellRendererPtr renderer(grid->GetCellRenderer(row, col));
    const wxGridCellAttrPtr attr(new wxGridCellAttr);
    attr->SetFont(grid->GetCellFont(row, col));
    return renderer->GetBestSize(*grid, *attr, dc, row, col);
}

/// Expects that a cell's text fits into the cell, with a pixel on each side.
void ExpectFits(int row, int col) {
    const wxGrid* grid = CurrentGrid();
    const wxSize size = SizeOfCell(row, col);
    EXPECT_LE(size.x + 2, grid->GetColSize(col))
        << "row " << row << ", " << ColumnTag[col] << ", \"" << grid->GetCellValue(row, col) << '"';
    EXPECT_LE(size.y + 2, grid->GetRowSize(row)) << "row " << row << ", " << ColumnTag[col];
}

/// Expects that the columns of a page are wide enough for all their texts.
void ExpectWholeTexts() {
    wxGrid* grid = CurrentGrid();
    for (int col = 0; col < ColumnTotal; ++col) {
        if (!grid->IsColShown(col))
            continue;
        EXPECT_LE(SizeOf(grid->GetColLabelValue(col), grid->GetLabelFont()).x + 2, grid->GetColSize(col))
            << "heading of " << ColumnTag[col];
        for (int row = 0; row < grid->GetNumberRows(); ++row)
            if (!grid->GetCellValue(row, col).empty())
                ExpectFits(row, col);
    }
}

class WithTexts : public ZelkWindowTest, public testing::WithParamInterface<TextSize> {
protected:
    void SetUp() override {
        m_look.ScaleTexts(GetParam().scale);
        if (GetParam().font)
            m_look.SetFont(GetParam().font);
        ZelkWindowTest::SetUp();
    }

    static bool IsDefaultSize() { return std::string(GetParam().name) == "Scale1"; }

private:
    DesktopLook m_look;
};

INSTANTIATE_TEST_SUITE_P(Of, WithTexts, testing::ValuesIn(TextSizes),
                         [](const auto& tested) { return std::string(tested.param.name); });

/// Expects that all children of a window have the size that their texts need, and that none is cut.
void ExpectNothingCut(const wxWindow* window) {
    const wxSize room = window->GetClientSize();
    for (const wxWindow* child : window->GetChildren()) {
        SCOPED_TRACE(child->GetLabel().utf8_string());
        EXPECT_GE(child->GetSize().x, child->GetBestSize().x);
        // The toolkit has several best heights of a field, most of them too low for larger texts.
        const bool isField = dynamic_cast<const wxTextCtrl*>(child);
        EXPECT_GE(child->GetSize().y, isField ? child->GetTextExtent("0").y + 8 : child->GetBestSize().y);
        EXPECT_LE(child->GetRect().GetRight(), room.x);
        EXPECT_LE(child->GetRect().GetBottom(), room.y);
    }
}

void ExpectOpenDialogWhole(DialogScript& dialogs, const char* title) {
    dialogs.Expect(DialogKind::Other, title).Do([](wxDialog* dialog) {
        PumpUntilIdle();
        ExpectNothingCut(dialog);
        ClickButton(dialog, wxID_CANCEL);
    });
}

/// The texts that a cell's renderer draws.
std::vector<std::string> DrawnIn(int row, int col) {
    wxGrid* grid = CurrentGrid();
    wxBitmap bitmap(400, 100);
    wxMemoryDC paper(bitmap);
    std::vector<DrawnText> texts;
    TracingDevice device(paper, texts);
    const wxGridCellRendererPtr renderer(grid->GetCellRenderer(row, col));
    const wxGridCellAttrPtr attr(grid->GetOrCreateCellAttrPtr(row, col));
    renderer->Draw(*grid, *attr, device, wxRect(0, 0, grid->GetColSize(col), grid->GetRowSize(row)), row, col,
                   false);
    std::vector<std::string> drawn;
    for (const DrawnText& text : texts)
        drawn.push_back(text.text);
    return drawn;
}

} // namespace

TEST_P(WithTexts, EveryTextOfEveryColumnIsWhole) {
    for (const Target& target : Targets) {
        SCOPED_TRACE(target.type);
        RetargetTo(target, Retarget);
        for (int col = 0; col < ColumnTotal; ++col) {
            if (!CurrentGrid()->IsColShown(col))
                continue;
            int row = 1;
            SetCell(row, MNUM, "001");
            for (const char* text : WideTexts(col)) {
                SetCell(row, col, text);
                ExpectFits(row, col);
                SetCell(row, MNUM, "001");
            }
        }
        ExpectWholeTexts();
    }
}

TEST_P(WithTexts, ADescriptionOfTheWidestLettersIsWholeInLargerTexts) {
    if (IsDefaultSize())
        GTEST_SKIP() << "the default size has the widths of the tables";
    for (const Target& target : Targets) {
        SCOPED_TRACE(target.type);
        RetargetTo(target, Retarget);
        if (!CurrentGrid()->IsColShown(DESC))
            continue;
        const int type = CurrentParameters().Type;
        const bool isShort = RadioCatalogue::IsP25Type(type) || type == RadioCatalogue::KDAR;
        for (const char letter : {'W', '@', 'M', '8'}) {
            SetCell(1, DESC, wxString(wxUniChar(letter), isShort ? 8 : 9));
            ExpectFits(1, DESC);
        }
    }
}

TEST_P(WithTexts, RowsAndTheirLabelsAreHighAndWideEnough) {
    for (const Target& target : Targets) {
        SCOPED_TRACE(target.type);
        RetargetTo(target, Retarget);
        const wxGrid* grid = CurrentGrid();
        const wxSize label = SizeOf("888", grid->GetLabelFont());
        EXPECT_GE(grid->GetRowLabelSize(), label.x + 2);
        EXPECT_GE(grid->GetRowSize(1), label.y + 2);
        EXPECT_GE(grid->GetRowSize(1), 23);
        EXPECT_EQ(grid->GetColLabelSize(), grid->GetRowSize(1));
    }
}

TEST_P(WithTexts, AChangeOfTargetKeepsAllTextsWhole) {
    ChangeTarget(Kdar2000);
    ExpectWholeTexts();
    ChangeTarget(Kdrv716B);
    ExpectWholeTexts();
    ChangeTarget(Krv214);
    ExpectWholeTexts();
}

TEST_P(WithTexts, EveryExampleIsWhole) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ExamplesFolder())) {
        if (entry.path().extension() != ".zelk")
            continue;
        SCOPED_TRACE(entry.path().filename().string());
        ASSERT_TRUE(OpenChannelFile(wxString::FromUTF8(entry.path().string())));
        ExpectWholeTexts();
        ++files;
    }
    EXPECT_GT(files, 30);
}

TEST_P(WithTexts, EachScanBoxIsTurnedOverByAClickOnIt) {
    Retarget(Krv214, 0);
    ShowAndFocus(*MainFrame);
    wxGrid* grid = CurrentGrid();
    SetCell(1, MNUM, "001");
    const int boxes = SizeOf(ScanMaskText(0), grid->GetDefaultCellFont()).x;
    EXPECT_LE(boxes + 2, grid->GetColSize(SCAN)) << "all five are seen";
    for (int box = 0; box < 5; ++box) {
        SetCell(1, SCAN, "0");
        grid->SetGridCursor(1, SCAN);
        PumpUntilIdle();
        const wxRect cell = grid->CellToRect(1, SCAN);
        ClickAt(*grid->GetGridWindow(),
                grid->CalcScrolledPosition(
                    wxPoint(cell.x + 1 + (2 * box + 1) * boxes / 10, cell.y + cell.height / 3)));
        EXPECT_EQ(Cell(1, SCAN), wxString::Format("%d", 1 << box)) << "box " << box + 1;
        // Otherwise the next click makes a double click.
        PumpFor(450);
    }
}

TEST_P(WithTexts, DialogsShowTheirTextsWhole) {
    DialogScript dialogs;
    ExpectOpenDialogWhole(dialogs, "<-- Select Target Radio -->");
    EXPECT_EQ(RadioDialog(MainFrame, "<-- Select Target Radio -->", 0).ShowModal(), wxID_CANCEL);
    BandList = wxArrayString(1, std::initializer_list<wxString>{"FM 138-174"}.begin());
    ExpectOpenDialogWhole(dialogs, "<-- Select Serial Port -->");
    EXPECT_EQ(PortDialog(MainFrame, "<-- Select Serial Port -->").ShowModal(), wxID_CANCEL);
    ExpectOpenDialogWhole(dialogs, "Shadow");
    EXPECT_EQ(ShadowDialog(MainFrame, "Shadow").ShowModal(), wxID_CANCEL);
}

TEST_P(WithTexts, TheFindLineShowsItsTextsWhole) {
    ShowAndFocus(*MainFrame);
    PressKey("Ctrl+F");
    FindLine* const line = FindLine::Of(MainFrame->m_pagePanels[CurrentPage]);
    ASSERT_NE(line, nullptr);
    ExpectNothingCut(line);
    EXPECT_LE(line->GetRect().GetBottom(), line->GetParent()->GetClientSize().y);
}

TEST_P(WithTexts, TheProgressWindowShowsItsTextsWhole) {
    auto config = std::make_unique<wxMemoryConfig>();
    wxConfigBase* const former = wxConfigBase::Set(config.get());
    auto* frame = new ProgressFrame(MainFrame, wxID_ANY, "Send to RP25 Radio Progress");
    frame->Show();
    // The window keeps its size between runs, and texts may have become larger since the last one.
    frame->SetSize(150, 100);
    for (const char* status : {"Sending Shadow Memory Data....", "Receiving Memory Data...."}) {
        frame->SetStatus(status);
        PumpUntilIdle();
        ExpectNothingCut(frame);
    }
    frame->Destroy();
    PumpUntilIdle();
    wxConfigBase::Set(former);
}

using DefaultTexts = ZelkWindowTest;

TEST_F(DefaultTexts, ThatAreTooWideForTheirCellAreNotTakenForWholeOnes) {
    Retarget(Krv214, 0);
    SetCell(1, DESC, "WWWWWWWWW");
    ASSERT_GT(SizeOfCell(1, DESC).x, CurrentGrid()->GetColSize(DESC));
    const std::vector<std::string> drawn = DrawnIn(1, DESC);
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_TRUE(drawn[0].ends_with("...") || drawn[0].ends_with("\xE2\x80\xA6")) << drawn[0];
    // A renderer of the program's own.
    SetCell(1, MNUM, "1234567890");
    const std::vector<std::string> number = DrawnIn(1, MNUM);
    ASSERT_EQ(number.size(), 1u);
    EXPECT_TRUE(number[0].ends_with("...") || number[0].ends_with("\xE2\x80\xA6")) << number[0];
}

TEST_F(DefaultTexts, HaveTheSizesOfTheTables) {
    for (const Target& target : Targets) {
        SCOPED_TRACE(target.type);
        RetargetTo(target, Retarget);
        for (int col = 0; col < ColumnTotal; ++col)
            EXPECT_EQ(CurrentGrid()->GetColSize(col),
                      RadioCatalogue::ColumnWidth[CurrentParameters().Type][col])
                << ColumnTag[col];
        EXPECT_EQ(CurrentGrid()->GetRowSize(1), 23);
    }
}
