#include "frame/FirstSize.h"

#include <gtk/gtk.h>
#include <wx/toplevel.h>

void TakeFirstSize(wxTopLevelWindow& window) {
    // Otherwise GTK begins with a window of 2 by 1 pixels, and complains on the terminal about menus and
    // tools that have no room in it.
    const wxSize size = window.GetSize();
    GdkRectangle place{0, 0, size.x, size.y};
    gtk_widget_size_allocate(window.GetHandle(), &place);
}
