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
    if (!eventually([this] { return icon().has_value(); })) throw std::runtime_error("no icon in the tray");
}

std::optional<ScreenWindow> StatusMenuClicks::icon() const {
    const std::optional<ScreenWindow> found = m_desktop.tray().icon();
    // Nobody clicks at a place where nothing is to be seen yet.
    return found && m_desktop.screen().colours(*found) >= fewestColours ? found : std::nullopt;
}

void StatusMenuClicks::open() {
    // A menu that is closing takes the click that is meant for the next one.
    if (!eventually([this] { return !isOpen() && !m_desktop.screen().isAnythingGrabbed(); })) {
        throw std::runtime_error("something has the mouse or the keyboard for itself");
    }
    std::optional<ScreenWindow> clicked;
    std::optional<ScreenWindow> opened;
    // Trays move their icons while they settle; a click beside is one for nobody.
    const auto clickWhereItIs = [&] {
        opened = menu();
        if (opened && m_desktop.screen().isKeyboardGrabbed()) return true;
        const std::optional<ScreenWindow> now = icon();
        if (!opened && now && (!clicked || now->x != clicked->x || now->y != clicked->y)) {
            clicked = now;
            m_desktop.click(now->middleX(), now->middleY(), isDrawnByTray() ? 3 : 1);
        }
        return false;
    };
    if (!eventually(clickWhereItIs)) throw std::runtime_error("no menu");
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
