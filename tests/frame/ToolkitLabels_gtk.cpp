#include "tests/frame/ToolkitLabels.h"

#include <dlfcn.h>

#include <stdexcept>

// The program is linked with GTK through wxWidgets, but GTK's headers are a separate package. So the few
// functions needed are looked up by name.

namespace testbench {

namespace {

struct List {
    void* data;
    List* next;
    List* previous;
};

template <class Function>
Function* Find(const char* name) {
    void* function = dlsym(RTLD_DEFAULT, name);
    if (!function)
        throw std::runtime_error(std::string("GTK has no ") + name);
    return reinterpret_cast<Function*>(function);
}

bool IsOf(const char* typeName, void* widget) {
    static const auto typeFromName = Find<size_t(const char*)>("g_type_from_name");
    static const auto isA = Find<int(void*, size_t)>("g_type_check_instance_is_a");
    const size_t type = typeFromName(typeName);
    return type && isA(widget, type);
}

void CollectLabels(void* widget, void* texts) {
    static const auto isVisible = Find<int(void*)>("gtk_widget_is_drawable");
    static const auto forAll = Find<void(void*, void (*)(void*, void*), void*)>("gtk_container_forall");
    static const auto textOf = Find<const char*(void*)>("gtk_label_get_text");
    if (!isVisible(widget))
        return;
    if (IsOf("GtkLabel", widget))
        static_cast<std::vector<std::string>*>(texts)->push_back(textOf(widget));
    if (IsOf("GtkContainer", widget))
        forAll(widget, CollectLabels, texts);
}

} // namespace

std::vector<std::string> AboutBoxLabels() {
    List* const windows = Find<List*()>("gtk_window_list_toplevels")();
    std::vector<std::string> texts;
    for (const List* window = windows; window; window = window->next)
        if (IsOf("GtkAboutDialog", window->data))
            CollectLabels(window->data, &texts);
    Find<void(List*)>("g_list_free")(windows);
    return texts;
}

std::vector<std::string> NameLabels(const std::string& name, const std::string& version) {
    return {name, version};
}

} // namespace testbench
