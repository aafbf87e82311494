// The log of a transfer, "Zelk.log".
#include "transfer/TransferLog.h"

#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/log.h>

void OpenTransferLog(wxFFile& file, const wxString& directory) {
    CloseTransferLog(file);
    const wxLogNull silence;
    const wxString path = wxFileName(directory, "Zelk.log").GetFullPath();
    if (wxFileExists(path) && wxRemoveFile(path))
        file.Open(path, "w");
}

void WriteTransferLog(wxFFile& file, const wxString& line) {
    const wxLogNull silence;
    if (file.IsOpened())
        file.Write(line + "\n");
}

void CloseTransferLog(wxFFile& file) {
    const wxLogNull silence;
    if (file.IsOpened() && !file.Close())
        file.Detach();
}
