#include "frame/FirstSize.h"

// The system's windows have their size from the start.
void TakeFirstSize(wxTopLevelWindow&) {}
