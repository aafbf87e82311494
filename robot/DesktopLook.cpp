#include "robot/DesktopLook.h"

#include <gtk/gtk.h>

#include <cmath>

namespace testbench {

namespace {

constexpr const char *TextResolution = "gtk-xft-dpi", *FontName = "gtk-font-name",
                     *ThemeName = "gtk-theme-name", *PrefersDark = "gtk-application-prefer-dark-theme";

/// The resolution is in 1024ths of a dot per inch.
constexpr double UsualResolution = 96 * 1024;

} // namespace

DesktopLook::~DesktopLook() {
    // The toolkit keeps the last resolution when the setting is reset.
    ScaleTexts(1);
    // The toolkit looks at the theme again when its name is set, so the name comes last.
    for (const char* name : {TextResolution, FontName, PrefersDark, ThemeName})
        gtk_settings_reset_property(gtk_settings_get_default(), name);
}

void DesktopLook::ScaleTexts(double scale) {
    g_object_set(gtk_settings_get_default(), TextResolution,
                 static_cast<int>(std::lround(UsualResolution * scale)), nullptr);
}

void DesktopLook::SetFont(const std::string& description) {
    g_object_set(gtk_settings_get_default(), FontName, description.c_str(), nullptr);
}

void DesktopLook::SetTheme(const std::string& name, bool dark) {
    g_object_set(gtk_settings_get_default(), ThemeName, name.c_str(), PrefersDark,
                 static_cast<gboolean>(dark), nullptr);
}

} // namespace testbench
