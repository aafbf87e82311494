// Resetting of a page before other memories are loaded.
#pragma once

/// Resets page (0-based, the current one): clears cells, flags, and the read-only marks and paint of former
/// rows; writes its defaults and releases all zone slots.
void ResetPage(int page);

/// Clears the memories of page (0-based, the current one) that SetPageDefaults or ResetPage wrote on a P25
/// page, and releases their zone slots. Call only while the page holds no others. No effect on other pages.
void EmptyDefaultMemories(int page);
