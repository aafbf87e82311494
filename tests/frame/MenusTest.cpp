// Texts of menus, context menu and tool bar.
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/accel.h>
#include <wx/menu.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>

#include <memory>

using namespace testbench;

namespace {

struct Entry {
    int id;
    const char *label, *help;
};

constexpr Entry Separator{-1, "", ""};

struct Menu {
    const char* title;
    std::vector<Entry> entries;
};

const std::vector<Menu> AllMenus = {
    {"File",
     {
         {5999, "&Open", "Open a memory data file"},
         {6000, "&Save", "Save memory data file"},
         {6001, "save &As...", "Save file to new name"},
         {6002, "&Import...", "Import legacy data file"},
         {6003, "&Export...", "Export data file to csv"},
         Separator,
         {6004, "&Print...", "Print the current tab"},
         {6005, "print preview", "Print Preview"},
         {6006, "page setup...", "Print Page Setup"},
         Separator,
         {6022, "&Quit", "Quit the application"},
     }},
    {"Page",
     {
         {6007, "&Add page", "Add page"},
         {6008, "&Delete page", "Delete page"},
     }},
    {"Data",
     {
         {6011, "&Send to radio", "Write data to radio"},
         {6012, "&Get from radio", "Read data from radio"},
         Separator,
         {6013, "&Validate page data", "Validate rows with data"},
         Separator,
         {6014, "select &All", "Select all for transfer"},
         {6015, "d&E-Select all", "Clear all for transfer"},
         {6016, "&Clear Highlights", "Clear cell highlight"},
     }},
    {"Settings",
     {
         {6018, "set &Port", "Set com port"},
         {6019, "set &Target", "Set target radio"},
     }},
    {"Help",
     {
         {6020, "&Help file", "Help on Zelk"},
         {6021, "&About", "Information About Zelk"},
     }},
};

constexpr Entry ContextEntries[] = {
    {6024, "de&Fault row", "Set row to default values"},
    {6025, "create &Shadow", "Create Shadow of this Primary"},
    {6026, "&Copy row", "Copy row contents to clipboard"},
    {6027, "&Paste row", "Paste clipboard contents to row"},
    {6028, "c&Lear row", "Clear row of all data"},
    {6029, "&Insert row", "Insert row above selected row"},
    {6030, "&Delete row", "Delete row"},
    {6031, "&Mark row", "Mark selected rows roe Column edit"},
    {6032, "&Default col", "Set column to default values"},
    {6033, "default &Marked", "Set column in marked rows to default values"},
    {6034, "set to &Row Num", "Re-number as row num"},
    {6035, "set in &Sequence", "Re-number in sequence"},
    {6036, "&Default file", "Set all file to default values"},
    {6037, "&Save defaults", "Save default data to file"},
    {6038, "&Load defaults", "Load default data from file"},
};

struct Tool {
    int id;
    const char *label, *shortHelp, *longHelp;
};

constexpr Tool ToolGap{-1, "", "", ""};

constexpr Tool AllTools[] = {
    {5999, "Open", "Open file", "Open radio data file"},
    {6000, "Save", "Save file", "Save radio data file"},
    {6004, "Print", "Print file", "Print radio data file"},
    ToolGap,
    {6012, "download", "Get from radio", "Get data from Radio"},
    {6011, "upload", "Send to radio", "Send data to Radio"},
    {6014, "select all", "Select", "Select all channels"},
    {6015, "clear all", "De-Select", "De-select all channels"},
    ToolGap,
    {6018, "port", "Com Port", "Set COM port"},
    {6019, "target", "Target", "Select target Radio"},
    ToolGap,
    {6022, "Quit", "Quit", "Quit the application"},
    ToolGap,
    {6020, "help", "Help", "Open help file"},
};

void ExpectEntry(const wxMenuItem* item, const Entry& expected) {
    SCOPED_TRACE(expected.label);
    EXPECT_EQ(item->GetId(), expected.id);
    EXPECT_EQ(item->GetItemLabel(), expected.label);
    EXPECT_EQ(item->GetHelp(), expected.help);
    EXPECT_EQ(item->GetKind(), wxITEM_NORMAL);
    EXPECT_EQ(std::unique_ptr<wxAcceleratorEntry>(item->GetAccel()), nullptr);
}

} // namespace

using MainMenus = ZelkWindowTest;
using ContextMenuEntries = ZelkWindowTest;
using ToolBar = ZelkWindowTest;

TEST_F(MainMenus, HaveTheseEntriesInThisOrder) {
    const wxMenuBar* bar = MainFrame->m_menuBar;
    ASSERT_EQ(MainFrame->GetMenuBar(), bar);
    ASSERT_EQ(bar->GetMenuCount(), AllMenus.size());
    for (size_t m = 0; m < AllMenus.size(); ++m) {
        SCOPED_TRACE(AllMenus[m].title);
        EXPECT_EQ(bar->GetMenuLabel(m), AllMenus[m].title);
        const wxMenu* menu = bar->GetMenu(m);
        ASSERT_EQ(menu->GetMenuItemCount(), AllMenus[m].entries.size());
        for (size_t i = 0; i < AllMenus[m].entries.size(); ++i) {
            const Entry& expected = AllMenus[m].entries[i];
            const wxMenuItem* item = menu->FindItemByPosition(i);
            if (expected.id == Separator.id) {
                EXPECT_TRUE(item->IsSeparator()) << "position " << i;
            } else {
                ExpectEntry(item, expected);
            }
        }
    }
    EXPECT_EQ(MainFrame->m_helpMenu, bar->GetMenu(4));
}

TEST_F(MainMenus, AreNeverDisabled) {
    for (const Menu& menu : AllMenus) {
        for (const Entry& entry : menu.entries) {
            if (entry.id != Separator.id) {
                EXPECT_TRUE(MainFrame->m_menuBar->IsEnabled(entry.id)) << entry.label;
            }
        }
    }
}

TEST_F(MainMenus, ShowTheirHelpInTheFirstStatusField) {
    ShowAndFocus(*MainFrame);
    RunWithRobot([](Robot& robot) {
        const auto shows = [](const char* text) {
            return [text] { return MainFrame->m_statusBar->GetStatusText(0) == text; };
        };
        robot.Press("F10");
        robot.Press("Down");
        EXPECT_TRUE(robot.WaitFor(shows("Open a memory data file")));
        robot.Press("Down");
        EXPECT_TRUE(robot.WaitFor(shows("Save memory data file")));
        robot.Press("Escape", 2);
        EXPECT_TRUE(robot.WaitFor(shows("Select function")));
    });
}

TEST_F(ContextMenuEntries, AreMadeOnceAndNotInTheMenu) {
    EXPECT_EQ(MainFrame->m_contextMenu->GetMenuItemCount(), 0u);
    ASSERT_EQ(MainFrame->m_contextItems.size(), std::size(ContextEntries));
    for (size_t i = 0; i < std::size(ContextEntries); ++i) {
        ExpectEntry(MainFrame->m_contextItems[i], ContextEntries[i]);
        EXPECT_EQ(MainFrame->m_contextItems[i]->GetMenu(), MainFrame->m_contextMenu.get());
    }
}

TEST_F(ToolBar, HasTheseToolsInThisOrder) {
    wxToolBar* bar = MainFrame->m_toolBar;
    ASSERT_EQ(bar->GetToolsCount(), std::size(AllTools));
    size_t member = 0;
    for (size_t i = 0; i < std::size(AllTools); ++i) {
        SCOPED_TRACE("position " + std::to_string(i) + ", " + AllTools[i].label);
        const wxToolBarToolBase* tool = bar->GetToolByPos(static_cast<int>(i));
        if (AllTools[i].id == ToolGap.id) {
            EXPECT_TRUE(tool->IsSeparator());
            continue;
        }
        EXPECT_EQ(tool->GetId(), AllTools[i].id);
        EXPECT_EQ(tool->GetLabel(), AllTools[i].label);
        EXPECT_EQ(tool->GetShortHelp(), AllTools[i].shortHelp);
        EXPECT_EQ(tool->GetLongHelp(), AllTools[i].longHelp);
        EXPECT_TRUE(tool->IsButton());
        EXPECT_TRUE(tool->IsEnabled());
        ASSERT_TRUE(tool->GetNormalBitmap().IsOk());
        EXPECT_EQ(tool->GetNormalBitmap().GetSize(), wxSize(32, 32));
        ASSERT_LT(member, MainFrame->m_tools.size());
        EXPECT_EQ(MainFrame->m_tools[member++], tool);
    }
    EXPECT_EQ(member, 11u);
}
