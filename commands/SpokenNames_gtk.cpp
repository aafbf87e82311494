#include "commands/SpokenNames.h"

#include <gtk/gtk-a11y.h>
#include <gtk/gtk.h>
#include <wx/window.h>

// GTK makes the accessible object of a widget by the widget's class. All windows of the toolkit share one
// class, so a window that draws its content gets an object of its own through the class's look-up.

namespace {

constexpr const char* OwnObject = "zelk-accessible";

/// A cell or a field, a child of the object of its window.
struct Part {
    AtkObject base;
    int place;
};

struct PartClass {
    AtkObjectClass base;
};

/// The object of a window. It holds a reference to each part.
struct DrawnWindow {
    GtkContainerAccessible base;
    GPtrArray* parts;
};

struct DrawnWindowClass {
    GtkContainerAccessibleClass base;
};

gpointer partParentClass = nullptr;
gpointer windowParentClass = nullptr;
AtkObject* (*formerLookUp)(GtkWidget*) = nullptr;

AtkObject* PartAt(const DrawnWindow& window, guint index) {
    return ATK_OBJECT(g_ptr_array_index(window.parts, index));
}

/// Returns the object of the window that a part is in.
DrawnWindow& WindowOf(AtkObject* part) {
    return *reinterpret_cast<DrawnWindow*>(atk_object_get_parent(part));
}

GtkWidget* WidgetOf(DrawnWindow& window) {
    return gtk_accessible_get_widget(GTK_ACCESSIBLE(&window));
}

/// Returns the number of children that are windows, such as an open cell editor. The parts follow them.
int WindowsIn(DrawnWindow& window) {
    return ATK_OBJECT_CLASS(windowParentClass)->get_n_children(ATK_OBJECT(&window));
}

bool IsCell(AtkObject* part) {
    return atk_object_get_role(part) == ATK_ROLE_TABLE_CELL;
}

extern "C" {

AtkStateSet* StatesOfPart(AtkObject* part) {
    AtkStateSet* const states = ATK_OBJECT_CLASS(partParentClass)->ref_state_set(part);
    DrawnWindow& window = WindowOf(part);
    GtkWidget* const widget = WidgetOf(window);
    if (!widget || !g_ptr_array_find(window.parts, part, nullptr)) {
        atk_state_set_add_state(states, ATK_STATE_DEFUNCT);
        return states;
    }
    if (gtk_widget_is_sensitive(widget)) {
        atk_state_set_add_state(states, ATK_STATE_ENABLED);
        atk_state_set_add_state(states, ATK_STATE_SENSITIVE);
    }
    if (gtk_widget_get_mapped(widget)) {
        atk_state_set_add_state(states, ATK_STATE_VISIBLE);
        atk_state_set_add_state(states, ATK_STATE_SHOWING);
    }
    if (IsCell(part)) {
        atk_state_set_add_state(states, ATK_STATE_FOCUSABLE);
        if (gtk_widget_has_focus(widget))
            atk_state_set_add_state(states, ATK_STATE_FOCUSED);
    }
    return states;
}

int IndexOfPart(AtkObject* part) {
    DrawnWindow& window = WindowOf(part);
    guint index = 0;
    return g_ptr_array_find(window.parts, part, &index) ? WindowsIn(window) + static_cast<int>(index) : -1;
}

void SetUpPartClass(gpointer partClass, gpointer) {
    partParentClass = g_type_class_peek_parent(partClass);
    ATK_OBJECT_CLASS(partClass)->ref_state_set = StatesOfPart;
    ATK_OBJECT_CLASS(partClass)->get_index_in_parent = IndexOfPart;
}

int CountChildren(AtkObject* object) {
    auto& window = *reinterpret_cast<DrawnWindow*>(object);
    return WindowsIn(window) + static_cast<int>(window.parts->len);
}

AtkObject* ChildAt(AtkObject* object, int index) {
    auto& window = *reinterpret_cast<DrawnWindow*>(object);
    const int part = index - WindowsIn(window);
    if (part < 0)
        return ATK_OBJECT_CLASS(windowParentClass)->ref_child(object, index);
    if (part >= static_cast<int>(window.parts->len))
        return nullptr;
    return ATK_OBJECT(g_object_ref(PartAt(window, static_cast<guint>(part))));
}

AtkStateSet* StatesOfWindow(AtkObject* object) {
    AtkStateSet* const states = ATK_OBJECT_CLASS(windowParentClass)->ref_state_set(object);
    // Only the cell with the cursor is a child; it tells its moves itself.
    if (atk_object_get_role(object) == ATK_ROLE_TABLE)
        atk_state_set_add_state(states, ATK_STATE_MANAGES_DESCENDANTS);
    return states;
}

void FreeWindow(GObject* object) {
    g_ptr_array_unref(reinterpret_cast<DrawnWindow*>(object)->parts);
    G_OBJECT_CLASS(windowParentClass)->finalize(object);
}

void SetUpWindowClass(gpointer windowClass, gpointer) {
    windowParentClass = g_type_class_peek_parent(windowClass);
    AtkObjectClass* const object = ATK_OBJECT_CLASS(windowClass);
    object->get_n_children = CountChildren;
    object->ref_child = ChildAt;
    object->ref_state_set = StatesOfWindow;
    G_OBJECT_CLASS(windowClass)->finalize = FreeWindow;
}

void SetUpWindow(GTypeInstance* instance, gpointer) {
    reinterpret_cast<DrawnWindow*>(instance)->parts = g_ptr_array_new_with_free_func(g_object_unref);
}

AtkObject* LookUp(GtkWidget* widget) {
    const gpointer own = g_object_get_data(G_OBJECT(widget), OwnObject);
    return own ? ATK_OBJECT(own) : formerLookUp(widget);
}

void OnWidgetDestroyed(GtkWidget*, gpointer own) {
    gtk_accessible_set_widget(GTK_ACCESSIBLE(own), nullptr);
    // Parts hold references to the object of their window.
    g_ptr_array_set_size(static_cast<DrawnWindow*>(own)->parts, 0);
}

void NameIfItTakesKeys(GtkWidget* widget, gpointer name) {
    if (gtk_widget_get_can_focus(widget))
        atk_object_set_name(gtk_widget_get_accessible(widget), static_cast<const char*>(name));
    if (GTK_IS_CONTAINER(widget))
        gtk_container_forall(GTK_CONTAINER(widget), NameIfItTakesKeys, name);
}
}

GType TypeOfParts() {
    static const GType type =
        g_type_register_static_simple(ATK_TYPE_OBJECT, "ZelkDrawnPart", sizeof(PartClass), SetUpPartClass,
                                      sizeof(Part), nullptr, GTypeFlags{});
    return type;
}

GType TypeOfWindows() {
    static const GType type = g_type_register_static_simple(GTK_TYPE_CONTAINER_ACCESSIBLE, "ZelkDrawnWindow",
                                                            sizeof(DrawnWindowClass), SetUpWindowClass,
                                                            sizeof(DrawnWindow), SetUpWindow, GTypeFlags{});
    return type;
}

/// Returns the widget that a window of the toolkit draws on.
GtkWidget* DrawnWidget(const wxWindow& window) {
    return window.m_wxwindow ? window.m_wxwindow : window.GetHandle();
}

/// Returns the object that DescribeToReader made for the window.
DrawnWindow& ObjectOf(const wxWindow& window) {
    return *static_cast<DrawnWindow*>(g_object_get_data(G_OBJECT(DrawnWidget(window)), OwnObject));
}

AtkObject* AddPart(DrawnWindow& window, AtkRole role, int place, const wxString& text) {
    auto* const part = static_cast<Part*>(g_object_new(TypeOfParts(), nullptr));
    part->place = place;
    AtkObject* const object = ATK_OBJECT(part);
    atk_object_set_role(object, role);
    atk_object_set_name(object, text.utf8_str());
    atk_object_set_parent(object, ATK_OBJECT(&window));
    g_ptr_array_add(window.parts, part);
    return object;
}

/// Each change of a name is news for the reader.
void Rename(AtkObject* part, const wxString& text) {
    if (wxString::FromUTF8(atk_object_get_name(part)) != text)
        atk_object_set_name(part, text.utf8_str());
}

void TakeReaderTo(DrawnWindow& window, AtkObject* cell) {
    if (!gtk_widget_has_focus(WidgetOf(window)))
        return;
    g_signal_emit_by_name(&window, "active-descendant-changed", cell);
    atk_object_notify_state_change(cell, ATK_STATE_FOCUSED, TRUE);
}

} // namespace

void NameForReader(wxWindow& control, const wxString& name) {
    const wxScopedCharBuffer text = name.utf8_str();
    GtkWidget* const widget = control.GetHandle();
    atk_object_set_name(gtk_widget_get_accessible(widget), text);
    // The keyboard is in a button or a text field of a choice box.
    if (GTK_IS_COMBO_BOX(widget))
        gtk_container_forall(GTK_CONTAINER(widget), NameIfItTakesKeys, const_cast<char*>(text.data()));
}

void DescribeToReader(wxWindow& window, DrawnContent content, const wxString& name) {
    GtkWidget* const widget = DrawnWidget(window);
    GtkWidgetClass* const widgetClass = GTK_WIDGET_GET_CLASS(widget);
    if (widgetClass->get_accessible != LookUp) {
        formerLookUp = widgetClass->get_accessible;
        widgetClass->get_accessible = LookUp;
    }
    const gpointer own = g_object_new(TypeOfWindows(), "widget", widget, nullptr);
    g_object_set_data_full(G_OBJECT(widget), OwnObject, own, g_object_unref);
    g_signal_connect(widget, "destroy", G_CALLBACK(OnWidgetDestroyed), own);
    atk_object_initialize(ATK_OBJECT(own), widget);
    atk_object_set_role(ATK_OBJECT(own),
                        content == DrawnContent::Cells ? ATK_ROLE_TABLE : ATK_ROLE_STATUSBAR);
    atk_object_set_name(ATK_OBJECT(own), name.utf8_str());
}

void SpeakCell(wxWindow& window, int place, const wxString& text, bool again) {
    DrawnWindow& own = ObjectOf(window);
    AtkObject* cell = own.parts->len ? PartAt(own, 0) : nullptr;
    if (cell && reinterpret_cast<Part*>(cell)->place == place) {
        Rename(cell, text);
        if (again)
            TakeReaderTo(own, cell);
        return;
    }
    // A reader takes an object that it has already told for old news.
    g_ptr_array_set_size(own.parts, 0);
    TakeReaderTo(own, AddPart(own, ATK_ROLE_TABLE_CELL, place, text));
}

void SpeakFields(wxWindow& window, const std::vector<wxString>& texts) {
    DrawnWindow& own = ObjectOf(window);
    for (size_t field = 0; field < texts.size(); ++field) {
        if (field < own.parts->len)
            Rename(PartAt(own, static_cast<guint>(field)), texts[field]);
        else
            AddPart(own, ATK_ROLE_LABEL, static_cast<int>(field), texts[field]);
    }
}
