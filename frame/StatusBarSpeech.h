// The status bar as a screen reader hears it.
#pragma once

class wxStatusBar;

/// From now on tells a reader the fields of the main window's status bar, each with its name.
void SpeakStatusBar(wxStatusBar* statusBar);
