// The cell editor that may be open when a command begins.
#pragma once

/// Stores the text of an open cell editor of the current page in its cell and closes the editor, so that a
/// command works on what the user sees.
void CommitOpenEditor();
