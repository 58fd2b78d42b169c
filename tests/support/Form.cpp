// SPDX-License-Identifier: MIT
#include "support/Form.h"

#include <stdexcept>

#include "support/Programs.h"

Form::Form(const std::string& display, Toolkit toolkit) : WindowedProgram(display) {
    add({{"XDG_CONFIG_HOME", ""},
         {"XDG_RUNTIME_DIR", folder().path()},
         {"DBUS_SESSION_BUS_ADDRESS", "disabled:"},
         {"GSETTINGS_BACKEND", "memory"},
         {"GDK_BACKEND", "x11"},
         {"GSK_RENDERER", "cairo"},
         {"GTK_A11Y", "none"},
         {"GTK_IM_MODULE", ""},
         {"QT_QPA_PLATFORM", "xcb"},
         {"QT_IM_MODULE", ""},
         {"XMODIFIERS", ""}});
    const bool isGtk = toolkit == Toolkit::gtk4;
    start({isGtk ? programs::gtkForm : programs::qtForm, folder().path(), name()});
    findWindow(name());
    // A window that is not quite on the screen refuses the focus; it is given again until it is taken.
    const auto take = [this] {
        run({"xdotool", "windowfocus", window()});
        return hasFocus();
    };
    if (!eventually(take)) throw std::runtime_error("the form gets no focus");
}

std::string Form::content(const std::string& part, const std::string& expected) const {
    eventually([&] { return content(part) == expected; });
    return content(part);
}

bool Form::hasFocus() const { return run({"xdotool", "getwindowfocus"}) == window() + "\n"; }

std::string nameOf(Form::Toolkit toolkit) { return toolkit == Form::Toolkit::gtk4 ? "gtk4" : "qt6"; }
