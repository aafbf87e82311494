// What the status bar tells of a save.
#pragma once

#include <wx/string.h>

#include <system_error>
#include <vector>

/// For TellOutcome.
struct Outcome {
    wxString verdict; ///< short enough for the first field of a window of default size
    wxString story;
};

/// Of a save that was carried out. file has an extension and no folder. leftOut are the rows with data that
/// the file lacks, ascending; row 0 counts as the default row and not as a memory.
Outcome SavedOutcome(const wxString& file, const std::vector<int>& leftOut);

/// Of a save that failed. damaged: the file at path holds neither its former bytes nor the new ones.
Outcome NotSavedOutcome(const wxString& path, const std::error_code& error, bool damaged);

/// A file's name with its middle left out where it is long; beginning and extension stay.
wxString ShortFileName(const wxString& name);
