#include "editing/ChoiceList.h"

#include <gtk/gtk.h>
#include <wx/combobox.h>

#include <algorithm>
#include <optional>

// The list is a native menu; its keys never reach the toolkit.

namespace {

/// State of an open list.
struct OpenList {
    GtkMenuShell* menu;
    GtkComboBox* control;
    ChoiceListListener* listener;
    /// True once the mouse has moved in it.
    bool pointed = false;

    /// True if the menu itself highlighted its first entry, as it does when the control shows no choice.
    bool HighlightsByItself() const {
        return !pointed && !listener->KeysChose() && gtk_combo_box_get_active(control) < 0;
    }

    /// Returns the entries in order; the caller frees the list with g_list_free.
    GList* Entries() const { return gtk_container_get_children(GTK_CONTAINER(menu)); }

    int PositionOf(GtkWidget* entry) const {
        GList* entries = Entries();
        const int position = g_list_index(entries, entry);
        g_list_free(entries);
        return position;
    }

    void Highlight(int position) const {
        GList* entries = Entries();
        gtk_menu_shell_deselect(menu);
        if (position >= 0)
            if (gpointer entry = g_list_nth_data(entries, static_cast<guint>(position)))
                gtk_menu_shell_select_item(menu, GTK_WIDGET(entry));
        g_list_free(entries);
    }
};

bool Moves(guint key) {
    static constexpr guint keys[] = {GDK_KEY_Up,           GDK_KEY_Down,    GDK_KEY_Page_Up,
                                     GDK_KEY_Page_Down,    GDK_KEY_Home,    GDK_KEY_End,
                                     GDK_KEY_KP_Up,        GDK_KEY_KP_Down, GDK_KEY_KP_Page_Up,
                                     GDK_KEY_KP_Page_Down, GDK_KEY_KP_Home, GDK_KEY_KP_End};
    return std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
}

/// Returns the character that a key adds to the typed text; none for other keys.
std::optional<wxUniChar> TypedBy(const GdkEventKey& key, const ChoiceListListener& listener) {
    const wxUniChar character(gdk_keyval_to_unicode(key.keyval));
    if (character < ' ' || character == 127 || (key.state & (GDK_CONTROL_MASK | GDK_MOD1_MASK)))
        return std::nullopt;
    if (character == ' ' && !listener.TakesBlank())
        return std::nullopt;
    return character;
}

/// Handles Enter and Tab. Returns false to leave the rest to the menu, which takes the highlighted entry.
bool End(const OpenList& list, bool tab) {
    GtkWidget* entry = gtk_menu_shell_get_selected_item(list.menu);
    if (entry && !tab && !list.HighlightsByItself())
        return false;
    if (entry && list.listener->KeysChose())
        list.listener->TakeFromList(list.PositionOf(entry));
    gtk_combo_box_popdown(list.control);
    return true;
}

/// Returns true for a key that the menu must not see.
bool TakeKey(const OpenList& list, const GdkEventKey& key) {
    switch (key.keyval) {
    case GDK_KEY_BackSpace:
        list.Highlight(list.listener->TakeBackInList());
        return true;
    case GDK_KEY_Escape:
        list.listener->GiveUpList();
        return false;
    case GDK_KEY_Return:
    case GDK_KEY_KP_Enter:
    case GDK_KEY_ISO_Enter:
        return End(list, false);
    case GDK_KEY_Tab:
    case GDK_KEY_KP_Tab:
    case GDK_KEY_ISO_Left_Tab:
        return End(list, true);
    default:
        break;
    }
    if (Moves(key.keyval)) {
        if (list.HighlightsByItself())
            gtk_menu_shell_deselect(list.menu);
        list.listener->MoveInList();
        return false;
    }
    const std::optional<wxUniChar> character = TypedBy(key, *list.listener);
    if (!character)
        // A blank that doesn't continue the typed text acts as Enter.
        return key.keyval == GDK_KEY_space && End(list, false);
    list.Highlight(list.listener->TypeInList(*character));
    return true;
}

extern "C" {

gboolean OnMenuEvent(GtkWidget*, GdkEvent* event, gpointer data) {
    auto* list = static_cast<OpenList*>(data);
    list->pointed = list->pointed || event->type == GDK_MOTION_NOTIFY;
    return event->type == GDK_KEY_PRESS && TakeKey(*list, event->key);
}

void OnEntryTaken(GtkMenuItem* entry, gpointer data) {
    const auto* list = static_cast<OpenList*>(data);
    list->listener->TakeFromList(list->PositionOf(GTK_WIDGET(entry)));
}

/// The text field passes characters to its input method, so the toolkit never sees them.
gboolean OnTextFieldEvent(GtkWidget*, GdkEvent* event, gpointer data) {
    auto* listener = static_cast<ChoiceListListener*>(data);
    const auto character =
        event->type == GDK_KEY_PRESS ? TypedBy(event->key, *listener) : std::optional<wxUniChar>();
    if (character)
        listener->TypeInControl(*character);
    return character.has_value();
}

gboolean OnControlEvent(GtkWidget*, GdkEvent* event, gpointer) {
    return event->type == GDK_SCROLL;
}
}

/// Returns the state of the control's list, null if it has no menu. The first call starts watching the list.
OpenList* ListOf(GtkWidget* control, ChoiceListListener& listener) {
    GList* menus = gtk_menu_get_for_attach_widget(control);
    if (!menus)
        return nullptr;
    static constexpr const char* key = "zelk-open-list";
    auto* list = static_cast<OpenList*>(g_object_get_data(G_OBJECT(menus->data), key));
    if (list)
        return list;
    list = new OpenList{GTK_MENU_SHELL(menus->data), GTK_COMBO_BOX(control), &listener};
    g_object_set_data_full(G_OBJECT(list->menu), key, list,
                           [](gpointer data) { delete static_cast<OpenList*>(data); });
    // This signal precedes the key signal, which the control would handle first.
    g_signal_connect(list->menu, "event", G_CALLBACK(OnMenuEvent), list);
    return list;
}

/// Reconnects the entries, which are recreated when the choices change.
void WatchEntries(OpenList* list) {
    GList* entries = list->Entries();
    for (GList* entry = entries; entry; entry = entry->next) {
        g_signal_handlers_disconnect_by_data(entry->data, list);
        g_signal_connect(entry->data, "activate", G_CALLBACK(OnEntryTaken), list);
    }
    g_list_free(entries);
}

/// Forces a menu: a theme may ask for a different kind of list, which has different keys.
void WantMenu(GtkWidget* control) {
    GtkCssProvider* provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, "* { -GtkComboBox-appears-as-list: 0; }", -1, nullptr);
    gtk_style_context_add_provider(gtk_widget_get_style_context(control), GTK_STYLE_PROVIDER(provider),
                                   GTK_STYLE_PROVIDER_PRIORITY_USER + 1);
    g_object_unref(provider);
}

GtkWidget* TextFieldOf(GtkWidget* control) {
    return gtk_bin_get_child(GTK_BIN(control));
}

} // namespace

void WatchChoiceList(wxComboBox& control, ChoiceListListener& listener) {
    GtkWidget* const widget = control.GetHandle();
    WantMenu(widget);
    g_signal_connect(widget, "event", G_CALLBACK(OnControlEvent), nullptr);
    g_signal_connect(TextFieldOf(widget), "event", G_CALLBACK(OnTextFieldEvent), &listener);
    control.Bind(wxEVT_COMBOBOX_DROPDOWN, [&control, widget, &listener](wxCommandEvent& event) {
        event.Skip();
        OpenList* list = ListOf(widget, listener);
        if (!list)
            return;
        WatchEntries(list);
        list->pointed = false;
        control.CallAfter([list] {
            if (list->HighlightsByItself())
                gtk_menu_shell_deselect(list->menu);
        });
    });
}

void ShowNoChoice(wxComboBox& control) {
    control.SetSelection(wxNOT_FOUND);
    // The control would keep the text of the last choice.
    gtk_entry_set_text(GTK_ENTRY(TextFieldOf(control.GetHandle())), "");
}
