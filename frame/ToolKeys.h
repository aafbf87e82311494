// Tools and menus under the keyboard.
#pragma once

#include <functional>

class wxFrame;
class wxToolBar;

/// Gives the keyboard to the first tool. Arrow keys go through the tools, Space and Return choose one.
///
/// @param leave called when Escape or Tab ends this
void GiveKeyboardToTools(wxToolBar& tools, const std::function<void()>& leave);

/// Opens the menu bar for the keyboard, where F10 doesn't do so in every window. Returns false if the system
/// needs no help: it then gets the key.
bool OpenMenuBar(wxFrame& window);
