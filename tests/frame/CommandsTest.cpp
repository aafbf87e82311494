// Every command runs its operation.
#include "frame/ZelkGUI.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/app.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/toolbar.h>

#include <string>
#include <vector>

using namespace testbench;

namespace {

/// A window whose operations only record their names.
class RecordingFrame : public OrvZELFrame {
public:
    using OrvZELFrame::OrvZELFrame;

    std::vector<std::string> calls;

    void OnClose(wxCloseEvent&) override { Record("OnClose"); }
    void OnOpen(wxCommandEvent&) override { Record("OnOpen"); }
    void OnSave(wxCommandEvent&) override { Record("OnSave"); }
    void OnSaveAs(wxCommandEvent&) override { Record("OnSaveAs"); }
    void OnImport(wxCommandEvent&) override { Record("OnImport"); }
    void OnExport(wxCommandEvent&) override { Record("OnExport"); }
    void OnPrint(wxCommandEvent&) override { Record("OnPrint"); }
    void OnPrintPreview(wxCommandEvent&) override { Record("OnPrintPreview"); }
    void OnPageSetup(wxCommandEvent&) override { Record("OnPageSetup"); }
    void OnQuit(wxCommandEvent&) override { Record("OnQuit"); }
    void OnUpload(wxCommandEvent&) override { Record("OnUpload"); }
    void OnDownload(wxCommandEvent&) override { Record("OnDownload"); }
    void OnValidatePage(wxCommandEvent&) override { Record("OnValidatePage"); }
    void OnSelectAll(wxCommandEvent&) override { Record("OnSelectAll"); }
    void OnDeSelectAll(wxCommandEvent&) override { Record("OnDeSelectAll"); }
    void OnClearHighlight(wxCommandEvent&) override { Record("OnClearHighlight"); }
    void OnDebug(wxCommandEvent&) override { Record("OnDebug"); }
    void OnSetPort(wxCommandEvent&) override { Record("OnSetPort"); }
    void OnSetTarget(wxCommandEvent&) override { Record("OnSetTarget"); }
    void OnHelp(wxCommandEvent&) override { Record("OnHelp"); }
    void OnAbout(wxCommandEvent&) override { Record("OnAbout"); }
    void OnPageChanged(wxBookCtrlEvent&) override { Record("OnPageChanged"); }
    void OnPageChanging(wxBookCtrlEvent&) override { Record("OnPageChanging"); }
    void OnPageAdd(wxCommandEvent&) override { Record("OnPageAdd"); }
    void OnPageDelete(wxCommandEvent&) override { Record("OnPageDelete"); }
    void OnGridCellChanging(wxGridEvent&) override { Record("OnGridCellChanging"); }
    void OnDefaultRow(wxCommandEvent&) override { Record("OnDefaultRow"); }
    void OnCreateShadow(wxCommandEvent&) override { Record("OnCreateShadow"); }
    void OnCopyRow(wxCommandEvent&) override { Record("OnCopyRow"); }
    void OnPasteRow(wxCommandEvent&) override { Record("OnPasteRow"); }
    void OnInsertRow(wxCommandEvent&) override { Record("OnInsertRow"); }
    void OnClearRow(wxCommandEvent&) override { Record("OnClearRow"); }
    void OnDeleteRow(wxCommandEvent&) override { Record("OnDeleteRow"); }
    void OnMarkRow(wxCommandEvent&) override { Record("OnMarkRow"); }
    void OnDefaultCol(wxCommandEvent&) override { Record("OnDefaultCol"); }
    void OnDefaultMarked(wxCommandEvent&) override { Record("OnDefaultMarked"); }
    void OnRenumberToRowNum(wxCommandEvent&) override { Record("OnRenumberToRowNum"); }
    void OnRenumberSequencial(wxCommandEvent&) override { Record("OnRenumberSequencial"); }
    void OnDefaultFile(wxCommandEvent&) override { Record("OnDefaultFile"); }
    void OnSaveDefault(wxCommandEvent&) override { Record("OnSaveDefault"); }
    void OnLoadDefault(wxCommandEvent&) override { Record("OnLoadDefault"); }
    void OnSpare(wxCommandEvent&) override { Record("OnSpare"); }

private:
    void Record(const char* name) { calls.emplace_back(name); }
};

class Commands : public ::testing::Test {
protected:
    void SetUp() override { ShowAndFocus(*frame); }

    void TearDown() override {
        frame->Destroy();
        PumpUntilIdle();
    }

    using Names = std::vector<std::string>;

    /// The operations run since the last call.
    Names Taken() {
        Names taken;
        taken.swap(frame->calls);
        return taken;
    }

    RecordingFrame* frame = new RecordingFrame(nullptr);
};

struct Command {
    int id;
    const char* operation;
};

constexpr Command CommandsOfMenu[] = {
    {5999, "OnOpen"},           {6000, "OnSave"},         {6001, "OnSaveAs"},       {6002, "OnImport"},
    {6003, "OnExport"},         {6004, "OnPrint"},        {6005, "OnPrintPreview"}, {6006, "OnPageSetup"},
    {6022, "OnQuit"},           {6007, "OnPageAdd"},      {6008, "OnPageDelete"},   {6011, "OnUpload"},
    {6012, "OnDownload"},       {6013, "OnValidatePage"}, {6014, "OnSelectAll"},    {6015, "OnDeSelectAll"},
    {6016, "OnClearHighlight"}, {6018, "OnSetPort"},      {6019, "OnSetTarget"},    {6020, "OnHelp"},
    {6021, "OnAbout"},
};

constexpr Command CommandsOfContextMenu[] = {
    {6024, "OnDefaultRow"},    {6025, "OnCreateShadow"},     {6026, "OnCopyRow"},
    {6027, "OnPasteRow"},      {6028, "OnClearRow"},         {6029, "OnInsertRow"},
    {6030, "OnDeleteRow"},     {6031, "OnMarkRow"},          {6032, "OnDefaultCol"},
    {6033, "OnDefaultMarked"}, {6034, "OnRenumberToRowNum"}, {6035, "OnRenumberSequencial"},
    {6036, "OnDefaultFile"},   {6037, "OnSaveDefault"},      {6038, "OnLoadDefault"},
};

} // namespace

TEST_F(Commands, OfTheMenusRunTheirOperations) {
    for (const Command& command : CommandsOfMenu) {
        wxMenu* menu = nullptr;
        ASSERT_NE(frame->m_menuBar->FindItem(command.id, &menu), nullptr) << command.operation;
        menu->SendEvent(command.id);
        EXPECT_EQ(Taken(), Names{command.operation}) << command.id;
    }
}

TEST_F(Commands, OfTheContextMenuRunTheirOperations) {
    for (const Command& command : CommandsOfContextMenu) {
        frame->m_contextMenu->SendEvent(command.id);
        EXPECT_EQ(Taken(), Names{command.operation}) << command.id;
    }
}

TEST_F(Commands, OfTheToolBarRunTheirOperationsOnAClick) {
    // From top to bottom of the column, in steps smaller than a tool.
    const wxSize size = frame->m_toolBar->GetClientSize();
    Names inOrder;
    for (int y = 8; y < size.y; y += 14) {
        ClickAt(*frame->m_toolBar, wxPoint(size.x / 2, y));
        for (const std::string& name : Taken())
            if (inOrder.empty() || inOrder.back() != name)
                inOrder.push_back(name);
    }
    EXPECT_EQ(inOrder, (Names{"OnOpen", "OnSave", "OnPrint", "OnDownload", "OnUpload", "OnSelectAll",
                              "OnDeSelectAll", "OnSetPort", "OnSetTarget", "OnQuit", "OnHelp"}));
}

TEST_F(Commands, OfTheMenusAreReachedWithTheKeyboard) {
    // The operations in menu order.
    const std::vector<Names> byMenu = {
        {"OnOpen", "OnSave", "OnSaveAs", "OnImport", "OnExport", "OnPrint", "OnPrintPreview", "OnPageSetup",
         "OnQuit"},
        {"OnPageAdd", "OnPageDelete"},
        {"OnUpload", "OnDownload", "OnValidatePage", "OnSelectAll", "OnDeSelectAll", "OnClearHighlight"},
        {"OnSetPort", "OnSetTarget"},
        {"OnHelp", "OnAbout"},
    };
    RunWithRobot([&](Robot& robot) {
        for (size_t m = 0; m < byMenu.size(); ++m) {
            for (size_t i = 0; i < byMenu[m].size(); ++i) {
                robot.Press("F10");
                robot.Settle();
                robot.Press("Right", static_cast<int>(m));
                robot.Press("Down", static_cast<int>(i) + 1);
                robot.Press("Return");
                EXPECT_TRUE(robot.WaitFor([&] { return !frame->calls.empty(); })) << byMenu[m][i];
                EXPECT_EQ(robot.Ask([&] { return Taken(); }), Names{byMenu[m][i]});
            }
        }
    });
}

TEST_F(Commands, CloseRunsOnClose) {
    PressKey("Alt+F4");
    EXPECT_TRUE(PumpUntil([this] { return !frame->calls.empty(); }));
    EXPECT_EQ(Taken(), Names{"OnClose"});
}

TEST_F(Commands, ANewTabRunsOnPageChangingAndOnPageChanged) {
    frame->m_notebook->AddPage(new wxPanel(frame->m_notebook), "second");
    EXPECT_EQ(Taken(), Names{});
    frame->m_notebook->SetFocus();
    PumpUntilIdle();
    PressKey("Ctrl+Page_Down");
    EXPECT_EQ(Taken(), (Names{"OnPageChanging", "OnPageChanged"}));
}

TEST_F(Commands, ATypedCellRunsOnGridCellChanging) {
    TypeIntoCell(*CurrentGrid(), 1, DESC, "X");
    EXPECT_EQ(Taken(), Names{"OnGridCellChanging"});
    EXPECT_EQ(CurrentGrid()->GetCellValue(1, DESC), "X");
}

TEST_F(Commands, NoIdRunsOnDebug) {
    for (int id = 5990; id < 6050; ++id) {
        wxCommandEvent chosen(wxEVT_MENU, id);
        frame->ProcessWindowEvent(chosen);
        wxCommandEvent fromMenu(wxEVT_MENU, id);
        frame->m_contextMenu->ProcessEvent(fromMenu);
    }
    for (const std::string& name : Taken()) {
        EXPECT_NE(name, "OnDebug");
        EXPECT_NE(name, "OnSpare");
    }
}

TEST_F(Commands, UnassignedIdsAreInNoMenu) {
    for (int id : {6009, 6010, 6017, 6023})
        EXPECT_EQ(frame->m_menuBar->FindItem(id), nullptr) << id;
}

using WindowLayer = ZelkWindowTest;

TEST_F(WindowLayer, OperationsOnlySkipTheirEvent) {
    using Operation = void (OrvZELFrame::*)(wxCommandEvent&);
    const struct {
        const char* name;
        Operation operation;
    } operations[] = {
        {"OnOpen", &OrvZELFrame::OnOpen},
        {"OnSave", &OrvZELFrame::OnSave},
        {"OnSaveAs", &OrvZELFrame::OnSaveAs},
        {"OnImport", &OrvZELFrame::OnImport},
        {"OnExport", &OrvZELFrame::OnExport},
        {"OnPrint", &OrvZELFrame::OnPrint},
        {"OnPrintPreview", &OrvZELFrame::OnPrintPreview},
        {"OnPageSetup", &OrvZELFrame::OnPageSetup},
        {"OnQuit", &OrvZELFrame::OnQuit},
        {"OnUpload", &OrvZELFrame::OnUpload},
        {"OnDownload", &OrvZELFrame::OnDownload},
        {"OnValidatePage", &OrvZELFrame::OnValidatePage},
        {"OnSelectAll", &OrvZELFrame::OnSelectAll},
        {"OnDeSelectAll", &OrvZELFrame::OnDeSelectAll},
        {"OnClearHighlight", &OrvZELFrame::OnClearHighlight},
        {"OnDebug", &OrvZELFrame::OnDebug},
        {"OnSetPort", &OrvZELFrame::OnSetPort},
        {"OnSetTarget", &OrvZELFrame::OnSetTarget},
        {"OnHelp", &OrvZELFrame::OnHelp},
        {"OnAbout", &OrvZELFrame::OnAbout},
        {"OnPageAdd", &OrvZELFrame::OnPageAdd},
        {"OnPageDelete", &OrvZELFrame::OnPageDelete},
        {"OnDefaultRow", &OrvZELFrame::OnDefaultRow},
        {"OnCreateShadow", &OrvZELFrame::OnCreateShadow},
        {"OnCopyRow", &OrvZELFrame::OnCopyRow},
        {"OnPasteRow", &OrvZELFrame::OnPasteRow},
        {"OnInsertRow", &OrvZELFrame::OnInsertRow},
        {"OnClearRow", &OrvZELFrame::OnClearRow},
        {"OnDeleteRow", &OrvZELFrame::OnDeleteRow},
        {"OnMarkRow", &OrvZELFrame::OnMarkRow},
        {"OnDefaultCol", &OrvZELFrame::OnDefaultCol},
        {"OnDefaultMarked", &OrvZELFrame::OnDefaultMarked},
        {"OnRenumberToRowNum", &OrvZELFrame::OnRenumberToRowNum},
        {"OnRenumberSequencial", &OrvZELFrame::OnRenumberSequencial},
        {"OnDefaultFile", &OrvZELFrame::OnDefaultFile},
        {"OnSaveDefault", &OrvZELFrame::OnSaveDefault},
        {"OnLoadDefault", &OrvZELFrame::OnLoadDefault},
    };
    auto* bare = new OrvZELFrame(nullptr);
    for (const auto& o : operations) {
        wxCommandEvent event(wxEVT_MENU);
        (bare->*o.operation)(event);
        EXPECT_TRUE(event.GetSkipped()) << o.name;
    }
    wxCloseEvent close;
    bare->OnClose(close);
    EXPECT_TRUE(close.GetSkipped());
    wxBookCtrlEvent page;
    bare->OnPageChanged(page);
    EXPECT_TRUE(page.GetSkipped());
    wxBookCtrlEvent changing;
    bare->OnPageChanging(changing);
    EXPECT_TRUE(changing.GetSkipped());
    wxGridEvent cell;
    bare->OnGridCellChanging(cell);
    EXPECT_TRUE(cell.GetSkipped());
    bare->Destroy();
}
