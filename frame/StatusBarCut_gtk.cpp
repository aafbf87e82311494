#include "frame/StatusBarCut.h"

#include <wx/statusbr.h>

namespace {

/// The toolkit knows one style for all fields.
class CutStatusBar : public wxStatusBar {
public:
    CutStatusBar(wxWindow* parent, wxWindowID id, long style, const wxString& name, int cutAtStart)
        : wxStatusBar(parent, id, style | wxSTB_ELLIPSIZE_END, name), m_cutAtStart(cutAtStart) {}

protected:
    void DrawFieldText(wxDC& dc, const wxRect& rect, int field, int textHeight) override {
        const long style = m_windowStyle;
        if (field == m_cutAtStart)
            m_windowStyle = (style & ~wxSTB_ELLIPSIZE_END) | wxSTB_ELLIPSIZE_START;
        wxStatusBar::DrawFieldText(dc, rect, field, textHeight);
        m_windowStyle = style;
    }

private:
    int m_cutAtStart;
};

} // namespace

wxStatusBar* MakeCutStatusBar(wxWindow* parent, wxWindowID id, long style, const wxString& name,
                              int cutAtStart) {
    return new CutStatusBar(parent, id, style, name, cutAtStart);
}
