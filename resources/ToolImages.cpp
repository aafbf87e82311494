#include "resources/ToolImages.h"

#include "resources/ToolImageData.h"

#include <wx/mstream.h>

#include <algorithm>

namespace {

wxImage DecodeImage(std::span<const unsigned char> data) {
    wxMemoryInputStream stream(data.data(), data.size());
    return wxImage(stream, wxBITMAP_TYPE_ANY);
}

std::span<const unsigned char> GetToolImageData(ToolImage image) {
    switch (image) {
    case ToolImage::Open:
        return ToolImageData::OpenPng;
    case ToolImage::Save:
        return ToolImageData::SavePng;
    case ToolImage::Print:
        return ToolImageData::PrintPng;
    case ToolImage::Download:
        return ToolImageData::DownloadPng;
    case ToolImage::Upload:
        return ToolImageData::UploadPng;
    case ToolImage::SelectAll:
        return ToolImageData::SelectAllPng;
    case ToolImage::ClearAll:
        return ToolImageData::ClearAllPng;
    case ToolImage::Port:
        return ToolImageData::PortPng;
    case ToolImage::Target:
        return ToolImageData::TargetPng;
    case ToolImage::Quit:
        return ToolImageData::QuitPng;
    case ToolImage::Help:
        return ToolImageData::HelpPng;
    }
    return {};
}

/// Returns the greatest alpha of the pixel and its neighbours.
int AlphaAround(const wxImage& picture, int x, int y) {
    int most = 0;
    for (int nearY = std::max(y - 1, 0); nearY <= std::min(y + 1, picture.GetHeight() - 1); ++nearY)
        for (int nearX = std::max(x - 1, 0); nearX <= std::min(x + 1, picture.GetWidth() - 1); ++nearX)
            most = std::max<int>(most, picture.GetAlpha(nearX, nearY));
    return most;
}

/// Returns the picture over a light outline of one pixel.
wxImage Outlined(const wxImage& picture) {
    constexpr int Light = 0xd8, Full = 255;
    wxImage outlined = picture.Copy();
    for (int y = 0; y < picture.GetHeight(); ++y)
        for (int x = 0; x < picture.GetWidth(); ++x) {
            const int own = picture.GetAlpha(x, y);
            const int outline = AlphaAround(picture, x, y) * (Full - own) / Full;
            if (outline == 0)
                continue;
            const auto mixed = [own, outline](int colour) {
                return static_cast<unsigned char>((colour * own + Light * outline) / (own + outline));
            };
            outlined.SetRGB(x, y, mixed(picture.GetRed(x, y)), mixed(picture.GetGreen(x, y)),
                            mixed(picture.GetBlue(x, y)));
            outlined.SetAlpha(x, y, static_cast<unsigned char>(own + outline));
        }
    return outlined;
}

wxBitmap MakeBitmap(const wxImage& image) {
    return image.IsOk() ? wxBitmap(image) : wxBitmap();
}

} // namespace

wxImage GetToolImage(ToolImage image, bool onDark) {
    wxImage picture = DecodeImage(GetToolImageData(image));
    return onDark && picture.IsOk() ? Outlined(picture) : picture;
}

wxBitmap GetToolBitmap(ToolImage image, bool onDark) {
    return MakeBitmap(GetToolImage(image, onDark));
}

wxImage GetZelkIconImage() {
    return DecodeImage(ToolImageData::ZelkIconPng);
}

wxIcon GetZelkIcon() {
    wxIcon icon;
    const wxBitmap bitmap = MakeBitmap(GetZelkIconImage());
    if (bitmap.IsOk()) {
        icon.CopyFromBitmap(bitmap);
    }
    return icon;
}
