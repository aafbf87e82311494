#include "frame/ToolKeys.h"

#include <gtk/gtk.h>
#include <wx/toolbar.h>

// The toolkit gives no access to the keys of its tools.

namespace {

using Leave = std::function<void()>;

extern "C" {

gboolean OnToolKey(GtkWidget*, GdkEventKey* event, gpointer data) {
    switch (event->keyval) {
    case GDK_KEY_Escape:
    case GDK_KEY_Tab:
    case GDK_KEY_KP_Tab:
    case GDK_KEY_ISO_Left_Tab:
        (*static_cast<Leave*>(data))();
        return TRUE;
    default:
        return FALSE;
    }
}

void DeleteLeave(gpointer data, GClosure*) {
    delete static_cast<Leave*>(data);
}
}

struct Search {
    const Leave& leave;
    GtkWidget* first = nullptr;
};

void Prepare(GtkWidget* widget, gpointer data) {
    auto* search = static_cast<Search*>(data);
    if (!GTK_IS_BUTTON(widget)) {
        if (GTK_IS_CONTAINER(widget))
            gtk_container_forall(GTK_CONTAINER(widget), Prepare, data);
        return;
    }
    static constexpr const char* prepared = "zelk-tool-keys";
    if (!g_object_get_data(G_OBJECT(widget), prepared)) {
        g_object_set_data(G_OBJECT(widget), prepared, widget);
        gtk_widget_set_can_focus(widget, TRUE);
        g_signal_connect_data(widget, "key-press-event", G_CALLBACK(OnToolKey), new Leave(search->leave),
                              DeleteLeave, GConnectFlags(0));
    }
    if (!search->first && gtk_widget_get_mapped(widget))
        search->first = widget;
}

} // namespace

void GiveKeyboardToTools(wxToolBar& tools, const Leave& leave) {
    Search search{leave};
    Prepare(tools.GetHandle(), &search);
    if (search.first)
        gtk_widget_grab_focus(search.first);
}

bool OpenMenuBar(wxFrame&) {
    return false;
}
