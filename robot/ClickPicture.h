// Clicks on something found by its picture, in the window of any program.
#pragma once

class wxImage;

namespace testbench {

class Hands;

/// Waits until the screen shows the picture (see FindPicture) and clicks on its middle. Returns false if it
/// doesn't appear within `ms`. Call in the window thread; the wait dispatches that thread's events.
bool ClickPicture(Hands& hands, const wxImage& picture, int ms = 10000);

} // namespace testbench
