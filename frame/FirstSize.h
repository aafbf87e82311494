// The size of a window before it is shown.
#pragma once

class wxTopLevelWindow;

/// Lays the parts of a window that was never shown out in its size.
void TakeFirstSize(wxTopLevelWindow& window);
