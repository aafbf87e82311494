#include "resources/ToolImages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>

namespace {

struct NamedImage {
    const char* name;
    ToolImage image;
};

constexpr std::array<NamedImage, 11> AllImages{{
    {"Open", ToolImage::Open},
    {"Save", ToolImage::Save},
    {"Print", ToolImage::Print},
    {"Download", ToolImage::Download},
    {"Upload", ToolImage::Upload},
    {"SelectAll", ToolImage::SelectAll},
    {"ClearAll", ToolImage::ClearAll},
    {"Port", ToolImage::Port},
    {"Target", ToolImage::Target},
    {"Quit", ToolImage::Quit},
    {"Help", ToolImage::Help},
}};

class ToolImages : public testing::Test {
protected:
    static void SetUpTestSuite() { wxInitAllImageHandlers(); }
    static void TearDownTestSuite() { wxImage::CleanUpHandlers(); }
};

/// Colours and alpha of all pixels, for comparing whole images.
std::string GetPixels(const wxImage& image) {
    const auto count = static_cast<size_t>(image.GetWidth()) * static_cast<size_t>(image.GetHeight());
    std::string pixels(reinterpret_cast<const char*>(image.GetData()), 3 * count);
    if (image.HasAlpha()) {
        pixels.append(reinterpret_cast<const char*>(image.GetAlpha()), count);
    }
    return pixels;
}

/// True when the alpha channel holds both a fully clear and a fully solid pixel.
bool IsCutOut(const wxImage& image) {
    const unsigned char* alpha = image.GetAlpha();
    const unsigned char* end = alpha + image.GetWidth() * image.GetHeight();
    const auto [least, most] = std::minmax_element(alpha, end);
    return *least == 0 && *most == 255;
}

} // namespace

TEST_F(ToolImages, EachIs32By32WithAClearBackground) {
    for (const auto& [name, id] : AllImages) {
        SCOPED_TRACE(name);
        const wxImage image = GetToolImage(id);
        ASSERT_TRUE(image.IsOk());
        EXPECT_EQ(image.GetWidth(), 32);
        EXPECT_EQ(image.GetHeight(), 32);
        ASSERT_TRUE(image.HasAlpha());
        EXPECT_TRUE(IsCutOut(image));
    }
}

TEST_F(ToolImages, NoTwoAreEqual) {
    std::set<std::string> seen;
    for (const auto& [name, id] : AllImages) {
        EXPECT_TRUE(seen.insert(GetPixels(GetToolImage(id))).second) << name << " repeats an earlier image";
    }
}

TEST_F(ToolImages, EachToolShowsItsOwnDrawing) {
    // One pixel of each drawing, read off the SVG sources: ink 22344a, paper ffffff, blue 2f7bd0, amber
    // f5a524.
    struct Pixel {
        const char* name;
        ToolImage image;
        int x, y;
        const char* colour;
    };
    constexpr std::array<Pixel, 11> Pixels{{
        {"folder's front", ToolImage::Open, 16, 22, "#F5A524"},
        {"disk's shutter", ToolImage::Save, 17, 7, "#22344A"},
        {"printer's body", ToolImage::Print, 6, 16, "#2F7BD0"},
        {"head of the arrow to the page", ToolImage::Download, 21, 17, "#F5A524"},
        {"head of the arrow to the radio", ToolImage::Upload, 11, 17, "#F5A524"},
        {"highlighted row", ToolImage::SelectAll, 16, 12, "#2F7BD0"},
        {"plain row", ToolImage::ClearAll, 16, 12, "#FFFFFF"},
        {"rim of the connector", ToolImage::Port, 16, 8, "#2F7BD0"},
        {"upper tick of the cross hairs", ToolImage::Target, 16, 3, "#F5A524"},
        {"arrow out of the door", ToolImage::Quit, 27, 16, "#F5A524"},
        {"dot of the question mark", ToolImage::Help, 16, 23, "#FFFFFF"},
    }};
    for (const auto& [name, id, x, y, colour] : Pixels) {
        const wxImage image = GetToolImage(id);
        ASSERT_TRUE(image.IsOk()) << name;
        EXPECT_EQ(
            wxString::Format("#%02X%02X%02X", image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y)),
            wxString(colour))
            << name;
    }
}

TEST_F(ToolImages, HaveALightOutlineOnADarkBackgroundAndAreTheSameWithinIt) {
    for (const auto& [name, id] : AllImages) {
        SCOPED_TRACE(name);
        const wxImage plain = GetToolImage(id), outlined = GetToolImage(id, true);
        ASSERT_TRUE(outlined.IsOk());
        int edges = 0;
        for (int y = 1; y < 31; ++y)
            for (int x = 1; x < 31; ++x) {
                if (plain.GetAlpha(x, y) == 255) {
                    EXPECT_EQ(outlined.GetRed(x, y), plain.GetRed(x, y)) << x << ", " << y;
                    EXPECT_EQ(outlined.GetBlue(x, y), plain.GetBlue(x, y)) << x << ", " << y;
                } else if (plain.GetAlpha(x, y) == 0 && plain.GetAlpha(x, y + 1) > 100) {
                    EXPECT_GE(outlined.GetAlpha(x, y), plain.GetAlpha(x, y + 1)) << x << ", " << y;
                    EXPECT_GT(outlined.GetRed(x, y), 200) << x << ", " << y;
                    ++edges;
                }
            }
        EXPECT_GT(edges, 3);
    }
}

TEST_F(ToolImages, IconIs64By64WithAClearBackground) {
    const wxImage image = GetZelkIconImage();
    ASSERT_TRUE(image.IsOk());
    EXPECT_EQ(image.GetWidth(), 64);
    EXPECT_EQ(image.GetHeight(), 64);
    ASSERT_TRUE(image.HasAlpha());
    EXPECT_TRUE(IsCutOut(image));
}
