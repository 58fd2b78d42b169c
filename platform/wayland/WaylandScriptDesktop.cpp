// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandScriptDesktop.h"

#include <string>

namespace wayland {

namespace {

Error noWindows() { return {"This compositor tells nobody of windows.", "Use sway, or an X11 session."}; }

}  // namespace

Result<void> WaylandScriptDesktop::beep(int /*count*/) {
    return Error{"A Wayland session has no bell.", "Take the beep out of the script."};
}

bool WaylandScriptDesktop::hasApplication(std::string_view name) {
    return m_sway != nullptr && m_sway->windowOf(name).has_value();
}

Result<std::vector<std::string>> WaylandScriptDesktop::applications() {
    if (m_sway == nullptr) return noWindows();
    return m_sway->programs();
}

bool WaylandScriptDesktop::isInFront(std::string_view name) {
    const auto front = m_sway == nullptr ? std::nullopt : m_sway->focused();
    const auto window = front ? m_sway->windowOf(name) : std::nullopt;
    return window && window->number == front->number;
}

/// The compositor answers when the focus has gone there.
Result<void> WaylandScriptDesktop::activate(std::string_view name) {
    if (m_sway == nullptr) return noWindows();
    const auto window = m_sway->windowOf(name);
    if (!window) {
        return Error{"No window of “" + std::string(name) + "” is open.", "Start it first."};
    }
    return m_sway->focus(*window);
}

}  // namespace wayland
