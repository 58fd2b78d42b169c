// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayDesktop.h"

#include <unistd.h>

#include <algorithm>
#include <string>

#include "platform/Sentence.h"
#include "platform/desktops/SwayTree.h"

std::uint32_t SwayDesktop::group() {
    const auto inputs = m_connection.ask(SwayConnection::Request::inputs);
    if (!inputs) return 0;
    std::uint32_t group = 0;
    std::size_t most = 0;
    for (const Json& input : inputs.value().items()) {
        if (input["type"].text() != "keyboard") continue;
        const bool isVirtual = input["identifier"].text().find("virtual_keyboard") != std::string::npos;
        const std::size_t layouts = input["xkb_layout_names"].items().size() * 2 + (isVirtual ? 0 : 1);
        if (layouts <= most) continue;
        most = layouts;
        group = static_cast<std::uint32_t>(std::max(0.0, input["xkb_active_layout_index"].number()));
    }
    return group;
}

bool SwayDesktop::isElsewhere(const OwnWindow& hidden) {
    const auto tree = m_connection.ask(SwayConnection::Request::tree);
    const Json* const focused = tree ? focusedWindow(tree.value()) : nullptr;
    return focused != nullptr && !isWindow(*focused, hidden);
}

Result<void> SwayDesktop::focus(const OwnWindow& window) {
    const auto tree = m_connection.ask(SwayConnection::Request::tree);
    if (!tree) return tree.error();
    const auto number = numberOf(tree.value(), window);
    if (!number) return Error{sentence("Windows", "The window is not on the screen."), ""};
    const std::string focus = "[con_id=" + std::to_string(*number) + "] focus";
    const auto cover = coverOf(tree.value(), *number);
    if (!cover) return m_connection.run(focus);
    m_covers.listen();
    if (auto focused = m_connection.run(focus); !focused) return focused;
    const auto now = m_connection.ask(SwayConnection::Request::tree);
    if (!now) return now.error();
    // Some let it make room by themselves. By others one behind it gets no focus, and nobody sees it.
    const bool isFocused = hasFocus(now.value(), *number);
    if (isFocused && coverOf(now.value(), *number)) return {};
    m_covers.noteLifted(*nodeOf(tree.value(), *cover), window);
    if (isFocused) return {};
    const auto lifted = m_connection.run("[con_id=" + std::to_string(*cover) + "] fullscreen disable");
    return lifted ? m_connection.run(focus) : lifted;
}

void SwayDesktop::refuseFocus(const std::string& title) {
    std::string name;
    for (const char character : title) {
        if (character == '"') name += '\\';
        name += character;
    }
    // One that refuses the command gives the focus as ever.
    [[maybe_unused]] const auto told =
        m_connection.run("no_focus [pid=" + std::to_string(getpid()) + " title=\"^\\Q" + name + "\\E$\"]");
}
