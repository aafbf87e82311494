// Command ids of menus, tools and context menu entries. 6009, 6010, 6017 and 6023 are unused.
#pragma once

enum CommandId : int {
    IdOpen = 5999,
    IdSave = 6000,
    IdSaveAs = 6001,
    IdImport = 6002,
    IdExport = 6003,
    IdPrint = 6004,
    IdPrintPreview = 6005,
    IdPageSetup = 6006,
    IdPageAdd = 6007,
    IdPageDelete = 6008,
    IdUpload = 6011,
    IdDownload = 6012,
    IdValidatePage = 6013,
    IdSelectAll = 6014,
    IdDeSelectAll = 6015,
    IdClearHighlight = 6016,
    IdSetPort = 6018,
    IdSetTarget = 6019,
    IdHelp = 6020,
    IdAbout = 6021,
    IdQuit = 6022,

    // Entries of the context menu.
    IdDefaultRow = 6024,
    IdCreateShadow = 6025,
    IdCopyRow = 6026,
    IdPasteRow = 6027,
    IdClearRow = 6028,
    IdInsertRow = 6029,
    IdDeleteRow = 6030,
    IdMarkRow = 6031,
    IdDefaultCol = 6032,
    IdDefaultMarked = 6033,
    IdRenumberToRowNum = 6034,
    IdRenumberSequencial = 6035,
    IdDefaultFile = 6036,
    IdSaveDefault = 6037,
    IdLoadDefault = 6038,

    // Commands that are keys of the grid only.
    IdEmptyCells = 6039,
};
