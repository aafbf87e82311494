// Menus, context menu and tool bar as tables. Sole source of labels and help strings.
#pragma once

#include "commands/CommandIds.h"
#include "resources/ToolImages.h"

/// An entry of a menu; an entry without a label is a separator.
struct MenuEntry {
    int id;
    const char* label;
    const char* help;
};

inline constexpr MenuEntry MenuSeparator{0, nullptr, nullptr};

// clang-format off
inline constexpr MenuEntry FileMenu[] = {
    {IdOpen,         "&Open",         "Open a memory data file"},
    {IdSave,         "&Save",         "Save memory data file"},
    {IdSaveAs,       "save &As...",   "Save file to new name"},
    {IdImport,       "&Import...",    "Import legacy data file"},
    {IdExport,       "&Export...",    "Export data file to csv"},
    MenuSeparator,
    {IdPrint,        "&Print...",     "Print the current tab"},
    {IdPrintPreview, "print preview", "Print Preview"},
    {IdPageSetup,    "page setup...", "Print Page Setup"},
    MenuSeparator,
    {IdQuit,         "&Quit",         "Quit the application"},
};

inline constexpr MenuEntry PageMenu[] = {
    {IdPageAdd,    "&Add page",    "Add page"},
    {IdPageDelete, "&Delete page", "Delete page"},
};

inline constexpr MenuEntry DataMenu[] = {
    {IdUpload,         "&Send to radio",      "Write data to radio"},
    {IdDownload,       "&Get from radio",     "Read data from radio"},
    MenuSeparator,
    {IdValidatePage,   "&Validate page data", "Validate rows with data"},
    MenuSeparator,
    {IdSelectAll,      "select &All",         "Select all for transfer"},
    {IdDeSelectAll,    "d&E-Select all",      "Clear all for transfer"},
    {IdClearHighlight, "&Clear Highlights",   "Clear cell highlight"},
};

inline constexpr MenuEntry SettingsMenu[] = {
    {IdSetPort,   "set &Port",   "Set com port"},
    {IdSetTarget, "set &Target", "Set target radio"},
};

inline constexpr MenuEntry HelpMenu[] = {
    {IdHelp,  "&Help file", "Help on Zelk"},
    {IdAbout, "&About",     "Information About Zelk"},
};

/// Entries of the context menu; a click shows those that apply to its place.
inline constexpr MenuEntry ContextMenu[] = {
    {IdDefaultRow,         "de&Fault row",    "Set row to default values"},
    {IdCreateShadow,       "create &Shadow",  "Create Shadow of this Primary"},
    {IdCopyRow,            "&Copy row",       "Copy row contents to clipboard"},
    {IdPasteRow,           "&Paste row",      "Paste clipboard contents to row"},
    {IdClearRow,           "c&Lear row",      "Clear row of all data"},
    {IdInsertRow,          "&Insert row",     "Insert row above selected row"},
    {IdDeleteRow,          "&Delete row",     "Delete row"},
    {IdMarkRow,            "&Mark row",       "Mark selected rows roe Column edit"},
    {IdDefaultCol,         "&Default col",    "Set column to default values"},
    {IdDefaultMarked,      "default &Marked", "Set column in marked rows to default values"},
    {IdRenumberToRowNum,   "set to &Row Num", "Re-number as row num"},
    {IdRenumberSequencial, "set in &Sequence", "Re-number in sequence"},
    {IdDefaultFile,        "&Default file",   "Set all file to default values"},
    {IdSaveDefault,        "&Save defaults",  "Save default data to file"},
    {IdLoadDefault,        "&Load defaults",  "Load default data from file"},
};

/// A tool; an entry without a label is a separator.
struct ToolEntry {
    int id;
    ToolImage image;
    const char* label;
    const char* shortHelp;
    const char* longHelp;
};

inline constexpr ToolEntry ToolSeparator{0, ToolImage::Open, nullptr, nullptr, nullptr};

inline constexpr ToolEntry Tools[] = {
    {IdOpen,        ToolImage::Open,      "Open",       "Open file",      "Open radio data file"},
    {IdSave,        ToolImage::Save,      "Save",       "Save file",      "Save radio data file"},
    {IdPrint,       ToolImage::Print,     "Print",      "Print file",     "Print radio data file"},
    ToolSeparator,
    {IdDownload,    ToolImage::Download,  "download",   "Get from radio", "Get data from Radio"},
    {IdUpload,      ToolImage::Upload,    "upload",     "Send to radio",  "Send data to Radio"},
    {IdSelectAll,   ToolImage::SelectAll, "select all", "Select",         "Select all channels"},
    {IdDeSelectAll, ToolImage::ClearAll,  "clear all",  "De-Select",      "De-select all channels"},
    ToolSeparator,
    {IdSetPort,     ToolImage::Port,      "port",       "Com Port",       "Set COM port"},
    {IdSetTarget,   ToolImage::Target,    "target",     "Target",         "Select target Radio"},
    ToolSeparator,
    {IdQuit,        ToolImage::Quit,      "Quit",       "Quit",           "Quit the application"},
    ToolSeparator,
    {IdHelp,        ToolImage::Help,      "help",       "Help",           "Open help file"},
};
// clang-format on
