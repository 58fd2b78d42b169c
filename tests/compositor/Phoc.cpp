// SPDX-License-Identifier: MIT
#include "compositor/Phoc.h"

#include <algorithm>
#include <stdexcept>

Phoc::Phoc() {
    const std::string configuration =
        m_session.put("phoc.ini", "[core]\nxwayland=true\n[output:HEADLESS-1]\nmode = 1024x640\nscale = 1\n");
    // The session that it starts knows its X server; it ends with it.
    const std::string session = m_session.put(
        "session",
        "echo $DISPLAY > $XDG_RUNTIME_DIR/display.part\n"
        "mv $XDG_RUNTIME_DIR/display.part $XDG_RUNTIME_DIR/display\nexec tail --pid=$PPID -f /dev/null\n");
    m_program = m_session.start({"phoc", "-C", configuration, "-E", "exec sh " + session}, "phoc.log",
                                {{"WLR_BACKENDS", "headless"},
                                 {"WLR_LIBINPUT_NO_DEVICES", "1"},
                                 {"WLR_RENDERER", "pixman"},
                                 {"LIBSEAT_BACKEND", "noop"},
                                 {"GSETTINGS_BACKEND", "memory"},
                                 {"WAYLAND_DISPLAY", ""}});
    const auto display = [this] { return m_session.log("display"); };
    eventually([&] { return !display().empty() || !m_program->isRunning(); }, UserSession::startUp);
    if (display().empty()) throw std::runtime_error("no phoc could be started: " + m_session.log("phoc.log"));
    m_session.set("WAYLAND_DISPLAY", "wayland-0");
    m_session.set("DISPLAY", display().substr(0, display().size() - 1));
    m_windows = std::make_unique<Toplevels>(socket());
}

bool Phoc::hasFocus(const std::string& title) const {
    const auto windows = m_windows->windows();
    return std::any_of(windows.begin(), windows.end(), [&](const Toplevels::Window& window) {
        return window.title == title && window.isActive;
    });
}

bool Phoc::shows(const std::string& title) const {
    const auto windows = m_windows->windows();
    return std::any_of(windows.begin(), windows.end(),
                       [&](const Toplevels::Window& window) { return window.title == title; });
}
