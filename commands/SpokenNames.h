// What a screen reader is told about windows. Each operating system has its own source.
#pragma once

#include <wx/string.h>

#include <vector>

class wxWindow;

/// Names a control. Call again when the name changes.
void NameForReader(wxWindow& control, const wxString& name);

/// Kinds of windows that draw their content themselves, so that the system knows nothing of it.
enum class DrawnContent {
    Cells, ///< SpeakCell tells the one with the cursor
    Fields ///< SpeakFields tells all
};

/// Makes the system ask the window for its content from now on. Call once, right after the window was
/// created.
void DescribeToReader(wxWindow& window, DrawnContent content, const wxString& name);

/// Tells the cell that the keyboard acts on in a window of cells, if the place or the text differs from the
/// last call. A new place takes the reader's focus there, and so does `again`, which says that the window
/// has just got the keyboard.
///
/// @param place number of the cell, from 0 on and different for each cell
void SpeakCell(wxWindow& window, int place, const wxString& text, bool again);

/// Tells the texts of all fields, of which those that differ from the last call are news.
void SpeakFields(wxWindow& window, const std::vector<wxString>& texts);
