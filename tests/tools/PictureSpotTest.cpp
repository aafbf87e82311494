#include "robot/PictureSpot.h"

#include <gtest/gtest.h>
#include <wx/image.h>

using testbench::FindPicture;

namespace {

/// A cross of 3 by 3 red pixels; its corners are transparent.
wxImage Cross() {
    wxImage picture(3, 3);
    picture.InitAlpha();
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x) {
            picture.SetRGB(x, y, 200, 0, 0);
            picture.SetAlpha(x, y, x == 1 || y == 1 ? 255 : 0);
        }
    return picture;
}

wxImage ScreenWithCrossAt(int left, int top) {
    wxImage screen(20, 15);
    for (int i = 0; i < 3; ++i) {
        screen.SetRGB(left + i, top + 1, 200, 0, 0);
        screen.SetRGB(left + 1, top + i, 200, 0, 0);
    }
    return screen;
}

} // namespace

TEST(PictureSpot, IsTheMiddleOfThePlaceThatShowsThePicture) {
    EXPECT_EQ(FindPicture(ScreenWithCrossAt(5, 7), Cross()), wxPoint(6, 8));
    EXPECT_EQ(FindPicture(ScreenWithCrossAt(17, 12), Cross()), wxPoint(18, 13));
}

TEST(PictureSpot, IsNowhereWhenAPixelDiffers) {
    wxImage screen = ScreenWithCrossAt(5, 7);
    screen.SetRGB(6, 8, 200, 0, 1);
    EXPECT_FALSE(FindPicture(screen, Cross()).has_value());
}
