#include "tests/support/DesktopLook.h"

#include "robot/Pump.h"

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
    for (const char* name : {TextResolution, FontName, ThemeName, PrefersDark})
        gtk_settings_reset_property(gtk_settings_get_default(), name);
    PumpUntilIdle();
}

void DesktopLook::ScaleTexts(double scale) {
    g_object_set(gtk_settings_get_default(), TextResolution,
                 static_cast<int>(std::lround(UsualResolution * scale)), nullptr);
    PumpUntilIdle();
}

void DesktopLook::SetFont(const std::string& description) {
    g_object_set(gtk_settings_get_default(), FontName, description.c_str(), nullptr);
    PumpUntilIdle();
}

void DesktopLook::SetTheme(const std::string& name, bool dark) {
    g_object_set(gtk_settings_get_default(), ThemeName, name.c_str(), PrefersDark,
                 static_cast<gboolean>(dark), nullptr);
    PumpUntilIdle();
}

} // namespace testbench
