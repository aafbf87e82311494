// Builds the window: its controls, its first page and the links from events to commands.
#include "catalogue/GridColours.h"
#include "catalogue/PageCreation.h"
#include "commands/FrameLook.h"
#include "commands/StatusOutcome.h"
#include "files/ZelkPrinting.h"
#include "frame/CommandTables.h"
#include "frame/FindLine.h"
#include "frame/FirstSize.h"
#include "frame/StatusBarSpeech.h"
#include "frame/StatusFields.h"
#include "frame/ZelkGUI.h"
#include "transfer/TransferStatus.h"
#include "transfer/wxAsyncSerial.h"

#include <wx/log.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>

#include <span>

namespace {

using CommandHandler = void (OrvZELFrame::*)(wxCommandEvent&);

/// Operation that a command id runs, whether it comes from a menu, a tool or the context menu.
struct CommandEntry {
    int id;
    CommandHandler handler;
};

constexpr CommandEntry MenuCommands[] = {
    {IdOpen, &OrvZELFrame::OnOpen},
    {IdSave, &OrvZELFrame::OnSave},
    {IdSaveAs, &OrvZELFrame::OnSaveAs},
    {IdImport, &OrvZELFrame::OnImport},
    {IdExport, &OrvZELFrame::OnExport},
    {IdPrint, &OrvZELFrame::OnPrint},
    {IdPrintPreview, &OrvZELFrame::OnPrintPreview},
    {IdPageSetup, &OrvZELFrame::OnPageSetup},
    {IdQuit, &OrvZELFrame::OnQuit},
    {IdPageAdd, &OrvZELFrame::OnPageAdd},
    {IdPageDelete, &OrvZELFrame::OnPageDelete},
    {IdUpload, &OrvZELFrame::OnUpload},
    {IdDownload, &OrvZELFrame::OnDownload},
    {IdValidatePage, &OrvZELFrame::OnValidatePage},
    {IdSelectAll, &OrvZELFrame::OnSelectAll},
    {IdDeSelectAll, &OrvZELFrame::OnDeSelectAll},
    {IdClearHighlight, &OrvZELFrame::OnClearHighlight},
    {IdSetPort, &OrvZELFrame::OnSetPort},
    {IdSetTarget, &OrvZELFrame::OnSetTarget},
    {IdHelp, &OrvZELFrame::OnHelp},
    {IdAbout, &OrvZELFrame::OnAbout},
};

constexpr CommandEntry ContextCommands[] = {
    {IdDefaultRow, &OrvZELFrame::OnDefaultRow},
    {IdCreateShadow, &OrvZELFrame::OnCreateShadow},
    {IdCopyRow, &OrvZELFrame::OnCopyRow},
    {IdPasteRow, &OrvZELFrame::OnPasteRow},
    {IdClearRow, &OrvZELFrame::OnClearRow},
    {IdInsertRow, &OrvZELFrame::OnInsertRow},
    {IdDeleteRow, &OrvZELFrame::OnDeleteRow},
    {IdMarkRow, &OrvZELFrame::OnMarkRow},
    {IdDefaultCol, &OrvZELFrame::OnDefaultCol},
    {IdDefaultMarked, &OrvZELFrame::OnDefaultMarked},
    {IdRenumberToRowNum, &OrvZELFrame::OnRenumberToRowNum},
    {IdRenumberSequencial, &OrvZELFrame::OnRenumberSequencial},
    {IdDefaultFile, &OrvZELFrame::OnDefaultFile},
    {IdSaveDefault, &OrvZELFrame::OnSaveDefault},
    {IdLoadDefault, &OrvZELFrame::OnLoadDefault},
};

wxMenu* MakeMenu(std::span<const MenuEntry> entries) {
    auto* menu = new wxMenu;
    for (const MenuEntry& entry : entries) {
        if (entry.label)
            menu->Append(entry.id, entry.label, entry.help);
        else
            menu->AppendSeparator();
    }
    return menu;
}

/// Connects or disconnects one event of a source.
template <class Tag, class Handler>
void Link(bool connect, wxEvtHandler* source, const Tag& tag, Handler handler, OrvZELFrame* frame,
          int id = wxID_ANY) {
    if (connect)
        source->Bind(tag, handler, frame, id);
    else
        source->Unbind(tag, handler, frame, id);
}

/// Returns the image of a tool for the background that tool bars have in the desktop's theme.
wxBitmap BitmapOf(const ToolEntry& tool) {
    return GetToolBitmap(tool.image, wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE).GetLuminance() < 0.5);
}

/// Gives the pages and tools of a window the colours of a new theme.
void ShowInTheme(OrvZELFrame* frame) {
    for (int page = 0; page < PageCount; ++page)
        FollowTheme(PageGrid[page]);
    for (const ToolEntry& tool : Tools)
        if (tool.label)
            frame->m_toolBar->SetToolNormalBitmap(tool.id, BitmapOf(tool));
}

/// Returns null for an id that belongs to no command.
CommandHandler HandlerOf(int id) {
    for (const std::span<const CommandEntry> commands :
         {std::span<const CommandEntry>(MenuCommands), std::span<const CommandEntry>(ContextCommands)})
        for (const CommandEntry& command : commands)
            if (command.id == id)
                return command.handler;
    return nullptr;
}

} // namespace

OrvZELFrame::OrvZELFrame(wxWindow* parent)
    : wxFrame(parent, wxID_ANY, "Orv Zelk", wxDefaultPosition, wxSize(927, 680),
              wxDEFAULT_FRAME_STYLE | FrameScrollBars | wxTAB_TRAVERSAL) {
    SetFrameLook(*this);
    wxLog::EnableLogging(false);
    SetIcon(GetZelkIcon());
    BuildMenus();
    BuildContextMenu();

    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    BuildToolBar();
    sizer->Add(m_toolBar, 0, wxEXPAND, 5);
    m_notebook = new wxNotebook(this, wxID_ANY);
    BuildFirstPage();
    sizer->Add(m_notebook, 1, wxEXPAND | wxALL, 5);
    m_statusBar = CreateStatusBar(5, wxSTB_SIZEGRIP);
    SpeakStatusBar(m_statusBar);
    UpdateStatus(this, CurrentPage);
    // Last: each layout moves all windows of the page, which takes Windows long.
    SetSizer(sizer);
    Layout();
    ConnectEvents(true);
    Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
        event.Skip();
        ShowInTheme(this);
    });
    InitPrinting();

    // Only probe the device, if it exists; an open port would block the first transfer.
    m_serialPort = std::make_unique<wxAsyncSerial>(this, "/dev/ttyUSB0", 9600);
    m_serialPort->close();

    RadioCatalogue::FillChoiceLists();
    FillStatusList();
    RowCopyBuffer.clear();
    TakeFirstSize(*this);
}

OrvZELFrame::~OrvZELFrame() {
    ConnectEvents(false);
    // The menu deletes only the entries that it holds, so all entries are taken out and deleted here.
    for (wxMenuItem* item : m_contextItems) {
        if (m_contextMenu->FindItem(item->GetId()))
            m_contextMenu->Remove(item);
        delete item;
    }
}

void OrvZELFrame::BuildMenus() {
    m_menuBar = new wxMenuBar;
    m_menuBar->Append(MakeMenu(FileMenu), "File");
    m_menuBar->Append(MakeMenu(PageMenu), "Page");
    m_menuBar->Append(MakeMenu(DataMenu), "Data");
    m_menuBar->Append(MakeMenu(SettingsMenu), "Settings");
    m_helpMenu = MakeMenu(HelpMenu);
    m_menuBar->Append(m_helpMenu, "Help");
    SetMenuBar(m_menuBar);
}

void OrvZELFrame::BuildContextMenu() {
    m_contextMenu = std::make_unique<wxMenu>();
    for (const MenuEntry& entry : ContextMenu)
        m_contextItems.push_back(new wxMenuItem(m_contextMenu.get(), entry.id, entry.label, entry.help));
}

void OrvZELFrame::BuildToolBar() {
    m_toolBar = new wxToolBar(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTB_RIGHT);
    m_toolBar->SetToolBitmapSize(wxSize(32, 32));
    for (const ToolEntry& tool : Tools) {
        if (tool.label)
            m_tools.push_back(m_toolBar->AddTool(tool.id, tool.label, BitmapOf(tool), wxNullBitmap,
                                                 wxITEM_NORMAL, tool.shortHelp, tool.longHelp));
        else
            m_toolBar->AddSeparator();
    }
    m_toolBar->Realize();
}

bool OrvZELFrame::Show(bool show) {
    const bool changed = wxFrame::Show(show);
    // Not before: Windows takes longer to give the keyboard to what isn't shown.
    if (changed && show)
        CurrentGrid()->SetFocus();
    return changed;
}

wxStatusBar* OrvZELFrame::OnCreateStatusBar(int fields, long style, wxWindowID id, const wxString& name) {
    wxStatusBar* const statusBar = MakeStatusFields(this, id, style, name);
    statusBar->SetFieldsCount(fields);
    return statusBar;
}

void OrvZELFrame::BuildFirstPage() {
    PageCount = 0;
    CurrentPage = 0;
    // Takes the place of the page until it exists.
    auto* placeholder = new wxPanel(this, wxID_ANY, wxDefaultPosition, wxSize(0, 0));
    placeholder->Hide();
    m_lastPanel = placeholder;
    SetPageParameters(this, 0, 1, 0);
    CreateNewPage(this, 0);
    placeholder->Destroy();
}

void OrvZELFrame::ConnectEvents(bool connect) {
    Link(connect, this, wxEVT_CLOSE_WINDOW, &OrvZELFrame::OnClose, this);
    for (const CommandEntry& command : MenuCommands) {
        wxMenu* menu = nullptr;
        if (m_menuBar->FindItem(command.id, &menu))
            Link(connect, menu, wxEVT_MENU, &OrvZELFrame::OnCommand, this, command.id);
    }
    for (const CommandEntry& command : ContextCommands)
        Link(connect, m_contextMenu.get(), wxEVT_MENU, &OrvZELFrame::OnCommand, this, command.id);
    Link(connect, m_notebook, wxEVT_NOTEBOOK_PAGE_CHANGED, &OrvZELFrame::OnPageChanged, this);
    Link(connect, m_notebook, wxEVT_NOTEBOOK_PAGE_CHANGING, &OrvZELFrame::OnPageChanging, this);
    for (const ToolEntry& tool : Tools)
        if (tool.label)
            Link(connect, this, wxEVT_TOOL, &OrvZELFrame::OnCommand, this, tool.id);
    Link(connect, this, wxEVT_CHAR_HOOK, &OrvZELFrame::OnWindowKey, this);
    Link(connect, m_notebook, wxEVT_MOTION, &OrvZELFrame::OnMouseOnTabs, this);
    Link(connect, m_notebook, wxEVT_LEAVE_WINDOW, &OrvZELFrame::OnMouseOnTabs, this);
    Link(connect, this, wxEVT_CHAR_HOOK, &OrvZELFrame::OnKey, this);
    Link(connect, this, wxEVT_GRID_TABBING, &OrvZELFrame::OnGridTabbing, this);
    Link(connect, this, wxEVT_MENU_OPEN, &OrvZELFrame::OnMenuOpen, this);
    Link(connect, this, wxEVT_MENU_CLOSE, &OrvZELFrame::OnMenuClose, this);
}

void OrvZELFrame::OnCommand(wxCommandEvent& event) {
    ForgetOutcome();
    if (const CommandHandler handler = HandlerOf(event.GetId()))
        (this->*handler)(event);
}

void OrvZELFrame::OnWindowKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode(), modifiers = event.GetModifiers();
    wxWindow* const page = m_pagePanels[CurrentPage];
    FindLine* const line = FindLine::Of(page);
    if (modifiers == wxMOD_CONTROL && key == 'F')
        (line ? line : FindLine::AddTo(page))->Open();
    else if (modifiers == wxMOD_NONE && key == WXK_ESCAPE && line && line->IsShown() &&
             !CurrentGrid()->IsCellEditControlShown())
        line->Close();
    else
        event.Skip();
}

void OrvZELFrame::OnMenuOpen(wxMenuEvent& event) {
    m_menuIsOpen = true;
    event.Skip();
}

void OrvZELFrame::OnMenuClose(wxMenuEvent& event) {
    m_menuIsOpen = false;
    event.Skip();
}

void OrvZELFrame::DoGiveHelp(const wxString& text, bool show) {
    if (show && OutcomeIsTold()) {
        // The pointer is still on the clicked tool, and the help of the tool would cover the outcome.
        if (!m_menuIsOpen)
            return;
        // The toolkit brings back the text that the first help covered, and that of a tool may have covered
        // one from before the outcome.
        wxFrame::DoGiveHelp(wxString(), false);
    }
    wxFrame::DoGiveHelp(text, show);
}
