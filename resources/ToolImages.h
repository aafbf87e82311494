// The images of the tool bar and the program's icon, embedded in the program as PNG data.
#pragma once

#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>

/// Images of the tool bar, in the order of its tools.
enum class ToolImage { Open, Save, Print, Download, Upload, SelectAll, ClearAll, Port, Target, Quit, Help };

/// The image of a tool: 32 by 32 pixels with an alpha channel. Needs the image handlers
/// (`wxInitAllImageHandlers`), but no display. Without the PNG handler, returns an image that is not ok.
/// onDark adds a light outline, without which the dark lines of the drawings are lost on a dark background.
wxImage GetToolImage(ToolImage image, bool onDark = false);

/// The image of a tool as a bitmap. Needs a display. Returns an invalid bitmap when the image is not ok.
wxBitmap GetToolBitmap(ToolImage image, bool onDark = false);

/// The program's icon: 64 by 64 pixels with an alpha channel. Same conditions as for `GetToolImage`.
wxImage GetZelkIconImage();

/// The program's icon for a window. Same conditions as for `GetToolBitmap`.
wxIcon GetZelkIcon();
