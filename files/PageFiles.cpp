#include "files/PageFiles.h"

#include "catalogue/PageModel.h"

#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/msgdlg.h>

#include <algorithm>

bool IsOwnFile(int page, const wxString& path) {
    const wxArrayString& files = PageStrings[page].OwnFiles;
    return std::any_of(files.begin(), files.end(),
                       [&](const wxString& file) { return wxFileName(file).SameAs(wxFileName(path)); });
}

void AddOwnFile(int page, const wxString& path) {
    if (!IsOwnFile(page, path))
        PageStrings[page].OwnFiles.Add(path);
}

bool MayReplaceFile(int page, const wxString& path) {
    if (!wxFileName::FileExists(path) || IsOwnFile(page, path))
        return true;
    wxMessageDialog question(
        wxGetTopLevelParent(PageGrid[page]),
        wxString::Format("%s exists and was not opened on this page!", wxFileName(path).GetFullName()),
        "Replace file?", wxOK | wxCANCEL);
    return question.ShowModal() == wxID_OK;
}
