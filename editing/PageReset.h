// Emptying a page before other memories come.
#pragma once

/// Empties page (0-based, the current one): cells, flags, read-only marks and paint of former
/// rows; writes its defaults and gives all zone slots back.
void ResetPage(int page);

/// Empties the memories of page (0-based, the current one) that SetPageDefaults or ResetPage has
/// filled on a P25 page, and gives their zone slots back. To be called while the page holds no
/// others; does nothing on other pages.
void EmptyDefaultMemories(int page);
