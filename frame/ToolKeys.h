// Tools under the keyboard.
#pragma once

#include <functional>

class wxToolBar;

/// Gives the keyboard to the first tool. Arrow keys go through the tools, Space and Return choose one.
///
/// @param leave called when Escape or Tab ends this
void GiveKeyboardToTools(wxToolBar& tools, const std::function<void()>& leave);
