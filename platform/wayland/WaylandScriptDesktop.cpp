// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandScriptDesktop.h"

#include <string>

#include "platform/Sentence.h"

namespace wayland {

Result<void> WaylandScriptDesktop::beep(int /*count*/) {
    return Error{sentence("Keys", "A Wayland session has no bell."),
                 sentence("Keys", "Take the beep out of the script.")};
}

bool WaylandScriptDesktop::hasApplication(std::string_view name) {
    const auto opened = m_openWindows();
    if (!opened) return false;
    const std::vector<ForeignWindow> windows = opened.value()->windows();
    return foreignwindows::find(windows, name) != windows.size();
}

Result<std::vector<std::string>> WaylandScriptDesktop::applications() {
    const auto opened = m_openWindows();
    if (!opened) return opened.error();
    return foreignwindows::programsOf(opened.value()->windows());
}

bool WaylandScriptDesktop::isInFront(std::string_view name) {
    const auto opened = m_openWindows();
    if (!opened) return false;
    const std::vector<ForeignWindow> windows = opened.value()->windows();
    const std::size_t place = foreignwindows::find(windows, name);
    return place != windows.size() && windows[place].isActive;
}

Result<void> WaylandScriptDesktop::activate(std::string_view name) {
    const auto opened = m_openWindows();
    if (!opened) return opened.error();
    const std::vector<ForeignWindow> windows = opened.value()->windows();
    const std::size_t place = foreignwindows::find(windows, name);
    if (place == windows.size()) {
        return Error{sentence("Windows", "No window of “%1” is open.").arg(name),
                     sentence("Windows", "Start it first.")};
    }
    return opened.value()->activate(place);
}

}  // namespace wayland
