#include "frame/FirstSize.h"

#include <gtk/gtk.h>
#include <wx/toplevel.h>

void TakeFirstSize(wxTopLevelWindow& window) {
    // Otherwise GTK begins with a window of 2 by 1 pixels, and complains on the terminal about menus and
    // tools that have no room in it.
    GtkWidget* const widget = window.GetHandle();
    GdkRectangle place{};
    // Not the toolkit's size of the window, which counts its frame.
    gtk_window_get_size(GTK_WINDOW(widget), &place.width, &place.height);
    gtk_widget_size_allocate(widget, &place);
}
