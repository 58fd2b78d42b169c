// SPDX-License-Identifier: MIT
#include "desktop/StatusMenuClicks.h"

#include <stdexcept>

namespace {

/// The number behind "NAME=" in the lines of xdotool getwindowgeometry --shell.
int numberOf(const std::string& lines, const std::string& name) {
    return std::stoi(lines.substr(lines.find("\n" + name + "=") + name.size() + 2));
}

/// What is known of the menu's looks: the height of an entry, and of the space above the first.
constexpr int entryHeight = 20;
constexpr int frame = 2;

}  // namespace

StatusMenuClicks::StatusMenuClicks(const Desktop& desktop) : m_desktop(desktop) {
    if (!eventually([this] { return !(m_icon = m_desktop.window(title::trayIcon)).empty(); })) {
        throw std::runtime_error("no icon in the tray");
    }
}

void StatusMenuClicks::open() {
    const Area icon = areaOf(m_icon);
    click(icon.x + icon.width / 2, icon.y + icon.height / 2);
    if (!eventually([this] { return !(m_menu = m_desktop.window(title::menu)).empty(); })) {
        throw std::runtime_error("no menu");
    }
}

void StatusMenuClicks::choose(int entry) { chooseAt(frame + entryHeight * (2 * entry - 1) / 2); }

void StatusMenuClicks::chooseLast() { chooseAt(areaOf(m_menu).height - frame - entryHeight / 2); }

void StatusMenuClicks::chooseAt(int y) {
    const Area menu = areaOf(m_menu);
    click(menu.x + menu.width / 2, menu.y + y);
    if (!eventually([this] { return !m_desktop.shows(title::menu); }))
        throw std::runtime_error("the menu stays");
}

StatusMenuClicks::Area StatusMenuClicks::areaOf(const std::string& window) const {
    const std::string lines = m_desktop.run({"xdotool", "getwindowgeometry", "--shell", window});
    return {numberOf(lines, "X"), numberOf(lines, "Y"), numberOf(lines, "WIDTH"), numberOf(lines, "HEIGHT")};
}

void StatusMenuClicks::click(int x, int y) const {
    m_desktop.run({"xdotool", "mousemove", std::to_string(x), std::to_string(y), "click", "1"});
}
