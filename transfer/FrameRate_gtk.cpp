#include "transfer/FrameRate.h"

#include <gtk/gtk.h>
#include <wx/toplevel.h>

#include <utility>

/// Freezes the window's drawing after each frame. A timer ends that, so the window can't stay frozen under a
/// message box, in which no transfer runs.
struct FrameRate::Impl {
    GtkWidget* widget;
    guint interval; // milliseconds
    GdkWindow* frozen = nullptr;
    guint timer = 0;
    GdkFrameClock* clock = nullptr;
    gulong afterPaint = 0;

    void Follow();
    void Freeze();
    void Thaw();
    void Leave();
};

namespace {

extern "C" {

void OnAfterPaint(GdkFrameClock*, gpointer data) {
    static_cast<FrameRate::Impl*>(data)->Freeze();
}

gboolean OnIntervalEnd(gpointer data) {
    auto* impl = static_cast<FrameRate::Impl*>(data);
    impl->timer = 0;
    impl->Thaw();
    return G_SOURCE_REMOVE;
}

void OnRealize(GtkWidget*, gpointer data) {
    static_cast<FrameRate::Impl*>(data)->Follow();
}

void OnUnrealize(GtkWidget*, gpointer data) {
    static_cast<FrameRate::Impl*>(data)->Leave();
}
}

} // namespace

void FrameRate::Impl::Follow() {
    clock = gtk_widget_get_frame_clock(widget);
    afterPaint = g_signal_connect(clock, "after-paint", G_CALLBACK(OnAfterPaint), this);
}

void FrameRate::Impl::Freeze() {
    if (frozen)
        return;
    frozen = gtk_widget_get_window(widget);
    gdk_window_freeze_updates(frozen);
    timer = g_timeout_add(interval, OnIntervalEnd, this);
}

void FrameRate::Impl::Thaw() {
    if (timer != 0)
        g_source_remove(std::exchange(timer, 0));
    if (frozen)
        gdk_window_thaw_updates(std::exchange(frozen, nullptr));
}

void FrameRate::Impl::Leave() {
    Thaw();
    if (clock)
        g_signal_handler_disconnect(std::exchange(clock, nullptr), afterPaint);
}

FrameRate::FrameRate(wxTopLevelWindow& window, std::chrono::milliseconds interval)
    : m_impl(std::make_unique<Impl>(Impl{window.GetHandle(), static_cast<guint>(interval.count())})) {
    g_signal_connect(m_impl->widget, "realize", G_CALLBACK(OnRealize), m_impl.get());
    g_signal_connect(m_impl->widget, "unrealize", G_CALLBACK(OnUnrealize), m_impl.get());
    if (gtk_widget_get_realized(m_impl->widget))
        m_impl->Follow();
}

FrameRate::~FrameRate() {
    m_impl->Leave();
    g_signal_handlers_disconnect_by_data(m_impl->widget, m_impl.get());
}
