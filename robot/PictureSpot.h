// Finds something on the screen by its picture.
#pragma once

#include <wx/gdicmn.h>

#include <optional>

class wxImage;

namespace testbench {

/// Middle of the first place, from the top, where `screen` shows `picture`; nothing if there is none. Only
/// the picture's opaque pixels are compared, without scaling.
std::optional<wxPoint> FindPicture(const wxImage& screen, const wxImage& picture);

} // namespace testbench
