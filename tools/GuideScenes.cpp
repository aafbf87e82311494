// Scenes of pages: kinds of pages, cells, and commands on rows and columns.
#include "tools/GuideScenes.h"

#include "catalogue/PageModel.h"
#include "commands/CommandIds.h"
#include "editing/PageReset.h"
#include "files/ZelkFile_OpenSave.h"
#include "frame/SelectionDialogs.h"
#include "frame/ZelkMain.h"
#include "robot/DesktopLook.h"
#include "robot/Files.h"
#include "robot/OpenDialogs.h"
#include "robot/ScreenSpots.h"

#include <wx/grid.h>
#include <wx/menu.h>
#include <wx/xml/xml.h>

#include <optional>
#include <stdexcept>

using namespace testbench;
namespace fs = std::filesystem;

namespace Guide {

void RunCommand(int id) {
    TellGui([id] {
        wxCommandEvent command(wxEVT_MENU, id);
        const wxMenuItem* item = MainFrame->GetMenuBar()->FindItem(id);
        (item ? item->GetMenu() : MainFrame->m_contextMenu.get())->ProcessEvent(command);
    });
}

void OpenOnPage(Robot& robot, const fs::path& file) {
    robot.Ask([&] {
        wxXmlDocument document;
        ResetPage(CurrentPage);
        if (!document.Load(wxString::FromUTF8(file.string())) || OpenZelkFile(document, CurrentPage) != 0)
            throw std::runtime_error("can't open " + file.string());
    });
    robot.Settle();
}

void ResizeWindow(Robot& robot, int width, int height) {
    robot.Ask([=] {
        MainFrame->SetSize(width, height);
        MainFrame->Move(10, 10);
    });
    robot.WaitFor([=] { return MainFrame->GetSize() == wxSize(width, height); });
    robot.Settle();
}

namespace {

/// Screen area of the grid from its labels' corner to this cell.
wxRect CellsWithLabels(int lastRow, int lastColumn) {
    wxGrid& grid = *CurrentGrid();
    const wxRect corner(grid.GetScreenPosition(), wxSize(1, 1));
    wxRect last = grid.CellToRect(lastRow, lastColumn);
    last.SetPosition(grid.GetGridWindow()->ClientToScreen(grid.CalcScrolledPosition(last.GetPosition())));
    return corner.Union(last);
}

void Replace(std::string& text, const std::string& what, const std::string& by) {
    const size_t at = text.find(what);
    if (at == std::string::npos)
        throw std::runtime_error("the example has no " + what);
    text.replace(at, what.size(), by);
}

/// An example with mistakes that a file from another program may have.
fs::path FileWithMistakes(const Places& places) {
    std::string text = ReadFile(places.examples / "krv-650-vhf.zelk");
    Replace(text, "<RF>151.1375</RF>", "<RF>251.1375</RF>");
    Replace(text, "<RT>156.7</RT>", "<RT>156.8</RT>");
    Replace(text, "<MD>N</MD>\n    <RF>154.4525", "<MD>X</MD>\n    <RF>154.4525");
    fs::path file = places.scratch / "mistakes.zelk";
    WriteFile(file, text);
    return file;
}

/// An example without the memories after the row.
fs::path FirstMemories(const Places& places, const std::string& example, int lastRow) {
    std::string text = ReadFile(places.examples / example);
    const std::string next = "  <MEMORY row=\"" + std::to_string(lastRow + 1) + '"';
    if (text.find(next) == std::string::npos)
        throw std::runtime_error("the example has no row after " + std::to_string(lastRow));
    text = text.substr(0, text.find(next)) + "</ZelkMem>\n";
    fs::path file = places.scratch / example;
    WriteFile(file, text);
    return file;
}

void RightClick(Robot& robot, const wxPoint& spot) {
    robot.Click(spot, 3);
    robot.Settle();
}

/// Pictures the grid's upper left part, up to a cell.
void TakeCells(Robot& robot, Camera& camera, const std::string& name, int lastRow, int lastColumn) {
    robot.Ask([] { CurrentGrid()->ClearSelection(); });
    robot.Settle();
    camera.Part(name, robot.Ask([=] { return CellsWithLabels(lastRow, lastColumn); }));
}

void TakeRowMenu(Robot& robot, Camera& camera, const std::string& name, int row) {
    RightClick(robot, robot.Ask([row] { return RowLabelSpot(*CurrentGrid(), row); }));
    camera.Window(name, 450);
    robot.Press("Escape");
    robot.Ask([] { CurrentGrid()->ClearSelection(); });
}

void TakeMarks(Robot& robot, Camera& camera) {
    robot.Ask([] {
        for (const int row : {3, 4, 7})
            CurrentGrid()->SelectRow(row, true);
    });
    RunCommand(IdMarkRow);
    robot.WaitFor([] { return (CurrentParameters().Flags & PageHasMarks) != 0; });
    RightClick(robot, robot.Ask([] { return ColumnLabelSpot(*CurrentGrid(), MODE); }));
    camera.Window("column-menu", 340);
    robot.Press("Escape");
    RunCommand(IdClearHighlight);
    robot.Ask([] { CurrentGrid()->ClearSelection(); });
}

void TakeMistakes(Robot& robot, Camera& camera, const Places& places) {
    OpenOnPage(robot, FileWithMistakes(places));
    RunCommand(IdValidatePage);
    if (!robot.WaitForDialog("Validate Page"))
        throw std::runtime_error("no box of the check");
    robot.Press("Return");
    robot.WaitForNoDialog();
    camera.Window("validated", 270);
}

/// Pictures the page after a check, with a marked and a selected row, in a dark theme.
void TakeDarkTheme(Robot& robot, Camera& camera) {
    robot.Ask([] { CurrentGrid()->SelectRow(6); });
    RunCommand(IdMarkRow);
    robot.WaitFor([] { return (CurrentParameters().Flags & PageHasMarks) != 0; });
    std::optional<DesktopLook> dark;
    robot.Ask([&dark] {
        CurrentGrid()->SelectRow(4);
        dark.emplace().SetTheme("Adwaita", true);
    });
    robot.Settle();
    camera.Window("dark-theme", 300);
    robot.Ask([&dark] { dark.reset(); });
    RunCommand(IdClearHighlight);
    robot.Settle();
}

void TakeShadow(Robot& robot, Camera& camera) {
    const int row = 3;
    RightClick(robot, robot.Ask([] { return RowLabelSpot(*CurrentGrid(), row); }));
    camera.Window("row-menu-p25", 420);
    robot.Press("Escape");
    robot.Settle();
    RunCommand(IdCreateShadow);
    if (!robot.WaitForDialog("For Primary: 003 create Shadow: 1"))
        throw std::runtime_error("no dialog of the shadow");
    robot.Type("6");
    camera.FocusedWindow("shadow-dialog");
    robot.Press("Return");
    robot.WaitForNoDialog();
    robot.Settle();
    TakeCells(robot, camera, "shadow-created", 8, TIDC);
}

} // namespace

void TakePages(Tour::TourHand& hand, Camera& camera, const Places& places) {
    Robot& robot = hand.TheRobot();
    ResizeWindow(robot, 800, 640);
    OpenOnPage(robot, places.examples / "krv-650-vhf.zelk");
    robot.Ask([] { CurrentGrid()->SetGridCursor(2, DESC); });
    TakeCells(robot, camera, "scan-cells", 7, DESC);
    TakeRowMenu(robot, camera, "row-menu", 5);
    TakeMarks(robot, camera);
    TakeMistakes(robot, camera, places);
    TakeDarkTheme(robot, camera);

    ResizeWindow(robot, 920, 640);
    OpenOnPage(robot, places.examples / "kdrv-4xxx-k6.zelk");
    TakeCells(robot, camera, "page-mdlx", 8, TCOD);
    OpenOnPage(robot, places.examples / "kdar-2000-airband.zelk");
    TakeCells(robot, camera, "page-kdar", 8, RONL);
    OpenOnPage(robot, places.examples / "krv-620-milair.zelk");
    TakeCells(robot, camera, "page-anam", 6, TFRQ);
    OpenOnPage(robot, places.examples / "orv-12-airband.zelk");
    TakeCells(robot, camera, "page-o12", 6, RFRQ);

    ResizeWindow(robot, 1230, 640);
    OpenOnPage(robot, places.examples / "kdrv-716b-p25.zelk");
    robot.Ask([] { CurrentGrid()->MakeCellVisible(40, DESC); });
    camera.Window("page-p25", 560);
    OpenOnPage(robot, FirstMemories(places, "kdrv-716b-p25.zelk", 5));
    robot.Ask([] { CurrentGrid()->MakeCellVisible(0, DESC); });
    TakeShadow(robot, camera);
    ResizeWindow(robot, 800, 640);
}

void TakeImport(Tour::TourHand& hand, Camera& camera, const Places& places) {
    Robot& robot = hand.TheRobot();
    OpenOnPage(robot, places.examples / "krv-650-vhf.zelk");
    WriteFile(places.scratch / "channels.csv", "MNUM,DESC,RFRQ,TFRQ,MODE,TTON\n"
                                               "1,TOWER 1,155.7525,155.7525,N,156.7\n"
                                               "2,TOWER 2,151.1375,151.1375,N,156.7\n"
                                               "3,HARBOUR,156.8000,156.8000,W,67.0\n");
    RunCommand(IdImport);
    if (!robot.WaitForDialog("Import file"))
        throw std::runtime_error("no file dialog");
    robot.Type((places.scratch / "channels.csv").string());
    robot.Settle();
    robot.Press("Return");
    if (!robot.WaitForDialog("Import File"))
        throw std::runtime_error("no report of the import");
    camera.FocusedWindow("imported");
    robot.Press("Return");
    robot.WaitForNoDialog();
}

void TakePrinting(Tour::TourHand& hand, Camera& camera, const Places& places) {
    Robot& robot = hand.TheRobot();
    OpenOnPage(robot, places.examples / "krv-650-vhf.zelk");
    RunCommand(IdPrintPreview);
    if (!robot.WaitForWindow("Print Preview"))
        throw std::runtime_error("no preview");
    robot.Settle();
    camera.FocusedWindow("print-preview");
    robot.Press("Alt+F4");
    robot.WaitForWindow("Orv Zelk.*");
}

} // namespace Guide
