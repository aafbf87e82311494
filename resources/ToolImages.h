// The images of the tool bar and the program's icon, embedded in the program as PNG data.
#pragma once

#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>

/// The images of the tool bar, in its order.
enum class ToolImage { Open, Save, Print, Download, Upload, SelectAll, ClearAll, Port, Target, Quit, Help };

/// The image of a tool: 32 by 32 pixels with an alpha channel. Needs no display, but the image handlers
/// (`wxInitAllImageHandlers`). Without the PNG handler the answer is an image that is not ok.
wxImage GetToolImage(ToolImage image);

/// The image of a tool as a bitmap. Needs a display; an invalid bitmap when the image is not ok.
wxBitmap GetToolBitmap(ToolImage image);

/// The program's icon: 64 by 64 pixels with an alpha channel. Conditions as for `GetToolImage`.
wxImage GetZelkIconImage();

/// The program's icon for a window. Conditions as for `GetToolBitmap`.
wxIcon GetZelkIcon();
