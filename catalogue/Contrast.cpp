#include "catalogue/Contrast.h"

#include <algorithm>
#include <cmath>

namespace {

/// Returns the light of a channel (0 to 255) from 0 to 1.
double LightOf(unsigned char channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double LightOf(const wxColour& colour) {
    return 0.2126 * LightOf(colour.Red()) + 0.7152 * LightOf(colour.Green()) +
           0.0722 * LightOf(colour.Blue());
}

} // namespace

double ContrastOf(const wxColour& one, const wxColour& other) {
    const auto [darker, lighter] = std::minmax({LightOf(one), LightOf(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

wxColour ReadableOn(const wxColour& background, const wxColour& preferred) {
    if (ContrastOf(background, preferred) >= ReadableContrast)
        return preferred;
    const wxColour black(0, 0, 0), white(255, 255, 255);
    return ContrastOf(background, black) >= ContrastOf(background, white) ? black : white;
}
