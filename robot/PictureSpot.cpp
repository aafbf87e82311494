#include "robot/PictureSpot.h"

#include <wx/image.h>

#include <cstring>
#include <vector>

namespace testbench {

namespace {

/// An opaque pixel of the picture, with its position.
struct Pixel {
    int x, y;
    unsigned char rgb[3];
};

std::vector<Pixel> OpaquePixels(const wxImage& picture) {
    std::vector<Pixel> pixels;
    for (int y = 0; y < picture.GetHeight(); ++y)
        for (int x = 0; x < picture.GetWidth(); ++x)
            if (!picture.HasAlpha() || picture.GetAlpha(x, y) == 255)
                pixels.push_back(
                    {x, y, {picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)}});
    return pixels;
}

} // namespace

std::optional<wxPoint> FindPicture(const wxImage& screen, const wxImage& picture) {
    const std::vector<Pixel> pixels = OpaquePixels(picture);
    const unsigned char* data = screen.GetData();
    const int width = screen.GetWidth();
    const auto standsAt = [&](int left, int top) {
        for (const Pixel& pixel : pixels)
            if (std::memcmp(data + 3 * ((top + pixel.y) * width + left + pixel.x), pixel.rgb, 3) != 0)
                return false;
        return !pixels.empty();
    };
    for (int top = 0; top + picture.GetHeight() <= screen.GetHeight(); ++top)
        for (int left = 0; left + picture.GetWidth() <= width; ++left)
            if (standsAt(left, top))
                return wxPoint(left + picture.GetWidth() / 2, top + picture.GetHeight() / 2);
    return std::nullopt;
}

} // namespace testbench
