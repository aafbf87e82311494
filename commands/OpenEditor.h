// The cell editor that is open while a command begins.
#pragma once

/// Takes the text of an open cell editor of the current page into its cell and closes the
/// editor, so that a command works on what the user sees.
void CommitOpenEditor();
