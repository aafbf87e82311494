// Writes a file so that a complete one exists at all times.
#pragma once

#include "files/InPlace.h"

#include <wx/string.h>

#include <memory>
#include <string_view>
#include <system_error>

/// Creates or replaces a file: a complete new file, written next to it, takes its place. The new file gets
/// the permissions of the former one; if path is a link, the file that it names is replaced. A failure leaves
/// everything unchanged.
///
/// A writable file in a folder that can't be written to is overwritten in place. A failure is then undone if
/// the device allows it.
class FileReplacement {
public:
    FileReplacement();
    /// Discards an unfinished replacement.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Starts the replacement, with an empty file next to path if the folder allows it. Returns the reason
    /// for failure, or no error.
    [[nodiscard]] std::error_code Open(const wxString& path);

    bool IsOpened() const { return m_state != nullptr; }

    /// Writes the bytes and puts the file in its place. Requires IsOpened.
    WriteResult Finish(std::string_view bytes);

private:
    struct State;
    std::unique_ptr<State> m_state;
};
