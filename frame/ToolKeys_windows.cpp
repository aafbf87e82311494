#include "frame/ToolKeys.h"

#include <wx/toolbar.h>

// The system's tool bar knows the keys; Ctrl+Tab of the window leaves it.
void GiveKeyboardToTools(wxToolBar& tools, const std::function<void()>&) {
    tools.SetFocus();
}
