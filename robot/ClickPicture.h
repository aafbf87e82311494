// Clicking at something that is known by its picture, in whichever program's window.
#pragma once

class wxImage;

namespace testbench {

class Hands;

/// Waits until the screen shows the picture (see FindPicture) and clicks at its middle. False if it didn't
/// come within `ms`. To be called in the window thread, whose windows are kept alive meanwhile.
bool ClickPicture(Hands& hands, const wxImage& picture, int ms = 10000);

} // namespace testbench
