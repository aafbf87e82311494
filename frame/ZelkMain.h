// The main window with its commands.
#pragma once

#include "frame/ZelkGUI.h"

#include <memory>

class FileImporter;

/// The main window. Each command's handler is defined beside the subsystem that it serves.
class ZelkFrame : public OrvZELFrame {
public:
    explicit ZelkFrame(wxWindow* parent);
    ~ZelkFrame() override;

    void OnClose(wxCloseEvent& event) override;
    void OnQuit(wxCommandEvent& event) override;

    // files/
    void OnOpen(wxCommandEvent& event) override;
    void OnSave(wxCommandEvent& event) override;
    void OnSaveAs(wxCommandEvent& event) override;
    void OnImport(wxCommandEvent& event) override;
    void OnExport(wxCommandEvent& event) override;
    void OnPrint(wxCommandEvent& event) override;
    void OnPrintPreview(wxCommandEvent& event) override;
    void OnPageSetup(wxCommandEvent& event) override;

    // transfer/
    void OnUpload(wxCommandEvent& event) override;
    void OnDownload(wxCommandEvent& event) override;

    // frame/
    void OnSetPort(wxCommandEvent& event) override;
    void OnSetTarget(wxCommandEvent& event) override;
    void OnHelp(wxCommandEvent& event) override;
    void OnAbout(wxCommandEvent& event) override;
    void OnPageChanged(wxBookCtrlEvent& event) override;
    void OnPageChanging(wxBookCtrlEvent&) override {}
    void OnPageAdd(wxCommandEvent& event) override;
    void OnPageDelete(wxCommandEvent& event) override;

    // editing/
    void OnGridCellChanging(wxGridEvent& event) override;
    void OnGridKeyDown(wxKeyEvent& event) override;
    void OnValidatePage(wxCommandEvent& event) override;
    void OnSelectAll(wxCommandEvent& event) override;
    void OnDeSelectAll(wxCommandEvent& event) override;
    void OnDefaultRow(wxCommandEvent& event) override;
    void OnCreateShadow(wxCommandEvent& event) override;
    void OnCopyRow(wxCommandEvent& event) override;
    void OnPasteRow(wxCommandEvent& event) override;
    void OnClearRow(wxCommandEvent& event) override;
    void OnInsertRow(wxCommandEvent& event) override;
    void OnDeleteRow(wxCommandEvent& event) override;
    void OnMarkRow(wxCommandEvent& event) override;
    void OnDefaultCol(wxCommandEvent& event) override;
    void OnDefaultMarked(wxCommandEvent& event) override;
    void OnRenumberToRowNum(wxCommandEvent& event) override;
    void OnRenumberSequencial(wxCommandEvent& event) override;
    void OnDefaultFile(wxCommandEvent& event) override;
    void OnSaveDefault(wxCommandEvent& event) override;
    void OnLoadDefault(wxCommandEvent& event) override;
    void OnClearHighlight(wxCommandEvent& event) override;

    // diagnostics/
    void OnDebug(wxCommandEvent& event) override;

    void OnSpare(wxCommandEvent&) override {}

    /// Reads the files of other programs.
    std::unique_ptr<FileImporter> m_importer;
};
