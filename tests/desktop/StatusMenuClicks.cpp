// SPDX-License-Identifier: MIT
#include "desktop/StatusMenuClicks.h"

#include <stdexcept>

namespace {

/// What is known of a menu's looks: the height of an entry, and of the space above the first.
struct MenuLooks {
    int entryHeight;
    int frame;
};
constexpr MenuLooks own{20, 2};
constexpr MenuLooks drawnByTray{24, 5};

constexpr std::size_t fewestColours = 4;

}  // namespace

StatusMenuClicks::StatusMenuClicks(const Desktop& desktop) : m_desktop(desktop) {
    const auto isPainted = [this] {
        const std::optional<ScreenWindow> icon = m_desktop.tray().icon();
        // Nobody clicks at a place where nothing is to be seen yet.
        if (!icon || m_desktop.screen().colours(*icon) < fewestColours) return false;
        m_icon = *icon;
        return true;
    };
    if (!eventually(isPainted)) throw std::runtime_error("no icon in the tray");
}

void StatusMenuClicks::open() {
    m_desktop.click(m_icon.middleX(), m_icon.middleY(), isDrawnByTray() ? 3 : 1);
    std::optional<ScreenWindow> opened;
    if (!eventually([&] { return (opened = menu()).has_value() && m_desktop.screen().isKeyboardGrabbed(); }))
        throw std::runtime_error("no menu");
    m_menu = *opened;
}

std::optional<ScreenWindow> StatusMenuClicks::menu() const {
    return isDrawnByTray() ? m_desktop.tray().ownMenu() : m_desktop.window(title::menu);
}

void StatusMenuClicks::choose(int entry) {
    const MenuLooks looks = isDrawnByTray() ? drawnByTray : own;
    chooseAt(looks.frame + looks.entryHeight * (2 * entry - 1) / 2);
}

void StatusMenuClicks::chooseLast() {
    const MenuLooks looks = isDrawnByTray() ? drawnByTray : own;
    chooseAt(m_menu.height - looks.frame - looks.entryHeight / 2);
}

void StatusMenuClicks::chooseByKeys(int entry, const std::vector<std::string>& then) {
    for (int i = 0; i < entry; ++i) m_desktop.press("Down");
    for (const std::string& key : then) m_desktop.press(key);
    awaitClosed();
}

void StatusMenuClicks::chooseAt(int y) {
    m_desktop.click(m_menu.middleX(), m_menu.y + y);
    awaitClosed();
}

void StatusMenuClicks::awaitClosed() const {
    if (!eventually([this] { return !isOpen(); })) throw std::runtime_error("the menu stays");
}
