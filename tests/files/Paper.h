// Paper for tests: a sheet of pixels, and the texts drawn on it.
#pragma once

#include "files/ZelkPrinting.h"

#include <wx/bitmap.h>
#include <wx/dcgraph.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

#include <algorithm>
#include <string>
#include <vector>

/// An A4 sheet with ten pixels per millimetre, for a screen with half as many.
inline constexpr int Width = 2100, Height = 2970;

class Sheet {
public:
    explicit Sheet(ZelkPrintout& printout, int width = Width, int height = Height)
        : m_printout(printout), m_bitmap(width, height, 24), m_dc(m_bitmap) {
        m_dc.SetBackground(*wxWHITE_BRUSH);
        m_dc.Clear();
        printout.SetDC(&m_dc);
        printout.SetPPIScreen(127, 127);
        printout.SetPPIPrinter(254, 254);
        printout.SetPageSizePixels(width, height);
    }
    ~Sheet() { m_printout.SetDC(nullptr); }

    wxMemoryDC& Dc() { return m_dc; }
    /// The drawing so far.
    wxImage Picture() {
        m_dc.SelectObject(wxNullBitmap);
        return m_bitmap.ConvertToImage();
    }

private:
    ZelkPrintout& m_printout;
    wxBitmap m_bitmap;
    wxMemoryDC m_dc;
};

struct Pixel {
    unsigned char red, green, blue;

    bool operator==(const Pixel&) const = default;
};

inline Pixel PixelOf(const wxColour& colour) {
    return {colour.Red(), colour.Green(), colour.Blue()};
}

/// The smallest rectangle that contains every pixel of the part for which holds is true. Empty if none.
template <class Holds>
wxRect Where(const wxImage& picture, const wxRect& part, Holds holds) {
    int left = part.GetRight() + 1, top = part.GetBottom() + 1, right = -1, bottom = -1;
    for (int y = part.y; y <= part.GetBottom(); ++y)
        for (int x = part.x; x <= part.GetRight(); ++x) {
            const unsigned char* bytes = picture.GetData() + 3 * (y * picture.GetWidth() + x);
            if (holds(Pixel{bytes[0], bytes[1], bytes[2]})) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    return right < 0 ? wxRect() : wxRect(wxPoint(left, top), wxPoint(right, bottom));
}

inline wxRect WhereColour(const wxImage& picture, const wxRect& part, const wxColour& colour) {
    return Where(picture, part, [wanted = PixelOf(colour)](const Pixel& found) { return found == wanted; });
}

inline wxRect WhereColour(const wxImage& picture, const wxColour& colour) {
    return WhereColour(picture, picture.GetSize(), colour);
}

inline wxRect WhereInk(const wxImage& picture, const wxRect& part) {
    return Where(picture, part, [](const Pixel& found) { return found != Pixel{255, 255, 255}; });
}

/// A text that was drawn, with its place in device pixels.
struct DrawnText {
    std::string text;
    wxPoint place;
    wxSize size;
    wxColour colour;
    wxFont font;
};

/// Draws on a bitmap and records the texts.
class TracingDevice : public wxDC {
public:
    TracingDevice(wxMemoryDC& paper, std::vector<DrawnText>& texts) : wxDC(new Device(this, paper, texts)) {}

private:
    class Device : public wxGCDCImpl {
    public:
        Device(wxDC* owner, wxMemoryDC& paper, std::vector<DrawnText>& texts)
            : wxGCDCImpl(owner, paper), m_texts(texts) {}

    private:
        void DoDrawText(const wxString& text, wxCoord x, wxCoord y) override {
            const wxSize size = GetOwner()->GetTextExtent(text);
            m_texts.push_back({text.utf8_string(),
                               {LogicalToDeviceX(x), LogicalToDeviceY(y)},
                               {LogicalToDeviceXRel(size.x), LogicalToDeviceYRel(size.y)},
                               GetTextForeground(),
                               GetFont()});
            wxGCDCImpl::DoDrawText(text, x, y);
        }

        std::vector<DrawnText>& m_texts;
    };
};
