// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandScriptDesktop.h"

#include <string>

#include "platform/wayland/ToplevelList.h"

namespace wayland {

Result<void> WaylandScriptDesktop::beep(int /*count*/) {
    return Error{"A Wayland session has no bell.", "Take the beep out of the script."};
}

bool WaylandScriptDesktop::hasApplication(std::string_view name) {
    const auto windows = ToplevelList::open();
    return windows && windows.value()->find(name) != nullptr;
}

Result<std::vector<std::string>> WaylandScriptDesktop::applications() {
    const auto windows = ToplevelList::open();
    if (!windows) return windows.error();
    return windows.value()->programs();
}

bool WaylandScriptDesktop::isInFront(std::string_view name) {
    const auto windows = ToplevelList::open();
    const auto* const window = windows ? windows.value()->find(name) : nullptr;
    return window != nullptr && window->isActive;
}

Result<void> WaylandScriptDesktop::activate(std::string_view name) {
    const auto windows = ToplevelList::open();
    if (!windows) return windows.error();
    const auto* const window = windows.value()->find(name);
    if (window == nullptr) {
        return Error{"No window of “" + std::string(name) + "” is open.", "Start it first."};
    }
    return windows.value()->activate(*window);
}

}  // namespace wayland
