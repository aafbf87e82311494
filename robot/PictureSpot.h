// Finding something on the screen by what it looks like.
#pragma once

#include <optional>

#include <wx/gdicmn.h>

class wxImage;

namespace testbench {

/// The middle of the first place, from the top, at which `screen` shows `picture`; only the picture's
/// opaque pixels count. Both are searched as they stand, without scaling.
std::optional<wxPoint> FindPicture(const wxImage& screen, const wxImage& picture);

} // namespace testbench
