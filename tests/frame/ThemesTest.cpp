// The window in dark themes and in those of high contrast.
#include "catalogue/Contrast.h"
#include "catalogue/PageTable.h"
#include "commands/CommandIds.h"
#include "resources/ToolImages.h"
#include "robot/Desk.h"
#include "robot/DesktopLook.h"
#include "tests/files/Paper.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/settings.h>
#include <wx/textctrl.h>
#include <wx/toolbar.h>

#include <map>

using namespace testbench;

namespace {

struct Theme {
    const char *name, *theme;
    bool dark;
};

constexpr Theme Themes[] = {{"Light", "Adwaita", false},
                            {"Dark", "Adwaita", true},
                            {"HighContrast", "HighContrast", false},
                            {"HighContrastInverse", "HighContrastInverse", false}};

bool IsDark(const Theme& theme) {
    return theme.dark || std::string(theme.theme) == "HighContrastInverse";
}

wxColour ColourAt(const wxImage& picture, int x, int y) {
    return {picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)};
}

/// Colour of most pixels of the part.
wxColour BackgroundOf(const wxImage& picture, const wxRect& part) {
    std::map<wxUint32, int> count;
    for (int y = part.y; y <= part.GetBottom(); ++y)
        for (int x = part.x; x <= part.GetRight(); ++x)
            ++count[ColourAt(picture, x, y).GetRGB()];
    const auto most = std::max_element(count.begin(), count.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    wxColour colour;
    colour.SetRGB(most->first);
    return colour;
}

/// The contrast of the part's text with its background, as a screenshot shows it. 1 without a text.
double ContrastIn(const wxImage& picture, const wxRect& part) {
    const wxColour background = BackgroundOf(picture, part);
    double most = 1;
    for (int y = part.y; y <= part.GetBottom(); ++y)
        for (int x = part.x; x <= part.GetRight(); ++x)
            most = std::max(most, ContrastOf(background, ColourAt(picture, x, y)));
    return most;
}

class InTheme : public ZelkWindowTest, public testing::WithParamInterface<Theme> {
protected:
    void SetUp() override {
        m_look.SetTheme(GetParam().theme, GetParam().dark);
        // The stems of small letters are thinner than a pixel, and none shows the text's colour.
        m_look.ScaleTexts(2);
        ZelkWindowTest::SetUp();
        MainFrame->SetSize(0, 0, 1270, 900);
        ShowAndFocus(*MainFrame);
    }

    /// Makes a page with plain, selected, marked and repaired rows.
    static void FillPage() {
        FillRowsFromDefault({1, 2, 3, 4, 5, 6});
        wxGrid* grid = CurrentGrid();
        grid->ClearSelection();
        grid->SelectRow(2);
        MainFrame->m_contextMenu->SendEvent(IdMarkRow);
        for (int col = 0; col < ColumnTotal; ++col)
            PaintCell(grid, 3, col, FailColour);
        grid->SelectRow(4);
        grid->SelectRow(5, true);
        PaintCell(grid, 5, RFRQ, FailColour);
        grid->SetGridCursor(6, RFRQ);
    }

    static wxImage Screen() {
        PumpFor(200);
        return Desk().Picture({});
    }

    /// Expects that all texts of rows 0 to 6 that are in sight can be read.
    static void ExpectReadable() {
        // A busy machine draws late.
        std::string unreadable = Unreadable();
        for (int look = 0; look < 25 && !unreadable.empty(); ++look)
            unreadable = Unreadable();
        EXPECT_EQ(unreadable, "");
    }

private:
    /// Tells what can't be read on the screen after a moment; empty if everything can.
    static std::string Unreadable() {
        wxGrid* grid = CurrentGrid();
        const wxImage picture = Screen();
        const wxWindow* window = grid->GetGridWindow();
        std::string found;
        int cells = 0;
        for (int row = 0; row <= 6; ++row)
            for (int col = 0; col < ColumnTotal; ++col) {
                if (!grid->IsColShown(col) || !grid->IsVisible(row, col, true) ||
                    grid->GetCellValue(row, col).empty())
                    continue;
                wxRect cell = grid->CellToRect(row, col);
                cell.SetPosition(window->ClientToScreen(grid->CalcScrolledPosition(cell.GetPosition())));
                // Leaves out the lines and the cursor.
                if (ContrastIn(picture, cell.Deflate(4)) < ReadableContrast)
                    found += "row " + std::to_string(row) + " " + ColumnTag[col] + "; ";
                ++cells;
            }
        if (cells <= 20)
            found += "only " + std::to_string(cells) + " cells in sight; ";
        for (const wxWindow* labels : {grid->GetGridRowLabelWindow(), grid->GetGridColLabelWindow()})
            if (ContrastIn(picture, wxRect(labels->GetScreenPosition(), labels->GetSize()).Deflate(4)) <
                ReadableContrast)
                found += "labels; ";
        return found;
    }

    DesktopLook m_look;
};

INSTANTIATE_TEST_SUITE_P(Of, InTheme, testing::ValuesIn(Themes),
                         [](const auto& tested) { return std::string(tested.param.name); });

/// Draws the first sheet of the page.
wxImage Sheet1() {
    ZelkPrintout printout(MainFrame, CurrentGrid(), "KRV-47");
    int unused = 0;
    printout.GetPageInfo(&unused, &unused, &unused, &unused);
    Sheet sheet(printout);
    EXPECT_TRUE(printout.OnPrintPage(1));
    return sheet.Picture();
}

std::string Pixels(const wxImage& picture) {
    const auto count = static_cast<size_t>(picture.GetWidth()) * static_cast<size_t>(picture.GetHeight());
    return {reinterpret_cast<const char*>(picture.GetData()), 3 * count};
}

} // namespace

TEST_P(InTheme, EveryTextOnEveryBackgroundIsReadable) {
    for (const auto& [radio, slot] :
         {std::pair<int, int>{Krv214, 0}, {Kdrv716B, 0}, {Kdrv4xxx, ModuleSlot}}) {
        SCOPED_TRACE(RadioCatalogue::RadioName[radio]);
        Retarget(radio, slot);
        FillPage();
        CurrentGrid()->SetFocus();
        {
            SCOPED_TRACE("with the focus");
            ExpectReadable();
        }
        MainFrame->m_notebook->SetFocus();
        SCOPED_TRACE("without the focus");
        ExpectReadable();
    }
}

TEST_P(InTheme, TheEditorOfAPaintedCellIsReadable) {
    Retarget(Krv214, 0);
    FillPage();
    CurrentGrid()->SetFocus();
    for (const int row : {2, 3, 6}) {
        CurrentGrid()->SetGridCursor(row, DESC);
        PressKey("F2");
        PressKey("End");
        const wxGridCellEditorPtr editor(CurrentGrid()->GetCellEditor(row, DESC));
        const wxWindow* control = editor->GetControl();
        ASSERT_NE(control, nullptr);
        EXPECT_GE(ContrastIn(Screen(), wxRect(control->GetScreenPosition(), control->GetSize()).Deflate(4)),
                  ReadableContrast)
            << "row " << row;
        PressKey("Escape");
    }
}

TEST_P(InTheme, PrintedSheetsAreThoseOfTheLightTheme) {
    const auto print = [] {
        Retarget(Krv214, 0);
        FillPage();
        // An edit and a repair that a user corrects take the paint off again.
        TypeIntoCell(*CurrentGrid(), 3, DESC, "EDITED");
        TypeIntoCell(*CurrentGrid(), 6, RFRQ, "151.5");
        const std::string painted = Pixels(Sheet1());
        RunCommand(IdClearHighlight);
        return std::pair(painted, Pixels(Sheet1()));
    };
    const auto [painted, cleared] = print();
    EXPECT_NE(painted, cleared);
    TearDown();
    DesktopLook light;
    light.SetTheme("Adwaita", false);
    // The same window without the theme that the test is run for.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    ZelkWindowTest::SetUp();
    ShowAndFocus(*MainFrame);
    const auto [paintedLight, clearedLight] = print();
    EXPECT_TRUE(painted == paintedLight);
    EXPECT_TRUE(cleared == clearedLight);
}

TEST_P(InTheme, AChangeOfThemeIsFollowedByOpenPages) {
    Retarget(Krv214, 0);
    FillPage();
    const Theme other = Themes[IsDark(GetParam()) ? 0 : 1];
    DesktopLook changed;
    changed.SetTheme(other.theme, other.dark);
    changed.ScaleTexts(2);
    PumpFor(300);
    EXPECT_EQ(CurrentGrid()->GetDefaultCellBackgroundColour(),
              wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    EXPECT_EQ(CurrentGrid()->GetCellBackgroundColour(1, DESC),
              wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    EXPECT_EQ(CurrentGrid()->GetCellBackgroundColour(2, DESC), MarkColour);
    ExpectReadable();
}

TEST_P(InTheme, ToolsHaveALightOutlineOnADarkBackgroundOnly) {
    const auto quit = std::find_if(MainFrame->m_tools.begin(), MainFrame->m_tools.end(),
                                   [](const wxToolBarToolBase* tool) { return tool->GetId() == IdQuit; });
    ASSERT_NE(quit, MainFrame->m_tools.end());
    const wxImage shown = (*quit)->GetNormalBitmap().ConvertToImage();
    const wxImage plain = GetToolBitmap(ToolImage::Quit, false).ConvertToImage(),
                  outlined = GetToolBitmap(ToolImage::Quit, true).ConvertToImage();
    EXPECT_EQ(Pixels(shown) == Pixels(outlined), IsDark(GetParam()));
    EXPECT_EQ(Pixels(shown) == Pixels(plain), !IsDark(GetParam()));
}
