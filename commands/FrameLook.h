// What frames need to look alike on all systems.
#pragma once

class wxFrame;

/// Style of the main window: the two scroll bars, where they stay hidden while there is nothing to scroll.
extern const long FrameScrollBars;

/// Gives a frame the system's colour of dialogs, and has it drawn again after a dialog that disabled it. One
/// source file for each operating system.
void SetFrameLook(wxFrame& frame);
