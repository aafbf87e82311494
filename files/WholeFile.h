// Writing a file so that there is always a whole one.
#pragma once

#include <wx/string.h>

#include <memory>
#include <string_view>
#include <system_error>

/// A file that is made, or takes the place of another, once it lies whole beside it. The former
/// file's permissions go over to the new one, and of a link the file it names is replaced. What goes
/// wrong leaves everything as it was.
///
/// A file that may be written in a folder that may not is overwritten where it stands. A failure is undone
/// then, as far as the device allows.
class FileReplacement {
public:
    FileReplacement();
    /// Takes away what has not been finished.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Begins, with an empty file beside path where the folder allows it. Answers why that can't be, or no
    /// error.
    std::error_code Open(const wxString& path);

    bool IsOpened() const { return m_state != nullptr; }

    /// Writes the bytes and puts the file in its place. Answers why that failed, or no error. Needs IsOpened.
    std::error_code Finish(std::string_view bytes);

    /// After a Finish that failed: true when the former file was overwritten and could not be restored.
    bool FormerIsDamaged() const { return m_formerIsDamaged; }

private:
    struct State;
    std::unique_ptr<State> m_state;
    bool m_formerIsDamaged = false;
};
