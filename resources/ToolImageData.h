// Made by embed-images from the drawings: change those, not this file.
#pragma once

#include <span>

namespace ToolImageData {

/// One embedded PNG file each.
extern const std::span<const unsigned char> OpenPng;
extern const std::span<const unsigned char> SavePng;
extern const std::span<const unsigned char> PrintPng;
extern const std::span<const unsigned char> DownloadPng;
extern const std::span<const unsigned char> UploadPng;
extern const std::span<const unsigned char> SelectAllPng;
extern const std::span<const unsigned char> ClearAllPng;
extern const std::span<const unsigned char> PortPng;
extern const std::span<const unsigned char> TargetPng;
extern const std::span<const unsigned char> QuitPng;
extern const std::span<const unsigned char> HelpPng;
extern const std::span<const unsigned char> ZelkIconPng;

} // namespace ToolImageData
