#include "resources/ToolImages.h"

#include "resources/ToolImageData.h"

#include <wx/mstream.h>

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

wxBitmap MakeBitmap(const wxImage& image) {
    return image.IsOk() ? wxBitmap(image) : wxBitmap();
}

} // namespace

wxImage GetToolImage(ToolImage image) {
    return DecodeImage(GetToolImageData(image));
}

wxBitmap GetToolBitmap(ToolImage image) {
    return MakeBitmap(GetToolImage(image));
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
