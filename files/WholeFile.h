// Writing a file so that there is always a whole one.
#pragma once

#include <wx/string.h>

#include <memory>
#include <string_view>

/// A file that is made, or takes the place of another, once it lies whole beside it. The former
/// file's permissions go over to the new one, and of a link the file it names is replaced. What goes
/// wrong leaves everything as it was.
class FileReplacement {
public:
    FileReplacement();
    /// Takes away what has not been finished.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Begins, with an empty file beside path. Why that can't be, or empty.
    wxString Open(const wxString& path);

    bool IsOpened() const { return m_state != nullptr; }

    /// Writes the bytes and puts the file in its place. Why that failed, or empty. Needs IsOpened.
    wxString Finish(std::string_view bytes);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// Makes or replaces the file with these bytes as a FileReplacement. On failure nothing has changed,
/// and the answer is why; otherwise it is empty.
wxString WriteWholeFile(const wxString& path, std::string_view bytes);
