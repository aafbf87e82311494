// Lets grids exist without a display. A grid asks the toolkit for the desktop's font and colours as soon as
// it is made, and the toolkit asks the display. These answers replace the toolkit's in this program, because
// the linker finds them first. Nothing here is ever drawn.
#include "campaign/NoDisplay.h"

#include <glib.h>
#include <wx/colour.h>
#include <wx/font.h>
#include <wx/settings.h>

wxFont wxSystemSettingsNative::GetFont(wxSystemFont) {
    return wxFont(wxFontInfo(10).FaceName("Sans"));
}

wxColour wxSystemSettingsNative::GetColour(wxSystemColour) {
    return *wxWHITE;
}

int wxSystemSettingsNative::GetMetric(wxSystemMetric, const wxWindow*) {
    return 16;
}

namespace Campaign {

void SilenceDisplayComplaints() {
    // The toolkit's library complains about each cursor of a grid.
    g_log_set_writer_func(
        [](GLogLevelFlags, const GLogField*, gsize, gpointer) { return G_LOG_WRITER_HANDLED; }, nullptr,
        nullptr);
}

} // namespace Campaign
