// The window layer: every control, and every command as a virtual operation.
#pragma once

#include "catalogue/NumberedArray.h"
#include "catalogue/PageModel.h"

#include <wx/bookctrl.h>
#include <wx/event.h>
#include <wx/frame.h>
#include <wx/grid.h>

#include <array>
#include <memory>
#include <vector>

class wxAsyncSerial;
class wxMenu;
class wxMenuBar;
class wxMenuItem;
class wxNotebook;
class wxPanel;
class wxStatusBar;
class wxToolBar;
class wxToolBarToolBase;

/// The main window without the work of its commands. The operations below only skip their event; ZelkFrame
/// overrides them. There is one window per run.
class OrvZELFrame : public wxFrame {
public:
    explicit OrvZELFrame(wxWindow* parent);
    ~OrvZELFrame() override;

    virtual void OnClose(wxCloseEvent& event) { event.Skip(); }
    virtual void OnOpen(wxCommandEvent& event) { event.Skip(); }
    virtual void OnSave(wxCommandEvent& event) { event.Skip(); }
    virtual void OnSaveAs(wxCommandEvent& event) { event.Skip(); }
    virtual void OnImport(wxCommandEvent& event) { event.Skip(); }
    virtual void OnExport(wxCommandEvent& event) { event.Skip(); }
    virtual void OnPrint(wxCommandEvent& event) { event.Skip(); }
    virtual void OnPrintPreview(wxCommandEvent& event) { event.Skip(); }
    virtual void OnPageSetup(wxCommandEvent& event) { event.Skip(); }
    virtual void OnQuit(wxCommandEvent& event) { event.Skip(); }
    virtual void OnUpload(wxCommandEvent& event) { event.Skip(); }
    virtual void OnDownload(wxCommandEvent& event) { event.Skip(); }
    virtual void OnValidatePage(wxCommandEvent& event) { event.Skip(); }
    virtual void OnSelectAll(wxCommandEvent& event) { event.Skip(); }
    virtual void OnDeSelectAll(wxCommandEvent& event) { event.Skip(); }
    virtual void OnClearHighlight(wxCommandEvent& event) { event.Skip(); }
    /// A diagnostic, connected to no command.
    virtual void OnDebug(wxCommandEvent& event) { event.Skip(); }
    virtual void OnSetPort(wxCommandEvent& event) { event.Skip(); }
    virtual void OnSetTarget(wxCommandEvent& event) { event.Skip(); }
    virtual void OnHelp(wxCommandEvent& event) { event.Skip(); }
    virtual void OnAbout(wxCommandEvent& event) { event.Skip(); }
    virtual void OnPageChanged(wxBookCtrlEvent& event) { event.Skip(); }
    virtual void OnPageChanging(wxBookCtrlEvent& event) { event.Skip(); }
    virtual void OnPageAdd(wxCommandEvent& event) { event.Skip(); }
    virtual void OnPageDelete(wxCommandEvent& event) { event.Skip(); }
    virtual void OnGridCellChanging(wxGridEvent& event) { event.Skip(); }
    /// Keys of a page that act on its cells, while no cell editor is open.
    virtual void OnGridKeyDown(wxKeyEvent& event) { event.Skip(); }
    virtual void OnDefaultRow(wxCommandEvent& event) { event.Skip(); }
    virtual void OnCreateShadow(wxCommandEvent& event) { event.Skip(); }
    virtual void OnCopyRow(wxCommandEvent& event) { event.Skip(); }
    virtual void OnPasteRow(wxCommandEvent& event) { event.Skip(); }
    virtual void OnInsertRow(wxCommandEvent& event) { event.Skip(); }
    virtual void OnClearRow(wxCommandEvent& event) { event.Skip(); }
    virtual void OnDeleteRow(wxCommandEvent& event) { event.Skip(); }
    virtual void OnMarkRow(wxCommandEvent& event) { event.Skip(); }
    virtual void OnDefaultCol(wxCommandEvent& event) { event.Skip(); }
    virtual void OnDefaultMarked(wxCommandEvent& event) { event.Skip(); }
    virtual void OnRenumberToRowNum(wxCommandEvent& event) { event.Skip(); }
    virtual void OnRenumberSequencial(wxCommandEvent& event) { event.Skip(); }
    virtual void OnDefaultFile(wxCommandEvent& event) { event.Skip(); }
    virtual void OnSaveDefault(wxCommandEvent& event) { event.Skip(); }
    virtual void OnLoadDefault(wxCommandEvent& event) { event.Skip(); }
    /// Reserved: connected to nothing, and empty in both classes.
    virtual void OnSpare(wxCommandEvent& event) { event.Skip(); }

    /// Removes the outcome of an earlier command, then runs the operation of the event's command id, whether
    /// it comes from a menu, a tool or the context menu.
    void OnCommand(wxCommandEvent& event);

    /// Shows no help of tools while an outcome is shown; help of menu entries is shown in any case.
    void DoGiveHelp(const wxString& text, bool show) override;

    /// Also gives the keyboard to the current page.
    bool Show(bool show = true) override;

    /// Creates the status bar.
    wxStatusBar* OnCreateStatusBar(int fields, long style, wxWindowID id, const wxString& name) override;

    /// Shows the name of the page's file in the first field of the status bar; without a file the text that
    /// it begins with.
    void ShowFileOfPage();

    /// Builds the context menu for the place of the click and shows it. For the keyboard it is that of what
    /// is selected as a whole: the page (the corner's menu), or the column of the cursor; else that of the
    /// cursor's row.
    void OnGridContextMenu(wxContextMenuEvent& event);

    wxMenuBar* m_menuBar = nullptr;
    wxMenu* m_helpMenu = nullptr;
    std::unique_ptr<wxMenu> m_contextMenu;
    /// Entries of the context menu, created once, in the order of their table. The menu holds those that the
    /// last click offered.
    std::vector<wxMenuItem*> m_contextItems;
    wxToolBar* m_toolBar = nullptr;
    /// Tools in the order of their table, without its separators.
    std::vector<wxToolBarToolBase*> m_tools;
    wxNotebook* m_notebook = nullptr;
    /// The panel of the page that was built last.
    wxPanel* m_lastPanel = nullptr;
    NumberedArray<wxPanel*, PageLimit> m_pagePanels{};
    wxStatusBar* m_statusBar = nullptr;
    /// Created at start-up; transfers create their own ports.
    std::unique_ptr<wxAsyncSerial> m_serialPort;

private:
    void BuildMenus();
    void BuildContextMenu();
    void BuildToolBar();
    void BuildFirstPage();
    void ConnectEvents(bool connect);
    /// Keys of the window, whatever control has the focus.
    void OnWindowKey(wxKeyEvent& event);
    void OnKey(wxKeyEvent& event);
    /// Goes from the last cell of a row to the first one of the next row, and back.
    void OnGridTabbing(wxGridEvent& event);
    void ChangePage(bool forward, bool inGrid);
    /// Gives the keyboard to the tools if the grid has it, else to the grid.
    void MoveKeyboard(bool leavesGrid);
    void OnMouseOnTabs(wxMouseEvent& event);
    void OnMenuOpen(wxMenuEvent& event);
    void OnMenuClose(wxMenuEvent& event);
    void AppendContextItem(int id);
    void ShowContextMenu(wxGrid* grid, const wxPoint& position);
    void OfferPageCommands(wxGrid* grid);
    void ShowMenuOfSelection(wxGrid* grid);
    void OfferRowCommands(wxGrid* grid, int row);
    void OfferColumnCommands(wxGrid* grid, int col);

    bool m_menuIsOpen = false;
};

/// Updates status bar, tab text, title, GD1 and GD2 for the page (0-based).
void UpdateStatus(OrvZELFrame* frame, int page);
