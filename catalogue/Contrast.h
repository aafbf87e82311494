// Contrast of a text with its background.
#pragma once

#include <wx/colour.h>

/// The least contrast at which texts are read without effort.
inline constexpr double ReadableContrast = 4.5;

/// Returns the contrast of two opaque colours: 1 if they are equal, 21 for black and white.
double ContrastOf(const wxColour& one, const wxColour& other);

/// Returns a colour for texts on the background: the preferred one if it is readable, otherwise black or
/// white.
wxColour ReadableOn(const wxColour& background, const wxColour& preferred);
